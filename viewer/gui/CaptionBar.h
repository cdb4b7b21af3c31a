// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QPainter;

namespace viewer {

/// Paints a caption over the lower part of an area: a title and below it what is being shown, on a
/// dark ground that lets the picture through.
/// @param area   whose size decides that of the letters
/// @param title  not empty
void paintCaption(QPainter& painter, const QRect& area, const QString& title, const QString& text);

/// A caption over a view. Input goes through it.
class CaptionBar : public QWidget
{
    Q_OBJECT

public:
    /// @param host  what the caption lies over; owns it
    explicit CaptionBar(QWidget* host);

    /// Shows a caption; without a title none.
    void showCaption(const QString& newTitle, const QString& newText);

    const QString& title() const { return shownTitle; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownTitle;
    QString shownText;
};

}  // namespace viewer
