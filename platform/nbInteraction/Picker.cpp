// SPDX-License-Identifier: MIT
#include "Picker.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <cmath>

#include "detail/HandlePicking.h"
#include "detail/PickTreeCache.h"
#include "detail/PickView.h"
#include "detail/ScenePicking.h"

namespace nbec::interaction {

namespace {

osg::NodePtr nodeOf(osg::UInt32 id)
{
    return id == 0 ? osg::NodePtr()
                   : osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
}

}  // namespace

Picker::Picker()
    : scenePicking(std::make_unique<detail::ScenePicking>())
    , handlePicking(std::make_unique<detail::HandlePicking>())
{ }

Picker::~Picker() = default;

// == Settings

void Picker::setPickNode(const osg::NodePtr& node)
{
    pickNodeId = node == osg::NullFC ? 0 : node.getFieldContainerId();
}

osg::NodePtr Picker::getPickNode() const
{
    return nodeOf(pickNodeId);
}

void Picker::setFilter(int value)
{
    filter = value;
}

int Picker::getFilter() const
{
    return filter;
}

void Picker::setTolerance(float logicalPx)
{
    tolerance = std::isfinite(logicalPx) && logicalPx > 0.0f ? logicalPx : 0.0f;
}

float Picker::getTolerance() const
{
    return tolerance;
}

void Picker::setPixelRatio(float ratio)
{
    if (std::isfinite(ratio) && ratio > 0.0f) {
        pixelRatio = ratio;
    }
}

float Picker::getPixelRatio() const
{
    return pixelRatio;
}

// == Picking

osg::NodePtr Picker::pick()
{
    const nbOSGWidget* widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr) {
        forgetHit();
        return {};
    }
    return pickAt(widget->getMousePosition());
}

osg::NodePtr Picker::pickAt(const osg::Pnt2f& px)
{
    forgetHit();
    detail::PickView view;
    detail::ScreenPoint centre;
    if (!currentView(view) || !view.pixelCentre(px, centre)) {
        return {};
    }
    if (filter == SceneFilter) {
        detail::SceneHit hit;
        if (scenePicking->pick(nbScenegraph::getWorldRoot(), view, centre, hit)) {
            hitNodeId = hit.node.getFieldContainerId();
            hitPoint = hit.point;
            hitNormal = hit.normal;
        }
    } else if (filter == HandleFilter) {
        detail::HandleHit hit;
        if (handlePicking->pick(getPickNode(), nbScenegraph::getWorldRoot(), view, centre,
                                tolerance * pixelRatio, hit)) {
            hitNodeId = hit.nodeId;
            hitPoint = hit.point;
            hitNormal = hit.normal;
        }
    }
    return getHitNode();
}

std::vector<osg::NodePtr> Picker::pickRectangle(const QRect& rect)
{
    detail::PickView view;
    const QRect normalised = rect.normalized();
    if (normalised.isEmpty() || !currentView(view)) {
        return {};
    }
    detail::ScreenBox box;
    box.minX = static_cast<float>(normalised.left());
    box.minY = static_cast<float>(normalised.top());
    // Pixel n covers n .. n + 1.
    box.maxX = static_cast<float>(normalised.right()) + 1.0f;
    box.maxY = static_cast<float>(normalised.bottom()) + 1.0f;
    return scenePicking->pickInside(nbScenegraph::getWorldRoot(), view, box);
}

bool Picker::currentView(detail::PickView& view) const
{
    const nbOSGWidget* widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr || widget->getWidth() <= 0 || widget->getHeight() <= 0) {
        return false;
    }
    const osg::CameraPtr camera = widget->getCamera();
    if (camera == osg::NullFC) {
        return false;
    }
    view.widthPx = widget->getWidth();
    view.heightPx = widget->getHeight();
    const auto width = static_cast<osg::UInt32>(view.widthPx);
    const auto height = static_cast<osg::UInt32>(view.heightPx);
    osg::Matrix translation;
    camera->getProjection(view.projection, width, height);
    camera->getProjectionTranslation(translation, width, height);
    view.projection.mult(translation);
    camera->getViewing(view.viewing, width, height);
    return true;
}

void Picker::forgetHit()
{
    hitNodeId = 0;
    hitPoint = osg::Pnt3f();
    hitNormal = osg::Vec3f();
}

// == The last hit

osg::NodePtr Picker::getHitNode() const
{
    return nodeOf(hitNodeId);
}

osg::Pnt3f Picker::getHitPoint() const
{
    return hitPoint;
}

osg::Vec3f Picker::getHitNormal() const
{
    return hitNormal;
}

void Picker::buildTrees(const osg::NodePtr& root)
{
    detail::PickTreeCache::the().dropDead();
    detail::PickTreeCache::the().buildBelow(root);
}

}  // namespace nbec::interaction
