// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"
#include "viewer/stage/Stage.h"

#include <nbView/nbViewWidget.h>

#include <QImage>

namespace viewer {

/// The 3D view of the window: draws the stage and hands it the person's input.
class ViewWidget : public nbViewWidget
{
    Q_OBJECT

public:
    explicit ViewWidget(QWidget* parent = nullptr);

    Stage& stage() { return viewStage; }

    /// As nbViewWidget::takePicture. @return null with one translated line in `error`
    QImage takePicture(QString& error);

    /// Picture of what was drawn last, without drawing. @return null before the first frame
    QImage lastFrame();
    /// Shows a caption over the lower part of the view: a title and below it what is being shown;
    /// "" for none.
    void setCaption(const QString& title, const QString& text);

    /// What the last frame took; what it says of the time is whole only while that is shown.
    nbRenderAction::Statistics frameStatistics() const { return getAction().getStatistics(); }

    /// The same as a line of text; empty while it is not shown.
    QString frameText() const;

signals:
    /// The pointer moved, the scene was drawn, or something else that a status line shows may have
    /// changed.
    void stateChanged();
    /// Drawing is not possible; one line. Comes once.
    void drawingFailed(const QString& reason);
    /// A click of the right button asked for a menu. @param px  device pixels, y from the top
    void menuAsked(const osg::Pnt2f& px, const QPoint& screenPlace);
    /// Files were dropped on the view, at least one. @param px  device pixels, y from the top
    void filesDropped(const QStringList& files, const osg::Pnt2f& px);

protected:
    bool event(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void prepareFrame() override;
    void frameDrawn() override;
    void viewResized(const QSize& size, float pixelRatio) override;
    void drawingIsImpossible(const std::string& reason) override;
    bool hasOverlay() const override;
    void paintOverlay(QPainter& painter) const override;
    void cursorChanged(Qt::CursorShape shape) override;

private:
    void addCommands();
    void updateCursor();
    void followRightButton(const QMouseEvent& event);
    /// Two fingers pan, a pinch zooms. @return whether it was one of these
    bool followTouchpad(QEvent* event);

    Stage viewStage;
    QPoint rightPress;  ///< of the right button alone
    HandleCursor shownCursor;
    Qt::CursorShape hostCursor = Qt::ArrowCursor;
    bool frameStatisticsShown = false;
    QString captionTitle;
    QString captionText;
};

}  // namespace viewer
