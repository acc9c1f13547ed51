// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

/// Runs the event loop until @p condition is true; false when @p deadlineMs passes first. The deadline only gives a
/// useful message before ctest's timeout; no test result depends on the machine's speed.
template <typename Condition>
[[nodiscard]] bool waitFor(Condition condition, int deadlineMs = 30000) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > deadlineMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(1);
    }
    return true;
}
