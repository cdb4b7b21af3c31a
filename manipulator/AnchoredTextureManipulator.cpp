// SPDX-License-Identifier: MIT
#include "manipulator/AnchoredTextureManipulator.h"

#include "manipulator/texture/AnchoredGizmo.h"

#include <utility>

namespace nbec::manipulator {

AnchoredTextureManipulator::AnchoredTextureManipulator(
    std::unique_ptr<texture::AnchoredGizmo> owned)
    : TextureFace(std::move(owned))
{ }

texture::AnchoredGizmo& AnchoredTextureManipulator::course() const
{
    return static_cast<texture::AnchoredGizmo&>(*gizmo);
}

void AnchoredTextureManipulator::activate(ManipulatorInteractionContext* ctx)
{
    AbstractManipulator::activate(ctx);
    if (getMaterial() != osg::NullFC) {
        showActiveManipulator();
        updateManipulator();
    } else {
        hideManipulator();
    }
}

void AnchoredTextureManipulator::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    course().setAnchor(node, position);
}

osg::Pnt3f AnchoredTextureManipulator::getAnchorPosition() const
{
    return course().getAnchorPosition();
}

osg::NodePtr AnchoredTextureManipulator::getAnchorNode() const
{
    return course().getAnchorNode();
}

}  // namespace nbec::manipulator
