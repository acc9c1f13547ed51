// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

/// Turns the event loop until @p condition holds; false when @p deadlineMs went by first. The deadline is there for a
/// useful message before ctest gives up; no test passes or fails by how fast the machine is.
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
