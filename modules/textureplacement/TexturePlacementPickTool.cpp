// SPDX-License-Identifier: MIT
#include "modules/textureplacement/TexturePlacementPickTool.h"

#include "manipulator/course/PreviewPause.h"
#include "manipulator/scene/MessageSending.h"
#include "manipulator/texture/MaterialComponent.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <QCoreApplication>

#include <locale>
#include <sstream>

namespace nbec::modules::textureplacement {

using interaction::Picker;
using interaction::ToolInteractionContext;

namespace {

constexpr const char* kToolMode = "tool";
constexpr const char* kActionName = "select";
constexpr const char* kZoomName = "zoom";
constexpr const char* kPlaceSuffix = "::placeTexture";

Picker* pickerOf(const ToolInteractionContext* context)
{
    return context != nullptr ? context->getPicker() : nullptr;
}

/// "Position: [x, y, z] Direction: [x, y, z]", numbers as streams write them, whatever the locale.
std::string describeHit(const osg::Pnt3f& point, const osg::Vec3f& normal)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "Position: [" << point.x() << ", " << point.y() << ", " << point.z() << "]"
         << " Direction: [" << normal.x() << ", " << normal.y() << ", " << normal.z() << "]";
    return text.str();
}

}  // namespace

struct TexturePlacementPickTool::State
{
    std::string messageReceiver;
    manipulator::texture::MaterialComponent component;
    std::string actionName = kActionName;
    std::string descriptionText =
        QCoreApplication::translate("nbForegroundTextContext", "Set Texture Center Position")
            .toStdString();
    bool showHitData = true;
    manipulator::PreviewPause pause;
};

TexturePlacementPickTool::TexturePlacementPickTool()
    : state(std::make_unique<State>())
{ }

TexturePlacementPickTool::TexturePlacementPickTool(const TexturePlacementPickTool& other)
    : AbstractInteractionTool(other)
    , state(std::make_unique<State>(*other.state))
{ }

TexturePlacementPickTool& TexturePlacementPickTool::operator=(const TexturePlacementPickTool& other)
{
    AbstractInteractionTool::operator=(other);
    *state = *other.state;
    return *this;
}

TexturePlacementPickTool::~TexturePlacementPickTool() = default;

// == The tool's operations, in their slot order

bool TexturePlacementPickTool::setToolMode(ToolInteractionContext* /*context*/,
                                           const std::string& mode)
{
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget != nullptr) {
        widget->setCursor(mode == kToolMode ? Qt::CrossCursor : Qt::ArrowCursor);
    }
    return true;
}

void TexturePlacementPickTool::activateTool(ToolInteractionContext* context)
{
    setDescription(state->descriptionText);
    AbstractInteractionTool::activateTool(context);
}

void TexturePlacementPickTool::deactivateTool(ToolInteractionContext* context)
{
    AbstractInteractionTool::deactivateTool(context);
    setDescription("");
}

bool TexturePlacementPickTool::startTool(ToolInteractionContext* context, const std::string& event)
{
    if (event != state->actionName) {
        return event == kZoomName;
    }
    if (pickerOf(context) == nullptr) {
        return false;
    }
    state->pause.begin();
    return processSelection(context);
}

bool TexturePlacementPickTool::processTool(ToolInteractionContext* context,
                                           const std::string& event)
{
    if (event != state->actionName) {
        return event == kZoomName;
    }
    processSelection(context);
    return true;
}

bool TexturePlacementPickTool::stopTool(ToolInteractionContext* /*context*/,
                                        const std::string& event)
{
    if (event != state->actionName) {
        return event == kZoomName;
    }
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget != nullptr) {
        widget->cancelAntialiasing();
    }
    state->pause.resume();
    return true;
}

bool TexturePlacementPickTool::processSelection(ToolInteractionContext* context)
{
    const Picker* const picker = pickerOf(context);
    if (picker == nullptr) {
        return false;
    }
    const osg::NodePtr hitNode = picker->getHitNode();
    const osg::Pnt3f hitPoint = picker->getHitPoint();
    const osg::Vec3f hitNormal = picker->getHitNormal();
    {
        nbMessage message;
        message.set("hitNode", hitNode, true);
        message.set("hitPoint", hitPoint, true);
        message.set("hitNormal", hitNormal, true);
        manipulator::sendToReceiver(state->messageReceiver, kPlaceSuffix, message);
    }
    if (hitNode != osg::NullFC && state->showHitData) {
        setDescription(describeHit(hitPoint, hitNormal));
    }
    return true;
}

// == What is placed

void TexturePlacementPickTool::setMaterialComponent(osg::MaterialPtr material,
                                                    const std::string& componentType,
                                                    nbStateChunkBase* gui)
{
    state->component.set(material, componentType, gui);
}

bool TexturePlacementPickTool::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return state->component.isOf(material);
}

bool TexturePlacementPickTool::isConnectedTo(osg::MaterialPtr material,
                                             const std::string& componentType) const
{
    return state->component.is(material, componentType);
}

std::string TexturePlacementPickTool::getComponentType() const
{
    return state->component.getName();
}

osg::MaterialPtr TexturePlacementPickTool::getMaterial() const
{
    return state->component.getMaterial();
}

nbStateChunkBase* TexturePlacementPickTool::getGUI() const
{
    return state->component.getGUI();
}

void TexturePlacementPickTool::setGUI(nbStateChunkBase* gui)
{
    state->component.setGUI(gui);
}

// == Settings

void TexturePlacementPickTool::setMessageReceiver(const std::string& receiver)
{
    state->messageReceiver = receiver;
}

void TexturePlacementPickTool::setDescriptionText(const std::string& text)
{
    state->descriptionText = text;
}

void TexturePlacementPickTool::setShowHitData(bool show)
{
    state->showHitData = show;
}

}  // namespace nbec::modules::textureplacement
