// SPDX-License-Identifier: MIT
#include "viewer/gui/MaterialPicture.h"

#include "viewer/textures/TextureTarget.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <OpenSG/OSGNodePtr.h>

#include <QPainter>

namespace viewer {
namespace {

constexpr int kSide = 160;
constexpr int kPasses = 2;
constexpr float kFovDeg = 25.0F;
constexpr double kPausedOpacity = 0.5;

}  // namespace

MaterialPicture::MaterialPicture(QWidget* parent)
    : QWidget(parent)
    , camera(osg::UberCamera::create())
    , viewport(osg::UberViewport::create())
{
    setObjectName("materialPicture");
    setFixedHeight(kSide);
    const nbEdit edit(viewport.get(), osg::FieldBits::AllFields);
    viewport->setCamera(camera.get());
}

QSize MaterialPicture::sizeHint() const
{
    return { kSide, kSide };
}

void MaterialPicture::look(const osg::Vec3f& back, const osg::Vec3f& up, const osg::NodePtr& node)
{
    osg::Pnt3f low;
    osg::Pnt3f high;
    node->updateVolume();
    node->getVolume().getBounds(low, high);
    CameraPose pose;
    pose.at = low + (high - low) * 0.5F;
    pose.from = pose.at + back;
    pose.up = up;
    pose.pivot = pose.at;
    pose.fovDeg = kFovDeg;
    camera->setPose(nbCameraNavigation::frame(pose, low, high, 1.0F));
}

void MaterialPicture::display(const TextureTarget& target)
{
    drawn = QImage();
    const osg::NodePtr surface = target.surface();
    if (surface != osg::NullFC) {
        osg::Vec3f back(0.0F, 0.0F, 1.0F);
        osg::Vec3f up(0.0F, 1.0F, 0.0F);
        const osg::Transform3DPtr projection = target.projection();
        if (projection != osg::NullFC) {
            osg::Quaternion rotation = projection->getRotationAsQuaternion();
            rotation.mult(projection->getRotationOrientation());
            rotation.multVec(back, back);
            rotation.multVec(up, up);
        }
        // The same core on a node of its own: alone, in its own space, and gone afterwards.
        const osg::NodeRefPtr node(osg::makeNodeFor(surface->getCore()));
        look(back, up, node.get());
        viewport->setRoot(node.get());
        const int side = qRound(kSide * devicePixelRatioF());
        drawn = view.render(viewport.get(), side, side, kPasses);
        viewport->setRoot(osg::NodePtr());
    }
    update();
}

void MaterialPicture::setPaused(bool on)
{
    if (on != paused) {
        paused = on;
        update();
    }
}

void MaterialPicture::paintEvent(QPaintEvent* /*event*/)
{
    if (drawn.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setOpacity(paused ? kPausedOpacity : 1.0);
    const QRect place((width() - kSide) / 2, 0, kSide, kSide);
    painter.drawImage(place, drawn);
}

}  // namespace viewer
