// SPDX-License-Identifier: MIT
#pragma once

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
        constexpr qint64 kPatienceMs = 60000;
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            ASSERT_LT(clock.elapsed(), kPatienceMs) << "waited in vain";
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
            QThread::yieldCurrentThread();
        }
    }

    /// Handles events until none has come for a while.
    static void waitForQuiet()
    {
        constexpr qint64 kQuietMs = 150;
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < kQuietMs) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
    }
};

}  // namespace viewer
