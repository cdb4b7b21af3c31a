// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureValueText.h"

#include "viewer/texts/ValueLine.h"

#include <QtGlobal>

namespace viewer {
namespace {

using Settings = TextureTarget::Settings;

constexpr float kDegPerRad = 57.2957795F;

/// What the action changes.
enum class Edited
{
    Place,
    Turn,
    Size
};

Edited editedBy(HandleAction action)
{
    switch (action) {
    case HandleAction::MoveAlong:
    case HandleAction::MoveInPlane:
        return Edited::Place;
    case HandleAction::Turn:
        return Edited::Turn;
    default:
        return Edited::Size;
    }
}

std::string planarText(Edited edited, const osg::Transform3DPtr& projection)
{
    if (projection == osg::NullFC) {
        return {};
    }
    switch (edited) {
    case Edited::Place:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture at"), projection->getTranslation());
    case Edited::Turn:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture turned"), projection->getRotation());
    default:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture scale"), projection->getScale());
    }
}

std::string triplanarText(Edited edited, const nbTextureValues& values)
{
    switch (edited) {
    case Edited::Place:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Offsets of x, y, z: u"),
                         values.triplanarOffsetU) +
            valueLine(", v", values.triplanarOffsetV);
    case Edited::Turn:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture turned"),
                         values.triplanarRotation * kDegPerRad);
    default:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Repeats of x, y, z: u"),
                         values.triplanarRepeatU) +
            valueLine(", v", values.triplanarRepeatV);
    }
}

std::string uvText(Edited edited, const nbTextureValues& values)
{
    switch (edited) {
    case Edited::Place:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture offset"), values.offset);
    case Edited::Turn:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture turned"), values.rotate);
    default:
        return valueLine(QT_TRANSLATE_NOOP("viewer", "Picture repeats"), values.repeat);
    }
}

std::string tireText(Edited edited, const nbTextureValues& values)
{
    return edited == Edited::Place
        ? valueLine(QT_TRANSLATE_NOOP("viewer", "Tire centre"), values.tireCenter)
        : valueLine(QT_TRANSLATE_NOOP("viewer", "Tire height, radius, part around"),
                    osg::Vec3f(values.tireScaleHeight, values.tireScaleRadius, values.tireScaleU));
}

}  // namespace

std::string textureValueText(HandleAction action, const TextureTarget& target)
{
    const Edited edited = editedBy(action);
    if (target.settings() == osg::NullFC) {
        return {};
    }
    switch (target.projectionType()) {
    case Settings::TriplanarProjection:
        return triplanarText(edited, target.values());
    case Settings::UVProjection:
        return uvText(edited, target.values());
    case Settings::TireProjection:
        return tireText(edited, target.values());
    default:
        return planarText(edited, target.projection());
    }
}

}  // namespace viewer
