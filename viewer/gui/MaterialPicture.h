// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbOffscreenView.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberViewport/UberViewport.h>

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGVector.h>

#include <QImage>
#include <QWidget>

namespace viewer {

class TextureTarget;

/// A small picture of a surface alone, seen the way its texture is projected.
class MaterialPicture : public QWidget
{
    Q_OBJECT

public:
    explicit MaterialPicture(QWidget* parent = nullptr);

    /// Draws the surface as it is now; nothing for none. The picture stays until the next call.
    void display(const TextureTarget& target);
    /// Whether the picture stands still for now; it is drawn paler then.
    void setPaused(bool on);

    /// What is shown, device pixels; null for nothing.
    const QImage& picture() const { return drawn; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void look(const osg::Vec3f& back, const osg::Vec3f& up, const osg::NodePtr& node);

    nbOffscreenView view;
    osg::RefPtr<osg::UberCameraPtr> camera;
    osg::RefPtr<osg::UberViewportPtr> viewport;
    QImage drawn;
    bool paused = false;
};

}  // namespace viewer
