// SPDX-License-Identifier: MIT
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(StateChunk, Attachment);

StateChunkClass::StateChunkClass(const Char8* /*name*/, UInt32 slots)
{
    static UInt32 usedIds = 0;
    id = usedIds;
    usedIds += slots;
}

bool StateChunk::isTransparent() const
{
    return false;
}

}  // namespace osg
