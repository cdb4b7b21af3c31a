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

std::vector<osg::NodePtr> nodesOf(const std::vector<Entry>& entries)
{
    std::vector<osg::NodePtr> nodes;
    for (const Entry& entry : entries) {
        nodes.push_back(entry.node);
    }
    return nodes;
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
    nbSceneplateUndo::notePlates(nodesOf(entries));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        setOrder(entries[i].plate, static_cast<osg::Int32>(i));
    }
    return true;
}

/// A plate's box along an axis, pixels.
struct Span
{
    osg::NodePtr node;
    float low = 0.0F;
    float high = 0.0F;
};

std::vector<Span> spansOf(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, int widthPx,
                          int heightPx)
{
    std::vector<Span> spans;
    for (const osg::NodePtr& node : nodes) {
        const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
        if (plate != osg::NullFC) {
            const auto corners = nbSceneplateLayout::corners(plate, widthPx, heightPx);
            const auto [low, high] = std::minmax(
                { corners[0][axis], corners[1][axis], corners[2][axis], corners[3][axis] });
            spans.push_back({ node, low, high });
        }
    }
    return spans;
}

/// Moves each plate by its own way along an axis, as one step.
void moveEach(const std::vector<Span>& spans, osg::UInt32 axis, int heightPx, const char* title,
              const std::function<float(const Span&)>& wayPx)
{
    std::vector<osg::NodePtr> nodes;
    for (const Span& span : spans) {
        nodes.push_back(span.node);
    }
    auto span = spans.begin();
    nbSceneplateEditing::edit(nodes, title, [&](osg::Sceneplate& plate) {
        osg::Vec2f way;
        way[axis] = wayPx(*span++);
        plate.setPosition(plate.getPosition() + nbSceneplateLayout::toOffset(way, heightPx));
    });
}

}  // namespace

std::vector<osg::NodePtr> nbSceneplateEditing::getStack()
{
    std::vector<osg::NodePtr> nodes = nodesOf(collectSorted());
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

void nbSceneplateEditing::align(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis, Side side,
                                int widthPx, int heightPx)
{
    const std::vector<Span> spans = spansOf(nodes, axis, widthPx, heightPx);
    if (spans.empty()) {
        return;
    }
    float low = 0.0F;
    auto high = static_cast<float>(axis == 0 ? widthPx : heightPx);
    if (spans.size() > 1) {
        const auto byLow = [](const Span& a, const Span& b) { return a.low < b.low; };
        const auto byHigh = [](const Span& a, const Span& b) { return a.high < b.high; };
        low = std::min_element(spans.begin(), spans.end(), byLow)->low;
        high = std::max_element(spans.begin(), spans.end(), byHigh)->high;
    }
    moveEach(spans, axis, heightPx, QT_TRANSLATE_NOOP("Manipulator", "Align scene plates"),
             [&](const Span& span) {
                 return side == Side::Low ? low - span.low
                     : side == Side::High ? high - span.high
                                          : 0.5F * (low + high - span.low - span.high);
             });
}

bool nbSceneplateEditing::distribute(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis,
                                     int widthPx, int heightPx)
{
    constexpr std::size_t kLeast = 3;
    std::vector<Span> spans = spansOf(nodes, axis, widthPx, heightPx);
    if (spans.size() < kLeast) {
        return false;
    }
    std::stable_sort(spans.begin(), spans.end(),
                     [](const Span& a, const Span& b) { return a.low + a.high < b.low + b.high; });
    float room = spans.back().high - spans.front().low;
    for (const Span& span : spans) {
        room -= span.high - span.low;
    }
    const float gap = room / static_cast<float>(spans.size() - 1);
    float place = spans.front().low;
    moveEach(spans, axis, heightPx, QT_TRANSLATE_NOOP("Manipulator", "Distribute scene plates"),
             [&](const Span& span) {
                 const float way = place - span.low;
                 place += span.high - span.low + gap;
                 return way;
             });
    return true;
}

void nbSceneplateEditing::move(const std::vector<osg::NodePtr>& nodes, const osg::Vec2f& wayPx,
                               int heightPx)
{
    const osg::Vec2f offset = nbSceneplateLayout::toOffset(wayPx, heightPx);
    edit(nodes, QT_TRANSLATE_NOOP("Manipulator", "Move scene plates"),
         [&](osg::Sceneplate& plate) { plate.setPosition(plate.getPosition() + offset); });
}

std::vector<osg::NodePtr>
nbSceneplateEditing::duplicate(const std::vector<osg::NodePtr>& nodes,
                               const std::function<std::string(const std::string&)>& nameOf)
{
    const osg::Vec2f aside(0.02F, -0.02F);  // heights of the view
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Duplicate scene plates"));
    std::vector<osg::NodePtr> copies;
    for (const osg::NodePtr& node : nodes) {
        if (nbSceneplateList::plateOf(node) == osg::NullFC) {
            continue;
        }
        const osg::NodePtr copy = osg::deepCloneTree(node, "Image");
        nbNodeUtils::setName(copy, nameOf(nbNodeUtils::getName(node)));
        const osg::SceneplatePtr plate = nbSceneplateList::plateOf(copy);
        {
            const nbEdit edit(plate, osg::Sceneplate::PositionFieldMask);
            plate->setPosition(plate->getPosition() + aside);
        }
        add(copy);
        copies.push_back(copy);
    }
    return copies;
}
