// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainerPtr.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSField.h>

namespace osg {

class Node;

/// Pointer to nodes.
class NodePtr : public TypedContainerPtr<AttachmentContainerPtr, Node, NodePtr>
{
public:
    using TypedContainerPtr::TypedContainerPtr;

    NodePtr() = default;
};

typedef NodePtr CNodePtr;
typedef RefPtr<NodePtr> NodeRefPtr;
typedef SField<NodePtr> SFNodePtr;
typedef MField<NodePtr> MFNodePtr;

}  // namespace osg
