// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {
class Viewport;
OSG_DECLARED_POINTER(Camera, AttachmentContainerPtr);

class Camera : public AttachmentContainer
{
    OSG_DECLARED_TYPE(Camera, AttachmentContainer)
    OSG_DECLARED_VALUE(Beacon, NodePtr)
    OSG_DECLARED_VALUE(Near, Real32)
    OSG_DECLARED_VALUE(Far, Real32)
    virtual void getProjection(Matrix& result, UInt32 width, UInt32 height) = 0;
    virtual void getProjectionTranslation(Matrix& result, UInt32 width, UInt32 height);
    virtual void getViewing(Matrix& result, UInt32 width, UInt32 height);
    virtual void getWorldToScreen(Matrix& result, const Viewport& port);
    bool calcViewRay(Line& line, Int32 x, Int32 y, const Viewport& port);
};
}  // namespace osg
