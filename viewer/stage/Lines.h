// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace viewer {

/// Lines of one colour that no light changes.
/// @param mode  GL_LINES or GL_LINE_LOOP  @param widthPx  logical pixels
osg::GeometryPtr makeLines(osg::UInt32 mode, const osg::Color3f& color, float widthPx);

/// Sets their corners.
void setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners);

}  // namespace viewer
