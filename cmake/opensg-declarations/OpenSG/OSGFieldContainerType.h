// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {
class FieldDescription;

class IDString
{
public:
    const Char8* str() const;
};

typedef FieldContainerPtr (*PrototypeCreateF)();
typedef void (*InitContainerF)();

class FieldContainerType
{
public:
    FieldContainerType(const Char8* name, const Char8* parent, const Char8* group,
                       PrototypeCreateF create, InitContainerF init,
                       FieldDescription** descriptions, UInt32 size);
    bool isDerivedFrom(const FieldContainerType& other) const;
    FieldContainerType* getParent() const;
    FieldContainerPtr getPrototype() const;
    const Char8* getCName() const;
    const IDString& getName() const;
    UInt32 getId() const;
    UInt16 getGroupId() const;
    bool isNode() const;
    bool isNodeCore() const;
    bool isAttachment() const;
    bool isAbstract() const;
    bool operator==(const FieldContainerType& other) const;
    bool operator!=(const FieldContainerType& other) const;
};
}  // namespace osg
