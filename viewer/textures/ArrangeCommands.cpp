// SPDX-License-Identifier: MIT
#include "viewer/textures/ArrangeCommands.h"

#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"
#include "viewer/textures/TextureTool.h"

#include <nbKernelServices/nbScopedUndo.h>

#include <cmath>

namespace viewer {
namespace {

using nbec::interaction::Picker;

/// What commands work on; both outlive them.
struct Owner
{
    Stage& stage;
    TextureTool& tool;

    nbPicturePlacing placing() const { return tool.target().placing(); }
};

bool orImpossible(bool isDone, QString& error)
{
    if (!isDone) {
        error = Text::tr("the picture does not lie so that this could be done");
    }
    return isDone;
}

/// Picks the surface where the middle of a planar picture is seen, or the handles of another one.
bool pick(const Owner& owner, Picker& picker, QString& error)
{
    TextureTarget& target = owner.tool.target();
    const osg::Transform3DPtr projection = target.projection();
    osg::Pnt3f middle = owner.tool.anchor().value_or(osg::Pnt3f());
    if (projection != osg::NullFC &&
        target.projectionType() == TextureTarget::Settings::PlanarProjection) {
        middle = osg::Pnt3f(projection->getTranslation());
        target.surface()->getToWorld().multMatrixPnt(middle);
    }
    osg::Pnt2f px;
    const bool isHit = projection != osg::NullFC && owner.stage.project(middle, px) &&
        picker.pickAt(px) == target.surface();
    if (!isHit) {
        error = Text::tr("the surface with the picture is not there");
    }
    return isHit;
}

enum class Towards
{
    First,  ///< the object, the surface's normal
    Second,  ///< the face, upright
    View
};

bool fit(const Owner& owner, Towards what, QString& error)
{
    const nbCameraNavigation::Axes eye = nbCameraNavigation::axes(owner.stage.pose());
    if (what == Towards::Second) {
        Picker picker;
        return pick(owner, picker, error) &&
            orImpossible(owner.placing().fitToFace(picker.getHitPoint(),
                                                   nbCameraNavigation::worldUp(owner.stage.pose())),
                         error);
    }
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Picture"));
    return orImpossible(
        (what == Towards::First || owner.placing().alignTo(eye.back, eye.up, eye.right)) &&
            owner.placing().fitToObject(),
        error);
}

bool align(const Owner& owner, Towards what, QString& error)
{
    const nbCameraNavigation::Axes eye = nbCameraNavigation::axes(owner.stage.pose());
    if (what == Towards::View) {
        return orImpossible(owner.placing().alignTo(eye.back, eye.up, eye.right), error);
    }
    Picker picker;
    const bool isUpright = what == Towards::Second;
    return (isUpright || pick(owner, picker, error)) &&
        orImpossible(
               owner.tool.alignTo(isUpright ? std::nullopt : std::optional(picker.getHitNormal())),
               error);
}

double texelsPerUnit(const Owner& owner)
{
    const osg::Vec2f present = owner.placing().getTexelsPerUnit();
    return std::sqrt(double(present.x()) * present.y());
}

bool setTexelsPerUnit(const Owner& owner, double wanted)
{
    const auto both = static_cast<float>(wanted);
    return owner.placing().setTexelsPerUnit(osg::Vec2f(both, both));
}

}  // namespace

void addArrangeCommands(Stage& stage, TextureTool& tool)
{
    constexpr double kMostTurns = 3.0;
    constexpr double kMostTexels = 1e6;
    const Owner owner { stage, tool };
    Commands& commands = stage.commands();
    const auto add = [&](const char* name, auto run) {
        commands.add(QLatin1String(name), [owner, run](const QJsonValue&, QString& error) {
            return orImpossible(run(owner), error);
        });
    };
    const auto addTowards = [&](const char* name, const QStringList& words, auto run) {
        commands.addChoice(QLatin1String(name), words, [owner, run](int place, QString& error) {
            return run(owner, static_cast<Towards>(place), error);
        });
    };
    addTowards("texture.fit", { "object", "face", "view" }, &fit);
    addTowards("texture.align", { "normal", "up", "view" }, &align);
    add("texture.centre", [](const Owner& of) { return of.placing().centre(); });
    add("texture.ownAspect",
        [](const Owner& of) { return setTexelsPerUnit(of, texelsPerUnit(of)); });
    commands.addNumber(QStringLiteral("texture.turnBy"), -kMostTurns, kMostTurns,
                       [owner](double count, QString& error) {
                           return orImpossible(
                               owner.placing().turn(static_cast<int>(std::lround(count))), error);
                       });
    commands.addChoice(
        QStringLiteral("texture.flip"), { "u", "v" }, [owner](int axis, QString& error) {
            return orImpossible(owner.placing().flip(static_cast<osg::UInt32>(axis)), error);
        });
    commands.addNumber(QStringLiteral("texture.texelsPerUnit"), 1.0 / kMostTexels, kMostTexels,
                       [owner](double wanted, QString& error) {
                           return orImpossible(setTexelsPerUnit(owner, wanted), error);
                       });
    commands.addValue(QStringLiteral("texture.texelsPerUnit"), [owner]() -> QJsonValue {
        // On texture coordinates it is a mean over all triangles: nothing for every picture.
        const bool isUv =
            owner.tool.target().projectionType() == TextureTarget::Settings::UVProjection;
        const double texels = isUv ? 0.0 : texelsPerUnit(owner);
        return texels > 0.0 ? QJsonValue(texels) : QJsonValue();
    });
}

}  // namespace viewer
