// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace viewer {

/// Lines of one colour that no light changes.
/// @param mode  GL_LINES or GL_LINE_LOOP  @param widthPx  logical pixels
osg::GeometryPtr makeLines(osg::UInt32 mode, const osg::Color3f& color, float widthPx);

/// Sets their corners.
void setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners);

/// Lines of the world that belong to no object, two corners each, under the scene graph's internal
/// root.
class HelperLines
{
public:
    HelperLines(const osg::Color3f& color, float widthPx);
    HelperLines(const HelperLines&) = delete;
    HelperLines& operator=(const HelperLines&) = delete;
    /// Takes the lines out of the scene graph.
    ~HelperLines();

    void set(const std::vector<osg::Pnt3f>& corners);

private:
    osg::NodeRefPtr node;
    osg::RefPtr<osg::GeometryPtr> lines;
};

}  // namespace viewer
