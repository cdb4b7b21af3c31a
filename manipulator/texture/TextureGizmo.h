// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/Gizmo.h"
#include "manipulator/texture/MaterialComponent.h"

#include <memory>

namespace nbec::manipulator::texture {

/// What the faces of the texture gizmos know of them; see TextureFace.
class TextureGizmo : public Gizmo
{
public:
    /// A copy with all fields, that shares the nodes and materials.
    virtual std::unique_ptr<TextureGizmo> clone() const = 0;

    virtual void setComponent(const osg::MaterialPtr& material, const std::string& name,
                              nbStateChunkBase* gui) = 0;

    MaterialComponent component;

protected:
    using Gizmo::Gizmo;
};

}  // namespace nbec::manipulator::texture
