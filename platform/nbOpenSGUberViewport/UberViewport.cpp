// SPDX-License-Identifier: MIT
#include <nbOpenSGUberViewport/UberViewport.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <algorithm>

namespace osg {

NB_CONTAINER_TYPE(UberViewport, Viewport, UBER_VIEWPORT_FIELDS);

void UberViewport::setDeviceSize(Int32 width, Int32 height)
{
    const nbEdit edit(UberViewportPtr(*this),
                      DeviceWidthFieldMask | DeviceHeightFieldMask | LeftFieldMask |
                          RightFieldMask | BottomFieldMask | TopFieldMask);
    setDeviceWidth(std::max(width, Int32(0)));
    setDeviceHeight(std::max(height, Int32(0)));
    // Edges up to 1 are parts of the window; all of them 0 is the form without an area.
    const Real32 whole = getDeviceWidth() > 0 && getDeviceHeight() > 0 ? 1.0F : 0.0F;
    setSize(0.0F, 0.0F, whole, whole);
}

Real32 UberViewport::getDeviceAspect() const
{
    if (getDeviceWidth() <= 0 || getDeviceHeight() <= 0) {
        return 1.0F;
    }
    return static_cast<Real32>(getDeviceWidth()) / static_cast<Real32>(getDeviceHeight());
}

void UberViewport::setBackgroundColor(const Color4f& color)
{
    const nbEdit edit(UberViewportPtr(*this), BackgroundTopFieldMask | BackgroundBottomFieldMask);
    setBackgroundTop(color);
    setBackgroundBottom(color);
}

}  // namespace osg
