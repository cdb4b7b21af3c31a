// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AbstractManipulator.h"
#include "manipulator/ManipulatorInteractionContext.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>

namespace nbec::manipulator::test {

/// A view of 800 x 600 device pixels without a window: eye at (0, 0, 10), looking along -z at the
/// origin, y up, field of view 45 degrees; a scene with one node; a manager with one manipulator
/// context.
class GizmoScene
{
public:
    GizmoScene();
    GizmoScene(const GizmoScene&) = delete;
    GizmoScene& operator=(const GizmoScene&) = delete;
    ~GizmoScene();

    /// Pixel position of a world point, from the camera's own matrices; y from the top.
    osg::Pnt2f pixelOf(const osg::Pnt3f& world) const;

    /// Moves the pointer and sends an event of tool "tool", as the input translator does. @return
    /// whether it was handled
    bool send(const std::string& event, const osg::Pnt2f& positionPx,
              const std::string& hint = "select");

    bool hover(const osg::Pnt3f& world) { return send("hover", pixelOf(world)); }

    /// Places the eye; it looks at the origin, y up.
    void lookFrom(const osg::Pnt3f& eye);
    void setOrthographic(bool on);

    /// Installs a manipulator under the internal root and adds the context.
    void install(AbstractManipulator& manipulator);

    nbOSGWidget widget;
    interaction::Picker picker;
    interaction::InteractionManager manager;
    ManipulatorInteractionContext context;
    osg::NodePtr node;  ///< a 2 x 2 x 2 box with a Transform3D above it, at the origin
};

/// For scenes whose manipulator has to outlive them.
template <class Gizmo>
struct Owned
{
    Gizmo gizmo;
};

void addChild(const osg::NodePtr& above, const osg::NodePtr& child);

/// The Transform3D of a node; null if it has none.
osg::Transform3DPtr transformOf(const osg::NodePtr& node);

/// The first node of a name in a tree, depth first; null if there is none.
osg::NodePtr findNode(const osg::NodePtr& tree, const std::string& name);

/// Geometry nodes at and below a node, in tree order.
std::vector<osg::NodePtr> partsOf(const osg::NodePtr& tree);

/// The diffuse colour of the material on a node's geometry, as "r g b" with one decimal.
std::string colorOf(const osg::NodePtr& geometryNode);

/// Whether a node and all its ancestors are active.
bool isShown(const osg::NodePtr& node);

}  // namespace nbec::manipulator::test
