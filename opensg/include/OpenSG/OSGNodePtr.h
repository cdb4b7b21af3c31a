// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGRefPtr.h>

namespace osg {

class Node;

/// Pointer to nodes.
class NodePtr : public TypedContainerPtr<AttachmentContainerPtr, Node, NodePtr>
{
public:
    using TypedContainerPtr::TypedContainerPtr;

    NodePtr() = default;
};

typedef RefPtr<NodePtr> NodeRefPtr;
typedef NodePtr CNodePtr;

}  // namespace osg

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGNode.h>
