// SPDX-License-Identifier: MIT
#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(NodeCore, AttachmentContainer);

NodeCore::NodeCore(const NodeCore& source)
    : Inherited(source)
{ }

NodeCore::~NodeCore() = default;

void NodeCore::adjustVolume(Volume&) { }

void NodeCore::invalidateVolume()
{
    for (const NodePtr& node : mfParents) {
        node->invalidateVolume();
    }
}

void NodeCore::noteEdit()
{
    if (ownerCount > 0) {
        Inherited::noteEdit();
    }
    for (const NodePtr& node : mfParents) {
        node->noteSubtreeChange();
    }
}

void NodeCore::ownerAdded(FieldContainer&)
{
    ++ownerCount;
}

void NodeCore::ownerRemoved(FieldContainer&)
{
    --ownerCount;
}

void NodeCore::addParent(const NodePtr& parent)
{
    mfParents.reserveFew();
    mfParents.push_back(parent);
}

void NodeCore::subParent(const NodePtr& parent)
{
    const auto found = mfParents.find(parent);
    if (found != mfParents.end()) {
        mfParents.erase(found);
    }
}

NodeCorePtr detail::coreOf(const NodePtr& node)
{
    return node != NullFC ? node->getCore() : NodeCorePtr();
}

NodePtr makeNodeFor(const NodeCorePtr& core)
{
    const NodePtr node = Node::create();
    node->setCore(core);
    return node;
}

}  // namespace osg
