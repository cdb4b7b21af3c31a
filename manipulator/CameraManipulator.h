// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/NodeManipulator.h"
#include "manipulator/course/Instances.h"

#include <OpenSG/OSGSimpleMaterial.h>

#include <string>
#include <vector>

namespace nbec::manipulator {

/// Marks the orbit pivot of the active render widget's camera with a small three-axis cross drawn
/// over the scene.
///
/// The cross stands at the pivot and keeps its apparent size. It takes no drag: no handle is ever
/// detected. It shows while the manipulator is active and bound to a node that exists. It reads the
/// camera and writes nothing to it. Copies share the tree and the materials with their original and
/// are not registered.
///
/// It is no Gizmo: without handles and drags there is nothing of that course to take, and its rules
/// of when to place differ (see update()). It uses the same views, materials, passes and list of
/// instances.
class NB_MANIPULATOR_API CameraManipulator : public NodeManipulator
{
public:
    /// Builds the cross, hidden, and appends the instance to the list of live ones.
    CameraManipulator();
    CameraManipulator(const CameraManipulator&) = default;
    CameraManipulator& operator=(const CameraManipulator&) = default;

    void activate(ManipulatorInteractionContext* ctx) override;
    /// The root "Manipulatorgroup".
    osg::NodePtr getVisualisation() override;
    /// The root "Manipulatorgroup".
    osg::NodePtr getCollider() override;

    /// Re-places the cross if the camera has changed. Nothing while inactive or without a node.
    /// Deliberate: look-at point and up vector are compared with caches that are never refreshed,
    /// so that a perspective camera goes on to updateManipulator() each time, whose own comparison
    /// decides.
    /// @param force  goes on in any case
    void update(bool force) override;

    bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool processManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool resetManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;

    /// Changes nothing. @return true for "precisionTool" and "", false for "tool" and everything
    /// else
    bool setManipulatorMode(const std::string& tool) override;

    /// Unregisters the instance and releases tree and materials.
    ~CameraManipulator() override;

    void setNode(const osg::NodePtr& node) override;
    /// The same, and keeps further nodes.
    void setNode(const osg::NodePtr& node, const std::vector<osg::NodePtr>& others);

    /// Shows the cross and places it.
    void activatePivotManipulator();

    /// Stores the flag, which nothing reads.
    void setDescriptionEnabled(bool on) { descriptionEnabled = on; }

    /// Size on screen of all crosses in perspective views, default 32; shows when the camera moves
    /// the next time. Deliberate: a size of 200 makes the scale infinite.
    static void setManipulatorSize(float size);
    static float getManipulatorSize();

    static void setLocalSpaceManipulator(bool local);

    static bool isLocalSpaceManipulator() { return m_LocalSpaceManipulator; }

    /// Re-places every registered cross, in the order of construction.
    static void updateAllManipulators();
    /// Creates a manipulator that lives in the list of live ones only. Deliberate: it does not
    /// become the current instance, which nothing in this library sets, so that a new size waits
    /// for the next movement of the camera.
    static void createInstance();

private:
    friend struct Instances<CameraManipulator>;

    osg::NodePtr createManipulatorGeo();
    void createMaterials();
    osg::NodePtr getSelectedNode() const;
    void setSelectedNode(const osg::NodePtr& node);
    void showForSelection();
    void updateManipulator();
    /// The transform that stands for a node.
    static osg::NodePtr resolveTransformNode(const osg::NodePtr& node);
    void detectMode(const osg::NodePtr& hit);
    bool detectUnderPointer(ManipulatorInteractionContext* ctx);
    bool isUnchanged(const osg::Pnt3f& cameraFrom, const osg::Pnt3f& cameraPivot,
                     float cameraFov) const;
    bool isOrthographicSizeChanged(const View& view) const;
    void place(const osg::Pnt3f& position) const;
    void showAllElements();
    void hideAllElements();

    static Instances<CameraManipulator> instances;
    static bool m_LocalSpaceManipulator;

    osg::UInt32 mode = 0;
    osg::RefPtr<osg::NodePtr> geometryNode;
    osg::SimpleMaterialRefPtr normalMaterial;
    osg::SimpleMaterialRefPtr highlightMaterial;
    osg::RefPtr<osg::NodePtr> transformNode;
    osg::UInt32 selectedNodeId = 0;
    std::vector<osg::NodePtr> otherNodes;
    bool dragging = false;
    float scale = 0.0F;
    float fov = 0.0F;
    osg::Pnt3f pivot;
    osg::Pnt3f from;
    osg::Pnt3f at;
    osg::Vec3f up;
    bool highlighted = false;
    bool descriptionEnabled = true;
    osg::RefPtr<osg::NodePtr> root;
};

}  // namespace nbec::manipulator
