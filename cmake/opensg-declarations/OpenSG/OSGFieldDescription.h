// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGSField.h>

namespace osg {
typedef Field* (FieldContainer::*FieldAccessMethod)();

class FieldDescription
{
public:
    FieldDescription(const FieldType& type, const Char8* name, UInt32 id, BitVector mask,
                     bool internal, FieldAccessMethod access);
};
}  // namespace osg
