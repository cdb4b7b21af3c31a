// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGBackground.h>
#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGThread.h>
#include <OpenSG/OSGViewport.h>
#include <OpenSG/OSGWindow.h>

#include <cstddef>
#include <unordered_map>

#include <ChangeCountSystem.h>

namespace osg {

namespace {

struct Counters
{
    UInt64 edits = 0;
    UInt64 shared = 0;  ///< of what belongs to no node, for all trees
    UInt64 moves = 0;  ///< of nodes and cores: what they left is no longer known
    std::unordered_map<UInt32, UInt32> ofContainer;
    std::unordered_map<UInt32, UInt64> belowNode;  ///< number of the latest edit
    bool isListOfHost = false;
    std::size_t entriesRead = 0;  ///< of a host's list
};

Counters& counters()
{
    static Counters* const all = new Counters;
    return *all;
}

void noteBelow(NodePtr node)
{
    // Above a node that has the present number all have it.
    for (Counters& all = counters(); node != NullFC; node = node->getParent()) {
        UInt64& latest = all.belowNode[node.getFieldContainerId()];
        if (latest == all.edits) {
            return;
        }
        latest = all.edits;
    }
}

void noteCore(const NodeCorePtr& core)
{
    if (core->getParents().empty()) {
        ++counters().shared;
    }
    for (UInt32 i = 0; i < core->getParents().getSize(); ++i) {
        noteBelow(core->getParents()[i]);
    }
}

/// Geometries are told of their properties' edits by a function that leaves no trace in the list.
void noteAttachment(const AttachmentPtr& attachment)
{
    for (UInt32 i = 0; i < attachment->getParents().getSize(); ++i) {
        const GeometryPtr geometry = GeometryPtr::dcast(attachment->getParents()[i]);
        if (geometry != NullFC) {
            ++counters().ofContainer[geometry.getFieldContainerId()];
            noteCore(geometry);
        }
    }
    ++counters().shared;
}

bool isIndifferentToDrawing(const FieldContainerType& type)
{
    return type.isDerivedFrom(Camera::getClassType()) ||
        type.isDerivedFrom(Viewport::getClassType()) ||
        type.isDerivedFrom(Window::getClassType()) ||
        type.isDerivedFrom(Background::getClassType());
}

/// Asks types first: each failing cast of a pointer takes as long as the rest.
void noteEdit(UInt32 id, BitVector whichField)
{
    Counters& all = counters();
    ++all.ofContainer[id];
    const FieldContainerPtr container = FieldContainerFactory::the()->getContainer(id);
    if (container == NullFC) {
        ++all.moves;
        ++all.shared;
        return;
    }
    const FieldContainerType& type = container->getType();
    if (type.isNode()) {
        all.moves += (whichField & Node::ParentFieldMask) != 0 ? 1 : 0;
        noteBelow(NodePtr::dcast(container));
    } else if (type.isNodeCore()) {
        all.moves += (whichField & NodeCore::ParentsFieldMask) != 0 ? 1 : 0;
        noteCore(NodeCorePtr::dcast(container));
    } else if (type.isAttachment()) {
        noteAttachment(AttachmentPtr::dcast(container));
    } else if (!isIndifferentToDrawing(type)) {
        ++all.shared;
    }
}

/// Counts what the list has got since the last time.
void readList()
{
    Counters& all = counters();
    ChangeList* const list = Thread::getCurrentChangeList();
    if (all.entriesRead > list->sizeChanged()) {
        all.entriesRead = 0;
    }
    const auto begin = list->beginChanged() + static_cast<std::ptrdiff_t>(all.entriesRead);
    all.edits += static_cast<UInt64>(list->endChanged() - begin);
    for (auto entry = begin; entry != list->endChanged(); ++entry) {
        noteEdit(entry->first, entry->second);
    }
    for (auto id = list->beginDestroyed(); id != list->endDestroyed(); ++id) {
        all.ofContainer.erase(*id);
        all.belowNode.erase(*id);
    }
    if (all.isListOfHost) {
        all.entriesRead = list->sizeChanged();
    } else {
        list->setReadOnly(false);
        list->clearAll();
    }
}

}  // namespace

void glue::leaveChangeListToHost(bool leave)
{
    counters().isListOfHost = leave;
}

void glue::noteChanges()
{
    readList();
    counters().entriesRead = 0;
}

UInt64 getEditCount()
{
    readList();
    return counters().edits;
}

UInt32 getChangeCount(const FieldContainerPtr& container)
{
    readList();
    const auto& known = counters().ofContainer;
    const auto found =
        container != NullFC ? known.find(container.getFieldContainerId()) : known.end();
    return found != known.end() ? found->second : 0;
}

UInt64 getSubtreeChangeCount(const NodePtr& node)
{
    readList();
    const Counters& all = counters();
    const auto found = all.belowNode.find(node.getFieldContainerId());
    return all.moves + (found != all.belowNode.end() ? found->second : 0);
}

UInt64 getTreeChangeCount(const NodePtr& node)
{
    return node != NullFC ? getSubtreeChangeCount(node) + counters().shared : 0;
}

}  // namespace osg
