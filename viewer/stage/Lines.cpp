// SPDX-License-Identifier: MIT
#include "viewer/stage/Lines.h"

#include "viewer/loading/NodeChildren.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGSimpleMaterial.h>

namespace viewer {

osg::GeometryPtr makeLines(osg::UInt32 mode, const osg::Color3f& color, float widthPx)
{
    const osg::LineChunkPtr line = osg::LineChunk::create();
    const nbEdit lineEdit(line, osg::FieldBits::AllFields);
    line->setWidth(widthPx);
    line->setSmooth(true);
    const osg::SimpleMaterialPtr material = osg::SimpleMaterial::create();
    const nbEdit materialEdit(material, osg::FieldBits::AllFields);
    material->setDiffuse(color);
    material->setLit(false);
    material->addChunk(line);
    const osg::GeometryPtr lines = osg::Geometry::create();
    const nbEdit edit(lines, osg::FieldBits::AllFields);
    lines->setTypes(osg::GeoPTypesUI8::create());
    lines->getTypes()->push_back(mode);
    lines->setMaterial(material);
    setCorners(lines, {});
    return lines;
}

void setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners)
{
    const osg::GeoPositions3fPtr positions = osg::GeoPositions3f::create();
    for (const osg::Pnt3f& corner : corners) {
        positions->push_back(corner);
    }
    const osg::GeoPLengthsUI32Ptr lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(positions->getSize());
    const nbEdit edit(lines, osg::FieldBits::AllFields);
    lines->setPositions(positions);
    lines->setLengths(lengths);
}

HelperLines::HelperLines(const osg::Color3f& color, float widthPx)
    : node(osg::Node::create())
    , lines(makeLines(GL_LINES, color, widthPx))
{
    const osg::NodePtr shown = node.get();
    const nbEdit edit(shown, osg::FieldBits::AllFields);
    shown->setCore(lines.get());
    shown->setActive(false);
    addChild(nbScenegraph::getInternalRoot(), shown);
}

HelperLines::~HelperLines()
{
    takeFromParent(node.get());
}

void HelperLines::set(const std::vector<osg::Pnt3f>& corners)
{
    setCorners(lines.get(), corners);
    const osg::NodePtr shown = node.get();
    const nbEdit edit(shown, osg::Node::TravMaskFieldMask);
    shown->setActive(!corners.empty());
}

}  // namespace viewer
