// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/DriverCommand.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "CommandLine/Arguments.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"
#include "Platform/Audio/PrivateSession.h"
#include "Platform/Foundation/Services.h"
#include "Source/ProcessRequests/ControlRequests.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// The services of the running sound server. A private one is useless here: the driver would end with it.
class RunningServer {
public:
    RunningServer() {
        auto& services = Platform::services();
        if (services.ioRegistry ||
            Platform::PrivateSession::waitForServer() != Platform::PrivateSession::Server::Answering)
            return;
        services.audioHardware = (hardware_ = Platform::createAudioHardware()).get();
        services.ioRegistry = (registry_ = Platform::createIORegistry()).get();
    }
    [[nodiscard]] static bool answers() { return Platform::services().ioRegistry; }

private:
    Platform::ServicesScope scope_;
    std::unique_ptr<Platform::AudioHardware> hardware_;
    std::unique_ptr<Platform::IORegistry> registry_;
};

int status(bool json) {
    const bool installed = KextInstallControl::isExist();
    const bool loaded = CaptureDriver::isLoaded();
    if (json) {
        print(QString::fromUtf8(QJsonDocument({{u"installed"_s, installed},
                                               {u"path"_s, KextInstallControl::installedBundlePath()},
                                               {u"loaded"_s, loaded},
                                               {u"device"_s, CaptureComputerAudio::kDeviceName}})
                                    .toJson(QJsonDocument::Compact)));
        return Done;
    }
    print(
        installed
            ? QCoreApplication::translate("CommandLine", "installed: %1").arg(KextInstallControl::installedBundlePath())
            : QCoreApplication::translate("CommandLine", "installed: no"));
    if (loaded)
        print(QCoreApplication::translate("CommandLine", "loaded: %1").arg(CaptureComputerAudio::kDeviceName));
    else
        print(RunningServer::answers()
                  ? QCoreApplication::translate("CommandLine", "loaded: no")
                  : QCoreApplication::translate("CommandLine", "loaded: no (no sound server answers)"));
    return Done;
}

/// Whether the window is recording: its recording would lose its device, temporarily or for good.
bool windowRecords() {
    const auto answer = askWindow("status");
    QByteArray rest;
    if (!answer || !ControlRequests::isOk(*answer, rest))
        return false;
    const QString state = QJsonDocument::fromJson(rest)[u"state"].toString();
    return !state.isEmpty() && state != u"idle"_s;
}

int install() {
    if (windowRecords())
        return fail(QCoreApplication::translate(
            "CommandLine", "the driver stays as it is while the window records: stop the recording first"));
    if (!RunningServer::answers())
        return fail(QCoreApplication::translate("CommandLine", "the driver cannot be loaded: no sound server answers"));
    if (!KextInstallControl::install())
        return fail(QCoreApplication::translate("CommandLine", "the driver was not installed: %1")
                        .arg(KextInstallControl::lastError()));
    return status(false);
}

int remove() {
    if (windowRecords())
        return fail(QCoreApplication::translate(
            "CommandLine", "the driver stays as it is while the window records: stop the recording first"));
    if (!KextInstallControl::uninstall())
        return fail(QCoreApplication::translate("CommandLine", "the driver was not removed: %1")
                        .arg(KextInstallControl::lastError()));
    return Done;
}

int run(const QStringList& given) {
    const Arguments arguments(given, driverCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(driverCommand, arguments.problem());
    const auto words = arguments.positional();
    if (words.size() != 1)
        return wrongUsage(driverCommand,
                          QCoreApplication::translate("CommandLine", "driver takes one of status, install, remove"));
    const RunningServer server;
    if (words.constFirst() == u"status")
        return status(arguments.isSet(u"json"_s));
    if (words.constFirst() == u"install")
        return install();
    if (words.constFirst() == u"remove")
        return remove();
    return wrongUsage(driverCommand,
                      QCoreApplication::translate("CommandLine", "driver takes one of status, install, remove"));
}

} // namespace

const Command driverCommand{
    "driver",
    "status|install|remove",
    QT_TRANSLATE_NOOP("CommandLine", "show, install or remove the device that carries what the computer plays"),
    {kJsonOption},
    {{"driver install",
      QT_TRANSLATE_NOOP("CommandLine", "Install the device and load it. Asks for the administrator's password.")}},
    run};

} // namespace CommandLine
