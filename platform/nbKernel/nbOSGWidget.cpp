// SPDX-License-Identifier: MIT
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbGuard.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr int kLargestSidePx = std::numeric_limits<osg::UInt16>::max();
/// Where a new camera stands, looking at the origin.
constexpr float kStartDistance = 10.0F;
/// Of a new camera's internal parent node.
constexpr char kCameraName[] = "Camera";
constexpr char kObserver[] = "nbOSGWidget: an observer";

struct CountedCallback
{
    nbOSGWidget::ResizeCallback callback;
    int count;
};

struct WidgetRegistry
{
    std::vector<nbOSGWidget*> widgets;
    nbOSGWidget* main = nullptr;
    nbOSGWidget* drawing = nullptr;
    std::vector<CountedCallback> resizeCallbacks;
    int interactionMode = 0;
};

/// Made on first use and never destroyed: widgets with static life may use it to their end.
WidgetRegistry& registry()
{
    static WidgetRegistry* const theRegistry = new WidgetRegistry;
    return *theRegistry;
}

std::vector<CountedCallback>::iterator findCallback(nbOSGWidget::ResizeCallback callback)
{
    std::vector<CountedCallback>& all = registry().resizeCallbacks;
    return std::find_if(all.begin(), all.end(), [callback](const CountedCallback& entry) {
        return entry.callback == callback;
    });
}

/// A position limited to what the arithmetic of rectangles and rays can take in whole pixels.
osg::Pnt2f nearPosition(const osg::Pnt2f& position)
{
    constexpr float kLimit = 1e6F;
    return { std::clamp(position.x(), -kLimit, kLimit), std::clamp(position.y(), -kLimit, kLimit) };
}

/// Whole pixel that a position lies in.
int toPixel(float position)
{
    return static_cast<int>(std::floor(position));
}

}  // namespace

nbOSGWidget::nbOSGWidget()
    : camera(osg::UberCamera::create())
    , viewport(osg::UberViewport::create())
    , window(osg::PassiveWindow::create())
{
    CameraPose pose;
    pose.from = osg::Pnt3f(0.0F, 0.0F, kStartDistance);
    pose.at = osg::Pnt3f(0.0F, 0.0F, 0.0F);
    pose.pivot = pose.at;
    pose.fovDeg = kDefaultFovDeg;
    camera->setPose(pose);
    nbNodeUtils::setName(camera->getInternalParentNode(), kCameraName);
    {
        const nbEdit edit(viewport, osg::Viewport::CameraFieldMask | osg::Viewport::RootFieldMask);
        viewport->setCamera(camera);
        viewport->setRoot(nbScenegraph::getWorldRoot());
    }
    window->addPort(viewport);
    viewport->setDeviceSize(0, 0);
    registry().widgets.push_back(this);
    if (registry().main == nullptr) {
        registry().main = this;
    }
}

nbOSGWidget::~nbOSGWidget()
{
    std::vector<nbOSGWidget*>& all = registry().widgets;
    all.erase(std::remove(all.begin(), all.end(), this), all.end());
    if (registry().main == this) {
        registry().main = all.empty() ? nullptr : all.front();
    }
    if (registry().drawing == this) {
        registry().drawing = nullptr;
    }
    // None of these hold each other, so nobody may be left pointing at one that is gone.
    viewport->setParent(osg::NullFC);
    window = osg::NullFC;
    viewport = osg::NullFC;
    camera = osg::NullFC;
}

nbOSGWidget* nbOSGWidget::getMGLW(int index)
{
    if (index == -1) {
        return registry().drawing != nullptr ? registry().drawing : registry().main;
    }
    const std::vector<nbOSGWidget*>& all = registry().widgets;
    return index >= 0 && index < static_cast<int>(all.size()) ? all[index] : nullptr;
}

void nbOSGWidget::setMain()
{
    registry().main = this;
}

bool nbOSGWidget::isMain() const
{
    return registry().main == this;
}

nbOSGWidget::Drawing::Drawing(nbOSGWidget& view)
    : former(registry().drawing)
{
    registry().drawing = &view;
}

nbOSGWidget::Drawing::~Drawing()
{
    const std::vector<nbOSGWidget*>& all = registry().widgets;
    const bool isAlive = std::find(all.begin(), all.end(), former) != all.end();
    registry().drawing = isAlive ? former : nullptr;
}

void nbOSGWidget::updateAll()
{
    for (nbOSGWidget* const widget : std::vector<nbOSGWidget*>(registry().widgets)) {
        widget->update();
    }
}

osg::Pnt3f nbOSGWidget::getFrom(int index)
{
    const nbOSGWidget* const widget = getMGLW(index);
    return widget != nullptr ? widget->camera->getFrom() : osg::Pnt3f(0.0F, 0.0F, 0.0F);
}

float nbOSGWidget::getFov(int index)
{
    const nbOSGWidget* const widget = getMGLW(index);
    return widget != nullptr ? widget->camera->getFov() : kDefaultFovDeg;
}

void nbOSGWidget::getFromAtUp(int index, osg::Pnt3f& from, osg::Pnt3f& at, osg::Vec3f& up)
{
    const nbOSGWidget* const widget = getMGLW(index);
    const CameraPose pose = widget != nullptr ? widget->camera->getPose() : CameraPose();
    from = pose.from;
    at = pose.at;
    up = pose.up;
}

osg::Pnt3f nbOSGWidget::getPivot(int index)
{
    const nbOSGWidget* const widget = getMGLW(index);
    return widget != nullptr ? widget->camera->getPivot() : osg::Pnt3f(0.0F, 0.0F, 0.0F);
}

float nbOSGWidget::getPixelRatio(int index, float untold)
{
    const nbOSGWidget* const widget = getMGLW(index);
    return widget != nullptr && widget->pixelRatio > 0.0F ? widget->pixelRatio : untold;
}

bool nbOSGWidget::isCameraZUp()
{
    const nbOSGWidget* const widget = getMGLW(-1);
    return widget != nullptr && widget->camera->isZUp();
}

int nbOSGWidget::getInteractionMode()
{
    return registry().interactionMode;
}

void nbOSGWidget::setInteractionMode(int mode)
{
    registry().interactionMode = mode;
}

void nbOSGWidget::addMGLWResizeCB(ResizeCallback callback)
{
    if (callback == nullptr) {
        return;
    }
    const auto found = findCallback(callback);
    if (found != registry().resizeCallbacks.end()) {
        ++found->count;
    } else {
        registry().resizeCallbacks.push_back(CountedCallback { callback, 1 });
    }
}

void nbOSGWidget::subMGLWResizeCB(ResizeCallback callback)
{
    const auto found = findCallback(callback);
    if (found != registry().resizeCallbacks.end() && --found->count == 0) {
        registry().resizeCallbacks.erase(found);
    }
}

void nbOSGWidget::resize(int width, int height)
{
    const int newWidth = std::clamp(width, 0, kLargestSidePx);
    const int newHeight = std::clamp(height, 0, kLargestSidePx);
    if (newWidth == widthPx && newHeight == heightPx) {
        return;
    }
    widthPx = newWidth;
    heightPx = newHeight;
    window->setSize(static_cast<osg::UInt16>(widthPx), static_cast<osg::UInt16>(heightPx));
    viewport->setDeviceSize(widthPx, heightPx);
    if (widthPx > 0 && heightPx > 0) {
        camera->resizeView(viewport->getDeviceAspect());
    }
    update();
    callResizeCallbacks();
}

void nbOSGWidget::setPixelRatio(float ratio)
{
    if (std::isfinite(ratio) && ratio > 0.0F && ratio != pixelRatio) {
        pixelRatio = ratio;
        update();
    }
}

void nbOSGWidget::setMousePosition(const osg::Pnt2f& position)
{
    if (nbIsFinite(position)) {
        mousePositionPx = nearPosition(position);
    }
}

void nbOSGWidget::setPressPosition(const osg::Pnt2f& position)
{
    if (nbIsFinite(position)) {
        pressPositionPx = nearPosition(position);
        pressed = true;
    }
}

QRect nbOSGWidget::getMouseRect() const
{
    if (!pressed) {
        return QRect();
    }
    // Not QRect::normalized(): it takes a rectangle of one pixel drawn backwards for an empty one.
    const auto [left, right] =
        std::minmax({ toPixel(pressPositionPx.x()), toPixel(mousePositionPx.x()) });
    const auto [top, bottom] =
        std::minmax({ toPixel(pressPositionPx.y()), toPixel(mousePositionPx.y()) });
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

void nbOSGWidget::update()
{
    if (redrawPending) {
        return;
    }
    redrawPending = true;
    if (observer != nullptr) {
        nbGuarded(kObserver, [this] { observer->redrawRequested(); });
    }
}

void nbOSGWidget::setCursor(Qt::CursorShape shape)
{
    if (shape == cursor) {
        return;
    }
    cursor = shape;
    if (observer != nullptr) {
        nbGuarded(kObserver, [this, shape] { observer->cursorChanged(shape); });
    }
}

void nbOSGWidget::cancelAntialiasing()
{
    if (observer != nullptr) {
        nbGuarded(kObserver, [this] { observer->antialiasingCancelled(); });
    }
}

void nbOSGWidget::setObserver(Observer* newObserver)
{
    observer = newObserver;
    if (observer != nullptr && redrawPending) {
        nbGuarded(kObserver, [this] { observer->redrawRequested(); });
    }
}

void nbOSGWidget::setRootOfAll(const osg::NodePtr& root)
{
    for (const nbOSGWidget* const widget : registry().widgets) {
        const nbEdit edit(widget->viewport, osg::Viewport::RootFieldMask);
        widget->viewport->setRoot(root);
    }
}

void nbOSGWidget::callResizeCallbacks()
{
    const std::vector<CountedCallback> current = registry().resizeCallbacks;
    for (const CountedCallback& entry : current) {
        if (findCallback(entry.callback) == registry().resizeCallbacks.end()) {
            continue;  // removed by one that was called before it
        }
        nbGuarded("nbOSGWidget: a resize callback", entry.callback);
    }
}
