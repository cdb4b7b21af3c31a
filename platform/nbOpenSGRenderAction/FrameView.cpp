// SPDX-License-Identifier: MIT
#include "FrameView.h"

#include <nbOpenSGExt/nbBoxCorners.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>

#include <array>
#include <cmath>
#include <limits>

namespace nbrender {

namespace {

constexpr int kCorners = 8;

osg::Vec4f toClip(const osg::Pnt3f& corner, const osg::Matrix& clipFromWorld)
{
    const osg::Vec4f point(corner.x(), corner.y(), corner.z(), 1.0F);
    osg::Vec4f clip;
    clipFromWorld.multMatrixVec(point, clip);
    return clip;
}

bool isZUp(const osg::CameraPtr& camera)
{
    const auto uber = osg::UberCameraPtr::dcast(camera);
    return uber != osg::NullFC && uber->isZUp();
}

void encloseScene(const osg::CameraPtr& camera, const osg::BoxVolume& bounds)
{
    const auto uber = osg::UberCameraPtr::dcast(camera);
    if (uber == osg::NullFC) {
        return;
    }
    if (bounds.isEmpty()) {
        uber->setNearFarFromBounds(uber->getPivot(), uber->getPivot());
    } else {
        uber->setNearFarFromBounds(bounds.getMin(), bounds.getMax());
    }
}

FrameView viewOf(const osg::CameraPtr& camera, const Frame& frame)
{
    FrameView view;
    const auto width = static_cast<osg::UInt32>(frame.widthPx);
    const auto height = static_cast<osg::UInt32>(frame.heightPx);
    view.widthPx = static_cast<float>(frame.widthPx);
    view.heightPx = static_cast<float>(frame.heightPx);
    view.pixelRatio = frame.pixelRatio;
    osg::Matrix translation;
    camera->getProjection(view.clipFromView, width, height);
    camera->getProjectionTranslation(translation, width, height);
    view.clipFromView.mult(translation);
    camera->getViewing(view.viewFromWorld, width, height);
    view.orthographic = nbUberCameraUtils::isOrthographicCamera(camera);
    const osg::Vec3f worldUp =
        isZUp(camera) ? osg::Vec3f(0.0F, 0.0F, 1.0F) : osg::Vec3f(0.0F, 1.0F, 0.0F);
    view.viewFromWorld.multMatrixVec(worldUp, view.viewUp);
    view.viewUp.normalize();
    return view;
}

/// Depths along the view axis, world units.
struct DepthSpan
{
    double nearest = 0.0;
    double farthest = 0.0;
};

/// What encloses the handles in view; nothing without any. In a perspective the nearest depth is
/// positive.
DepthSpan handleSpan(const ItemList& list, const FrameView& view)
{
    // Of what reaches behind the eye, such as a long axis line, the parts very near to the eye are
    // cut.
    constexpr double kMostRatio = 1e3;
    constexpr double kMargin = 0.01;
    double nearest = std::numeric_limits<double>::max();
    double farthest = std::numeric_limits<double>::lowest();
    for (const RenderItem& item : list.getItems()) {
        if (!item.handle || placesItself(list, item) ||
            !isInView(item.bounds, view.usualClipFromWorld, true)) {
            continue;
        }
        osg::BoxVolume box = item.bounds;
        box.transform(view.viewFromWorld);
        nearest = std::min<double>(nearest, -box.getMax().z());
        farthest = std::max<double>(farthest, -box.getMin().z());
    }
    DepthSpan span;
    if (farthest >= nearest) {
        const double margin =
            kMargin * (farthest - nearest) + kMargin * kMargin * std::fabs(farthest);
        span.nearest = nearest - margin;
        span.farthest = farthest + margin;
        if (!view.orthographic) {
            span.nearest = std::max(span.nearest, span.farthest / kMostRatio);
        }
    }
    return span;
}

/// Whole pixels from low to high, limited to a side of the frame.
std::array<int, 2> pixelRange(float low, float high, float marginPx, int sidePx)
{
    const auto side = static_cast<float>(sidePx);
    return { static_cast<int>(std::floor(std::clamp(low - marginPx, 0.0F, side))),
             static_cast<int>(std::ceil(std::clamp(high + marginPx, 0.0F, side))) };
}

}  // namespace

PixelBox pixelsAround(const Frame& frame, const osg::Pnt2f& low, const osg::Pnt2f& high,
                      float marginPx)
{
    if (!std::isfinite(low.x()) || !std::isfinite(low.y()) || !std::isfinite(high.x()) ||
        !std::isfinite(high.y())) {
        return wholeOf(frame);
    }
    const auto [left, right] = pixelRange(low.x(), high.x(), marginPx, frame.widthPx);
    const auto [bottom, top] = pixelRange(low.y(), high.y(), marginPx, frame.heightPx);
    return { left, bottom, right, top };
}

FrameView makeFrameView(const osg::CameraPtr& camera, const ItemList& list, const Frame& frame,
                        const DepthLayout& depth)
{
    encloseScene(camera, list.getSceneBounds());
    FrameView view = viewOf(camera, frame);
    view.depth = depth;
    osg::Matrix shift;
    shift.setTranslate(2.0F * frame.shiftXPx / view.widthPx, 2.0F * frame.shiftYPx / view.heightPx,
                       0.0F);
    view.clipFromView.multLeft(shift);
    view.usualClipFromWorld = view.clipFromView;
    view.usualClipFromWorld.mult(view.viewFromWorld);
    const osg::Matrix usual = view.clipFromView;
    view.clipFromView = depth.project(usual, camera->getNear(), camera->getFar());
    const DepthSpan span = handleSpan(list, view);
    view.handleClipFromView = depth.project(usual, span.nearest, span.farthest);
    return view;
}

void addTo(osg::ContentStamp& stamp, const FrameView& view)
{
    stamp.add(view.viewFromWorld.getValues(), kMatrixSize);
    stamp.add(view.clipFromView.getValues(), kMatrixSize);
    stamp.add(view.viewUp.getValues(), 3);
    stamp.add(view.widthPx);
    stamp.add(view.heightPx);
    stamp.add(view.pixelRatio);
    stamp.add(osg::UInt64(view.orthographic ? 1 : 0));
}

bool isInView(const osg::BoxVolume& bounds, const osg::Matrix& clipFromWorld, bool handle)
{
    constexpr std::size_t kPlanes = 6;
    constexpr std::size_t kSidePlanes = 4;
    std::array<int, kPlanes> outside {};
    for (const osg::Pnt3f& corner : nbBoxCorners(bounds.getMin(), bounds.getMax())) {
        const osg::Vec4f clip = toClip(corner, clipFromWorld);
        // Wide lines reach a little beyond their bounds.
        constexpr float kMargin = 1.05F;
        const float w = clip.w() * (clip.w() > 0.0F ? kMargin : 1.0F);
        const std::array<bool, kPlanes> beyond { clip.x() < -w, clip.x() > w,  clip.y() < -w,
                                                 clip.y() > w,  clip.z() < -w, clip.z() > w };
        for (std::size_t plane = 0; plane < beyond.size(); ++plane) {
            outside[plane] += beyond[plane] ? 1 : 0;
        }
    }
    for (std::size_t plane = 0; plane < (handle ? kSidePlanes : kPlanes); ++plane) {
        if (outside[plane] == kCorners) {
            return false;
        }
    }
    return true;
}

PixelBox pixelsOf(const RenderItem& item, const ItemList& list, const FrameView& view,
                  const Frame& frame)
{
    constexpr float kLeastW = 1e-6F;
    // What rounding may move an edge by, and more.
    constexpr float kMarginPx = 2.0F;
    constexpr float kHalf = 0.5F;
    if (placesItself(list, item)) {
        return wholeOf(frame);
    }
    constexpr float kFarthest = std::numeric_limits<float>::max();
    osg::Pnt2f low(kFarthest, kFarthest);
    osg::Pnt2f high(-kFarthest, -kFarthest);
    for (const osg::Pnt3f& corner : nbBoxCorners(item.bounds.getMin(), item.bounds.getMax())) {
        const osg::Vec4f clip = toClip(corner, view.usualClipFromWorld);
        if (!(clip.w() > kLeastW)) {
            return wholeOf(frame);
        }
        const float x = kHalf * (clip.x() / clip.w() + 1.0F) * view.widthPx;
        const float y = kHalf * (clip.y() / clip.w() + 1.0F) * view.heightPx;
        low.setValues(std::min(low.x(), x), std::min(low.y(), y));
        high.setValues(std::max(high.x(), x), std::max(high.y(), y));
    }
    const float lineWidth = list.getStates()[item.stateIndex].lineWidth;
    return pixelsAround(frame, low, high, lineWidth * view.pixelRatio + kMarginPx);
}

}  // namespace nbrender
