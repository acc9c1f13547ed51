// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/LogCatcher.h"

#include <QtGlobal>

#include <mutex>

namespace {

std::mutex mutex;
QStringList caught;
QtMessageHandler previous = nullptr;

void keep(QtMsgType, const QMessageLogContext&, const QString& line) {
    const std::lock_guard lock(mutex);
    caught.append(line);
}

} // namespace

LogCatcher::LogCatcher() {
    {
        const std::lock_guard lock(mutex);
        caught.clear();
    }
    previous = qInstallMessageHandler(keep);
}

LogCatcher::~LogCatcher() {
    qInstallMessageHandler(previous);
}

QStringList LogCatcher::lines() const {
    const std::lock_guard lock(mutex);
    return caught;
}
