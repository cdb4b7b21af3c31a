// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <array>
#include <cstddef>
#include <string>

#include <manipulator/NodeManipulator.h>

/// Lifts an object along the world's y axis: an arrow at the object's place drags it up and down, a
/// press on the ring around it puts it down on height 0. In mode "precisionTool" the arrow moves in
/// the steps of the transform model. Belongs to the user-interface thread.
class LiftManipulator : public nbec::manipulator::NodeManipulator
{
public:
    using Context = nbec::manipulator::ManipulatorInteractionContext;

    /// The handle that is hovered or grabbed.
    enum class ActiveMode
    {
        None,
        Lift,
        PutDown
    };

    /// Builds the handles.
    LiftManipulator();
    LiftManipulator(const LiftManipulator&) = delete;
    LiftManipulator& operator=(const LiftManipulator&) = delete;
    ~LiftManipulator() override = default;

    osg::NodePtr getVisualisation() override { return root.get(); }

    osg::NodePtr getCollider() override { return root.get(); }

    /// Places the handles at the object, with a constant size on screen. Nothing while inactive or
    /// without an object.
    void update(bool force) override;

    /// Grabs the handle under the pointer. @return whether there is one
    bool startManipulator(Context* ctx, const std::string& hint) override;
    /// One step. @return whether a handle is grabbed and the object still exists
    bool processManipulator(Context* ctx, const std::string& hint) override;
    /// Lets go. @return whether a handle was grabbed
    bool stopManipulator(Context* ctx, const std::string& hint) override;
    /// Highlights the handle under the pointer. @return whether there is one
    bool hoverManipulator(Context* ctx, const std::string& hint) override;
    /// Takes the highlight away. @return true
    bool resetManipulator(Context* ctx, const std::string& hint) override;
    /// @return whether the mode is "precisionTool", which snaps
    bool setManipulatorMode(const std::string& mode) override;

    ActiveMode getActiveMode() const { return activeMode; }

private:
    struct HandleRow;
    static constexpr std::size_t kHandleCount = 2;
    static const std::array<HandleRow, kHandleCount> kHandles;

    ActiveMode detectMode(Context* ctx) const;
    void highlight(ActiveMode mode);
    bool pointerOnPlane(osg::Pnt3f& hit) const;
    void setHeight(float heightWorld) const;

    osg::RefPtr<osg::NodePtr> root;
    osg::NodePtr placement;  ///< below the root, which keeps it alive, as the next
    std::array<osg::NodePtr, kHandleCount> handles;
    std::array<osg::SimpleMaterialRefPtr, kHandleCount> idleMaterials;
    osg::SimpleMaterialRefPtr highlightMaterial;

    ActiveMode activeMode = ActiveMode::None;
    bool grabbing = false;
    bool prepared = false;
    bool snapping = false;
    osg::Plane plane;  ///< of the drag, world
    float startHeight = 0.f;  ///< of the object, world
    float startHit = 0.f;  ///< height at which the pointer met the plane first, world
};
