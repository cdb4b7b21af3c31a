// SPDX-License-Identifier: MIT
#include "viewer/gui/StatusLine.h"

#include "viewer/gui/Panel.h"
#include "viewer/gui/ThemeIcon.h"
#include "viewer/stage/Stage.h"
#include "viewer/stage/StageTool.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

namespace viewer {
namespace {

constexpr int kNameWidth = 160;  ///< of a file, logical pixels
constexpr int kPercent = 100;

QString selectionText(const Stage& stage)
{
    const QString selected = shownName(QString::fromStdString(stage.selectedName()));
    const auto further = static_cast<int>(stage.selectedObjects().size()) - 1;
    return further < 0 ? StatusLine::tr("Nothing selected")
        : further > 0  ? StatusLine::tr("Selected: %1 and %n more", nullptr, further).arg(selected)
                       : StatusLine::tr("Selected: %1").arg(selected);
}

QString pointerText(Stage& stage)
{
    const std::string handle = stage.hoveredHandle();
    if (!handle.empty()) {
        const StageTool* tool = stage.activeTool();
        const QString text = tool != nullptr ? tool->handleText(handle) : textOfHandle(handle);
        if (!stage.isDragging()) {
            return text;
        }
        // Lines of a match, pictures on objects and pivots know no steps.
        const Gizmo gizmo = stage.gizmo().shown();
        const bool snaps = tool != nullptr
            ? tool->name() == QLatin1String("plates")
            : gizmo != Gizmo::RotatePivot && gizmo != Gizmo::ScalePivot;
        return snaps
            ? StatusLine::tr("%1: Ctrl snaps, Shift slows, type a number, Esc cancels").arg(text)
            : StatusLine::tr("%1: Shift slows, type a number, Esc cancels").arg(text);
    }
    const auto hovered = QString::fromStdString(stage.preselectedName());
    return hovered.isEmpty() ? hovered
                             : StatusLine::tr("Under the pointer: %1").arg(shownName(hovered));
}

}  // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar)
    , progress(new QProgressBar(&bar))
    , cancelButton(new QToolButton(&bar))
{
    for (QLabel** label : { &selectionLabel, &handleLabel, &valuesLabel }) {
        bar.addWidget(*label = new QLabel(&bar), label == &handleLabel ? 1 : 0);
        (*label)->setTextFormat(Qt::PlainText);
    }
    // In a narrow window the hint is cut off first.
    handleLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    valuesLabel->setObjectName("values");
    progress->setRange(0, kPercent);
    progress->setObjectName("progress");
    progress->setAccessibleName(tr("Progress of loading"));
    progress->setAlignment(Qt::AlignCenter);
    cancelButton->setObjectName("stopLoading");
    cancelButton->setText(tr("Stop"));
    cancelButton->setIcon(themeIcon("cancel"));
    cancelButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    cancelButton->setAccessibleName(tr("Stop loading"));
    cancelButton->setToolTip(tr("Stop loading (Esc); the scene stays as it is"));
    connect(cancelButton, &QToolButton::clicked, this, &StatusLine::stopLoadingAsked);
    bar.addPermanentWidget(progress);
    bar.addPermanentWidget(cancelButton);
    for (QLabel** label : { &frameLabel, &sceneLabel }) {
        bar.addPermanentWidget(*label = new QLabel(&bar));
    }
    frameLabel->setObjectName("frame");
    progress->hide();
    cancelButton->hide();
}

void StatusLine::update(Stage& stage, bool isLoading, const QString& frame)
{
    const QString ofTool =
        stage.activeTool() != nullptr ? stage.activeTool()->selectionText() : QString();
    setTextOf(selectionLabel, ofTool.isEmpty() ? selectionText(stage) : ofTool);
    setTextOf(handleLabel, pointerText(stage));
    setTextOf(valuesLabel, QString::fromStdString(stage.draggedValues()));
    setTextOf(sceneLabel, tr("%Ln triangles", nullptr, static_cast<int>(stage.triangleCount())));
    setTextOf(frameLabel, frame);
    progress->setVisible(isLoading);
    cancelButton->setVisible(isLoading);
}

void StatusLine::setProgress(ModelLoader::Phase phase, const QString& file, int percent)
{
    const QString name =
        progress->fontMetrics().elidedText(QFileInfo(file).fileName(), Qt::ElideMiddle, kNameWidth);
    // A percent sign of a name is not one of the format.
    const QString shown = QString(name).replace('%', "％");
    const QString format = phase == ModelLoader::Phase::Reading
        ? tr("Reading %1: %p%", "%p is the number").arg(shown)
        : tr("Preparing %1: %p%", "%p is the number").arg(shown);
    progress->setFormat(format);
    progress->setValue(percent);
    const int margin = progress->fontMetrics().height();
    progress->setMinimumWidth(progress->fontMetrics().horizontalAdvance(progress->text()) +
                              2 * margin);
}

}  // namespace viewer
