// SPDX-License-Identifier: MIT
#include <OpenSG/OSGContentStamp.h>
#include <OpenSG/OSGStateChunk.h>

#include <algorithm>
#include <string>
#include <vector>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(StateChunk, Attachment);

namespace {

struct Kind
{
    std::string name;
    UInt32 slots;
};

/// One entry for each id, so that all slots of a kind find it. A function's static object, because
/// kinds are static objects of many files.
std::vector<Kind>& kinds()
{
    static std::vector<Kind> table;
    return table;
}

}  // namespace

StateChunkClass::StateChunkClass(const Char8* name, UInt32 slots)
    : id(getUsedSlots())
{
    const UInt32 count = std::max<UInt32>(slots, 1);
    kinds().insert(kinds().end(), count, Kind { name, count });
}

const Char8* StateChunkClass::getName() const
{
    return getName(id);
}

Int32 StateChunkClass::getNumSlots() const
{
    return getNumSlots(id);
}

const Char8* StateChunkClass::getName(UInt32 anyId)
{
    return anyId < getUsedSlots() ? kinds()[anyId].name.c_str() : nullptr;
}

Int32 StateChunkClass::getNumSlots(UInt32 anyId)
{
    return anyId < getUsedSlots() ? static_cast<Int32>(kinds()[anyId].slots) : 0;
}

UInt32 StateChunkClass::getUsedSlots()
{
    return static_cast<UInt32>(kinds().size());
}

bool StateChunk::isTransparent() const
{
    return false;
}

UInt64 StateChunk::getContentStamp() const
{
    return ContentStamp(*this).get();
}

}  // namespace osg
