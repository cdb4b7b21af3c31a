// SPDX-License-Identifier: MIT
#include "manipulator/detail/TireGizmo.h"

#include "manipulator/detail/AxisHandles.h"
#include "manipulator/detail/HandleGroup.h"
#include "manipulator/detail/HandleNodes.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TextureDragMath.h"
#include "manipulator/detail/ValueText.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <QtCore/QString>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::detail {

namespace {

using Mode = TireGizmo::Mode;
using Active = TireGizmo::Active;

constexpr int kDepthPassSortKey = 64014;
constexpr int kTranslateGroup = 0;
constexpr int kRingGroup = 1;
constexpr int kScaleGroup = 2;
constexpr float kPi = 3.14159265F;
/// Part of its start below which no length is dragged.
constexpr float kLeastPart = 0.001F;
/// Below this size on screen nothing can be placed relative to the gizmo.
constexpr float kLeastSize = 1e-20F;
constexpr const char* kChangedSuffix = "::changedTireManipulator";

constexpr int number(Active active)
{
    return static_cast<int>(active);
}

HandleRow single(const char* name, Active active, int group, HandleShape shape, std::size_t color)
{
    return { name,
             number(active),
             group,
             0,
             Holder::Component,
             {},
             Turn::None,
             1,
             { { { shape, color, color } } } };
}

/// Rows of the handles that are moved to where the projection ends.
enum Row : std::size_t
{
    RadiusRow = 4,
    HeightRow,
    OtherHeightRow,
    PictureEndRow
};

const HandleTable& handleTable()
{
    static const HandleTable table = {
        { axisArrow("xaShape", number(Active::TranslateX), kTranslateGroup, 0),
          axisArrow("yaShape", number(Active::TranslateY), kTranslateGroup, 1),
          axisArrow("zaShape", number(Active::TranslateZ), kTranslateGroup, 2),
          single("radiusRingShape", Active::ScaleRadius, kRingGroup, HandleShape::UnitCircle,
                 RedLineMaterial),
          single("radiusShape", Active::ScaleRadius, kScaleGroup, HandleShape::BigCube,
                 LightRedMaterial),
          single("heightShape", Active::ScaleHeight, kScaleGroup, HandleShape::BigCube,
                 LightBlueMaterial),
          single("oppositeHeightShape", Active::ScaleHeight, kScaleGroup, HandleShape::BigCube,
                 LightBlueMaterial),
          single("scaleUShape", Active::ScaleU, kScaleGroup, HandleShape::BigCube,
                 YellowMaterial) },
        { { static_cast<int>(Mode::Universal), { false, false, false }, 0, false },
          { static_cast<int>(Mode::Translate), { false, true, true }, 0, false },
          { static_cast<int>(Mode::Scale), { true, false, false }, 0, false } },
        HighlightMaterial
    };
    return table;
}

/// A length that a drag has changed.
float atLeastPart(float value, float start)
{
    const float least = kLeastPart * std::abs(start);
    return value < least ? least : value;
}

/// Place of the end of the picture on the ring, relative to the centre.
osg::Vec3f pictureEnd(const TireValues& values)
{
    const float angle = kPi * values.scaleU;
    return osg::Vec3f(0.0F, std::cos(angle), std::sin(angle)) * values.radius;
}

ValueText& text()
{
    static ValueText shown("tireTransformInfo");
    return shown;
}

}  // namespace

TireGizmo::TireGizmo()
    : AnchoredGizmo(handleTable(), makeAxisMaterials(true), static_cast<int>(Mode::Universal))
{
    root = makeHandleRootOver(handles.getRoot(), kDepthPassSortKey);
}

std::unique_ptr<AnchoredGizmo> TireGizmo::clone() const
{
    return std::make_unique<TireGizmo>(*this);
}

TireValues TireGizmo::readValues() const
{
    TireValues values;
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const nbStateChunkBase* const gui = component.getGUI();
    const std::string& name = component.getName();
    if (gui != nullptr && gui->hasComponent(name)) {
        values = { gui->getTireCenter(name), gui->getTireScaleU(name),
                   gui->getTireScaleHeight(name), gui->getTireScaleRadius(name) };
    } else if (settings != osg::NullFC &&
               settings->getTextureProjectionType() ==
                   osg::ColorComponentSettings::TireProjection) {
        values = { settings->getTireCenter(), settings->getTireScaleU(),
                   settings->getTireScaleHeight(), settings->getTireScaleRadius() };
    }
    return values;
}

// == Placement

void TireGizmo::placeHandles(const osg::Matrix& worldFromAnchor)
{
    const TireValues values = readValues();
    const osg::Pnt3f center = mapped(worldFromAnchor, osg::Pnt3f(values.center));
    const osg::Matrix axes = orthonormalised(worldFromAnchor);
    const float size =
        ScreenScale(TireProjectionManipulator::getManipulatorSize(), ViewDiagonal::NearPlane)
            .at(center);
    placeTransform(handles.getRootTransform(), center.subZero(), osg::Quaternion::identity(),
                   osg::Vec3f(size, size, size));
    if (!(size > kLeastSize) || !std::isfinite(size)) {
        return;
    }
    const osg::Vec3f one(1.0F, 1.0F, 1.0F);
    const osg::Vec3f ringScale(1.0F, column(worldFromAnchor, 1).length() * values.radius / size,
                               column(worldFromAnchor, 2).length() * values.radius / size);
    for (std::size_t group = 0; group < kHandleGroupCount; ++group) {
        placeTransform(handles.getGroupTransform(group), osg::Vec3f(), osg::Quaternion(axes),
                       group == kRingGroup ? ringScale : one);
    }
    const auto moveTo = [&](Row row, const osg::Vec3f& fromCenter) {
        const osg::Vec3f world =
            mapped(worldFromAnchor, osg::Pnt3f(values.center + fromCenter)) - center;
        moveNode(handles.getNode(row),
                 osg::Vec3f(world.dot(column(axes, 0)), world.dot(column(axes, 1)),
                            world.dot(column(axes, 2))) *
                     (1.0F / size));
    };
    moveTo(RadiusRow, osg::Vec3f(0.0F, 0.0F, -values.radius));
    moveTo(HeightRow, osg::Vec3f(values.height / 2, values.radius, 0.0F));
    moveTo(OtherHeightRow, osg::Vec3f(-values.height / 2, values.radius, 0.0F));
    moveTo(PictureEndRow, pictureEnd(values));
}

// == Start of a drag

bool TireGizmo::prepare(const nbOSGWidget& widget)
{
    const osg::NodePtr node = anchor.getNode();
    if (node == osg::NullFC) {
        return false;
    }
    worldFromObject = node->getToWorld();
    objectFromWorld = inverted(worldFromObject);
    start = readValues();
    hasSent = false;
    chooseDirection();
    choosePlane(widget);
    return true;
}

void TireGizmo::chooseDirection()
{
    const osg::Vec3f grabbed = mapped(objectFromWorld, grabbedPoint).subZero() - start.center;
    direction = osg::Vec3f();
    if (activeMode <= number(Active::TranslateZ)) {
        direction[static_cast<osg::UInt32>(activeMode - number(Active::TranslateX))] = 1.0F;
    } else if (activeMode == number(Active::ScaleHeight)) {
        direction[0] = grabbed.x() < 0.0F ? -1.0F : 1.0F;
    } else {
        direction = osg::Vec3f(0.0F, grabbed.y(), grabbed.z());
        const float length = direction.length();
        direction *= length > 0.0F ? 1.0F / length : 0.0F;
    }
}

void TireGizmo::choosePlane(const nbOSGWidget& widget)
{
    const osg::Pnt3f center = mapped(worldFromObject, osg::Pnt3f(start.center));
    if (activeMode == number(Active::ScaleU)) {
        // About the axle of a mirrored object a positive turn goes by the left hand.
        const float side = worldFromObject.det3() < 0.0F ? -1.0F : 1.0F;
        const osg::Vec3f axle = column(orthonormalised(worldFromObject), 0) * side;
        ring = ringDragFrame(center, axle, grabbedPoint, viewDirection(grabbedPoint));
        dragPlane.begin(ring.normal, ring.center, widget);
        return;
    }
    osg::Vec3f along = mapped(worldFromObject, osg::Pnt3f(start.center + direction)) - center;
    const float length = along.length();
    along *= length > 0.0F ? 1.0F / length : 0.0F;
    dragPlane.begin(axisPlaneNormal(along, viewDirection(grabbedPoint)), grabbedPoint, widget);
}

// == Steps

void TireGizmo::step(const nbOSGWidget& widget)
{
    osg::Pnt3f hit;
    if (dragPlane.follow(widget, hit)) {
        changeTo(hit);
    }
}

void TireGizmo::changeTo(const osg::Pnt3f& hit)
{
    const float way = (mapped(objectFromWorld, hit) - mapped(objectFromWorld, dragPlane.getStart()))
                          .dot(direction);
    nbMessage message;
    if (activeMode <= number(Active::TranslateZ)) {
        const osg::Vec3f center = start.center + direction * way;
        message.set("center", center, true);
        text().show(
            describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Center ("), center));
    } else if (activeMode == number(Active::ScaleHeight)) {
        const float height = atLeastPart(start.height + 2.0F * way, start.height);
        message.set("ScaleHeight", height, true);
        text().show(
            describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Height ("), { height }));
    } else if (activeMode == number(Active::ScaleRadius)) {
        const float radius = atLeastPart(start.radius + way, start.radius);
        message.set("ScaleRadius", radius, true);
        text().show(
            describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Radius ("), { radius }));
    } else {
        const float part = grownCircumferencePart(start.scaleU, ring.angleOf(dragPlane.getStart()),
                                                  ring.angleOf(hit));
        message.set("ScaleU", part, true);
        text().show(
            describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("), { part }));
    }
    hasSent = true;
    sendChange(kChangedSuffix, message);
    nbController::setModified(1);
}

void TireGizmo::finish()
{
    text().show(QString());
    if (!hasSent) {
        return;
    }
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const bool isFitted = activeMode == number(Active::ScaleU) && settings != osg::NullFC &&
        settings->getTireAutoParameter();
    nbMessage message;
    message.set("autoParameter", isFitted, true);
    sendChange(kChangedSuffix, message);
    hasSent = false;
}

}  // namespace nbec::manipulator::detail
