// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {
OSG_DECLARED_POINTER_CLASS(Node, AttachmentContainerPtr);
OSG_DECLARED_POINTER_CLASS(NodeCore, AttachmentContainerPtr);
typedef NodePtr CNodePtr;
template <class Core>
NodePtr makeCoredNode(typename Core::Ptr* core = nullptr);
NodePtr makeNodeFor(NodeCorePtr core);
}  // namespace osg
