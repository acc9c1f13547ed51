// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>

namespace Platform::MainQueue {

void post(std::function<void()> work) {
    if (auto* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(work), Qt::QueuedConnection);
}

void post(QObject* context, std::function<void()> work) {
    QMetaObject::invokeMethod(context, std::move(work), Qt::QueuedConnection);
}

} // namespace Platform::MainQueue
