// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include <gtest/gtest.h>

namespace viewer {

/// Helpers of tests that run the event loop.
class GuiTest : public testing::Test
{
protected:
    /// Handles events until the condition holds; fails the test when it does not within a while.
    template <class Condition>
    static void waitUntil(Condition condition)
    {
        constexpr qint64 kPatienceMs = 300000;  // sessions on a busy machine take minutes
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            ASSERT_LT(clock.elapsed(), kPatienceMs) << "waited in vain";
            handleEvents();
        }
    }

    /// Handles events until none has come for a while.
    static void waitForQuiet()
    {
        constexpr qint64 kQuietMs = 80;
        constexpr qint64 kMostMs = 1000;
        QElapsedTimer clock;
        clock.start();
        for (qint64 last = 0; clock.elapsed() < qMin(last + kQuietMs, kMostMs);) {
            last = handleEvents() ? clock.elapsed() : last;
        }
    }

private:
    /// @return whether there were any; if not, other programs have had a moment
    static bool handleEvents()
    {
        auto* events = QAbstractEventDispatcher::instance();
        const bool any = events->processEvents(QEventLoop::AllEvents);
        if (!any) {
            QThread::msleep(1);
        }
        return any;
    }
};

}  // namespace viewer
