// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/CaptureComputerAudio.h"

#include "CaptureComputerAudio/AudioDevice.h"
#include "CaptureComputerAudio/IOService.h"

#include <QDeadlineTimer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace CaptureComputerAudio {

namespace {

/// The engine's property that says that it can choose programs.
const auto kProgramsProperty = u"korvane.engine.programs"_s;

void steer(const QString& value) {
    auto engines = IOService::getServicesByClassName(kEngineClass);
    if (!engines.empty())
        engines.back().setProperty(value, kCaptureDriverPathKey);
}

QString defaultOutputPath() {
    const auto device = AudioDevice::defaultAudioOutputDevice();
    return device ? device->path() : QString();
}

} // namespace

void startCaptureComputerAudio() {
    if (const auto path = defaultOutputPath(); !path.isEmpty())
        steer(path);
}

void stopCaptureComputerAudio() {
    steer(kCaptureDriverPathKey);
}

Choosing choosePrograms(const Platform::ProgramChoice& choice, int patienceMs) {
    const bool everything = choice.mode == Platform::ProgramChoice::Mode::Everything;
    auto engines = IOService::getServicesByClassName(kEngineClass);
    if (engines.empty() || engines.back().getProperty(kProgramsProperty).toString() != u"true"_s)
        return everything ? Choosing::Unchanged : Choosing::NotPossible;
    auto& engine = engines.back();
    const auto wanted = QString::fromStdString(choice.encoded());
    const auto isApplied = [&] { return engine.getProperty(kCaptureDriverProgramsAppliedKey).toString() == wanted; };
    if (isApplied())
        return Choosing::Unchanged;
    if (engine.setProperty(wanted, kCaptureDriverProgramsKey) != noErr)
        return Choosing::NotPossible;
    for (const QDeadlineTimer deadline(patienceMs); !isApplied(); QThread::msleep(1))
        if (deadline.hasExpired())
            return patienceMs > 0 ? Choosing::NotPossible : Choosing::Changed;
    return Choosing::Changed;
}

bool captureComputerAudioIsUSBDevice() {
    return defaultOutputPath().contains(u"USB"_s);
}

} // namespace CaptureComputerAudio
