// SPDX-License-Identifier: MIT
#include "nbSceneplateUndo.h"

#include <nbKernelServices/nbChildrenRecord.h>
#include <nbKernelServices/nbStateRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace {

auto numbersOf(const nbSceneplateState& s)
{
    return std::array { s.color.red(),  s.color.green(), s.color.blue(), s.color.alpha(),
                        s.position.x(), s.position.y(),  s.size.x(),     s.size.y(),
                        s.scale,        s.rotation,      s.opacity };
}

bool isSameNumber(float a, float b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

}  // namespace

nbSceneplateState nbSceneplateState::of(const osg::NodePtr& node)
{
    const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
    nbSceneplateState state;
    state.name = nbNodeUtils::getName(node);
    state.image = osg::RefPtr<osg::ImagePtr>(plate->getImage());
    state.color = plate->getColor();
    state.anchor = plate->getAnchor();
    state.position = plate->getPosition();
    state.size = plate->getSize();
    state.scale = plate->getScale();
    state.rotation = plate->getRotation();
    state.front = plate->getFront();
    state.order = plate->getOrder();
    state.opacity = plate->getOpacity();
    state.visible = plate->getVisible();
    return state;
}

void nbSceneplateState::applyTo(const osg::NodePtr& node) const
{
    const osg::SceneplatePtr plate = nbSceneplateList::plateOf(node);
    if (plate == osg::NullFC) {
        return;
    }
    if (nbNodeUtils::getName(node) != name) {
        nbNodeUtils::setName(node, name);
    }
    const nbEdit edit(plate, osg::FieldBits::AllFields);
    plate->setImage(image.get());
    plate->setColor(color);
    plate->setAnchor(anchor);
    plate->setPosition(position);
    plate->setSize(size);
    plate->setScale(scale);
    plate->setRotation(rotation);
    plate->setFront(front);
    plate->setOrder(order);
    plate->setOpacity(opacity);
    plate->setVisible(visible);
}

bool nbSceneplateState::isSame(const nbSceneplateState& other) const
{
    const auto numbers = numbersOf(*this);
    const auto others = numbersOf(other);
    return name == other.name && image == other.image && anchor == other.anchor &&
        front == other.front && order == other.order && visible == other.visible &&
        std::equal(numbers.begin(), numbers.end(), others.begin(), &isSameNumber);
}

void nbSceneplateUndo::notePlates(const std::vector<osg::NodePtr>& nodes)
{
    nbUndoService* const service = nbUndoService::the();
    for (const osg::NodePtr& node : nodes) {
        if (nbSceneplateList::plateOf(node) != osg::NullFC &&
            service->isNewInStep(node.getFieldContainerId())) {
            service->record(std::make_unique<nbStateRecord<nbSceneplateState, osg::NodePtr>>(
                node, nbSceneplateState::of(node)));
        }
    }
}

void nbSceneplateUndo::noteChildren(const osg::NodePtr& parent)
{
    if (parent != osg::NullFC) {
        nbUndoService::the()->record(
            std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { parent }));
    }
}
