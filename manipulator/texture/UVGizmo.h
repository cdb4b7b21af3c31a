// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/texture/AnchoredGizmo.h"
#include "manipulator/texture/TextureDragMath.h"

#include <OpenSG/OSGVector.h>

namespace nbec::manipulator::texture {

/// Handles and drags of the UV gizmo. Parameters of a drag: the way to the right and up, widths of
/// the picture; the counter-clockwise turn, degrees; the factor of the scale.
class UVGizmo : public AnchoredGizmo
{
public:
    explicit UVGizmo(const float& size);

    std::unique_ptr<TextureGizmo> clone() const override
    {
        return std::make_unique<UVGizmo>(*this);
    }

protected:
    /// Without the material, too.
    bool canStep(const View& view) override { return view.exists(); }

    bool isPictureAt(const SurfacePlace& place) const override
    {
        return place.texCoord.has_value();
    }

    osg::Vec3f pictureOffset(const SurfacePlace& from, const SurfacePlace& to) const override;

    bool capture(const View& view) override;
    DragStep parametersAt(const View& view, const DragTrack& before) const override;
    void apply(const DragParameters& parameters) override;
    void placeHandles(const View& view, const osg::Matrix& worldFromAnchor) override;

private:
    void readValues();

    UVPlacing start;
    std::optional<osg::Vec2f> pivot;  ///< texture coordinates that keep their texel
    osg::Vec2f dragStartPixel;  ///< y from the bottom
    osg::Vec2f anchorPixel;  ///< y from the bottom
};

}  // namespace nbec::manipulator::texture
