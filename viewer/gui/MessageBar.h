// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

namespace viewer {

/// One line that lies over the lower edge of a widget for a while and goes away by itself or with a
/// click. Never waits for an answer.
class MessageBar : public QLabel
{
    Q_OBJECT

public:
    /// @param host  what the bar lies over; owns it
    explicit MessageBar(QWidget* host);

    void showMessage(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void place();

    QTimer timer;
};

}  // namespace viewer
