// SPDX-License-Identifier: MIT
#include "nbSceneplateUndo.h"

#include <nbKernelServices/nbChildrenRecord.h>
#include <nbKernelServices/nbUndoRecord.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace {

osg::NodePtr findNode(osg::UInt32 id)
{
    return osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

/// Bit for bit, except that zeros of both signs count as one.
bool same(float a, float b)
{
    return a == b || std::memcmp(&a, &b, sizeof(float)) == 0;
}

bool same(const osg::Vec2f& a, const osg::Vec2f& b)
{
    return same(a.x(), b.x()) && same(a.y(), b.y());
}

bool same(const osg::Color4f& a, const osg::Color4f& b)
{
    return same(a.red(), b.red()) && same(a.green(), b.green()) && same(a.blue(), b.blue()) &&
        same(a.alpha(), b.alpha());
}

/// The plates that the open step has noted.
class PlatesRecord : public nbUndoRecord
{
public:
    PlatesRecord()
        : number(++lastNumber)
    {
        open = this;
    }

    ~PlatesRecord() override { leave(); }

    /// The record of the step that is open now; a new one if need be, null where nothing records.
    static PlatesRecord* current()
    {
        nbUndoService* const service = nbUndoService::the();
        if (!service->isRecording()) {
            return nullptr;
        }
        if (open == nullptr) {
            service->record(std::make_unique<PlatesRecord>());
        }
        return open;
    }

    /// Number of the record of the open step, 0 without one.
    static osg::UInt64 getOpenNumber() { return open == nullptr ? 0 : open->number; }

    void note(const osg::NodePtr& node)
    {
        const osg::UInt32 id = node.getFieldContainerId();
        const bool isKnown = std::any_of(changes.begin(), changes.end(),
                                         [id](const Change& change) { return change.id == id; });
        if (!isKnown) {
            changes.push_back({ id, nbSceneplateState::of(node), {} });
        }
    }

    bool close() override
    {
        leave();
        for (Change& change : changes) {
            const osg::NodePtr node = findNode(change.id);
            change.after = nbSceneplateList::plateOf(node) == osg::NullFC
                ? change.before
                : nbSceneplateState::of(node);
        }
        changes.erase(
            std::remove_if(changes.begin(), changes.end(),
                           [](const Change& change) { return change.after.isSame(change.before); }),
            changes.end());
        return !changes.empty();
    }

    void undo() override
    {
        leave();
        for (const Change& change : changes) {
            change.before.applyTo(findNode(change.id));
        }
    }

    void redo() override
    {
        for (const Change& change : changes) {
            change.after.applyTo(findNode(change.id));
        }
    }

private:
    struct Change
    {
        osg::UInt32 id;
        nbSceneplateState before;
        nbSceneplateState after;
    };

    void leave()
    {
        if (open == this) {
            open = nullptr;
        }
    }

    static inline PlatesRecord* open = nullptr;
    static inline osg::UInt64 lastNumber = 0;
    osg::UInt64 number;
    std::vector<Change> changes;
};

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
    return name == other.name && image == other.image && same(color, other.color) &&
        anchor == other.anchor && same(position, other.position) && same(size, other.size) &&
        same(scale, other.scale) && same(rotation, other.rotation) && front == other.front &&
        order == other.order && same(opacity, other.opacity) && visible == other.visible;
}

void nbSceneplateUndo::notePlates(const std::vector<osg::NodePtr>& nodes)
{
    PlatesRecord* const record = PlatesRecord::current();
    if (record == nullptr) {
        return;
    }
    for (const osg::NodePtr& node : nodes) {
        if (nbSceneplateList::plateOf(node) != osg::NullFC) {
            record->note(node);
        }
    }
}

osg::UInt64 nbSceneplateUndo::getOpenStep()
{
    return PlatesRecord::getOpenNumber();
}

void nbSceneplateUndo::noteChildren(const osg::NodePtr& parent)
{
    if (parent != osg::NullFC && nbUndoService::the()->isRecording()) {
        nbUndoService::the()->record(
            std::make_unique<nbChildrenRecord>(std::vector<osg::NodePtr> { parent }));
    }
}
