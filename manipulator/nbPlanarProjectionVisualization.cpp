// SPDX-License-Identifier: MIT
#include "manipulator/nbPlanarProjectionVisualization.h"

#include "manipulator/handles/ContainerReference.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbImage.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGTransform.h>

#include <utility>
#include <vector>

using nbec::manipulator::addChild;
using nbec::manipulator::containerId;
using nbec::manipulator::makeGroupNode;
using nbec::manipulator::makeLineGeometry;
using nbec::manipulator::makeNode;
using nbec::manipulator::makeTransform3DNode;
using nbec::manipulator::setGeometryMaterial;
using nbec::manipulator::showNode;

namespace {

constexpr float kPlaneSize = 2.0F;
constexpr float kPlaneTransparency = 0.8F;
constexpr int kPlaneSortKey = 64000;
constexpr int kLineSortKey = 64001;
constexpr float kLineWidth = 1.0F;
/// Colour of planes where the picture is dark or missing.
constexpr float kPlaneEmission[] = { 0.10F, 0.16F, 0.24F };
constexpr float kLineColor[] = { 1.0F, 0.85F, 0.35F };

constexpr osg::UInt32 kCorners = 4;

osg::DepthChunkPtr makeSeeThroughChunk()
{
    const osg::DepthChunkPtr chunk = osg::DepthChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setEnable(false);
    chunk->setReadOnly(true);
    chunk->setFunc(GL_LEQUAL);
    return chunk;
}

osg::BlendChunkPtr makeBlendChunk()
{
    const osg::BlendChunkPtr chunk = osg::BlendChunk::create();
    const nbEdit edit(chunk, osg::FieldBits::AllFields);
    chunk->setSrcFactor(GL_SRC_ALPHA);
    chunk->setDestFactor(GL_ONE_MINUS_SRC_ALPHA);
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
    const osg::LineChunkPtr line = osg::LineChunk::create();
    {
        const nbEdit edit(line, osg::FieldBits::AllFields);
        line->setWidth(kLineWidth);
        line->setSmooth(true);
    }
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setLit(false);
    material->setDiffuse(osg::Color3f(kLineColor[0], kLineColor[1], kLineColor[2]));
    material->setSortKey(kLineSortKey);
    material->addChunk(line, osg::State::AutoSlotReplace);
    material->addChunk(makeSeeThroughChunk(), osg::State::AutoSlotReplace);
    return material;
}

/// Turns a geometry's surface to the other side: windings and normals.
void faceBack(const osg::GeometryPtr& geometry)
{
    const nbEdit edit(geometry, osg::FieldBits::AllFields);
    // In a strip of two triangles, exchanged neighbours are the same triangles the other way round.
    const osg::GeoIndicesPtr indices = geometry->getIndices();
    for (osg::UInt32 i = 0; i + 1 < indices->getSize(); i += 2) {
        const osg::UInt32 first = indices->getValue(i);
        const osg::UInt32 second = indices->getValue(i + 1);
        indices->setValue(second, i);
        indices->setValue(first, i + 1);
    }
    const osg::GeoNormalsPtr normals = geometry->getNormals();
    for (osg::UInt32 i = 0; i < normals->getSize(); ++i) {
        normals->setValue(-normals->getValue(i), i);
    }
}

/// The four corners of the projection at a height, counter-clockwise from the lower left one.
void appendCorners(std::vector<osg::Pnt3f>& corners, float z)
{
    for (const auto& [x, y] : { std::pair(-1.0F, -1.0F), std::pair(1.0F, -1.0F),
                                std::pair(1.0F, 1.0F), std::pair(-1.0F, 1.0F) }) {
        corners.emplace_back(x, y, z);
    }
}

osg::NodePtr makeLines(const std::vector<osg::Pnt3f>& points,
                       const std::vector<osg::UInt32>& indices, const osg::MaterialPtr& material)
{
    const osg::NodePtr lines = makeNode(makeLineGeometry(points, indices));
    setGeometryMaterial(lines, material);
    return lines;
}

osg::NodePtr makeOutline(const osg::MaterialPtr& material)
{
    std::vector<osg::Pnt3f> corners;
    appendCorners(corners, 0.0F);
    std::vector<osg::UInt32> edges;
    for (osg::UInt32 i = 0; i < kCorners; ++i) {
        edges.insert(edges.end(), { i, (i + 1) % kCorners });
    }
    return makeLines(corners, edges, material);
}

/// The far end of the box and the edges that lead there; the near end is the outline's place.
osg::NodePtr makeZExtentLines(const osg::MaterialPtr& material)
{
    std::vector<osg::Pnt3f> corners;
    appendCorners(corners, -1.0F);
    appendCorners(corners, 0.0F);
    std::vector<osg::UInt32> edges;
    for (osg::UInt32 i = 0; i < kCorners; ++i) {
        const osg::UInt32 nearEnd = kCorners + i;
        edges.insert(edges.end(), { i, nearEnd, nearEnd, kCorners + (i + 1) % kCorners });
    }
    return makeLines(corners, edges, material);
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
    return makeNode(core);
}

osg::Transform3DPtr transform3DOf(const osg::NodePtr& node)
{
    return osg::Transform3DPtr::dcast(node->getCore());
}

/// Alpha image of another one's brightness; null if that cannot be converted.
osg::RefPtr<osg::ImagePtr> makeMask(const osg::ImagePtr& source, bool invert)
{
    osg::RefPtr<osg::ImagePtr> mask(osg::Image::create());
    if (!source->reformat(osg::Image::OSG_L_PF, mask.get()) ||
        !mask->reformat(osg::Image::OSG_A_PF)) {
        return osg::RefPtr<osg::ImagePtr>();
    }
    if (invert) {
        nbImage::invertAlpha(mask.get());
        mask->createMipmap(static_cast<osg::Int32>(mask->calcMipmapLevelCount()));
    }
    return mask;
}

/// What the planes show of an image; null for nothing.
osg::RefPtr<osg::ImagePtr> pictureOf(const osg::ImagePtr& image, bool asMask, bool invert)
{
    if (image != osg::NullFC && asMask) {
        return makeMask(image, invert);
    }
    const bool covers = image != osg::NullFC && image->hasAlphaChannel();
    return osg::RefPtr<osg::ImagePtr>(covers ? image : osg::ImagePtr());
}

}  // namespace

/// The arguments of the last setTexture(). The image is only compared, so its id will do.
struct nbPlanarProjectionVisualization::ShownTexture
{
    osg::UInt32 imageId = 0;
    bool asMask = false;
    bool invert = false;
};

nbPlanarProjectionVisualization::nbPlanarProjectionVisualization()
    : shownTexture(std::make_shared<ShownTexture>())
{
    createGeo();
}

nbPlanarProjectionVisualization::nbPlanarProjectionVisualization(
    const nbPlanarProjectionVisualization& other) = default;
nbPlanarProjectionVisualization&
nbPlanarProjectionVisualization::operator=(const nbPlanarProjectionVisualization& other) = default;
nbPlanarProjectionVisualization::~nbPlanarProjectionVisualization() = default;

void nbPlanarProjectionVisualization::createGeo()
{
    textureChunk = osg::RefPtr<osg::TextureChunkPtr>(makeTextureChunk());
    root = makeGroupNode();
    nbNodeUtils::setIsAuxiliaryNode(root.get(), true);
    objectTransformNode = makeNode(osg::Transform::create());
    projectionTransformNode = makeTransform3DNode(osg::Vec3f());
    transform2DNode = makeTransform3DNode(osg::Vec3f());
    zExtentTransformNode = makeZExtentTransform();
    addChild(root.get(), objectTransformNode.get());
    addChild(objectTransformNode.get(), projectionTransformNode.get());
    addChild(projectionTransformNode.get(), transform2DNode.get());
    addChild(projectionTransformNode.get(), zExtentTransformNode.get());

    for (const PlaneSide side : { PlaneSide::Front, PlaneSide::Back }) {
        addChild(transform2DNode.get(), createPlane(side));
    }
    const osg::SimpleMaterialPtr lineMaterial = makeLineMaterial();
    addChild(transform2DNode.get(), makeOutline(lineMaterial));
    zExtentGeometryNode = makeZExtentLines(lineMaterial);
    addChild(zExtentTransformNode.get(), zExtentGeometryNode.get());
}

osg::NodePtr nbPlanarProjectionVisualization::createPlane(PlaneSide side)
{
    osg::SimpleMaterialRefPtr& material = planeMaterials[side == PlaneSide::Back ? 1 : 0];
    material = makePlaneMaterial(textureChunk.get());
    const osg::NodePtr plane = osg::makePlane(kPlaneSize, kPlaneSize, 1, 1);
    setGeometryMaterial(plane, material.get());
    if (side == PlaneSide::Back) {
        faceBack(osg::GeometryPtr::dcast(plane->getCore()));
    }
    return plane;
}

// == The tree

osg::NodePtr nbPlanarProjectionVisualization::getRootNode() const
{
    return root.get();
}

osg::NodePtr nbPlanarProjectionVisualization::getVisualizationNode() const
{
    return objectTransformNode.get();
}

osg::NodePtr nbPlanarProjectionVisualization::getProjectionTransformNode() const
{
    return projectionTransformNode.get();
}

osg::NodePtr nbPlanarProjectionVisualization::get2DTransformNode() const
{
    return transform2DNode.get();
}

// == Placement

void nbPlanarProjectionVisualization::attachToNode(osg::NodePtr node)
{
    const osg::TransformPtr core = osg::TransformPtr::dcast(objectTransformNode->getCore());
    if (core == osg::NullFC) {
        return;
    }
    osg::Matrix worldFromNode;
    if (node != osg::NullFC) {
        node->getToWorld(worldFromNode);
    }
    const nbEdit edit(core, osg::Transform::MatrixFieldMask);
    core->setMatrix(worldFromNode);
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
    {
        const nbEdit edit(place,
                          osg::Transform3D::RotationFieldMask |
                              osg::Transform3D::RotationOrientationFieldMask |
                              osg::Transform3D::TranslationFieldMask);
        place->setRotation(projection->getRotationAsQuaternion());
        place->setRotationOrientation(projection->getRotationOrientation());
        place->setTranslation(projection->getTranslation());
    }
    const nbEdit edit(zExtent, osg::Transform3D::ScaleFieldMask);
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

float nbPlanarProjectionVisualization::getPlaneTransparency() const
{
    return planeMaterials[0]->getTransparency();
}

void nbPlanarProjectionVisualization::setTexture(osg::ImagePtr image, bool asMask, bool invert)
{
    ShownTexture& shown = *shownTexture;
    const osg::UInt32 imageId = containerId(image);
    if (shown.imageId == imageId && shown.asMask == asMask && shown.invert == invert) {
        return;
    }
    shown.imageId = imageId;
    shown.asMask = asMask;
    shown.invert = invert;
    const osg::RefPtr<osg::ImagePtr> picture = pictureOf(image, asMask, invert);
    osg::ImagePtr chosen = picture.get();
    const nbEdit edit(textureChunk.get(), osg::TextureChunk::ImageFieldMask);
    textureChunk->setImage(chosen);
}
