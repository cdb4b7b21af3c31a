// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AnchoredTextureManipulator.h"
#include "tests/manipulator/support/AnchoredTraits.h"
#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MessageLog.h"

#include <nbMaterialEditor/nbMaterialEditor.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUberMaterial/UberMaterial.h>

#include <functional>
#include <memory>
#include <string>

namespace nbec::manipulator::test {

/// A scene whose box wears a material with a projection of a picture, and a texture gizmo anchored
/// at the box's origin. The messages go to a log, or to a real editor.
class AnchorScene : public MessageLog
{
public:
    enum class Receiver
    {
        Log,
        Editor
    };

    /// @param anchored  installed without a call that shows a set of handles; outlives the scene
    template <class Gizmo>
    explicit AnchorScene(Gizmo& anchored, Receiver receiver = Receiver::Log)
        : AnchorScene(anchored, kAnchoredTraits<Gizmo>, receiver)
    { }

    AnchorScene(AnchoredTextureManipulator& anchored, const AnchoredTraits& traits,
                Receiver receiver);
    ~AnchorScene();

    void look(Camera from, bool orthographic);
    /// Edits a transform and places the gizmo anew.
    void edit(const osg::Transform3DPtr& transform,
              const std::function<void(const osg::Transform3DPtr&)>& change);
    void editSettings(const std::function<void(const osg::ColorComponentSettingsPtr&)>& change);
    osg::Transform3DPtr core() const;
    osg::Transform3DPtr parentCore() const;

    /// The named node of a handle; its children are its parts, or the nodes that place them.
    osg::NodePtr handle(const std::string& name) const;
    /// World position of a point in the frame of a handle's group.
    osg::Pnt3f onHandle(const std::string& name, const osg::Vec3f& unit) const;
    /// World position of a handle's own origin.
    osg::Pnt3f originOf(const std::string& name) const;
    /// Presses on a world point and sends the first step, which prepares. @return whether a
    /// handle of that name was grabbed
    bool grabAt(const std::string& name, const osg::Pnt3f& world);
    bool grab(const std::string& name, const osg::Vec3f& unit);

    AnchoredTextureManipulator& gizmo;
    GizmoScene scene;
    HandleDrag drag { scene };
    osg::NodePtr parent;  ///< Transform3D above the scene's node
    osg::UberMaterialRefPtr material;
    osg::ColorComponentSettingsPtr settings;
    std::unique_ptr<nbMaterialEditor> editor;
};

/// A gizmo that outlives its scene.
template <class Gizmo>
struct Anchored
{
    Gizmo gizmo;
    AnchorScene at { gizmo };
};

}  // namespace nbec::manipulator::test
