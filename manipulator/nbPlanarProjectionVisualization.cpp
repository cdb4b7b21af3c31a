// SPDX-License-Identifier: MIT
#include "manipulator/nbPlanarProjectionVisualization.h"

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>
#include <nbOpenSGUtils/nbImage.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGTransform.h>

#include <vector>

using namespace nbec::manipulator;

namespace {

constexpr float kPlaneSize = 2.0F;
constexpr float kPlaneTransparency = 0.8F;
constexpr int kPlaneSortKey = 64000;
constexpr int kLineSortKey = 64001;
constexpr float kLineWidth = 1.0F;
/// Colour of planes where the picture is dark or missing.
constexpr float kPlaneEmission[] = { 0.10F, 0.16F, 0.24F };
constexpr float kLineColor[] = { 1.0F, 0.85F, 0.35F };

osg::DepthChunkPtr makeSeeThroughChunk()
{
    const osg::DepthChunkPtr chunk = osg::DepthChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setEnable(false);
    chunk->setReadOnly(true);
    chunk->setFunc(GL_LEQUAL);
    return chunk;
}

/// With GL_BLEND and white: surface * (1 - picture) + picture. The picture ends at its edges, so
/// that opposite ones do not bleed into each other.
osg::TextureChunkPtr makeTextureChunk()
{
    const osg::TextureChunkPtr chunk = osg::TextureChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setEnvMode(GL_BLEND);
    chunk->setEnvColor(osg::Color4f(1.0F, 1.0F, 1.0F, 1.0F));
    chunk->setWrapS(GL_CLAMP_TO_EDGE);
    chunk->setWrapT(GL_CLAMP_TO_EDGE);
    return chunk;
}

osg::SimpleMaterialPtr makePlaneMaterial(const osg::TextureChunkPtr& texture)
{
    const osg::Color3f black(0.0F, 0.0F, 0.0F);
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setAmbient(black);
    material->setDiffuse(black);
    material->setSpecular(black);
    material->setEmission(osg::Color3f(kPlaneEmission[0], kPlaneEmission[1], kPlaneEmission[2]));
    material->setTransparency(kPlaneTransparency);
    material->setSortKey(kPlaneSortKey);
    material->addChunk(makeBlendChunk(), osg::State::AutoSlotReplace);
    material->addChunk(texture, osg::State::AutoSlotReplace);
    material->addChunk(makeSeeThroughChunk(), osg::State::AutoSlotReplace);
    return material;
}

/// The lines show through objects as the planes do: they often lie in the object's surface.
osg::SimpleMaterialPtr makeLineMaterial()
{
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setLit(false);
    material->setDiffuse(osg::Color3f(kLineColor[0], kLineColor[1], kLineColor[2]));
    material->setSortKey(kLineSortKey);
    material->addChunk(makeLineChunk(kLineWidth), osg::State::AutoSlotReplace);
    material->addChunk(makeSeeThroughChunk(), osg::State::AutoSlotReplace);
    return material;
}

/// Lines between the corners of the projection at one or more heights: at each of them four,
/// counter-clockwise from the lower left one. @param edges  their ends, pair by pair
osg::NodePtr makeLines(std::initializer_list<float> heights, const std::vector<osg::UInt32>& edges,
                       const osg::MaterialPtr& material)
{
    std::vector<osg::Pnt3f> corners;
    for (const float z : heights) {
        corners.insert(corners.end(),
                       { osg::Pnt3f(-1.0F, -1.0F, z), osg::Pnt3f(1.0F, -1.0F, z),
                         osg::Pnt3f(1.0F, 1.0F, z), osg::Pnt3f(-1.0F, 1.0F, z) });
    }
    const osg::NodePtr lines = osg::makeNodeFor(nbGeoFactory::makeGeo(GL_LINES, corners, edges));
    setGeometryMaterial(lines, material);
    return lines;
}

/// See the class description: at the far end, looking back, scaled about the near end.
osg::NodePtr makeZExtentTransform()
{
    const osg::Vec3f end(0.0F, 0.0F, -1.0F);
    osg::Quaternion halfTurn;
    halfTurn.setValueAsQuat(1.0F, 0.0F, 0.0F, 0.0F);
    const osg::Transform3DPtr core = osg::Transform3D::create();
    const nbEdit edit(core, osg::FieldBits::AllFields);
    core->setTranslation(end);
    core->setRotationOrientation(halfTurn);
    core->setScalePivot(end);
    return osg::makeNodeFor(core);
}

osg::Transform3DPtr transform3DOf(const osg::NodePtr& node)
{
    return osg::Transform3DPtr::dcast(node->getCore());
}

/// What the planes show of an image: itself, if it has alpha, or as a mask an alpha image of its
/// brightness. Null for nothing, and for what cannot be converted.
osg::RefPtr<osg::ImagePtr> pictureOf(const osg::ImagePtr& image, bool asMask, bool invert)
{
    if (image == osg::NullFC || (!asMask && !image->hasAlphaChannel())) {
        return {};
    }
    if (!asMask) {
        return osg::RefPtr<osg::ImagePtr>(image);
    }
    osg::RefPtr<osg::ImagePtr> mask(osg::Image::create());
    if (!image->reformat(osg::Image::OSG_L_PF, mask.get()) ||
        !mask->reformat(osg::Image::OSG_A_PF)) {
        return {};
    }
    if (invert) {
        nbImage::invertAlpha(mask.get());
        mask->createMipmap(static_cast<osg::Int32>(mask->calcMipmapLevelCount()));
    }
    return mask;
}

}  // namespace

nbPlanarProjectionVisualization::nbPlanarProjectionVisualization()
    : textureChunk(makeTextureChunk())
    , shownTexture(std::make_shared<std::tuple<osg::UInt32, bool, bool>>())
{
    createGeo();
}

void nbPlanarProjectionVisualization::createGeo()
{
    root = osg::makeCoredNode<osg::Group>();
    nbNodeUtils::setIsAuxiliaryNode(root.get(), true);
    objectTransformNode = osg::makeNodeFor(osg::Transform::create());
    projectionTransformNode = makeTransform3DNode(osg::Vec3f());
    transform2DNode = makeTransform3DNode(osg::Vec3f());
    zExtentTransformNode = makeZExtentTransform();
    addChild(root.get(), objectTransformNode.get());
    addChild(objectTransformNode.get(), projectionTransformNode.get());
    addChild(projectionTransformNode.get(), transform2DNode.get());
    addChild(projectionTransformNode.get(), zExtentTransformNode.get());

    for (osg::SimpleMaterialRefPtr& material : planeMaterials) {
        material = makePlaneMaterial(textureChunk.get());
        const osg::NodePtr plane = osg::makePlane(kPlaneSize, kPlaneSize, 1, 1);
        setGeometryMaterial(plane, material.get());
        // Deliberate: one of them is out of use. Without culling a plane is seen from both sides,
        // and two of them would be blended over each other.
        showNode(plane, &material == &planeMaterials[0]);
        addChild(transform2DNode.get(), plane);
    }
    const osg::SimpleMaterialPtr lineMaterial = makeLineMaterial();
    const std::vector<osg::UInt32> outline = { 0, 1, 1, 2, 2, 3, 3, 0 };
    addChild(transform2DNode.get(), makeLines({ 0.0F }, outline, lineMaterial));
    // The far end of the box and the edges that lead there; the near end is the outline's place.
    const std::vector<osg::UInt32> box = { 0, 4, 4, 5, 1, 5, 5, 6, 2, 6, 6, 7, 3, 7, 7, 4 };
    zExtentGeometryNode = makeLines({ -1.0F, 0.0F }, box, lineMaterial);
    addChild(zExtentTransformNode.get(), zExtentGeometryNode.get());
}

// == Placement

void nbPlanarProjectionVisualization::attachToNode(osg::NodePtr node)
{
    if (osg::TransformPtr::dcast(objectTransformNode->getCore()) != osg::NullFC) {
        setMatrix(objectTransformNode.get(),
                  node != osg::NullFC ? node->getToWorld() : osg::Matrix::identity());
    }
}

void nbPlanarProjectionVisualization::updateProjectionTransform(
    osg::ColorComponentSettingsPtr settings)
{
    const osg::Transform3DPtr projection =
        settings != osg::NullFC ? settings->getPlanarProjection() : osg::Transform3DPtr();
    const osg::Transform3DPtr place = transform3DOf(projectionTransformNode.get());
    const osg::Transform3DPtr zExtent = transform3DOf(zExtentTransformNode.get());
    if (projection == osg::NullFC || place == osg::NullFC || zExtent == osg::NullFC) {
        return;
    }
    const nbEdit edit(place,
                      osg::Transform3D::RotationFieldMask |
                          osg::Transform3D::RotationOrientationFieldMask |
                          osg::Transform3D::TranslationFieldMask);
    place->setRotation(projection->getRotationAsQuaternion());
    place->setRotationOrientation(projection->getRotationOrientation());
    place->setTranslation(projection->getTranslation());
    const nbEdit scaleEdit(zExtent, osg::Transform3D::ScaleFieldMask);
    zExtent->setScale(projection->getScale());
}

void nbPlanarProjectionVisualization::setRotate(float angle)
{
    const osg::Transform3DPtr core = transform3DOf(transform2DNode.get());
    if (core != osg::NullFC) {
        const nbEdit edit(core, osg::Transform3D::RotationFieldMask);
        core->setRotation(osg::Vec3f(0.0F, 0.0F, angle));
    }
}

void nbPlanarProjectionVisualization::setScale(float sx, float sy)
{
    const osg::Transform3DPtr core = transform3DOf(transform2DNode.get());
    if (core != osg::NullFC) {
        const nbEdit edit(core, osg::Transform3D::ScaleFieldMask);
        core->setScale(osg::Vec3f(sx, sy, 1.0F));
    }
}

// == Looks

void nbPlanarProjectionVisualization::setVisible(bool visible)
{
    showNode(root.get(), visible);
}

void nbPlanarProjectionVisualization::setZScaleVisible(bool visible)
{
    showNode(zExtentTransformNode.get(), visible);
    showNode(zExtentGeometryNode.get(), visible);
}

void nbPlanarProjectionVisualization::setPlaneTransparency(float transparency)
{
    for (const osg::SimpleMaterialRefPtr& material : planeMaterials) {
        const nbEdit edit(material.get(), osg::SimpleMaterial::TransparencyFieldMask);
        material->setTransparency(transparency);
    }
}

void nbPlanarProjectionVisualization::setTexture(osg::ImagePtr image, bool asMask, bool invert)
{
    const auto asked = std::tuple(containerId(image), asMask, invert);
    if (asked == *shownTexture) {
        return;
    }
    *shownTexture = asked;
    const osg::RefPtr<osg::ImagePtr> picture = pictureOf(image, asMask, invert);
    osg::ImagePtr chosen = picture.get();
    const nbEdit edit(textureChunk.get(), osg::TextureChunk::ImageFieldMask);
    textureChunk->setImage(chosen);
}
