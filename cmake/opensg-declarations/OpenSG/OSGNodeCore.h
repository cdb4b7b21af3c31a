// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGNodePtr.h>

namespace osg {
class NodeCore : public AttachmentContainer
{
    OSG_DECLARED_TYPE(NodeCore, AttachmentContainer)
    OSG_DECLARED_VALUES(Parents, NodePtr)
    void invalidateVolume();
};
}  // namespace osg
