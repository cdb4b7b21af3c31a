// SPDX-License-Identifier: MIT
#include "viewer/plates/PlatesTool.h"

#include "viewer/loading/NodeChildren.h"
#include "viewer/plates/PlateCommands.h"
#include "viewer/plates/PlateField.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbInteraction/EventNames.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGSceneplate/nbSceneplateLayout.h>
#include <nbOpenSGSceneplate/nbSceneplateList.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateEditing.h>

#include <OpenSG/OSGCoredNodePtr.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

using nbec::interaction::Picker;

const char* const kPlatePrefix = "plate:";
const char* const kBody = "grid";
const char* const kArm = "rotateShape";
const char* const kBoxPrefix = "scale";

/// A picture is at most so large when it is added, parts of the view.
constexpr float kLargestPart = 0.5F;

bool beginsWith(const std::string& text, const char* prefix)
{
    return text.rfind(prefix, 0) == 0;
}

/// The place of the view that is nearest to a pixel: each third has its own.
osg::Int32 nearestAnchor(const osg::Pnt2f& px, const nbOSGWidget& view)
{
    constexpr int kThirds = 3;
    const auto third = [](float part, int length) {
        const float scaled = kThirds * part / static_cast<float>(std::max(length, 1));
        return std::clamp(static_cast<int>(std::floor(scaled)), 0, kThirds - 1);
    };
    const int row = kThirds - 1 - third(px.y(), view.getHeight());
    return kThirds * row + third(px.x(), view.getWidth());
}

void place(const osg::SceneplatePtr& plate, const NewPlate& wanted, const nbOSGWidget& view)
{
    const int width = view.getWidth();
    const int height = std::max(view.getHeight(), 1);
    const osg::Pnt2f middle =
        nbSceneplateLayout::anchorPosition(osg::Sceneplate::Centre, width, height);
    plate->setAnchor(wanted.anchor);
    plate->setPosition(wanted.position.value_or(
        nbSceneplateLayout::positionAt(wanted.anchor, middle, width, height)));
    const osg::Vec2f size = nbSceneplateLayout::toOffset(wanted.sizePx, height);
    plate->setSize(osg::Vec2f(size.x(), -size.y()));
}

}  // namespace

PlatesTool::PlatesTool(Stage& targetStage)
    : stage(targetStage)
{
    platePicker.setFilter(Picker::SceneplateFilter);
    handlePicker.setFilter(Picker::HandleFilter);
    probe.setFilter(Picker::HandleFilter);
    pickContext.setPicker(&platePicker);
    dragContext.setPicker(&handlePicker);
    dragContext.setManipulator(&manipulator);
    dragContext.setDragCallback([this] { stage.edited(); });
    dragContext.setClickCallback(
        [this](const std::string& hint) { pickTool.stopTool(&pickContext, hint); });
    manipulator.setVisualisationRoot(nbScenegraph::getInternalRoot());
    module.addChangedCallback([this] {
        update();
        stage.edited();
    });
    stage.addTool(*this);
    addPlateCommands(stage, *this);
    manipulator.setSnapToPlates(true);
    manipulator.setSideHandles([this](const osg::Vec2f& factors, const osg::Vec2f& offset) {
        nbSceneplateChange change;
        change.sizeFactors = factors;
        change.offset = offset;
        module.change(change);
    });
}

PlatesTool::~PlatesTool()
{
    stage.commands().remove("plates.");
    stage.removeTool(*this);
    sceneCleared();
    dragContext.setManipulator(nullptr);
    manipulator.setVisualisationRoot(osg::NodePtr());
}

// == Taking the pointer

void PlatesTool::activate()
{
    active = true;
    module.select(remembered.getNodes(), nbec::interaction::names::kSelect);
    manipulator.setNodes(module.getSelection());
    probe.setPickNode(manipulator.getCollider());
    pickContext.setTool(&pickTool);
    stage.interaction().addContext(&pickContext);
    stage.interaction().addContext(&dragContext);
    pickContext.selectMode(nbec::interaction::names::kToolMode);
}

void PlatesTool::deactivate()
{
    stage.interaction().removeContext(&dragContext);
    stage.interaction().removeContext(&pickContext);
    pickContext.setTool(nullptr);
    remembered.set(module.getSelection());
    module.clear();
    active = false;
}

void PlatesTool::sceneCleared()
{
    module.clear();
    remembered.clear();
    removeChildren(nbScenegraph::getSceneplateRoot());
}

std::vector<StageTool::Label> PlatesTool::labels() const
{
    const std::vector<osg::NodePtr> nodes = selected();
    if (!active || nodes.empty() || !stage.isDragging()) {
        return {};
    }
    const osg::Pnt2f place =
        nbSceneplateLayout::anchorPosition(nbSceneplateList::plateOf(nodes.back())->getAnchor(),
                                           stage.view().getWidth(), stage.view().getHeight());
    return { { place, Text::tr("Anchor") } };
}

bool PlatesTool::nudge(const QPoint& way, bool coarse)
{
    constexpr int kCoarsePx = 10;
    const QPoint px = way * (coarse ? kCoarsePx : 1);
    QString error;
    return active && !selected().empty() &&
        stage.commands().run("plates.move", QJsonArray { px.x(), px.y() }, error);
}

void PlatesTool::update()
{
    if (active) {
        manipulator.enableSnapping(stage.gizmo().isSnapping());
        manipulator.setNodes(module.getSelection());
        manipulator.update(false);
    }
}

// == Handles

osg::NodePtr PlatesTool::handles()
{
    return active ? manipulator.getCollider() : osg::NodePtr();
}

std::string PlatesTool::hoveredHandle()
{
    if (!dragContext.grabbedHandle().empty()) {
        return dragContext.grabbedHandle();
    }
    return active ? nbNodeUtils::getName(probe.pick()) : std::string();
}

std::string PlatesTool::handleAt(const osg::Pnt2f& px)
{
    return active ? nbNodeUtils::getName(probe.pickAt(px)) : std::string();
}

bool PlatesTool::findHandle(const std::string& handle, osg::Pnt2f& px)
{
    if (!beginsWith(handle, kPlatePrefix)) {
        return false;
    }
    const osg::NodePtr node = plateByName(handle.substr(std::string(kPlatePrefix).size()));
    if (node == osg::NullFC) {
        return false;
    }
    const nbOSGWidget& view = stage.view();
    const nbSceneplateLayout::Corners corners = nbSceneplateLayout::corners(
        nbSceneplateList::plateOf(node), view.getWidth(), view.getHeight());
    const osg::Vec2f sideX = corners[1] - corners[0];
    const osg::Vec2f sideY = corners[3] - corners[0];
    // Its middle may be a hole or lie behind another plate.
    constexpr int kSteps = 24;
    for (int i = 0; i < kSteps * kSteps; ++i) {
        const int step = (i + kSteps * kSteps / 2 + kSteps / 2) % (kSteps * kSteps);
        const float x = (static_cast<float>(step % kSteps) + 0.5F) / kSteps;
        const float y = (static_cast<float>(step / kSteps) + 0.5F) / kSteps;
        const osg::Pnt2f candidate = corners[0] + sideX * x + sideY * y;
        if (platePicker.pickAt(candidate) == node) {
            px = candidate;
            return true;
        }
    }
    return false;
}

HandleAction PlatesTool::actionOf(const std::string& handle) const
{
    if (handle == kBody) {
        return HandleAction::MoveInPlane;
    }
    if (handle == kArm) {
        return HandleAction::Turn;
    }
    return beginsWith(handle, kBoxPrefix) ? HandleAction::ScaleAll : HandleAction::None;
}

QString PlatesTool::handleText(const std::string& handle) const
{
    return handle == kBody ? Text::tr("Move") : StageTool::handleText(handle);
}

QString PlatesTool::selectionText() const
{
    const std::vector<osg::NodePtr> nodes = selected();
    if (nodes.size() > 1) {
        return Text::tr("%n scene plates", nullptr, static_cast<int>(nodes.size()));
    }
    return nodes.empty() ? Text::tr("No scene plate selected")
                         : Text::tr("Scene plate: %1")
                               .arg(QString::fromStdString(nbNodeUtils::getName(nodes.front())));
}

// == Plates

std::vector<osg::NodePtr> PlatesTool::all()
{
    return nbSceneplateEditing::getStack();
}

osg::NodePtr PlatesTool::plateByName(const std::string& wanted)
{
    for (const osg::NodePtr& node : all()) {
        if (nbNodeUtils::getName(node) == wanted) {
            return node;
        }
    }
    return {};
}

std::string PlatesTool::unusedName(const std::string& wanted)
{
    std::string name = wanted;
    for (int number = 2; plateByName(name) != osg::NullFC; ++number) {
        name = wanted + " " + std::to_string(number);
    }
    return name;
}

bool PlatesTool::hasSelection(QString& error) const
{
    const bool isAny = !selected().empty();
    error = isAny ? error : Text::tr("no scene plate is selected");
    return isAny;
}

void PlatesTool::select(const std::vector<osg::NodePtr>& nodes)
{
    if (!nodes.empty()) {
        stage.setActiveTool(this);
    }
    module.select(nodes, nbec::interaction::names::kSelect);
}

std::string PlatesTool::preselectedName() const
{
    return nbNodeUtils::getName(module.getPreselected());
}

void PlatesTool::add(const NewPlate& wanted)
{
    osg::SceneplatePtr plate;
    const osg::NodeRefPtr node(osg::makeCoredNode<osg::Sceneplate>(&plate));
    {
        const nbEdit edit(plate, osg::FieldBits::AllFields);
        plate->setImage(wanted.image.get());
        plate->setColor(wanted.color);
        plate->setFront(wanted.front);
        place(plate, wanted, stage.view());
    }
    nbNodeUtils::setName(node.get(), unusedName(wanted.name));
    nbSceneplateEditing::add(node.get());
    select({ node.get() });
}

void PlatesTool::addPicture(NewPlate wanted)
{
    const nbOSGWidget& view = stage.view();
    const auto width = static_cast<float>(wanted.image->getWidth());
    const auto height = static_cast<float>(wanted.image->getHeight());
    const float factor =
        std::min({ 1.0F, kLargestPart * static_cast<float>(view.getWidth()) / width,
                   kLargestPart * static_cast<float>(view.getHeight()) / height });
    wanted.sizePx = osg::Vec2f(width * factor, height * factor);
    add(wanted);
}

bool PlatesTool::takePicture(const QString& file, const osg::Pnt2f& px, QString& error)
{
    if (!active) {
        return false;
    }
    const nbOSGWidget& view = stage.view();
    const osg::Int32 anchor = nearestAnchor(px, view);
    const osg::Vec2f position =
        nbSceneplateLayout::positionAt(anchor, px, view.getWidth(), view.getHeight());
    // As a command, so that it is refused and undone like others.
    return stage.commands().run(
        "plates.addPicture",
        QJsonObject { { "file", file },
                      { "anchor", anchorName(anchor) },
                      { "position", QJsonArray { position.x(), position.y() } } },
        error);
}

}  // namespace viewer
