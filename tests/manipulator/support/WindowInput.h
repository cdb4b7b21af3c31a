// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest/QTest>

namespace nbec::manipulator::test {

inline void move(QWidget& window, const QPoint& place, Qt::MouseButton held = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton, held,
                      Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
}

/// Drags to the right and somewhat up, as far as before the release.
inline void drag(QWidget& window, Qt::MouseButton button, const QPoint& from)
{
    move(window, from);
    QTest::mousePress(&window, button, Qt::NoModifier, from);
    for (int x = 0; x <= 80; x += 20) {
        move(window, from + QPoint(x, -x / 4), button);
    }
}

}  // namespace nbec::manipulator::test
