// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <optional>

namespace viewer {

class Stage;

/// A point on a surface that handles stand at; moves with the surface, which is kept by id.
class TextureAnchor
{
public:
    /// @param point  world space
    void set(const osg::NodePtr& surface, const osg::Pnt3f& point);

    /// Whether it lies on that surface.
    bool isOn(const osg::NodePtr& surface) const;

    /// In the surface's space.
    const osg::Pnt3f& place() const { return localPlace; }

    /// In world space; nothing without a surface.
    std::optional<osg::Pnt3f> worldPlace() const;

private:
    osg::UInt32 surfaceId = 0;
    osg::Pnt3f localPlace;
};

/// A point of a surface that is seen in the view, near the surface's middle if that can be seen;
/// otherwise its middle.
/// @param surface  not null
osg::Pnt3f visiblePointOf(const osg::NodePtr& surface, Stage& stage);

}  // namespace viewer
