// SPDX-License-Identifier: MIT
#include "nbSceneplateEditing.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateUndo.h>

#include <algorithm>
#include <limits>

namespace {

using Entry = nbSceneplateList::Entry;

bool contains(const std::vector<osg::NodePtr>& nodes, const osg::NodePtr& node)
{
    return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

/// All plates from the rearmost to the foremost.
std::vector<Entry> collectSorted()
{
    std::vector<Entry> entries = nbSceneplateList::collect(nbScenegraph::getSceneplateRoot());
    nbSceneplateList::sort(entries);
    return entries;
}

/// Those of one side.
std::vector<Entry> collectSide(bool isFront)
{
    std::vector<Entry> entries = collectSorted();
    entries.erase(std::remove_if(
                      entries.begin(), entries.end(),
                      [isFront](const Entry& entry) { return entry.plate->getFront() != isFront; }),
                  entries.end());
    return entries;
}

void setOrder(const osg::SceneplatePtr& plate, osg::Int32 order)
{
    if (plate->getOrder() != order) {
        const nbEdit edit(plate, osg::Sceneplate::OrderFieldMask);
        plate->setOrder(order);
    }
}

/// Swaps each of the given nodes with its neighbour, beginning where the way ends, so that blocks
/// stay together. @return whether one has moved
bool shift(std::vector<Entry>& entries, const std::vector<osg::NodePtr>& nodes, bool forward)
{
    bool isMoved = false;
    for (std::size_t i = 1; i < entries.size(); ++i) {
        const std::size_t to = forward ? entries.size() - i : i - 1;
        const std::size_t from = forward ? to - 1 : to + 1;
        if (contains(nodes, entries[from].node) && !contains(nodes, entries[to].node)) {
            std::swap(entries[from], entries[to]);
            isMoved = true;
        }
    }
    return isMoved;
}

bool restackSide(const std::vector<osg::NodePtr>& nodes, int steps, bool isFront)
{
    std::vector<Entry> entries = collectSide(isFront);
    if (steps == 0 || !shift(entries, nodes, steps > 0)) {
        return false;
    }
    std::vector<osg::NodePtr> side;
    side.reserve(entries.size());
    for (const Entry& entry : entries) {
        side.push_back(entry.node);
    }
    nbSceneplateUndo::notePlates(side);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        setOrder(entries[i].plate, static_cast<osg::Int32>(i));
    }
    return true;
}

}  // namespace

std::vector<osg::NodePtr> nbSceneplateEditing::getStack()
{
    std::vector<osg::NodePtr> nodes;
    for (const Entry& entry : collectSorted()) {
        nodes.push_back(entry.node);
    }
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

bool nbSceneplateEditing::add(const osg::NodePtr& node)
{
    const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
    if (plate == osg::NullFC) {
        return false;
    }
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Add scene plate"));
    const std::vector<Entry> side = collectSide(plate->getFront());
    if (!side.empty()) {
        constexpr osg::Int32 kHighest = std::numeric_limits<osg::Int32>::max();
        const osg::Int32 foremost = side.back().plate->getOrder();
        setOrder(plate, foremost == kHighest ? kHighest : foremost + 1);
    }
    const osg::NodePtr root = nbScenegraph::getSceneplateRoot();
    nbSceneplateUndo::noteChildren(root);
    const nbEdit edit(root, osg::Node::ChildrenFieldMask);
    root->addChild(node);
    nbController::setModified(1);
    return true;
}

std::size_t nbSceneplateEditing::remove(const std::vector<osg::NodePtr>& nodes)
{
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Delete scene plates"));
    const osg::NodePtr root = nbScenegraph::getSceneplateRoot();
    nbSceneplateUndo::noteChildren(root);
    std::size_t removed = 0;
    const nbEdit edit(root, osg::Node::ChildrenFieldMask);
    for (const osg::NodePtr& node : nodes) {
        if (nbSceneplateList::plateOf(node) != osg::NullFC && node->getParent() == root) {
            root->subChild(node);
            ++removed;
        }
    }
    if (removed > 0) {
        nbController::setModified(1);
    }
    return removed;
}

void nbSceneplateEditing::edit(const std::vector<osg::NodePtr>& nodes, const char* title,
                               nbFunctionRef<void(osg::Sceneplate&)> edit)
{
    const nbScopedUndo undo(title);
    nbSceneplateUndo::notePlates(nodes);
    for (const osg::NodePtr& node : nodes) {
        const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
        if (plate != osg::NullFC) {
            const nbEdit open(plate, osg::FieldBits::AllFields);
            edit(*plate);
            nbController::setModified(1);
        }
    }
}

void nbSceneplateEditing::rename(const osg::NodePtr& node, const std::string& name)
{
    if (nbSceneplateList::plateOf(node) == osg::NullFC || nbNodeUtils::getName(node) == name) {
        return;
    }
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Rename scene plate"));
    nbSceneplateUndo::notePlates({ node });
    nbNodeUtils::setName(node, name);
    nbController::setModified(1);
}

void nbSceneplateEditing::setAnchor(const std::vector<osg::NodePtr>& nodes, osg::Int32 anchor,
                                    int widthPx, int heightPx)
{
    edit(nodes, QT_TRANSLATE_NOOP("Manipulator", "Anchor scene plates"),
         [=](osg::Sceneplate& plate) {
             const osg::Pnt2f centre =
                 nbSceneplateLayout::centre(osg::SceneplatePtr(plate), widthPx, heightPx);
             if (anchor != plate.getAnchor()) {
                 plate.setAnchor(anchor);
                 plate.setPosition(
                     nbSceneplateLayout::positionAt(anchor, centre, widthPx, heightPx));
             }
         });
}

bool nbSceneplateEditing::restack(const std::vector<osg::NodePtr>& nodes, int steps)
{
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Restack scene plates"));
    const bool isFrontMoved = restackSide(nodes, steps, true);
    const bool isMoved = restackSide(nodes, steps, false) || isFrontMoved;
    if (isMoved) {
        nbController::setModified(1);
    }
    return isMoved;
}
