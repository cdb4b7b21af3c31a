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
/// camera and writes nothing to it. Copies share the tree with their original and are not
/// registered.
///
/// It is no Gizmo: without handles and drags there is nothing of that course to take.
class NB_MANIPULATOR_API CameraManipulator : public Instanced<CameraManipulator, NodeManipulator>
{
public:
    /// Builds the cross, hidden, and appends the instance to the list of live ones.
    CameraManipulator();
    CameraManipulator(const CameraManipulator&) = default;
    CameraManipulator& operator=(const CameraManipulator&) = default;

    void activate(ManipulatorInteractionContext* ctx) override;

    /// The root "Manipulatorgroup".
    osg::NodePtr getVisualisation() override { return root.get(); }

    /// The same.
    osg::NodePtr getCollider() override { return root.get(); }

    /// Re-places the cross if eye, pivot or field of view have changed. Nothing while inactive or
    /// without a node. @param force  makes no difference
    void update(bool force) override;

    // Nothing of the cross is a handle: all but the last answer false.
    bool startManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool processManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool stopManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool hoverManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;
    bool resetManipulator(ManipulatorInteractionContext* ctx, const std::string& tool) override;

    /// Changes nothing. @return true for "precisionTool" and "", otherwise false
    bool setManipulatorMode(const std::string& tool) override;

    ~CameraManipulator() override { instances.remove(this); }

    void setNode(const osg::NodePtr& node) override;

    /// The same, and keeps further nodes.
    void setNode(const osg::NodePtr& node, const std::vector<osg::NodePtr>& others)
    {
        setNode(node);
        otherNodes = others;
    }

    /// Shows the cross and places it.
    void activatePivotManipulator();

    /// Stores the flag, which nothing reads.
    void setDescriptionEnabled(bool on) { descriptionEnabled = on; }

    static void setLocalSpaceManipulator(bool local)
    {
        m_LocalSpaceManipulator = local;
        instances.updateShared();
    }

    static bool isLocalSpaceManipulator() { return m_LocalSpaceManipulator; }

    /// Creates a manipulator that lives in the list of live ones only. Deliberate: it does not
    /// become the current instance, which nothing in this library sets, so that a new size waits
    /// for the next movement of the camera.
    static void createInstance() { new CameraManipulator; }

private:
    friend Instances<CameraManipulator>;

    osg::NodePtr createManipulatorGeo();
    void showForSelection();
    void updateManipulator();
    void showAllElements(bool isVisible);

    static bool m_LocalSpaceManipulator;

    osg::SimpleMaterialRefPtr normalMaterial;
    osg::SimpleMaterialRefPtr highlightMaterial;  ///< Deliberate: built, but never shown
    osg::RefPtr<osg::NodePtr> geometryNode;
    osg::RefPtr<osg::NodePtr> transformNode;
    osg::RefPtr<osg::NodePtr> root;
    std::vector<osg::NodePtr> otherNodes;
    bool descriptionEnabled = true;

    // View and camera as they were when the cross was placed last.
    const nbOSGWidget* placedFor = nullptr;
    float fov = 0.0F;
    osg::Pnt3f pivot;
    osg::Pnt3f from;
};

}  // namespace nbec::manipulator
