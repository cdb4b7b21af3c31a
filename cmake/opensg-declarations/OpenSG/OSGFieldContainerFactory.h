// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainer.h>

namespace osg {
class NodePtr;
class NodeCorePtr;

class FieldContainerFactory
{
public:
    static FieldContainerFactory* the();
    FieldContainerPtr getContainer(UInt32 id) const;
    FieldContainerType* findType(const Char8* name) const;
    FieldContainerType* findType(UInt32 id) const;
    FieldContainerPtr createFieldContainer(const Char8* name) const;
    UInt32 getNumTypes() const;
};
}  // namespace osg
