// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/SettledDrives.h"

#include "CommandLine/Interrupt.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>

namespace CommandLine {

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
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
}

} // namespace CommandLine
