// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/match/PerspectiveMatchCommands.h"
#include "viewer/plates/PlateField.h"
#include "viewer/scenes/SceneDocument.h"

#include <array>

/// The entries of a scene file, each once for its reader and its writer.
///
/// An archive is one of both. It offers, each answering whether to go on:
/// - field(key, value): an entry that is always there;
/// - field(key, value, usual): one that is left out where it has the usual value, bit for bit;
/// - words(key, number, names, usual): a number, by its word;
/// - bits(key, mask): a mask, as the numbers of its bits; names(key, mask, names): as their words;
/// - path(key, file): the name of a file, left out when empty;
/// - part(key, optional) and list(key, values): what has entries of its own, left out when empty.
namespace viewer::scenefields {

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

template <class Archive>
bool describe(Archive& archive, CameraPose& pose)
{
    return archive.field("from", pose.from) && archive.field("at", pose.at) &&
        archive.field("up", pose.up) && archive.field("pivot", pose.pivot) &&
        archive.field("fov", pose.fovDeg) &&
        archive.field("orthographic", pose.orthographic, false) &&
        archive.field("zUp", pose.zUp, false);
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
        field("orientation", &State::rotationOrientation) && field("scale", &State::scale);
}

template <class Archive>
bool describe(Archive& archive, SceneNode& node)
{
    return archive.field("path", node.path, QString()) && archive.field("name", node.name) &&
        archive.field("newName", node.newName) && archive.field("removed", node.removed, false) &&
        archive.field("visible", node.visible, true) && archive.bits("denied", node.denied) &&
        archive.part("transform", node.transform);
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
        field("tireFit", &Values::tireAutoParameter);
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
    return archive.field("name", component.name) && archive.field("picture", component.picture) &&
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
        archive.list("components", surface.components);
}

template <class Archive>
bool describe(Archive& archive, SceneModel& model)
{
    return archive.path("file", model.file) && archive.field("builtIn", model.builtIn, QString()) &&
        archive.list("nodes", model.nodes) && archive.list("surfaces", model.surfaces);
}

template <class Archive>
bool describe(Archive& archive, SceneClipPlane& plane)
{
    return archive.field("equation", plane.equation, SceneClipPlane().equation) &&
        archive.field("enabled", plane.enabled, true) && archive.field("outline", plane.outline) &&
        archive.object("frame", plane.frame);
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
    return archive.field("name", plate.name) && archive.field("picture", plate.picture) &&
        archive.field("color", plate.color, ScenePlate().color) &&
        archive.words("anchor", plate.anchor, kAnchorNames, 4) &&
        archive.field("position", plate.position) && archive.field("size", plate.size) &&
        archive.field("scale", plate.scale, 1.0F) &&
        archive.field("rotation", plate.rotationDeg, 0.0F) &&
        archive.field("front", plate.front, true) && archive.field("order", plate.order, 0) &&
        archive.field("opacity", plate.opacity, 1.0F) &&
        archive.field("visible", plate.visible, true);
}

template <class Archive>
bool describe(Archive& archive, SceneMatch& match)
{
    return archive.field("photograph", match.photograph) &&
        archive.field("veil", match.veil, SceneMatch::kUsualVeil) &&
        archive.field("fitsWidth", match.fitsWidth, false) &&
        archive.field("linesShown", match.linesShown, true) &&
        archive.field("locked", match.locked, false) &&
        archive.words("linesType", match.linesType, kLinesTypeNames, 0) &&
        archive.words("fovMode", match.fovMode, kFovModeNames, 0) &&
        archive.field("magnifyFactor", match.magnifyFactor,
                      nbdPerspectiveMatch::kDefaultMagnifyFactor) &&
        archive.field("aspect", match.aspect, 1.0F) && archive.field("lines", match.lines);
}

template <class Archive>
bool describe(Archive& archive, SceneDocument& document)
{
    return archive.version("scene", 1) && archive.object("camera", document.camera) &&
        archive.list("models", document.models) &&
        archive.list("clipPlanes", document.clipPlanes) && archive.list("tree", document.tree) &&
        archive.list("plates", document.plates) && archive.part("match", document.match);
}

}  // namespace viewer::scenefields
