// SPDX-License-Identifier: MIT
#include "modules/textureplacement/TexturePlacementPickTool.h"

#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/MessageSending.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>

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

TexturePlacementPickTool::TexturePlacementPickTool()
    : actionName(kActionName)
    , descriptionText(
          QCoreApplication::translate("nbForegroundTextContext", "Set Texture Center Position")
              .toStdString())
{ }

TexturePlacementPickTool::TexturePlacementPickTool(const TexturePlacementPickTool& other) = default;
TexturePlacementPickTool&
TexturePlacementPickTool::operator=(const TexturePlacementPickTool& other) = default;
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
    setDescription(descriptionText);
    AbstractInteractionTool::activateTool(context);
}

void TexturePlacementPickTool::deactivateTool(ToolInteractionContext* context)
{
    AbstractInteractionTool::deactivateTool(context);
    setDescription("");
}

bool TexturePlacementPickTool::startTool(ToolInteractionContext* context, const std::string& event)
{
    if (event != actionName) {
        return event == kZoomName;
    }
    if (pickerOf(context) == nullptr) {
        return false;
    }
    manipulator::detail::sendMaterialPreviewPaused();
    return processSelection(context);
}

bool TexturePlacementPickTool::processTool(ToolInteractionContext* context,
                                           const std::string& event)
{
    if (event != actionName) {
        return event == kZoomName;
    }
    processSelection(context);
    return true;
}

bool TexturePlacementPickTool::stopTool(ToolInteractionContext* /*context*/,
                                        const std::string& event)
{
    if (event != actionName) {
        return event == kZoomName;
    }
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget != nullptr) {
        widget->cancelAntialiasing();
    }
    manipulator::detail::sendMaterialPreviewResumed();
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
        nbController::call((messageReceiver + kPlaceSuffix).c_str(), message, 0);
    }
    if (hitNode != osg::NullFC && showHitData) {
        setDescription(describeHit(hitPoint, hitNormal));
    }
    return true;
}

// == What is placed

void TexturePlacementPickTool::setMaterialComponent(osg::MaterialPtr material,
                                                    const std::string& componentType,
                                                    nbStateChunkBase* gui)
{
    materialId = manipulator::detail::containerId(material);
    component = componentType;
    guiChunk = gui;
}

bool TexturePlacementPickTool::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return getMaterial() == material;
}

bool TexturePlacementPickTool::isConnectedTo(osg::MaterialPtr material,
                                             const std::string& componentType) const
{
    return isConnectedToMaterial(material) && component == componentType;
}

const std::string& TexturePlacementPickTool::getComponentType() const
{
    return component;
}

osg::MaterialPtr TexturePlacementPickTool::getMaterial() const
{
    return manipulator::detail::resolveContainer<osg::MaterialPtr>(materialId);
}

nbStateChunkBase* TexturePlacementPickTool::getGUI() const
{
    return guiChunk;
}

void TexturePlacementPickTool::setGUI(nbStateChunkBase* gui)
{
    guiChunk = gui;
}

// == Settings

void TexturePlacementPickTool::setMessageReceiver(const std::string& receiver)
{
    messageReceiver = receiver;
}

void TexturePlacementPickTool::setDescriptionText(const std::string& text)
{
    descriptionText = text;
}

void TexturePlacementPickTool::setShowHitData(bool show)
{
    showHitData = show;
}

}  // namespace nbec::modules::textureplacement
