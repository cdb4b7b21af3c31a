// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/commands/SceneLimits.h"
#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/plates/PlateField.h"
#include "viewer/scenes/SceneDocument.h"

#include <nbOpenSGExt/nbEulerRotation.h>

#include <QRegularExpression>

#include <array>

/// The entries of a scene file, each once for its reader and its writer.
///
/// An archive is one of both. It offers, each answering whether to go on:
/// - field(key, value): an entry that is always there;
/// - field(key, value, usual): one that is left out where it has the usual value, bit for bit;
/// - words(key, number, names, usual): a number, by its word;
/// - bits(key, mask): a mask, as the numbers of its bits; names(key, mask, names): as their words;
/// - path(key, file): the name of a file, left out when empty;
/// - part(key, optional) and list(key, values): what has entries of its own, left out when empty;
/// - demand(isMet, key, what): what has to be true of entries that were read.
namespace viewer {

constexpr int kMostOfAKind = 1000000;
constexpr std::array<const char*, 3> kRotationModes { "euler", "quaternion", "axisAligned" };
constexpr std::array<const char*, 4> kProjections { "uv", "planar", "triplanar", "tire" };
constexpr std::array<const char*, 4> kFlags { "keepAspect", "repeatU", "repeatV", "endInDepth" };

/// A transform that leaves everything where it is.
inline nbTransformState usualTransform()
{
    nbTransformState state;
    state.scale = osg::Vec3f(1.0F, 1.0F, 1.0F);
    state.eulerRotationOrder = "xyz";
    return state;
}

inline bool isEulerOrder(const std::string& order)
{
    const int number = nbEulerRotation::getOrderNumber(order);
    return QString::fromStdString(order).toLower() ==
        QLatin1String(nbEulerRotation::getOrderName(number));
}

/// Demands a path such as SceneNode::path.
template <class Archive>
bool demandNodePath(Archive& archive, const char* key, const QString& path)
{
    static const QRegularExpression kPattern(
        QStringLiteral("^(N(/N)*)?\\z").replace('N', "([0-9]{1,9}(\\+[0-9]{1,9})?|-)"));
    return archive.demand(kPattern.match(path).hasMatch(), key, "expected numbers such as \"0/3\"");
}

template <class Archive>
bool demandShare(Archive& archive, const char* key, double share)
{
    return archive.demand(share >= 0.0 && share <= 1.0, key, "expected a number from 0 to 1");
}

template <class Archive>
bool describe(Archive& archive, CameraPose& pose)
{
    return archive.field("from", pose.from) && archive.field("at", pose.at) &&
        archive.field("up", pose.up) && archive.field("pivot", pose.pivot) &&
        archive.field("fov", pose.fovDeg) &&
        archive.field("orthographic", pose.orthographic, false) &&
        archive.field("zUp", pose.zUp, false) &&
        archive.demand(pose.fovDeg > 0.0F && pose.fovDeg < 180.0F, "fov",
                       "expected a number between 0 and 180");
}

template <class Archive>
bool describe(Archive& archive, nbTransformState& state)
{
    using State = nbTransformState;
    static const State kUsual = usualTransform();
    const auto field = [&](const char* key, auto State::*member) {
        return archive.field(key, state.*member, kUsual.*member);
    };
    return field("translation", &State::translation) && field("rotatePivot", &State::rotatePivot) &&
        field("scalePivot", &State::scalePivot) &&
        archive.words("mode", state.rotationMode, kRotationModes, 0) &&
        field("angles", &State::eulerRotation) && field("order", &State::eulerRotationOrder) &&
        field("quaternion", &State::rotationQuaternion) &&
        field("orientation", &State::rotationOrientation) && field("scale", &State::scale) &&
        archive.demand(isScale(state.scale[0]) && isScale(state.scale[1]) &&
                           isScale(state.scale[2]),
                       "scale", "expected numbers other than 0") &&
        archive.demand(isEulerOrder(state.eulerRotationOrder), "order",
                       "expected the letters x, y and z");
}

template <class Archive>
bool describe(Archive& archive, SceneNode& node)
{
    return archive.field("path", node.path, QString()) && archive.field("name", node.name) &&
        archive.field("newName", node.newName) && archive.field("removed", node.removed, false) &&
        archive.field("visible", node.visible, true) && archive.bits("denied", node.denied) &&
        archive.part("transform", node.transform) && demandNodePath(archive, "path", node.path);
}

template <class Archive>
bool describe(Archive& archive, nbTextureValues& values)
{
    using Values = nbTextureValues;
    static const Values kUsual;
    const auto field = [&](const char* key, auto Values::*member) {
        return archive.field(key, values.*member, kUsual.*member);
    };
    return field("uvOffset", &Values::offset) && field("uvRepeat", &Values::repeat) &&
        field("uvRotate", &Values::rotate) &&
        field("triplanarRotation", &Values::triplanarRotation) &&
        field("triplanarOffsetU", &Values::triplanarOffsetU) &&
        field("triplanarOffsetV", &Values::triplanarOffsetV) &&
        field("triplanarRepeatU", &Values::triplanarRepeatU) &&
        field("triplanarRepeatV", &Values::triplanarRepeatV) &&
        field("tireCenter", &Values::tireCenter) && field("tireScaleU", &Values::tireScaleU) &&
        field("tireHeight", &Values::tireScaleHeight) &&
        field("tireRadius", &Values::tireScaleRadius) &&
        field("tireFit", &Values::tireAutoParameter) &&
        field("planarAngles", &Values::planarAngles);
}

template <class Archive>
bool describe(Archive& archive, SceneSettings& settings)
{
    return archive.words("projection", settings.type, kProjections, 1) &&
        archive.names("flags", settings.flags, kFlags) &&
        archive.field("mask", settings.asMask, false) &&
        archive.field("invert", settings.invert, false) &&
        archive.part("planar", settings.projection) && describe(archive, settings.values);
}

template <class Archive>
bool describe(Archive& archive, SceneComponent& component)
{
    return archive.field("name", component.name) &&
        archive.field("picture", component.picture, {}) &&
        archive.part("settings", component.settings);
}

template <class Archive>
bool describe(Archive& archive, SceneSurface& surface)
{
    return archive.field("object", surface.object, QString()) &&
        archive.field("part", surface.part, 0) && archive.field("name", surface.name) &&
        archive.field("ambient", surface.ambient) && archive.field("diffuse", surface.diffuse) &&
        archive.field("specular", surface.specular) &&
        archive.field("emission", surface.emission) &&
        archive.field("shininess", surface.shininess) &&
        archive.field("transparency", surface.transparency, 0.0F) &&
        archive.list("components", surface.components) &&
        demandNodePath(archive, "object", surface.object) &&
        archive.demand(surface.part >= 0 && surface.part < kMostOfAKind, "part",
                       "expected a place, counted from 0");
}

template <class Archive>
bool describe(Archive& archive, SceneModel& model)
{
    return archive.path("file", model.file) && archive.field("builtIn", model.builtIn, QString()) &&
        archive.list("nodes", model.nodes) && archive.list("surfaces", model.surfaces) &&
        archive.demand(model.file.isEmpty() != model.builtIn.isEmpty(), "",
                       "expected either \"file\" or \"builtIn\"");
}

template <class Archive>
bool describe(Archive& archive, SceneClipPlane& plane)
{
    return archive.field("equation", plane.equation, SceneClipPlane().equation) &&
        archive.field("enabled", plane.enabled, true) && archive.field("outline", plane.outline) &&
        archive.object("frame", plane.frame) &&
        archive.demand(plane.outline > 0.0F, "outline", "expected a number above 0") &&
        archive.demand(plane.frame.transform.has_value(), "frame", "\"transform\" is missing");
}

template <class Archive>
bool describe(Archive& archive, SceneBranch& branch)
{
    static constexpr std::array<const char*, 3> kKinds { "model", "frame", "plane" };
    return archive.words("kind", branch.kind, kKinds) && archive.field("number", branch.number) &&
        archive.list("children", branch.children);
}

template <class Archive>
bool describe(Archive& archive, ScenePlate& plate)
{
    nbSceneplateState& state = plate.state;
    const osg::Color4f white(1.0F, 1.0F, 1.0F, 1.0F);
    return archive.field("name", state.name) && archive.field("picture", plate.picture, {}) &&
        archive.field("color", state.color, white) &&
        archive.words("anchor", state.anchor, kAnchorNames, osg::Sceneplate::Centre) &&
        archive.field("position", state.position) && archive.field("size", state.size) &&
        archive.field("scale", state.scale, 1.0F) &&
        archive.field("rotation", state.rotation, 0.0F) &&
        archive.field("front", state.front, true) && archive.field("order", state.order, 0) &&
        archive.field("opacity", state.opacity, 1.0F) &&
        archive.field("visible", state.visible, true) &&
        demandShare(archive, "opacity", state.opacity);
}

template <class Archive>
bool describe(Archive& archive, SceneMatch& match)
{
    return archive.field("photograph", match.photograph, {}) &&
        archive.field("veil", match.veil, SceneMatch::kUsualVeil) &&
        archive.field("fitsWidth", match.fitsWidth, false) &&
        archive.field("linesShown", match.linesShown, true) &&
        archive.field("locked", match.locked, false) &&
        archive.words("linesType", match.linesType, kLinesTypeNames, 0) &&
        archive.words("fovMode", match.fovMode, kFovModeNames, 0) &&
        archive.field("magnifyFactor", match.magnifyFactor,
                      nbdPerspectiveMatch::kDefaultMagnifyFactor) &&
        archive.field("aspect", match.aspect, 1.0F) && archive.field("lines", match.lines) &&
        demandShare(archive, "veil", match.veil);
}

template <class Archive>
bool describe(Archive& archive, SceneDocument& document)
{
    return archive.version("scene", 1) && archive.object("camera", document.camera) &&
        archive.list("models", document.models) &&
        archive.list("clipPlanes", document.clipPlanes) && archive.list("tree", document.tree) &&
        archive.list("plates", document.plates) && archive.part("match", document.match);
}

}  // namespace viewer
