// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/CaptureComputerAudio.h"

#include "CaptureComputerAudio/AudioDevice.h"
#include "CaptureComputerAudio/IOService.h"

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

bool choosePrograms(const Platform::ProgramChoice& choice) {
    auto engines = IOService::getServicesByClassName(kEngineClass);
    if (engines.empty() || engines.back().getProperty(kProgramsProperty).toString() != u"true"_s)
        return choice.mode == Platform::ProgramChoice::Mode::Everything;
    return engines.back().setProperty(QString::fromStdString(choice.encoded()), kCaptureDriverProgramsKey) == noErr;
}

bool captureComputerAudioIsUSBDevice() {
    return defaultOutputPath().contains(u"USB"_s);
}

} // namespace CaptureComputerAudio
