// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGViewport.h>

#include <FieldContainerGlue.h>

namespace osg {

NB_CONTAINER_POINTER(UberViewport, ViewportPtr);

/// Colours that the background of a new viewport has, red, green, blue.
inline constexpr Real32 kUberViewportTop[] = { 0.30F, 0.33F, 0.37F };
inline constexpr Real32 kUberViewportBottom[] = { 0.13F, 0.14F, 0.16F };

#define UBER_VIEWPORT_FIELDS(VALUE, OWNED, LINK)                                                   \
    VALUE(BackgroundTop, backgroundTop, Color4f,                                                   \
          Color4f(kUberViewportTop[0], kUberViewportTop[1], kUberViewportTop[2], 1.0F))            \
    VALUE(BackgroundBottom, backgroundBottom, Color4f,                                             \
          Color4f(kUberViewportBottom[0], kUberViewportBottom[1], kUberViewportBottom[2], 1.0F))   \
    VALUE(DeviceWidth, deviceWidth, Int32, 0)                                                      \
    VALUE(DeviceHeight, deviceHeight, Int32, 0)                                                    \
    OWNED(Photograph, photograph, ImagePtr)                                                        \
    VALUE(PhotographVeil, photographVeil, Real32, 0.0F)

/// Viewport of the host: knows its size in device pixels and the two colours of its background, a
/// vertical gradient from BackgroundTop to BackgroundBottom that the renderer paints (components
/// from 0 to 1, as they reach the frame buffer). A Photograph, unless it is null, lies over the
/// background and behind the scene, where nbPhotographFit places it; PhotographVeil, 0 to 1, is how
/// much it also covers the scene, below the handles.
class NB_PLATFORM_API UberViewport : public Viewport
{
    NB_CONTAINER(UberViewport, Viewport, UBER_VIEWPORT_FIELDS);

public:
    /// Stores the size in device pixels and lets the viewport cover its whole window, or nothing if
    /// a side is 0. Negative sides count as 0. The window's own size is its owner's to set.
    void setDeviceSize(Int32 width, Int32 height);

    /// Width / height, or 1 without an area.
    Real32 getDeviceAspect() const;

    /// One colour for the whole background.
    void setBackgroundColor(const Color4f& color);
};

}  // namespace osg
