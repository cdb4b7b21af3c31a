// SPDX-License-Identifier: MIT
#include "viewer/textures/TextureTarget.h"

#include "viewer/textures/SurfaceMaterial.h"

#include <nbKernelServices/nbScopedUndo.h>
#include <nbMaterialEditor/nbBoxCoordinates.h>
#include <nbOpenSGExt/nbContainerId.h>

#include <cmath>

namespace viewer {
namespace {

/// Of a picture on a body, degrees: up to there and over that it fades.
const osg::Vec2f kUsualAngles(75.0F, 15.0F);

}  // namespace

TextureTarget::TextureTarget(const std::string& receiverName, nbStateChunkBase& gui)
    : editor(receiverName)
    , observer(gui)
{ }

void TextureTarget::follow(const osg::NodePtr& object, const osg::NodePtr& part)
{
    objectId = containerId(object);
    surfaceId = containerId(surfaceOf(object, part));
}

bool TextureTarget::connect()
{
    const Connection wanted(containerId(object()), containerId(material()),
                            containerId(projection()), componentName);
    if (wanted == connected) {
        return false;
    }
    connected = wanted;
    editor.setMaterial(material(), object(), componentName, &observer);
    return true;
}

osg::NodePtr TextureTarget::object() const
{
    return resolveContainer<osg::NodePtr>(objectId);
}

osg::NodePtr TextureTarget::surface() const
{
    return resolveContainer<osg::NodePtr>(surfaceId);
}

osg::UberMaterialPtr TextureTarget::material() const
{
    return uberMaterialOf(surface());
}

osg::ColorComponentSettingsPtr TextureTarget::settings() const
{
    const osg::UberMaterialPtr found = material();
    return found == osg::NullFC ? osg::ColorComponentSettingsPtr()
                                : found->getComponentSettings(componentName);
}

osg::Transform3DPtr TextureTarget::projection() const
{
    const osg::ColorComponentSettingsPtr found = settings();
    return found == osg::NullFC ? osg::Transform3DPtr() : found->getPlanarProjection();
}

osg::ImagePtr TextureTarget::image() const
{
    const osg::UberMaterialPtr found = material();
    return found == osg::NullFC ? osg::ImagePtr() : found->getImage(componentName);
}

TextureTarget::Settings::TextureProjection TextureTarget::projectionType() const
{
    const osg::ColorComponentSettingsPtr found = settings();
    const osg::Int32 type =
        found == osg::NullFC ? Settings::PlanarProjection : found->getTextureProjectionType();
    const bool isKnown = type >= Settings::UVProjection && type <= Settings::TireProjection;
    return isKnown ? static_cast<Settings::TextureProjection>(type) : Settings::PlanarProjection;
}

nbTextureValues TextureTarget::values() const
{
    const osg::ColorComponentSettingsPtr found = settings();
    return found == osg::NullFC ? nbTextureValues() : nbTextureValues::of(*found);
}

bool TextureTarget::setComponent(const std::string& name)
{
    const bool isShown = name == osg::UberMaterial::kDiffuseComponent ||
        name == osg::UberMaterial::kTransparencyComponent;
    if (isShown) {
        componentName = name;
    }
    return isShown;
}

// == Edits

bool TextureTarget::setImage(const osg::ImagePtr& image, const ProjectionPose& pose)
{
    if (surface() == osg::NullFC) {
        return false;
    }
    const nbScopedUndo undo(QT_TRANSLATE_NOOP("Manipulator", "Picture"));
    const bool isFirst = projection() == osg::NullFC;
    makeUberMaterial(surface());
    connect();
    if (!editor.setImage(image)) {
        return false;
    }
    connect();
    if (!isFirst) {
        return true;
    }
    nbTextureValues angles = values();
    angles.planarAngles = placing().isBody() ? kUsualAngles : angles.planarAngles;
    return editor.setTextureValues(angles) &&
        editor.setFlags(Settings::KeepAspectRatio | Settings::ClampZ) &&
        editProjection([&pose](nbTransformState& state) {
               state.translation = pose.translation;
               state.rotationMode = osg::Transform3D::QuaternionMode;
               state.rotationQuaternion = pose.rotation;
               state.rotationOrientation = osg::Quaternion();
               state.scale = pose.scale;
           });
}

bool TextureTarget::removeImage()
{
    return image() != osg::NullFC && editor.setImage(osg::ImagePtr());
}

bool TextureTarget::editProjection(const EditState& edit)
{
    const osg::Transform3DPtr edited = projection();
    if (edited == osg::NullFC) {
        return false;
    }
    nbTransformState state = nbTransformState::of(*edited);
    edit(state);
    return editor.setProjection(state);
}

bool TextureTarget::setScale(const osg::Vec3f& scale)
{
    return editProjection([this, &scale](nbTransformState& state) {
        const bool keeps = settings()->hasPlanarProjectionFlag(Settings::KeepAspectRatio);
        osg::Vec3f size;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            size[i] = std::copysign(scale[i], state.scale[i]);
        }
        state.scale = keeps ? scaleKeepingAspect(state.scale, size) : size;
    });
}

bool TextureTarget::setFlag(Flag flag, bool on)
{
    const osg::ColorComponentSettingsPtr edited = settings();
    if (edited == osg::NullFC) {
        return false;
    }
    const osg::UInt32 flags = edited->getPlanarProjectionFlags();
    return editor.setFlags(on ? flags | flag : flags & ~osg::UInt32(flag));
}

bool TextureTarget::setCoverage(bool asMask, bool invert)
{
    return editor.setCoverage(asMask, invert);
}

bool TextureTarget::setProjectionType(Settings::TextureProjection type)
{
    if (type == Settings::UVProjection) {
        nbBoxCoordinates::layOn(geometryOf(surface()));
    }
    return editor.setTextureProjectionType(type);
}

bool TextureTarget::setValues(const nbTextureValues& values)
{
    return editor.setTextureValues(values);
}

}  // namespace viewer
