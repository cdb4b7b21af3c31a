// SPDX-License-Identifier: MIT
#include "nbSceneplateArranging.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateEditing.h>

#include <algorithm>
#include <map>

namespace {

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
void moveEach(const std::map<osg::UInt32, float>& waysPx, const std::vector<osg::NodePtr>& nodes,
              osg::UInt32 axis, int heightPx, const char* title)
{
    auto node = nodes.begin();
    nbSceneplateEditing::edit(nodes, title, [&](osg::Sceneplate& plate) {
        while (nbSceneplateList::plateOf(*node) == osg::NullFC) {
            ++node;
        }
        osg::Vec2f way;
        way[axis] = waysPx.at((node++)->getFieldContainerId());
        plate.setPosition(plate.getPosition() + nbSceneplateLayout::toOffset(way, heightPx));
    });
}

}  // namespace

void nbSceneplateArranging::align(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis,
                                  Side side, int widthPx, int heightPx)
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
    std::map<osg::UInt32, float> ways;
    for (const Span& span : spans) {
        ways[span.node.getFieldContainerId()] = side == Side::Low ? low - span.low
            : side == Side::High                                  ? high - span.high
                                 : 0.5F * (low + high - span.low - span.high);
    }
    moveEach(ways, nodes, axis, heightPx, QT_TRANSLATE_NOOP("Manipulator", "Align scene plates"));
}

bool nbSceneplateArranging::distribute(const std::vector<osg::NodePtr>& nodes, osg::UInt32 axis,
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
    std::map<osg::UInt32, float> ways;
    float place = spans.front().low;
    for (const Span& span : spans) {
        ways[span.node.getFieldContainerId()] = place - span.low;
        place += span.high - span.low + gap;
    }
    moveEach(ways, nodes, axis, heightPx,
             QT_TRANSLATE_NOOP("Manipulator", "Distribute scene plates"));
    return true;
}

void nbSceneplateArranging::move(const std::vector<osg::NodePtr>& nodes, const osg::Vec2f& wayPx,
                                 int heightPx)
{
    const osg::Vec2f offset = nbSceneplateLayout::toOffset(wayPx, heightPx);
    nbSceneplateEditing::edit(
        nodes, QT_TRANSLATE_NOOP("Manipulator", "Move scene plates"),
        [&](osg::Sceneplate& plate) { plate.setPosition(plate.getPosition() + offset); });
}

std::vector<osg::NodePtr>
nbSceneplateArranging::duplicate(const std::vector<osg::NodePtr>& nodes,
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
        nbSceneplateEditing::add(copy);
        copies.push_back(copy);
    }
    return copies;
}
