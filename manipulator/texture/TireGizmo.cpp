// SPDX-License-Identifier: MIT
#include "manipulator/texture/TireGizmo.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleNodes.h"
#include "manipulator/texture/TextureDragMath.h"
#include "manipulator/texture/TextureHandles.h"

#include <nbUtils/nbMessage.h>

#include <cmath>

namespace nbec::manipulator::texture {

namespace {

using Mode = TireMode;
using Handle = TireHandle;
using Kind = DragParameters::Kind;

constexpr int kTranslateGroup = 0;
constexpr int kRingGroup = 1;
constexpr int kScaleGroup = 2;
constexpr float kPi = 3.14159265F;
constexpr double kFullTurn = 2.0 * 3.14159265358979324;
/// Part of its start below which no length is dragged.
constexpr float kLeastPart = 0.001F;
/// Below this size on screen nothing can be placed relative to the gizmo.
constexpr float kLeastSize = 1e-20F;
constexpr const char* kChangedSuffix = "::changedTireManipulator";

HandleRow single(const char* name, Handle handle, int group, HandleShape shape, std::size_t color)
{
    return handleRow(name, number(handle), group, { Kind::Length }, { handlePart(shape, color) });
}

/// Rows of the handles that are moved to where the projection ends.
enum Row : std::size_t
{
    RadiusRow = 4,
    HeightRow,
    OtherHeightRow,
    PictureEndRow
};

HandleTable makeTable()
{
    HandleTable table;
    table.rows = {
        axisArrow("xaShape", number(Handle::TranslateX), kTranslateGroup, 0),
        axisArrow("yaShape", number(Handle::TranslateY), kTranslateGroup, 1),
        axisArrow("zaShape", number(Handle::TranslateZ), kTranslateGroup, 2),
        single("radiusRingShape", Handle::ScaleRadius, kRingGroup, HandleShape::UnitCircle,
               RedLineMaterial),
        single("radiusShape", Handle::ScaleRadius, kScaleGroup, HandleShape::BigCube,
               LightRedMaterial),
        single("heightShape", Handle::ScaleHeight, kScaleGroup, HandleShape::BigCube,
               LightBlueMaterial),
        single("oppositeHeightShape", Handle::ScaleHeight, kScaleGroup, HandleShape::BigCube,
               LightBlueMaterial),
        single("scaleUShape", Handle::ScaleU, kScaleGroup, HandleShape::BigCube, YellowMaterial),
    };
    table.groups = { modes(Mode::Universal, Mode::Translate), modes(Mode::Universal, Mode::Scale),
                     modes(Mode::Universal, Mode::Scale) };
    return table;
}

/// What a handle changes: the attribute that is sent, how the on-screen text begins, and the length
/// as it is read; null of the centre.
struct TireLength
{
    const char* attribute;
    const char* title;
    float TireValues::*value;
};

TireLength lengthOf(Handle handle)
{
    switch (handle) {
    case Handle::ScaleHeight:
        return { "ScaleHeight", QT_TRANSLATE_NOOP("nbForegroundTextContext", "Height ("),
                 &TireValues::height };
    case Handle::ScaleRadius:
        return { "ScaleRadius", QT_TRANSLATE_NOOP("nbForegroundTextContext", "Radius ("),
                 &TireValues::radius };
    case Handle::ScaleU:
        return { "ScaleU", QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                 &TireValues::scaleU };
    default:
        return { "center", QT_TRANSLATE_NOOP("nbForegroundTextContext", "Center ("), nullptr };
    }
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

}  // namespace

TireGizmo::TireGizmo(const float& size)
    : AnchoredGizmo(makeTable(), makeAxisMaterials(true), number(Mode::Universal), size)
{
    root = makeHandleRootOver(handles.getRoot());
}

TireValues TireGizmo::readValues() const
{
    TireValues values;
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const std::string& name = component.getName();
    const bool isRead = component.readGUI([&](const nbStateChunkBase& gui) {
        values = { gui.getTireCenter(name), gui.getTireScaleU(name), gui.getTireScaleHeight(name),
                   gui.getTireScaleRadius(name) };
    });
    if (!isRead && settings != osg::NullFC &&
        settings->getTextureProjectionType() == osg::ColorComponentSettings::TireProjection) {
        values = { settings->getTireCenter(), settings->getTireScaleU(),
                   settings->getTireScaleHeight(), settings->getTireScaleRadius() };
    }
    return values;
}

// == Placement

void TireGizmo::placeHandles(const View& view, const osg::Matrix& worldFromAnchor)
{
    const TireValues values = readValues();
    const osg::Pnt3f center = mapped(worldFromAnchor, osg::Pnt3f(values.center));
    const osg::Matrix axes = orthonormalised(worldFromAnchor);
    const float size = view.scaleAt(center, getSize(), ViewDiagonal::NearPlane);
    placeTransform(handles.getRootTransform(), center.subZero(), osg::Quaternion::identity(),
                   osg::Vec3f(size, size, size));
    if (!(size > kLeastSize) || !std::isfinite(size)) {
        return;
    }
    const osg::Vec3f one(1.0F, 1.0F, 1.0F);
    const osg::Vec3f ringScale(1.0F, column(worldFromAnchor, 1).length() * values.radius / size,
                               column(worldFromAnchor, 2).length() * values.radius / size);
    for (std::size_t group = 0; group < handles.getTable().groups.size(); ++group) {
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

bool TireGizmo::capture(const View& view)
{
    const osg::NodePtr node = getAnchorNode();
    if (node == osg::NullFC) {
        return false;
    }
    const osg::Matrix worldFromObject = node->getToWorld();
    objectFromWorld = inverted(worldFromObject);
    start = readValues();
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    wasFitted = settings != osg::NullFC && settings->getTireAutoParameter();
    sent = DragParameters();
    direction = chooseDirection();
    choosePlane(view, worldFromObject);
    path.follow(view.pointerRay(), track);
    return true;
}

osg::Vec3f TireGizmo::chooseDirection() const
{
    const osg::Vec3f arm = mapped(objectFromWorld, grabbedPoint).subZero() - start.center;
    osg::Vec3f along;
    if (isShift()) {
        along[armedAction().axis()] = 1.0F;
    } else if (handle() == Handle::ScaleHeight) {
        along[0] = arm.x() < 0.0F ? -1.0F : 1.0F;
    } else {
        along = unitVector(osg::Vec3f(0.0F, arm.y(), arm.z()));
    }
    return along;
}

void TireGizmo::choosePlane(const View& view, const osg::Matrix& worldFromObject)
{
    const osg::Pnt3f center = mapped(worldFromObject, osg::Pnt3f(start.center));
    const osg::Vec3f sight = view.sightAt(grabbedPoint);
    if (handle() == Handle::ScaleU) {
        // About the axle of a mirrored object a positive turn goes by the left hand.
        const float side = worldFromObject.det3() < 0.0F ? -1.0F : 1.0F;
        const osg::Vec3f y = column(worldFromObject, 1);
        osg::Vec3f axle = y.cross(column(worldFromObject, 2)) * side;
        axle.normalize();
        path = RingDrag::begin(center, axle, grabbedPoint, view.getSight());
        return;
    }
    const osg::Vec3f along =
        unitVector(mapped(worldFromObject, osg::Pnt3f(start.center + direction)) - center);
    path = RingDrag::flat(axisPlaneNormal(along, sight), grabbedPoint);
}

// == Steps

/// Angle about the axle from +y towards +z, radians, in the object's space, where the picture lies.
double TireGizmo::angleAt(const osg::Pnt3f& world) const
{
    const osg::Vec3f local = mapped(objectFromWorld, world).subZero() - start.center;
    return std::atan2(static_cast<double>(local.z()), static_cast<double>(local.y()));
}

DragStep TireGizmo::parametersAt(const View& view, const DragTrack& before) const
{
    DragTrack next = before;
    const std::optional<osg::Pnt3f> hit = path.follow(view.pointerRay(), next);
    if (!hit) {
        return DragStep();
    }
    const osg::Pnt3f& from = *next.start;
    const float way =
        (mapped(objectFromWorld, *hit) - mapped(objectFromWorld, from)).dot(direction);
    switch (handle()) {
    case Handle::ScaleHeight:
        return { { Kind::Length, atLeastPart(start.height + 2.0F * way, start.height) }, next };
    case Handle::ScaleRadius:
        return { { Kind::Length, atLeastPart(start.radius + way, start.radius) }, next };
    case Handle::ScaleU:
        next.turned += std::remainder(angleAt(*hit) - angleAt(from) - before.turned, kFullTurn);
        return { { Kind::Length, grownCircumferencePart(start.scaleU, next.turned) }, next };
    default:
        return { { Kind::Offset, direction * way }, next };
    }
}

DragParameters TireGizmo::startParameters() const
{
    const auto value = lengthOf(handle()).value;
    return value != nullptr ? DragParameters(Kind::Length, start.*value) : Gizmo::startParameters();
}

void TireGizmo::apply(const DragParameters& parameters)
{
    sent = parameters;
    nbMessage message;
    if (isShift()) {
        message.set(lengthOf(handle()).attribute, sentCenter(), true);
    } else {
        message.set(lengthOf(handle()).attribute, sent.first(), true);
    }
    component.send(kChangedSuffix, message);
}

void TireGizmo::finish()
{
    if (sent.kind == Kind::None) {
        return;
    }
    sent = DragParameters();
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const bool isFitted =
        handle() == Handle::ScaleU && settings != osg::NullFC && settings->getTireAutoParameter();
    nbMessage message;
    message.set("autoParameter", isTakenBack() ? wasFitted : isFitted, true);
    component.send(kChangedSuffix, message);
    placeIn(View());
}

// == On-screen text

/// Of what was sent, whatever the receiver has made of it.
std::optional<QString> TireGizmo::describe() const
{
    const char* const title = lengthOf(handle()).title;
    return isShift() ? describeValues(title, sentCenter())
                     : describeValues(title, { sent.first() });
}

}  // namespace nbec::manipulator::texture
