// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace nbec::manipulator {

/// What is drawn of one handle beside its parts: dark edges, a letter at its tip, the front half of
/// its ring. It hangs below parts and handle, bears no names, so that it is never hit, and is built
/// when it is shown first.
class HandleTrim
{
public:
    /// @param dark  see makeEdgeMaterial()
    void showEdges(bool on, const std::vector<osg::NodePtr>& parts, const osg::MaterialPtr& dark);

    /// Shows a letter that faces the viewer. @param top  of the handle  @param tip  its place,
    /// along y in the frame of the handle  @param facing  turn of the camera in the world
    void showLetter(bool on, const osg::NodePtr& top, char letter, float tip,
                    const osg::MaterialPtr& material, const osg::Quaternion& facing);

    /// Shows the half that is turned to the viewer of a circle of radius 1.5 about y, or z.
    /// @param sight  world, unit length
    void showFront(bool on, const osg::NodePtr& ring, bool isAboutZ, const osg::Vec3f& sight);
    /// Nothing without a front.
    void colourFront(const osg::MaterialPtr& material);

private:
    std::vector<osg::NodePtr> edges;
    osg::NodePtr letterPlace;
    osg::NodePtr front;
};

/// A material, count 0, that draws lines wider, and surfaces as their edges, below what they belong
/// to.
osg::MaterialPtr makeEdgeMaterial(float widthPx);

}  // namespace nbec::manipulator
