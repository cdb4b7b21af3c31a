// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/Stage.h"

#include <QWidget>

#include <array>

namespace viewer {

/// The world's axes in a corner of the view, as the camera sees them. A click on an end looks from
/// there.
class AxesCorner : public QWidget
{
    Q_OBJECT

public:
    /// @param host         what it lies over, in the upper right corner; owns it
    /// @param targetStage  outlives this
    AxesCorner(QWidget* host, Stage& targetStage);

    /// Draws the axes anew if the camera stands otherwise.
    void refresh();

    /// Where the end of an axis is, logical pixels of this. @param axis  x, y, z, -x, -y, -z
    QPointF endOf(int axis) const;

signals:
    void viewAsked(nbCameraNavigation::StandardView view);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    static constexpr int kEnds = 6;

    /// The nearest end at a place; -1 for none.
    int endAt(const QPointF& place) const;

    Stage& stage;
    /// Of the ends: to the right, upwards and to the eye, -1 .. 1.
    std::array<osg::Vec3f, kEnds> ends;
};

}  // namespace viewer
