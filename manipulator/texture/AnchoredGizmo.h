// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/texture/TextureGizmo.h"

#include <OpenSG/OSGMatrix.h>

namespace nbec::manipulator::texture {

/// Course of the texture gizmos that stand at an anchor point: what they edit, and when they are
/// placed anew. See AnchoredTextureManipulator, their face.
///
/// Deliberate: a stop resumes the preview even if no step has paused it; without a material only
/// what is owed.
class NB_MANIPULATOR_API AnchoredGizmo : public TextureGizmo
{
public:
    /// Shows the handles if there are a material and a component, else hides them. Another material
    /// or component ends a drag, and a pause of the preview that is owed.
    void setComponent(const osg::MaterialPtr& material, const std::string& name,
                      nbStateChunkBase* gui) override;

    /// @param node      null: the position is one of the world
    /// @param position  in the node's coordinates
    void setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
    {
        anchorId = containerId(node);
        anchorInNode = position;
        followAnchor(node != osg::NullFC ? node->getToWorld() : osg::Matrix::identity());
        watch.forget();
    }

    /// The node; null if there is none or it no longer exists.
    osg::NodePtr getAnchorNode() const { return resolveContainer<osg::NodePtr>(anchorId); }

    /// Place in the world when the node was looked at last.
    const osg::Pnt3f& getAnchorPosition() const { return anchorPosition; }

    /// Deliberate: without a material, too; and the mode that shows all neither takes the light
    /// from a handle nor places anything.
    void showActive() override;

protected:
    AnchoredGizmo(HandleTable table, HandleSet::Materials materials, int startMode,
                  const float& size);
    AnchoredGizmo(const AnchoredGizmo&) = default;

    bool hasTarget() const override { return component.getMaterial() != osg::NullFC; }

    bool canStep(const View& view) override { return view.exists() && hasTarget(); }

    bool prepare(const View& view) override;

    std::vector<osg::NodePtr> editedNodes() const override { return { getAnchorNode() }; }

    void place(const View& view) override;
    bool isDisplaced(const View& view) const override;

    /// Captures all that a drag starts from. @return false if it cannot
    virtual bool capture(const View& view) = 0;
    /// Places the handle set at the anchor, whose place in the world is known.
    virtual void placeHandles(const View& view, const osg::Matrix& worldFromAnchor) = 0;

    /// Looks where the node has brought the anchor. @param worldFromAnchor  its world matrix
    void followAnchor(const osg::Matrix& worldFromAnchor)
    {
        anchorPosition = mapped(worldFromAnchor, anchorInNode);
    }

private:
    osg::UInt32 anchorId = 0;
    osg::Pnt3f anchorInNode;
    osg::Pnt3f anchorPosition;
};

}  // namespace nbec::manipulator::texture
