// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/nbBoxCorners.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraPool.h>
#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace osg {

NB_CONTAINER_TYPE(UberCamera, PerspectiveCamera, UBER_CAMERA_FIELDS);

namespace {

constexpr Real32 kStartNear = 0.1F;
constexpr Real32 kStartFar = 1000.0F;
constexpr Real64 kRadPerDeg = 3.14159265358979323846 / 180.0;
/// Nearest near plane of a perspective, world units.
constexpr Real64 kSmallestNear = 1e-6;
/// An empty depth range gets this much depth, as a part of its distance from the eye.
constexpr Real64 kSmallestDepthPart = 0.01;
constexpr Real64 kSmallestDepth = 1e-3;
/// Half height of an orthographic view, world units: what a float can hold the inverse of.
constexpr Real64 kSmallestHalfHeight = 1e-9;
constexpr Real64 kLargestHalfHeight = 1e18;
/// Part of its depth by which an orthographic range is extended at both ends.
constexpr Real64 kDepthMarginPart = 0.01;

bool isBox(const Pnt3f& boundsMin, const Pnt3f& boundsMax)
{
    return nbIsFinite(boundsMin) && nbIsFinite(boundsMax) && boundsMin.x() <= boundsMax.x() &&
        boundsMin.y() <= boundsMax.y() && boundsMin.z() <= boundsMax.z();
}

Real64 usableRatio(Real64 ratio)
{
    return std::isfinite(ratio) && ratio > 0.0 ? ratio : 1.0;
}

Real32 toFloat(Real64 value)
{
    constexpr Real64 kLargest = std::numeric_limits<Real32>::max();
    return static_cast<Real32>(std::clamp(value, -kLargest, kLargest));
}

}  // namespace

Pnt3f UberCamera::getFrom(Int32 /*index*/) const
{
    return getFrom();
}

Pnt3f UberCamera::getAt(Int32 /*index*/) const
{
    return getAt();
}

Vec3f UberCamera::getUp(Int32 /*index*/) const
{
    return getUp();
}

bool UberCamera::setFromAtUp(const Pnt3f& newFrom, const Pnt3f& newAt, const Vec3f& newUp)
{
    if (!nbIsFinite(newFrom) || !nbIsFinite(newAt) || !nbIsFinite(newUp)) {
        return false;
    }
    const nbEdit edit(UberCameraPtr(*this), FromFieldMask | AtFieldMask | UpFieldMask);
    setFrom(newFrom);
    setAt(newAt);
    setUp(newUp);
    return true;
}

CameraPose UberCamera::getPose() const
{
    CameraPose pose;
    pose.from = getFrom();
    pose.at = getAt();
    pose.up = getUp();
    pose.pivot = getPivot();
    pose.fovDeg = getFov();
    pose.orthographic = getOrthographic();
    pose.zUp = getZUp();
    return pose;
}

bool UberCamera::setPose(const CameraPose& pose)
{
    if (!nbCameraNavigation::isFinite(pose)) {
        return false;
    }
    const nbEdit edit(UberCameraPtr(*this),
                      FromFieldMask | AtFieldMask | UpFieldMask | PivotFieldMask | FovFieldMask |
                          OrthographicFieldMask | ZUpFieldMask);
    setFrom(pose.from);
    setAt(pose.at);
    setUp(pose.up);
    setPivot(pose.pivot);
    setFov(pose.fovDeg);
    setOrthographic(pose.orthographic);
    setZUp(pose.zUp);
    return true;
}

void UberCamera::resizeView(Real32 aspect)
{
    if (!std::isfinite(aspect) || aspect <= 0.0F) {
        return;
    }
    const nbEdit edit(UberCameraPtr(*this), ViewAspectFieldMask | FovFieldMask);
    if (getHorizontalSizing()) {
        const Real64 halfFov = 0.5 * kRadPerDeg * nbCameraNavigation::usableFovDeg(getFov());
        const Real64 tanKept = std::tan(halfFov) * usableRatio(getViewAspect()) / aspect;
        setFov(static_cast<Real32>(2.0 * std::atan(tanKept) / kRadPerDeg));
    }
    setViewAspect(aspect);
}

Real32 UberCamera::getLeft() const
{
    return -getRight();
}

Real32 UberCamera::getRight() const
{
    return toFloat(halfViewHeight() * usableAspect(0, 0));
}

Real32 UberCamera::getTop() const
{
    return toFloat(halfViewHeight());
}

Real32 UberCamera::getBottom() const
{
    return -getTop();
}

Real32 UberCamera::getNearPlaneDiagonal() const
{
    return toFloat(2.0 * halfViewHeight() * std::hypot(1.0, usableAspect(0, 0)));
}

NodePtr UberCamera::getInternalParentNode()
{
    if (internalParentNode == NullFC || getBeacon() != internalParentNode) {
        updateBeacon();
    }
    return internalParentNode;
}

void UberCamera::setNearFarFromBounds(const Pnt3f& boundsMin, const Pnt3f& boundsMax)
{
    const CameraPose pose = getPose();
    if (!nbCameraNavigation::isFinite(pose)) {
        return;
    }
    Real64 nearest = nbCameraNavigation::depth(pose, pose.pivot);
    Real64 farthest = nearest;
    if (isBox(boundsMin, boundsMax)) {
        for (const Pnt3f& point : nbBoxCorners(boundsMin, boundsMax)) {
            const Real64 depth = nbCameraNavigation::depth(pose, point);
            nearest = std::min(nearest, depth);
            farthest = std::max(farthest, depth);
        }
    }
    if (getOrthographic()) {
        const Real64 margin =
            0.5 * getNearPlaneDiagonal() + kDepthMarginPart * (farthest - nearest);
        nearest -= margin;
        farthest += margin;
    } else {
        if (farthest <= 0.0) {
            farthest = std::max<Real64>(pose.from.dist(pose.at), kSmallestDepth);
            nearest = farthest;
        }
        farthest *= 1.0 + kHandleReach;
        nearest = std::max(nearest * (1.0 - kHandleReach), farthest / kMostDepthRatio);
    }
    if (getNear() == toFloat(nearest) && getFar() == toFloat(farthest)) {
        return;  // asked in every frame, and most frames change nothing
    }
    const nbEdit edit(UberCameraPtr(*this), NearFieldMask | FarFieldMask);
    setNear(toFloat(nearest));
    setFar(toFloat(farthest));
}

void UberCamera::getProjection(Matrix& result, UInt32 width, UInt32 height)
{
    const DepthRange range = usableDepthRange();
    const Real64 depth = range.farthest - range.nearest;
    const Real64 sum = range.farthest + range.nearest;
    const Real64 aspect = usableAspect(width, height);
    const bool flat = getOrthographic();
    // Perspective: unit depth instead of the near plane's, so that a tiny near loses no digits.
    const Real64 halfHeight = flat ? halfViewHeight() : halfViewHeight() / range.nearest;
    result.setIdentity();
    result[0][0] = toFloat(1.0 / (aspect * halfHeight));
    result[1][1] = toFloat(1.0 / halfHeight);
    if (flat) {
        result[2][2] = toFloat(-2.0 / depth);
        result[3][2] = toFloat(-sum / depth);
        return;
    }
    result[2][2] = toFloat(-sum / depth);
    result[3][2] = toFloat(-2.0 * range.farthest * range.nearest / depth);
    result[2][3] = -1.0F;
    result[3][3] = 0.0F;
}

void UberCamera::getViewing(Matrix& result, UInt32 width, UInt32 height)
{
    getInternalParentNode();
    Inherited::getViewing(result, width, height);
}

void UberCamera::changed(BitVector whichField, UInt32 origin)
{
    if ((whichField & (FromFieldMask | AtFieldMask | UpFieldMask | ZUpFieldMask)) != 0) {
        updateBeacon();
    }
    Inherited::changed(whichField, origin);
}

bool UberCamera::applyStartValues()
{
    if (getFov() == 0.0F && getNear() == 0.0F && getFar() == 0.0F) {
        setFov(nbCameraNavigation::kDefaultFovDeg);
        setNear(kStartNear);
        setFar(kStartFar);
    }
    return true;
}

void UberCamera::updateBeacon()
{
    if (internalParentNode == NullFC) {
        internalParentNode = makeCoredNode<Transform>();
        nbUberCameraPool::add(UberCameraPtr(*this).getFieldContainerId(),
                              internalParentNode.get().getFieldContainerId());
    }
    if (getBeacon() != internalParentNode) {
        setBeacon(internalParentNode);
    }
    const CameraPose pose = getPose();
    if (!nbIsFinite(pose.from) || !nbIsFinite(pose.at) || !nbIsFinite(pose.up)) {
        return;
    }
    const nbCameraNavigation::Axes axes = nbCameraNavigation::axes(pose);
    Matrix worldFromCamera(axes.right, axes.up, axes.back, pose.from.subZero());
    worldFromCamera[3][3] = 1.0F;
    const TransformPtr core = TransformPtr::dcast(internalParentNode->getCore());
    if (core != NullFC) {
        const nbEdit edit(core, Transform::MatrixFieldMask);
        core->setMatrix(worldFromCamera);
    }
}

UberCamera::DepthRange UberCamera::usableDepthRange() const
{
    DepthRange range { getNear(), getFar() };
    if (!std::isfinite(range.nearest) || !std::isfinite(range.farthest)) {
        range = DepthRange { kStartNear, kStartFar };
    }
    if (!getOrthographic()) {
        range.nearest = std::max(range.nearest, kSmallestNear);
    }
    const Real64 smallest = std::max(getOrthographic() ? kSmallestDepth : 0.0,
                                     kSmallestDepthPart * std::abs(range.nearest));
    range.farthest = std::max(range.farthest, range.nearest + smallest);
    return range;
}

Real64 UberCamera::halfViewHeight() const
{
    const Real64 tanHalfFov =
        std::tan(0.5 * kRadPerDeg * nbCameraNavigation::usableFovDeg(getFov()));
    if (!getOrthographic()) {
        return usableDepthRange().nearest * tanHalfFov;
    }
    const Real64 distance =
        std::hypot(Real64(getAt().x()) - getFrom().x(), Real64(getAt().y()) - getFrom().y(),
                   Real64(getAt().z()) - getFrom().z());
    if (!std::isfinite(distance)) {
        return tanHalfFov;
    }
    return std::clamp(distance * tanHalfFov, kSmallestHalfHeight, kLargestHalfHeight);
}

Real64 UberCamera::usableAspect(UInt32 width, UInt32 height) const
{
    const Real64 viewRatio =
        width > 0 && height > 0 ? Real64(width) / Real64(height) : usableRatio(getViewAspect());
    return viewRatio * usableRatio(getAspect());
}

}  // namespace osg
