// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/gui/ModelLoader.h"

#include <QObject>

class QLabel;
class QProgressBar;
class QStatusBar;
class QToolButton;

namespace viewer {

class Stage;

/// What the window's status line tells: selection, handle, values of a drag, triangles, and how far
/// loading is.
class StatusLine : public QObject
{
    Q_OBJECT

public:
    /// @param bar  gets the labels; outlives this
    explicit StatusLine(QStatusBar& bar);

    /// Shows how it stands now. @param frame  line about the last frame, "" for none
    void update(Stage& stage, bool isLoading, const QString& frame);
    /// @param percent  0 .. 100
    void setProgress(ModelLoader::Phase phase, const QString& file, int percent);

signals:
    void stopLoadingAsked();

private:
    QLabel* handleLabel = nullptr;
    QLabel* valuesLabel = nullptr;
    QLabel* selectionLabel = nullptr;
    QLabel* frameLabel = nullptr;
    QLabel* sceneLabel = nullptr;
    QProgressBar* progress;
    QToolButton* cancelButton;
};

}  // namespace viewer
