// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/AnchorPoint.h"
#include "manipulator/detail/HandleSet.h"
#include "manipulator/detail/MaterialComponent.h"
#include "manipulator/detail/PreviewPause.h"

#include <OpenSG/OSGMatrix.h>

#include <memory>
#include <string>

class nbMessage;
class nbOSGWidget;

namespace nbec::manipulator {
class ManipulatorInteractionContext;
}  // namespace nbec::manipulator

namespace nbec::manipulator::detail {

/// What the texture gizmos that stand at an anchor point have in common: what they edit, their
/// handles, hovering, the course of a drag, and when they are placed anew. The gizmos derive from
/// it; AnchoredTextureManipulator is its face to the host.
///
/// Deliberate: a stop resumes the preview even if no step has paused it, but without a material it
/// sends nothing. What is owed then, and a drag that lost its stop, is made good by the next start,
/// by another material or with the gizmo.
class AnchoredGizmo
{
public:
    AnchoredGizmo(const HandleTable& table, HandleSet::Materials materials, int startMode);
    virtual ~AnchoredGizmo();

    AnchoredGizmo& operator=(const AnchoredGizmo&) = delete;

    /// A copy with all fields, that shares the nodes and materials.
    virtual std::unique_ptr<AnchoredGizmo> clone() const = 0;

    // == What is edited

    /// Shows the handles if there are a material and a component, else hides them. Another material
    /// or component ends a drag, and a pause of the preview that is owed.
    void setComponent(const osg::MaterialPtr& material, const std::string& component,
                      nbStateChunkBase* gui);
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position);

    // == Handles shown

    /// Shows the root, then what the mode shows; a mode that is not in the table leaves the rest.
    void showActive();
    void hide();
    void activateMode(int newMode);

    // == Events, answers as in Manipulator

    bool hover(ManipulatorInteractionContext* ctx);
    bool start(ManipulatorInteractionContext* ctx);
    bool process();
    bool stop();
    bool reset();

    // == Placement

    /// Places the handles if force is set or something was noticed that they depend on: the
    /// anchor's matrix beyond 1e-6, the eye beyond 1e-6, the field of view, the size of an
    /// orthographic view, another anchor or material.
    void update(bool force);
    /// Places the handles; nothing without a material and an anchor node.
    void place();

    // == Fields

    /// Top node; a count is held.
    osg::RefPtr<osg::NodePtr> root;
    int mode;
    int activeMode = 0;
    std::string messageReceiver;
    MaterialComponent component;
    AnchorPoint anchor;

protected:
    AnchoredGizmo(const AnchoredGizmo&) = default;

    /// Places the handle set at the anchor, whose place in the world is known.
    virtual void placeHandles(const osg::Matrix& worldFromAnchor) = 0;
    /// Captures all that a drag starts from. @return false if it cannot
    virtual bool prepare(const nbOSGWidget& widget) = 0;
    /// One step: computes from the start and sends.
    virtual void step(const nbOSGWidget& widget) = 0;

    /// A drag that was prepared is over, whatever became of the material.
    virtual void finish() { }

    /// Whether a drag goes on only as long as there is a material.
    virtual bool needsMaterial() const { return true; }

    /// Whether something else that the handles depend on is not as at the last placement.
    virtual bool isElseChanged() const { return false; }

    /// Sends a change to the receiver and places the handles again.
    void sendChange(const char* suffix, nbMessage& message);

    bool isDragging() const { return dragging; }

    HandleSet handles;
    osg::Pnt3f grabbedPoint;  ///< where the grabbed handle was hit, world

private:
    /// What the camera and the anchor were at the last placement.
    struct Seen
    {
        osg::Matrix anchorMatrix;
        osg::Pnt3f from;
        float fovDeg = 0.0F;
        float orthoSize = 0.0F;
        bool isStale = true;  ///< placed anew at the next update
    };

    bool isViewChanged() const;
    int detect(ManipulatorInteractionContext* ctx);
    void clearHighlight();
    void endDrag();

    bool dragging = false;
    int highlighted = 0;  ///< active mode whose handle wears the highlight; 0 none
    PreviewPause previewPause;
    Seen seen;
};

}  // namespace nbec::manipulator::detail
