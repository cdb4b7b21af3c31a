// SPDX-License-Identifier: MIT
#include "viewer/gui/StatusLine.h"

#include "viewer/core/Stage.h"
#include "viewer/core/StageTool.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>

namespace viewer {
namespace {

constexpr int kProgressWidth = 180;
constexpr int kPercent = 100;

void setTextOf(QLabel* label, const QString& text)
{
    if (label->text() != text) {
        label->setText(text);
    }
}

QString selectionText(const Stage& stage)
{
    const QString selected = QString::fromStdString(stage.selectedName());
    const auto further = static_cast<int>(stage.selectedObjects().size()) - 1;
    QString text = selected.isEmpty() ? StatusLine::tr("Nothing selected")
                                      : StatusLine::tr("Selected: %1").arg(selected);
    if (further > 0) {
        text += StatusLine::tr(" and %n more", nullptr, further);
    }
    return text;
}

QString pointerText(Stage& stage)
{
    const QString handle = QString::fromStdString(stage.hoveredHandle());
    if (!handle.isEmpty()) {
        return StatusLine::tr("Handle: %1").arg(handle);
    }
    const QString hovered = QString::fromStdString(stage.preselectedName());
    return hovered.isEmpty() ? QString() : StatusLine::tr("Under the pointer: %1").arg(hovered);
}

}  // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar)
    , handleLabel(new QLabel(&bar))
    , valuesLabel(new QLabel(&bar))
    , selectionLabel(new QLabel(&bar))
    , frameLabel(new QLabel(&bar))
    , sceneLabel(new QLabel(&bar))
    , progress(new QProgressBar(&bar))
    , cancelButton(new QToolButton(&bar))
{
    valuesLabel->setObjectName(QStringLiteral("values"));
    frameLabel->setObjectName(QStringLiteral("frame"));
    progress->setRange(0, kPercent);
    progress->setFixedWidth(kProgressWidth);
    cancelButton->setText(tr("Stop loading"));
    connect(cancelButton, &QToolButton::clicked, this, &StatusLine::stopLoadingAsked);
    bar.addWidget(selectionLabel);
    bar.addWidget(handleLabel);
    bar.addWidget(valuesLabel);
    bar.addPermanentWidget(progress);
    bar.addPermanentWidget(cancelButton);
    bar.addPermanentWidget(frameLabel);
    bar.addPermanentWidget(sceneLabel);
    progress->hide();
    cancelButton->hide();
}

void StatusLine::update(Stage& stage, bool isLoading)
{
    const QString ofTool =
        stage.activeTool() != nullptr ? stage.activeTool()->selectionText() : QString();
    setTextOf(selectionLabel, ofTool.isEmpty() ? selectionText(stage) : ofTool);
    setTextOf(handleLabel, pointerText(stage));
    setTextOf(valuesLabel, QString::fromStdString(stage.draggedValues()));
    setTextOf(sceneLabel, tr("%L1 triangles").arg(stage.triangleCount()));
    progress->setVisible(isLoading);
    cancelButton->setVisible(isLoading);
}

void StatusLine::showFrame(const QString& text)
{
    setTextOf(frameLabel, text);
}

void StatusLine::setProgress(const QString& file, int percent)
{
    progress->setValue(percent);
    progress->setFormat(file.isEmpty() ? QStringLiteral("%p%")
                                       : QFileInfo(file).fileName() + QStringLiteral(" %p%"));
}

}  // namespace viewer
