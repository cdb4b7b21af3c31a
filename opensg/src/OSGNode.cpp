// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGChangeCount.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include <boost/container/small_vector.hpp>

#include <cassert>
#include <cstring>
#include <utility>
#include <vector>

namespace osg {

OSG_CONTAINER_TYPE(Node, AttachmentContainer);

UInt64 Node::presentStamp = 1;

/// A transform node's place in the world and what it was worked out from.
struct Node::WorldCache
{
    Matrix local;
    Matrix world;
    /// Of the cache above when this one was made, 0 without one.
    UInt64 serialAbove = 0;
    /// New each time the cache is made; never 0 afterwards.
    UInt64 serial = 0;
};

namespace {

UInt64 lastWorldSerial = 0;

bool sameBits(const Matrix& a, const Matrix& b)
{
    return std::memcmp(a.getValues(), b.getValues(), 16 * sizeof(Real32)) == 0;
}

}  // namespace

Node::Node()
{
    volume.setValid(false);
}

Node::Node(const Node& source)
    : Inherited(source)
    , sfTravMask(source.sfTravMask)
    , sfCore(source.sfCore)
{
    volume.setValid(false);
    const NodeCorePtr core = getCore();
    if (core != NullFC) {
        addRefCP(core);
        core->addParent(NodePtr(this));
    }
}

Node::~Node()
{
    for (const NodePtr& child : mfChildren) {
        child->sfParent.setValue(NullFC);
        subRefCP(static_cast<const FieldContainerPtr&>(child));
    }
    const NodeCorePtr core = getCore();
    if (core != NullFC) {
        core->subParent(NodePtr(this));
        subRefCP(static_cast<const FieldContainerPtr&>(core));
    }
}

// == Core

void Node::setCore(const NodeCorePtr& core)
{
    const NodeCorePtr old = getCore();
    if (core == old) {
        return;
    }
    // No edit of the cores, which would tell all the nodes that share them.
    if (core != NullFC) {
        addRefCP(core);
        core->addParent(NodePtr(this));
    }
    sfCore.setValue(core);
    if (old != NullFC) {
        old->subParent(NodePtr(this));
        subRefCP(static_cast<const FieldContainerPtr&>(old));
    }
    ++detail::editCount;
    noteSubtreeChange();
    invalidateVolume();
}

// == Tree

NodePtr Node::getChild(UInt32 index) const
{
    assert(index < getNChildren());
    return mfChildren[index];
}

Int32 Node::findChild(const NodePtr& child) const
{
    const auto found = mfChildren.find(child);
    return found != mfChildren.end() ? static_cast<Int32>(found - mfChildren.begin()) : -1;
}

void Node::addChild(const NodePtr& child)
{
    insertChild(getNChildren(), child);
}

void Node::insertChild(UInt32 index, const NodePtr& child)
{
    assert(index <= getNChildren());
    if (child == NullFC) {
        return;
    }
    const NodeRefPtr held(child);
    const NodePtr oldParent = held->getParent();
    if (oldParent != NullFC) {
        const UInt32 oldIndex = static_cast<UInt32>(oldParent->findChild(held));
        oldParent->removeAt(oldIndex);
        if (oldParent.getCPtr() == this && oldIndex < index) {
            --index;
        }
    }
    attach(index, held);
}

void Node::attach(UInt32 index, const NodePtr& child)
{
    addRefCP(child);
    mfChildren.reserveFew();
    mfChildren.insert(mfChildren.begin() + index, child);
    beginEditCP(child, ParentFieldMask);
    child->sfParent.setValue(NodePtr(this));
    endEditCP(child, ParentFieldMask);
    noteSubtreeChange();  // the child may have had the present stamp before
    invalidateVolume();
}

void Node::removeAt(UInt32 index)
{
    const NodePtr child = mfChildren[index];
    mfChildren.erase(mfChildren.begin() + index);
    beginEditCP(child, ParentFieldMask);
    child->sfParent.setValue(NullFC);
    endEditCP(child, ParentFieldMask);
    subRefCP(static_cast<const FieldContainerPtr&>(child));
    noteSubtreeChange();
    invalidateVolume();
}

void Node::replaceChild(UInt32 index, const NodePtr& child)
{
    assert(index < getNChildren());
    if (child == NullFC || child == mfChildren[index]) {
        return;
    }
    const NodeRefPtr replaced(mfChildren[index]);
    insertChild(index, child);
    removeAt(static_cast<UInt32>(findChild(replaced)));
}

bool Node::replaceChildBy(const NodePtr& oldChild, const NodePtr& newChild)
{
    const Int32 index = findChild(oldChild);
    if (index < 0 || newChild == NullFC) {
        return false;
    }
    replaceChild(static_cast<UInt32>(index), newChild);
    return true;
}

void Node::subChild(const NodePtr& child)
{
    const Int32 index = findChild(child);
    if (index < 0) {
        SWARNING << "Node::subChild: the node is no child of this one" << std::endl;
        return;
    }
    removeAt(static_cast<UInt32>(index));
}

void Node::subChild(UInt32 index)
{
    assert(index < getNChildren());
    removeAt(index);
}

// == Space

const Node::WorldCache* Node::findWorld()
{
    constexpr std::size_t kUsualDepth = 64;
    boost::container::small_vector<Node*, kUsualDepth> placed;
    for (Node* node = this; node != nullptr; node = node->getParent().getCPtr()) {
        if (node->getCore() != NullFC && node->getCore()->getLocalMatrix() != nullptr) {
            placed.push_back(node);
        }
    }
    const WorldCache* above = nullptr;
    for (auto node = placed.rbegin(); node != placed.rend(); ++node) {
        above = &(*node)->worldCacheBelow(above, *(*node)->getCore()->getLocalMatrix());
    }
    return above;
}

Node::WorldCache& Node::worldCacheBelow(const WorldCache* above, const Matrix& local)
{
    if (world == nullptr) {
        world = std::make_unique<WorldCache>();
    }
    const UInt64 serialAbove = above != nullptr ? above->serial : 0;
    const bool current =
        world->serial != 0 && world->serialAbove == serialAbove && sameBits(world->local, local);
    if (!current) {
        world->local = local;
        world->world = local;
        if (above != nullptr) {
            world->world = above->world;
            world->world.mult(local);
        }
        world->serialAbove = serialAbove;
        world->serial = ++lastWorldSerial;
    }
    return *world;
}

Matrix Node::getToWorld()
{
    const WorldCache* const found = findWorld();
    return found != nullptr ? found->world : Matrix();
}

void Node::getToWorld(Matrix& result)
{
    result = getToWorld();
}

void Node::updateVolume()
{
    if (volume.isValid()) {
        return;
    }
    std::vector<Node*> outdated { this };
    for (std::size_t i = 0; i < outdated.size(); ++i) {
        const Node& node = *outdated[i];
        for (const NodePtr& child : node.mfChildren) {
            if (child->getTravMask() != 0 && !child->volume.isValid()) {
                outdated.push_back(child.getCPtr());
            }
        }
    }
    // Children stand behind their parents in the list.
    while (!outdated.empty()) {
        outdated.back()->extendVolume();
        outdated.pop_back();
    }
}

void Node::extendVolume()
{
    volume.setValid(true);
    volume.setEmpty(true);
    volume.setInfinite(false);
    for (const NodePtr& child : mfChildren) {
        if (child->getTravMask() != 0) {
            volume.extendBy(child->volume);
        }
    }
    if (getCore() != NullFC) {
        getCore()->adjustVolume(volume);
    }
    volume.setValid(true);
}

DynamicVolume& Node::getVolume(bool update)
{
    if (update) {
        updateVolume();
    }
    return volume;
}

void Node::getWorldVolume(DynamicVolume& result)
{
    updateVolume();
    result = volume;
    if (getParent() != NullFC) {
        result.transform(getParent()->getToWorld());
    }
}

// == Changes

void Node::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & (ChildrenFieldMask | CoreFieldMask | TravMaskFieldMask)) {
        invalidateVolume();
    }
    Inherited::changed(whichField, origin);
}

void Node::noteEdit()
{
    noteSubtreeChange();
}

// == Copies

NodePtr Node::copyAlone(ContainerCloner* cloner) const
{
    const NodePtr result = Node::create();
    result->setTravMask(getTravMask());
    if (cloner == nullptr) {
        result->setCore(getCore());
        return result;
    }
    result->setCore(NodeCorePtr::dcast(cloner->copy(getCore())));
    for (const auto& entry : getSFAttachments()->getValue()) {
        result->addAttachment(cloner->copyOf(entry.second), static_cast<UInt16>(entry.first));
    }
    return result;
}

NodePtr Node::copyTree(ContainerCloner* cloner) const
{
    const NodePtr root = copyAlone(cloner);
    std::vector<std::pair<const Node*, Node*>> open { { this, root.getCPtr() } };
    while (!open.empty()) {
        const auto [source, target] = open.back();
        open.pop_back();
        target->mfChildren.reserve(source->mfChildren.size());
        for (const NodePtr& child : source->mfChildren) {
            // Nobody has seen the new nodes: there is nothing to announce or to invalidate.
            const NodePtr copy = child->copyAlone(cloner);
            addRefCP(copy);
            copy->sfParent.setValue(NodePtr(target));
            target->mfChildren.push_back(copy);
            target->noteSubtreeChange();
            open.emplace_back(child.getCPtr(), copy.getCPtr());
        }
    }
    return root;
}

NodePtr Node::clone()
{
    return copyTree(nullptr);
}

NodePtr cloneTree(const NodePtr& root)
{
    return root != NullFC ? root->clone() : NodePtr();
}

NodePtr deepCloneTree(const NodePtr& root, const std::string& shareTypes)
{
    return NodePtr::dcast(deepClone(root, shareTypes));
}

}  // namespace osg
