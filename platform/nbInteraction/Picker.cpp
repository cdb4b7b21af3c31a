// SPDX-License-Identifier: MIT
#include "Picker.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbContainerId.h>

#include <algorithm>

#include "detail/EmbreeDevice.h"
#include "detail/HandlePicking.h"
#include "detail/PickTreeCache.h"
#include "detail/PlatePicking.h"
#include "detail/ScenePicking.h"
#include "detail/WidgetView.h"

namespace nbec::interaction {

namespace {

/// What moves the pointer of the main widget, and what that means for handles.
struct Pointer
{
    PointerDevice device = PointerDevice::Mouse;
    std::optional<PickSlop> slop;

    detail::HandleReach reach(float pixelRatio) const
    {
        float px = Picker::kTolerance;
        if (slop) {
            px = device == PointerDevice::Touch ? slop->touch
                : device == PointerDevice::Pen  ? slop->pen
                                                : slop->mouse;
        }
        return { (px >= 0.0F ? px : Picker::kTolerance) * pixelRatio, slop.has_value() };
    }
};

Pointer& pointer()
{
    static Pointer state;
    return state;
}

/// Size of the main widget's view, without area if there is none. Plates need no camera.
detail::PickView viewSize()
{
    detail::PickView view;
    if (const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1)) {
        view.widthPx = widget->getWidth();
        view.heightPx = widget->getHeight();
    }
    return view;
}

}  // namespace

Picker::Picker()
    : widgetView(std::make_unique<detail::WidgetView>())
    , scenePicking(std::make_unique<detail::ScenePicking>())
    , handlePicking(std::make_unique<detail::HandlePicking>())
{ }

Picker::~Picker() = default;

// == Settings

osg::NodePtr Picker::getPickNode() const
{
    return resolveContainer<osg::NodePtr>(pickNodeId);
}

void Picker::setSlop(const std::optional<PickSlop>& reach)
{
    pointer().slop = reach;
}

const std::optional<PickSlop>& Picker::getSlop()
{
    return pointer().slop;
}

void Picker::setDevice(PointerDevice device)
{
    pointer().device = device;
}

void Picker::setPixelRatio(float ratio)
{
    if (nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1)) {
        widget->setPixelRatio(ratio);
    }
}

// == Picking

osg::NodePtr Picker::pick(const HandleRank& rankOf)
{
    const nbOSGWidget* widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr) {
        forgetHit();
        return {};
    }
    return pickAt(widget->getMousePosition(), rankOf);
}

osg::NodePtr Picker::pickAt(const osg::Pnt2f& px, const HandleRank& rankOf)
{
    forgetHit();
    if (filter == SceneplateFilter) {
        const osg::NodePtr node = detail::pickPlate(nbScenegraph::getWorldRoot(), viewSize(), px);
        rememberHit(node, osg::Pnt3f(), osg::Vec3f());
        return node;
    }
    const detail::PickView* view = widgetView->current();
    detail::ScreenPoint centre;
    if (view == nullptr || !view->pixelCentre(px, centre)) {
        return {};
    }
    const osg::NodePtr root = nbScenegraph::getWorldRoot();
    if (filter == SceneFilter) {
        detail::SceneHit hit;
        if (scenePicking->pick(root, *view, centre, hit)) {
            rememberHit(hit.node, hit.point, hit.normal);
            hitTexCoord = hit.texCoord;
            return hit.node;
        }
    } else if (filter == HandleFilter) {
        detail::HandleHit hit;
        std::function<int(osg::UInt32)> rankOfId;
        if (rankOf) {
            rankOfId = [&rankOf](osg::UInt32 id) {
                return rankOf(resolveContainer<osg::NodePtr>(id));
            };
        }
        if (handlePicking->pick(getPickNode(), root, *view, centre,
                                pointer().reach(nbOSGWidget::getPixelRatio(-1)), rankOfId, hit)) {
            const auto node = resolveContainer<osg::NodePtr>(hit.nodeId);
            rememberHit(node, hit.point, hit.normal);
            return node;
        }
    }
    return {};
}

std::vector<osg::NodePtr> Picker::pickRectangle(const QRect& rect)
{
    if (rect.width() == 0 || rect.height() == 0) {
        return {};
    }
    // Not QRect::normalized(): that of Qt 6 leaves out both corners of a rectangle drawn backwards.
    const auto [left, right] = std::minmax({ rect.left(), rect.right() });
    const auto [top, bottom] = std::minmax({ rect.top(), rect.bottom() });
    // Pixel n covers n .. n + 1.
    const detail::ScreenBox box { static_cast<float>(left), static_cast<float>(top),
                                  static_cast<float>(right) + 1.0F,
                                  static_cast<float>(bottom) + 1.0F };
    if (filter == SceneplateFilter) {
        return detail::pickPlatesInside(nbScenegraph::getWorldRoot(), viewSize(), box);
    }
    const detail::PickView* view = widgetView->current();
    return view == nullptr ? std::vector<osg::NodePtr>()
                           : scenePicking->pickInside(nbScenegraph::getWorldRoot(), *view, box);
}

void Picker::rememberHit(const osg::NodePtr& node, const osg::Pnt3f& point,
                         const osg::Vec3f& normal)
{
    // A table that still knows a node destroyed without an edit of its parent must not report it.
    if (node != osg::NullFC) {
        hitNodeId = node.getFieldContainerId();
        hitPoint = point;
        hitNormal = normal;
    }
}

void Picker::forgetHit()
{
    hitNodeId = 0;
    hitPoint = osg::Pnt3f();
    hitNormal = osg::Vec3f();
    hitTexCoord.reset();
}

// == The last hit

osg::NodePtr Picker::getHitNode() const
{
    return resolveContainer<osg::NodePtr>(hitNodeId);
}

void Picker::buildTrees(const osg::NodePtr& root)
{
    detail::PickTreeCache::the().dropDead();
    detail::PickTreeCache::the().buildBelow(root);
}

std::string Picker::getSearchLibrary()
{
    return detail::embreeVersion();
}

}  // namespace nbec::interaction
