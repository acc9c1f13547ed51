// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/SettledDrives.h"

#include "CommandLine/Interrupt.h"
#include "Platform/Foundation/Services.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace CommandLine {

void turnTheEventLoop() {
    QEventLoop loop;
    QTimer::singleShot(50, &loop, &QEventLoop::quit);
    loop.exec();
}

std::vector<std::shared_ptr<Platform::DRDevice>> settledDrives() {
    constexpr int kPatienceMs = 30000;
    auto& recording = *Platform::services().discRecording;
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        auto drives = recording.devices();
        const bool isSettled = std::ranges::none_of(drives, [](const auto& drive) {
            return drive->status().mediaState == Platform::DRDeviceMediaStateInTransition;
        });
        if (isSettled || waited.elapsed() > kPatienceMs || Interrupt::requested())
            return drives;
        turnTheEventLoop();
    }
}

} // namespace CommandLine
