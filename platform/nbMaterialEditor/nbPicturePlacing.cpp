// SPDX-License-Identifier: MIT
#include "nbPicturePlacing.h"

#include <nbMaterialEditor/detail/EditedComponent.h>
#include <nbMaterialEditor/detail/ProjectionPlacing.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <algorithm>
#include <cmath>

namespace {

using Settings = osg::ColorComponentSettings;

constexpr float kHalf = 0.5F;
constexpr float kUnitsPerRepeat = 100.0F;  ///< of a triplanar picture
constexpr osg::Int32 kNone = -1;

float lengthOf(const osg::Matrix& matrix, const osg::Vec3f& vector)
{
    osg::Vec3f mapped;
    matrix.multMatrixVec(vector, mapped);
    return mapped.length();
}

}  // namespace

nbPicturePlacing::nbPicturePlacing(nbMaterialEditor& edited, const osg::NodePtr& wearer)
    : editor(edited)
    , surface(wearer)
    , worldFromSurface(wearer != osg::NullFC ? wearer->getToWorld() : osg::Matrix())
{ }

osg::Vec3f nbPicturePlacing::Triangle::area() const
{
    return (places[1] - places[0]).cross(places[2] - places[0]);
}

osg::Int32 nbPicturePlacing::type() const
{
    const osg::ColorComponentSettingsPtr settings = editor.getSettings();
    const bool isPlaced = settings != osg::NullFC && surface != osg::NullFC &&
        (settings->getTextureProjectionType() != Settings::PlanarProjection ||
         editor.getProjection() != osg::NullFC);
    return isPlaced ? settings->getTextureProjectionType() : kNone;
}

nbTransformState nbPicturePlacing::present() const
{
    const osg::Transform3DPtr projection = editor.getProjection();
    return projection != osg::NullFC ? nbTransformState::of(*projection) : nbTransformState();
}

nbTextureValues nbPicturePlacing::presentValues() const
{
    const osg::ColorComponentSettingsPtr settings = editor.getSettings();
    return settings != osg::NullFC ? nbTextureValues::of(*settings) : nbTextureValues();
}

std::vector<nbPicturePlacing::Triangle> nbPicturePlacing::triangles() const
{
    std::vector<Triangle> found;
    const auto geometry =
        surface != osg::NullFC ? osg::GeometryPtr::dcast(surface->getCore()) : osg::GeometryPtr();
    if (geometry == osg::NullFC) {
        return found;
    }
    for (osg::TriangleIterator it = geometry->beginTriangles(); !it.isAtEnd(); ++it) {
        Triangle& each = found.emplace_back();
        for (osg::Int32 i = 0; i < 3; ++i) {
            each.places[i] = it.getPosition(i);
            each.coords[i] = it.getTexCoords(i);
        }
    }
    return found;
}

/// The triangles in one plane with the one at a place.
std::vector<nbPicturePlacing::Triangle> nbPicturePlacing::faceAt(const osg::Pnt3f& place) const
{
    std::vector<Triangle> face = triangles();
    const auto distance = [&place](const Triangle& each) {
        // By what the parts that the place makes of the triangle are larger than the whole.
        float parts = 0.0F;
        for (int i = 0; i < 3; ++i) {
            parts += (each.places[i] - place).cross(each.places[(i + 1) % 3] - place).length();
        }
        return (parts - each.area().length()) / std::sqrt(std::max(parts, 1e-30F));
    };
    const auto seed =
        std::min_element(face.begin(), face.end(), [&](const Triangle& a, const Triangle& b) {
            return distance(a) < distance(b);
        });
    if (seed == face.end()) {
        return face;
    }
    constexpr float kSameDirection = 0.9999F;
    constexpr float kFlat = 1e-3F;
    const osg::Vec3f normal = seed->area();
    const float size = std::sqrt(normal.length());
    const auto isOutside = [&](const Triangle& each) {
        return each.area().dot(normal) < kSameDirection * each.area().length() * normal.length() ||
            std::abs((each.places[0] - place).dot(normal)) > kFlat * size * normal.length();
    };
    face.erase(std::remove_if(face.begin(), face.end(), isOutside), face.end());
    return face;
}

// == Place and turn

/// One edit of the projection in use, if it is none that this cannot be done for.
bool nbPicturePlacing::edit(EditState ofPlanar, EditValues ofOthers, osg::Int32 except)
{
    if (type() == kNone || type() == Settings::TireProjection || type() == except) {
        return false;
    }
    nbTransformState state = present();
    nbTextureValues values = presentValues();
    if (type() == Settings::PlanarProjection) {
        ofPlanar(state);
        return editor.setProjection(state);
    }
    ofOthers(values);
    return editor.setTextureValues(values);
}

bool nbPicturePlacing::cover(const std::vector<Triangle>& part, nbTransformState state)
{
    osg::BoxVolume coords;
    osg::BoxVolume extent;
    coords.setEmpty();
    extent.setEmpty();
    const osg::Vec3f axes[] = { turned(state, { 1, 0, 0 }), turned(state, { 0, 1, 0 }),
                                turned(state, { 0, 0, 1 }) };
    for (const Triangle& each : part) {
        for (int i = 0; i < 3; ++i) {
            const osg::Vec3f place = each.places[i].subZero();
            coords.extendBy(osg::Pnt3f(each.coords[i].x(), each.coords[i].y(), 0.0F));
            extent.extendBy(osg::Pnt3f(place.dot(axes[0]), place.dot(axes[1]), place.dot(axes[2])));
        }
    }
    const osg::Vec3f middle = (extent.getMin().subZero() + extent.getMax().subZero()) * kHalf;
    const osg::Vec3f half = (extent.getMax() - extent.getMin()) * kHalf;
    const bool keeps = editor.getSettings()->hasPlanarProjectionFlag(Settings::KeepAspectRatio);
    const auto coverPlace = [&](nbTransformState& edited) {
        const float growth =
            std::max(half.x() / std::abs(state.scale.x()), half.y() / std::abs(state.scale.y()));
        edited = state;
        for (osg::UInt32 i = 0; i < 2; ++i) {
            edited.scale[i] =
                keeps ? state.scale[i] * growth : std::copysign(half[i], state.scale[i]);
        }
        // A flat face has no depth of its own.
        edited.scale[2] = half.z() > 0.01F * half.length() ? 2.0F * half.z() : state.scale[2];
        edited.translation = turned(state, { middle.x(), middle.y(), extent.getMax().z() });
    };
    const auto coverCoords = [&](nbTextureValues& values) {
        const osg::Vec3f size = coords.getMax() - coords.getMin();
        values.rotate = 0.0F;
        values.offset = osg::Vec2f(coords.getMin().x(), coords.getMin().y());
        values.repeat = osg::Vec2f(1.0F / size.x(), 1.0F / size.y());
    };
    return !part.empty() && edit(coverPlace, coverCoords, Settings::TriplanarProjection);
}

bool nbPicturePlacing::fitToObject()
{
    nbTextureValues values = presentValues();
    switch (type()) {
    case Settings::PlanarProjection:
    case Settings::UVProjection:
        return cover(triangles(), present());
    case Settings::TriplanarProjection:
        fitTriplanar(nbNodeUtils::getOwnBounds(surface), worldFromSurface,
                     aspectOf(editor.getMaterial()->getImage(editor.getComponent())), values);
        return editor.setTextureValues(values);
    case Settings::TireProjection:
        values.tireAutoParameter = true;
        return editor.setTextureValues(values);
    default:
        return false;
    }
}

bool nbPicturePlacing::fitToFace(const osg::Pnt3f& world, const osg::Vec3f& up)
{
    osg::Matrix surfaceFromWorld;
    if (type() < 0 || type() > Settings::PlanarProjection ||
        !worldFromSurface.inverse(surfaceFromWorld)) {
        return false;
    }
    osg::Pnt3f place = world;
    surfaceFromWorld.multMatrixPnt(place);
    const std::vector<Triangle> face = faceAt(place);
    nbTransformState state = present();
    if (type() == Settings::PlanarProjection && !face.empty()) {
        lieAlong(worldFromSurface, face.front().area(), up, osg::Vec3f(0, 0, -1), state);
    }
    return cover(face, state);
}

bool nbPicturePlacing::centre()
{
    const auto move = [this](nbTransformState& state) {
        osg::Pnt3f middle;
        nbNodeUtils::getOwnBounds(surface).getCenter(middle);
        const osg::Vec3f z = turned(state, { 0, 0, 1 });
        const osg::Vec3f way = middle.subZero() - state.translation;
        state.translation += way - z * way.dot(z);
    };
    return edit(
        move, [](nbTextureValues& values) { values.offset = osg::Vec2f(); },
        Settings::TriplanarProjection);
}

bool nbPicturePlacing::alignTo(const std::optional<osg::Vec3f>& normal, const osg::Vec3f& up,
                               const osg::Vec3f& otherUp)
{
    osg::Pnt3f place;
    osg::Vec3f own = turned(present(), { 0, 0, 1 });
    return type() == Settings::PlanarProjection &&
        (!normal || toObject(worldFromSurface, place, *normal, place, own)) &&
        own.length() > 0.0F &&
        edit([&](nbTransformState& state) { lieAlong(worldFromSurface, own, up, otherUp, state); },
             [](nbTextureValues&) {});
}

bool nbPicturePlacing::turn(int quarters)
{
    constexpr float kRightAngle = 1.57079633F;
    constexpr float kRightAngleDeg = 90.0F;
    const auto count = static_cast<float>(quarters);
    return edit(
        [&](nbTransformState& state) {
            turnAboutOwnZ(nbTransformState(state), kRightAngle * count, state);
        },
        [&](nbTextureValues& values) { values.rotate -= kRightAngleDeg * count; },
        Settings::TriplanarProjection);
}

bool nbPicturePlacing::isBody() const
{
    constexpr float kLeastShare = 0.1F;
    osg::Pnt3f middle;
    nbNodeUtils::getOwnBounds(surface).getCenter(middle);
    float outwards = 0.0F;
    float whole = 0.0F;
    for (const Triangle& each : triangles()) {
        const osg::Vec3f area = each.area();
        const osg::Vec3f way = each.places[0] - middle;
        outwards += area.dot(way);
        whole += area.length() * way.length();
    }
    return outwards > kLeastShare * whole;
}

// == Size

bool nbPicturePlacing::flip(osg::UInt32 axis)
{
    return edit([&](nbTransformState& state) { state.scale[axis] = -state.scale[axis]; },
                [&](nbTextureValues& values) {
                    osg::Vec3f& repeats =
                        axis == 0 ? values.triplanarRepeatU : values.triplanarRepeatV;
                    if (type() == Settings::TriplanarProjection) {
                        repeats = -repeats;
                    } else {
                        values.repeat[axis] = -values.repeat[axis];
                    }
                });
}

/// Width and height of one picture on the surface, units of the world.
osg::Vec2f nbPicturePlacing::unitsPerPicture() const
{
    if (type() == Settings::PlanarProjection) {
        const nbTransformState state = present();
        return { 2.0F * std::abs(state.scale.x()) *
                     lengthOf(worldFromSurface, turned(state, { 1, 0, 0 })),
                 2.0F * std::abs(state.scale.y()) *
                     lengthOf(worldFromSurface, turned(state, { 0, 1, 0 })) };
    }
    const nbTextureValues values = presentValues();
    if (type() == Settings::TriplanarProjection) {
        return { kUnitsPerRepeat / std::abs(values.triplanarRepeatU[0]),
                 kUnitsPerRepeat / std::abs(values.triplanarRepeatV[0]) };
    }
    if (type() != Settings::UVProjection) {
        return {};
    }
    osg::Vec2f sum;
    float weight = 0.0F;
    for (const Triangle& each : triangles()) {
        const osg::Vec2f a = each.coords[1] - each.coords[0];
        const osg::Vec2f b = each.coords[2] - each.coords[0];
        const float det = a.x() * b.y() - a.y() * b.x();
        const osg::Vec3f first = each.places[1] - each.places[0];
        const osg::Vec3f second = each.places[2] - each.places[0];
        const float area = each.area().length();
        if (std::isnormal(det) && area > 0.0F) {
            sum += osg::Vec2f(lengthOf(worldFromSurface, first * b.y() - second * a.y()),
                              lengthOf(worldFromSurface, second * a.x() - first * b.x())) *
                (area / std::abs(det));
            weight += area;
        }
    }
    return weight > 0.0F ? osg::Vec2f(sum.x() / (weight * std::abs(values.repeat.x())),
                                      sum.y() / (weight * std::abs(values.repeat.y())))
                         : osg::Vec2f();
}

osg::Vec2f nbPicturePlacing::getTexelsPerUnit() const
{
    const osg::Vec2f size = unitsPerPicture();
    const osg::ImagePtr image =
        type() != kNone ? editor.getMaterial()->getImage(editor.getComponent()) : osg::ImagePtr();
    return image != osg::NullFC && size.x() > 0.0F && size.y() > 0.0F
        ? osg::Vec2f(static_cast<float>(image->getWidth()) / size.x(),
                     static_cast<float>(image->getHeight()) / size.y())
        : osg::Vec2f();
}

bool nbPicturePlacing::setTexelsPerUnit(const osg::Vec2f& wanted)
{
    const osg::Vec2f before = getTexelsPerUnit();
    if (!(before.x() > 0.0F) || !(wanted.x() > 0.0F) || !(wanted.y() > 0.0F)) {
        return false;
    }
    const osg::Vec2f finer(wanted.x() / before.x(), wanted.y() / before.y());
    return edit(
        [&](nbTransformState& state) {
            state.scale[0] /= finer.x();
            state.scale[1] /= finer.y();
        },
        [&](nbTextureValues& values) {
            if (type() == Settings::UVProjection) {
                values.repeat[0] *= finer.x();
                values.repeat[1] *= finer.y();
                return;
            }
            const float u = std::abs(values.triplanarRepeatU[0]) * finer.x();
            const float v = std::abs(values.triplanarRepeatV[0]) * finer.y();
            for (osg::UInt32 i = 0; i < 3; ++i) {  // one size for all three
                values.triplanarRepeatU[i] = std::copysign(u, values.triplanarRepeatU[i]);
                values.triplanarRepeatV[i] = std::copysign(v, values.triplanarRepeatV[i]);
            }
        });
}
