// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGCameraFields.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {

class Viewport;

#define OSG_CAMERA_FIELDS(VALUE, OWNED, LINK)                                                      \
    LINK(Beacon, beacon, NodePtr)                                                                  \
    VALUE(Near, near, Real32, 0.0F)                                                                \
    VALUE(Far, far, Real32, 0.0F)

/// Where from and how the world is seen. The camera sits at its beacon (not counted, may be null),
/// looks along the beacon's -z with +y up; Near and Far are distances along that axis in the
/// beacon's units. Sizes handed in are those of the picture in pixels.
/// Left out of OpenSG's class: drawing set-up, decorators.
class Camera : public AttachmentContainer
{
    OSG_ABSTRACT_CONTAINER(Camera, AttachmentContainer, OSG_CAMERA_FIELDS);

public:
    /// Eye to clip space, 4x4, column vectors.
    virtual void getProjection(Matrix& result, UInt32 width, UInt32 height) = 0;

    /// An offset between projection and viewing; the identity in all cameras here.
    virtual void getProjectionTranslation(Matrix& result, UInt32 width, UInt32 height);

    /// World to eye: the inverse of the beacon's world matrix. Without a beacon a warning, and
    /// the result stays as it was.
    virtual void getViewing(Matrix& result, UInt32 width, UInt32 height);

    /// World to normalised device coordinates, -1 .. 1 each: projection * translation * viewing.
    virtual void getWorldToScreen(Matrix& result, const Viewport& port);

    /// The ray under a pixel: it starts on the near plane, its direction has length 1.
    ///
    /// Deliberate: x and y count from the left and top edge of the window, also where the viewport
    /// covers only part of it, and mean a pixel's corner; as the viewport's top pixel is inclusive
    /// y is one pixel off: y = 1 is the exact top edge.
    /// @return false, with the line untouched, if the viewport has no area or no window
    bool calcViewRay(Line& line, Int32 x, Int32 y, const Viewport& port);

protected:
    void noteEdit() override { }
};

}  // namespace osg
