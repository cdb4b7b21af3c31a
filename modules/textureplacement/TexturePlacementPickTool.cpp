// SPDX-License-Identifier: MIT
#include "modules/textureplacement/TexturePlacementPickTool.h"

#include "manipulator/course/View.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbUtils/nbMessage.h>

#include <QCoreApplication>

#include <locale>
#include <sstream>

namespace nbec::modules::textureplacement {

using interaction::Picker;
using interaction::ToolInteractionContext;
using manipulator::pickerOf;

namespace {

constexpr const char* kActionName = "select";
constexpr const char* kZoomName = "zoom";

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
    : descriptionText(
          QCoreApplication::translate("nbForegroundTextContext", "Set Texture Center Position")
              .toStdString())
{ }

// == The tool's operations, in their slot order

bool TexturePlacementPickTool::setToolMode(ToolInteractionContext* /*context*/,
                                           const std::string& mode)
{
    if (nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1)) {
        widget->setCursor(mode == "tool" ? Qt::CrossCursor : Qt::ArrowCursor);
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
    pause.end();  // whose stop was lost
}

bool TexturePlacementPickTool::startTool(ToolInteractionContext* context, const std::string& event)
{
    if (event != kActionName) {
        return event == kZoomName;
    }
    if (pickerOf(context) == nullptr) {
        return false;
    }
    pause.begin();
    return processSelection(context);
}

bool TexturePlacementPickTool::processTool(ToolInteractionContext* context,
                                           const std::string& event)
{
    if (event != kActionName) {
        return event == kZoomName;
    }
    processSelection(context);
    return true;
}

bool TexturePlacementPickTool::stopTool(ToolInteractionContext* /*context*/,
                                        const std::string& event)
{
    if (event != kActionName) {
        return event == kZoomName;
    }
    if (nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1)) {
        widget->cancelAntialiasing();
    }
    pause.resume();
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
    nbMessage message;
    message.set("hitNode", hitNode, true);
    message.set("hitPoint", hitPoint, true);
    message.set("hitNormal", hitNormal, true);
    component.send("::placeTexture", message);
    if (hitNode != osg::NullFC && showHitData) {
        setDescription(describeHit(hitPoint, hitNormal));
    }
    return true;
}

}  // namespace nbec::modules::textureplacement
