// SPDX-License-Identifier: MIT
#include "manipulator/handles/HandleTrim.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleNodes.h"

#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbGeoFactory.h>

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGPolygonChunk.h>

#include <cmath>

namespace nbec::manipulator {

namespace {

constexpr float kLetterSize = 0.22F;
constexpr float kRingRadius = 1.5F;
constexpr int kHalfRingPieces = 18;
/// Edges are drawn first, and as what is blended leave no depth, so that handles lie over them.
constexpr int kEdgeSortKey = 64014;
constexpr float kEdgeTransparency = 0.05F;

/// Ends of the lines of a letter, within -0.5 to 0.5.
std::vector<osg::Pnt3f> strokesOf(char letter)
{
    const osg::Pnt3f upLeft(-0.4F, 0.5F, 0.0F);
    const osg::Pnt3f upRight(0.4F, 0.5F, 0.0F);
    const osg::Pnt3f downLeft(-0.4F, -0.5F, 0.0F);
    const osg::Pnt3f downRight(0.4F, -0.5F, 0.0F);
    const osg::Pnt3f middle;
    const osg::Pnt3f down(0.0F, -0.5F, 0.0F);
    switch (letter) {
    case 'X':
        return { upLeft, downRight, upRight, downLeft };
    case 'Y':
        return { upLeft, middle, upRight, middle, middle, down };
    case 'Z':
        return { upLeft, upRight, upRight, downLeft, downLeft, downRight };
    case 'U':
        return { upLeft, downLeft, downLeft, downRight, downRight, upRight };
    default:
        return { upLeft, down, down, upRight };
    }
}

std::vector<osg::Pnt3f> halfCircle()
{
    constexpr float kPi = 3.14159265F;
    std::vector<osg::Pnt3f> ends;
    for (int i = 0; i < 2 * kHalfRingPieces; ++i) {
        const float angle =
            kPi * (static_cast<float>((i + 1) / 2) / static_cast<float>(kHalfRingPieces) - 0.5F);
        ends.emplace_back(kRingRadius * std::sin(angle), 0.0F, kRingRadius * std::cos(angle));
    }
    return ends;
}

/// New lines at a place of their own.
osg::NodePtr addLines(const osg::NodePtr& parent, const std::vector<osg::Pnt3f>& ends)
{
    const osg::NodePtr place = addChild(makePlacedNode(osg::Vec3f(), osg::Quaternion()),
                                        osg::makeNodeFor(nbGeoFactory::makeGeo(GL_LINES, ends)));
    addChild(parent, place);
    return place;
}

osg::Matrix worldFrom(const osg::NodePtr& node)
{
    return orthonormalised(node->getToWorld());
}

}  // namespace

osg::MaterialPtr makeEdgeMaterial(float widthPx)
{
    const osg::PolygonChunkPtr asLines = osg::PolygonChunk::create();
    const nbEdit chunkEdit(asLines, osg::FieldBits::AllFields);
    asLines->setFrontMode(GL_LINE);
    asLines->setBackMode(GL_LINE);
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit edit(material, osg::FieldBits::AllFields);
    material->setLit(false);
    material->setDiffuse(osg::Color3f(0.05F, 0.05F, 0.05F));
    material->setTransparency(kEdgeTransparency);
    material->setSortKey(kEdgeSortKey);
    material->addChunk(makeLineChunk(widthPx));
    material->addChunk(makeBlendChunk());
    material->addChunk(asLines);
    return material;
}

void HandleTrim::showEdges(bool on, const std::vector<osg::NodePtr>& parts,
                           const osg::MaterialPtr& dark)
{
    for (std::size_t i = edges.size(); on && i < parts.size(); ++i) {
        edges.push_back(makeSharingNode(osg::GeometryPtr::dcast(parts[i]->getCore())));
        addChild(parts[i], edges.back());
    }
    for (const osg::NodePtr& edge : edges) {
        setGeometryMaterial(edge, dark);
        showNode(edge, on);
    }
}

void HandleTrim::showLetter(bool on, const osg::NodePtr& top, char letter, float tip,
                            const osg::MaterialPtr& material, const osg::Quaternion& facing)
{
    if (on && letterPlace == osg::NullFC) {
        std::vector<osg::Pnt3f> strokes = strokesOf(letter);
        for (osg::Pnt3f& end : strokes) {
            end *= kLetterSize;
        }
        letterPlace = addLines(top, strokes);
    }
    showNode(letterPlace, on);
    if (on) {
        setGeometryMaterial(letterPlace->getChild(0), material);
        osg::Quaternion turn = osg::Quaternion(worldFrom(top)).inverse();
        turn.mult(facing);
        moveNode(letterPlace, osg::Vec3f(0.0F, tip, 0.0F), turn);
    }
}

void HandleTrim::colourFront(const osg::MaterialPtr& material)
{
    if (front != osg::NullFC) {
        setGeometryMaterial(front->getChild(0), material);
    }
}

void HandleTrim::showFront(bool on, const osg::NodePtr& ring, bool isAboutZ,
                           const osg::Vec3f& sight)
{
    if (on && front == osg::NullFC) {
        front = addLines(ring, halfCircle());
    }
    showNode(front, on);
    if (on) {
        osg::Vec3f axis;
        axis[isAboutZ ? 2 : 1] = 1.0F;
        osg::Vec3f towards = -sight;
        inverted(worldFrom(ring)).multMatrixVec(towards);
        towards -= axis * axis.dot(towards);
        towards = unitVector(towards);
        osg::Matrix turn;
        turn.setValue(axis.cross(towards), axis, towards);
        moveNode(front, osg::Vec3f(), osg::Quaternion(turn));
    }
}

}  // namespace nbec::manipulator
