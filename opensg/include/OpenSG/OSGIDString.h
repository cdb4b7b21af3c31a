// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace osg {

/// Name of a type as OpenSG hands it out. Refers to text that lives as long as the type.
class IDString
{
public:
    explicit IDString(const Char8* name)
        : text(name)
    { }

    const Char8* str() const { return text; }

private:
    const Char8* text;
};

}  // namespace osg
