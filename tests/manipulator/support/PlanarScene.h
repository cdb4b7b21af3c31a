// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PlanarTextureManipulator.h"
#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MessageLog.h"

#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>
#include <nbUtils/nbMessage.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// A scene whose box wears a material with a planar projection, from -1 to 1 at the origin, and a
/// planar gizmo with all its handles. The messages go to a log, or to a real editor.
class PlanarScene : public MessageLog
{
public:
    enum class Receiver
    {
        Log,
        Editor
    };

    explicit PlanarScene(Receiver receiver = Receiver::Log);
    PlanarScene(const PlanarScene&) = delete;
    PlanarScene& operator=(const PlanarScene&) = delete;
    ~PlanarScene();

    void look(Camera from, bool orthographic);
    /// Edits projection or transform and places the gizmo anew.
    void edit(const osg::Transform3DPtr& transform,
              const std::function<void(const osg::Transform3DPtr&)>& change);
    osg::Transform3DPtr core() const;
    osg::Transform3DPtr parentCore() const;

    /// World from projection space.
    osg::Matrix worldFromProjection() const;
    osg::Pnt3f inWorld(const osg::Vec3f& inProjection) const;

    /// The named node of a handle, whose children are its parts.
    osg::NodePtr handle(const std::string& name);
    /// World position of a point of a handle: of a tab in the tab's frame, of others in the gizmo's
    /// unit frame.
    osg::Pnt3f onHandle(const std::string& name, const osg::Vec3f& unit);
    /// Presses on a point of a handle. @return whether that handle was grabbed
    bool grab(const std::string& name, const osg::Vec3f& unit);

    /// What "::getScaleValues" is answered with; nothing at the start.
    std::function<void(nbMessage&)> scaleReply;

    PlanarTextureManipulator gizmo;  // outlives the scene, which deactivates it
    GizmoScene scene;
    HandleDrag drag { scene };
    osg::NodePtr parent;  ///< Transform3D above the scene's node
    osg::UberMaterialRefPtr material;
    osg::ColorComponentSettingsPtr settings;
    osg::Transform3DPtr projection;
    std::unique_ptr<nbMaterialEditor> editor;

private:
    void makeMaterial();
};

}  // namespace nbec::manipulator::test
