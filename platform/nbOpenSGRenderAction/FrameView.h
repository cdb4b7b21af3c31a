// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/DepthLayout.h>
#include <nbOpenSGRenderAction/Frame.h>
#include <nbOpenSGRenderAction/ItemList.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGCamera.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <ContentStamp.h>

namespace nbrender {

/// How one frame sees the world. Matrices are 4x4 with column vectors. The projections that are
/// drawn with are in the terms of the depth layout; handles have their own, with planes that
/// enclose them tightly.
struct FrameView
{
    osg::Matrix viewFromWorld;
    osg::Matrix clipFromView;  ///< as drawn
    osg::Matrix handleClipFromView;  ///< as drawn, of handles
    osg::Matrix usualClipFromWorld;  ///< with usual depths, for culling
    DepthLayout depth;
    float widthPx = 1.0F;  ///< device pixels
    float heightPx = 1.0F;
    float pixelRatio = 1.0F;  ///< device pixels per logical pixel
    bool orthographic = false;
    osg::Vec3f viewUp { 0.0F, 1.0F, 0.0F };  ///< the world's up in view space, unit length
};

/// The view of a frame through a camera. Sets near and far of an UberCamera to enclose the scene.
/// @param list  up to date
FrameView makeFrameView(const osg::CameraPtr& camera, const ItemList& list, const Frame& frame,
                        const DepthLayout& depth);

/// Adds what everything but handles depends on in a view.
void addTo(osg::ContentStamp& stamp, const FrameView& view);

/// Whether something of a world box may be seen. Handles are not cut at the near and far plane.
NB_PLATFORM_API bool isInView(const osg::BoxVolume& bounds, const osg::Matrix& clipFromWorld,
                              bool handle);

/// Whether a program of its own decides where an item is seen: its bounds then say nothing.
inline bool placesItself(const ItemList& list, const RenderItem& item)
{
    return list.getStates()[item.stateIndex].shaderId != 0;
}

/// Pixels outside of which nothing of an item is drawn.
PixelBox pixelsOf(const RenderItem& item, const ItemList& list, const FrameView& view,
                  const Frame& frame);

}  // namespace nbrender
