// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/CommandServices.h"

#include "CaptureComputerAudio/KextInstallControl.h"
#include "Platform/Foundation/Services.h"
#include "Platform/LinuxServices.h"

#include <QCoreApplication>

namespace CommandLine {

namespace {
std::weak_ptr<Platform::LinuxServices> installed; // while a command runs; tests install their own services
} // namespace

std::shared_ptr<void> installServices() {
    auto services = std::make_shared<Platform::LinuxServices>();
    services->install(Platform::LinuxServices::Mode::CommandLine);
    installed = services;
    return services;
}

Platform::Result<> startAudio() {
    const auto services = installed.lock();
    if (!services && Platform::services().audioHardware)
        return {};
    if (!services)
        return Platform::Error{Platform::Error::Kind::NotFound,
                               QCoreApplication::translate("CommandLine", "there is no sound server")};
    auto started = services->startAudio();
    if (started)
        KextInstallControl::loadIfInstalled(); // before the devices are listed
    return started;
}

} // namespace CommandLine
