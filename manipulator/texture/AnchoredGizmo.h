// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/texture/AnchorPoint.h"
#include "manipulator/texture/MaterialComponent.h"

#include <OpenSG/OSGMatrix.h>

#include <memory>
#include <string>

class nbMessage;

namespace nbec::manipulator::texture {

/// Course of the texture gizmos that stand at an anchor point: what they edit, and when they are
/// placed anew. See AnchoredTextureManipulator, their face.
///
/// Deliberate: a stop resumes the preview even if no step has paused it, but without a material it
/// sends nothing. What is owed then is made good by the next event, another material or the gizmo's
/// end.
class AnchoredGizmo : public Gizmo
{
public:
    /// A copy with all fields, that shares the nodes and materials.
    virtual std::unique_ptr<AnchoredGizmo> clone() const = 0;

    /// Shows the handles if there are a material and a component, else hides them. Another material
    /// or component ends a drag, and a pause of the preview that is owed.
    void setComponent(const osg::MaterialPtr& material, const std::string& componentName,
                      nbStateChunkBase* gui);
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position);

    /// Deliberate: without a material, too; and the mode that shows all neither takes the light
    /// from a handle nor places anything.
    void showActive() override;

    std::string messageReceiver;
    MaterialComponent component;
    AnchorPoint anchor;

protected:
    AnchoredGizmo(const HandleTable& table, HandleSet::Materials materials, int startMode,
                  const float& size);
    AnchoredGizmo(const AnchoredGizmo&) = default;

    bool hasTarget() const override;
    bool canStep(const View& view) override;
    bool prepare(const View& view) override;
    void place(const View& view) override;
    bool isDisplaced(const View& view) const override;

    /// Captures all that a drag starts from. @return false if it cannot
    virtual bool capture(const View& view) = 0;
    /// Places the handle set at the anchor, whose place in the world is known.
    virtual void placeHandles(const View& view, const osg::Matrix& worldFromAnchor) = 0;

    /// Sends a change to the receiver. @param suffix  see sendToReceiver()
    void send(const char* suffix, nbMessage& message) const;
};

}  // namespace nbec::manipulator::texture
