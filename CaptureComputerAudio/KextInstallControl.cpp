// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/KextInstallControl.h"

#include "CaptureComputerAudio/CaptureDriver.h"
#include "Platform/Desktop/AdminShell.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/PlainText.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QThread>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace KextInstallControl {

namespace {

const auto kBundleName = u"ComputerAudioCapture.kext"_s;
QString extensionsFolder = u"/usr/local/lib/com.korvane.Sonaphex/Extensions"_s;
/// How long a launch may be delayed; a device that appears later is announced then.
constexpr int kLaunchPatienceMs = 1000;
QString whyFailed;
bool busy = false;

/// Marks the module as busy while it lives.
class Turn {
public:
    Turn() { busy = true; }
    ~Turn() { busy = false; }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
};

bool refused() {
    if (busy)
        whyFailed = QCoreApplication::translate("CaptureComputerAudio",
                                                "the system audio device is being installed or removed already");
    return busy;
}

/// Runs the command on a worker, because a password prompt may stay open for minutes, and runs the event loop
/// meanwhile.
bool runWithAdmin(const QString& command) {
    auto* shell = Platform::services().adminShell;
    if (!shell) {
        whyFailed = QCoreApplication::translate("CaptureComputerAudio", "there is no way to get administrator rights");
        return false;
    }
    Platform::Result<> result;
    const std::unique_ptr<QThread> worker(
        QThread::create([&] { result = shell->executeShellStringWithAdmin(command); }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    loop.exec();
    // The program may be ending while the prompt is open: then nobody will answer it.
    worker->requestInterruption();
    worker->wait();
    whyFailed = result.error().text;
    return bool(result);
}

/// A cancelled prompt must not cost the user the device: a driver that ran before and is still installed is started
/// again.
class RunsOn {
public:
    RunsOn() = default;
    ~RunsOn() {
        QString why;
        if (ran_ && isExist())
            (void)CaptureDriver::load(installedBundlePath(), why);
    }
    RunsOn(const RunsOn&) = delete;
    RunsOn& operator=(const RunsOn&) = delete;

private:
    const bool ran_ = CaptureDriver::isLoaded();
};

/// Copies the new bundle beside the installed one and swaps them. If a step fails, one complete bundle remains: a full
/// disk must not leave an incomplete driver for the next launch. All users must be able to run it, whatever the
/// administrator's umask.
QString replaceCommand(const QString& source) {
    const auto bundle = installedBundlePath();
    const auto fresh = bundle + u".part"_s;
    const auto old = bundle + u".old"_s;
    const auto folder = QFileInfo(bundle).path();
    return u"umask 022; "
           // An earlier replacement may have been interrupted between its two moves.
           u"[ -e %1 ] || [ ! -e %3 ] || mv -T %3 %1; "
           u"mkdir -p %5 && chmod go+rx %6 %5 && rm -rf %2 %3 && cp -R %4 %2 && chmod -R u=rwX,go=rX %2 && "
           u"{ [ ! -e %1 ] || mv -T %1 %3; } && "
           u"{ mv -T %2 %1 || { [ ! -e %3 ] || mv -T %3 %1; false; }; } && { rm -rf %3 || true; }"_s.arg(
               Platform::shellWord(bundle), Platform::shellWord(fresh), Platform::shellWord(old),
               Platform::shellWord(source), Platform::shellWord(folder), Platform::shellWord(QFileInfo(folder).path()));
}

} // namespace

QString installedBundlePath() {
    return extensionsFolder + u'/' + kBundleName;
}

QString resourceBundlePath() {
    const auto* bundle = Platform::services().bundle;
    return bundle ? bundle->pathForTool(kBundleName) : kBundleName;
}

bool isExist() {
    return QFileInfo::exists(installedBundlePath());
}

bool uninstall() {
    if (refused())
        return false;
    whyFailed.clear();
    if (!isExist())
        return true;
    const Turn turn;
    const RunsOn runsOn;
    const auto bundle = installedBundlePath();
    CaptureDriver::unload();
    return runWithAdmin(u"rm -rf %1 %2 %3"_s.arg(Platform::shellWord(bundle), Platform::shellWord(bundle + u".part"_s),
                                                 Platform::shellWord(bundle + u".old"_s)));
}

bool install() {
    if (refused())
        return false;
    whyFailed.clear();
    const Turn turn;
    const RunsOn runsOn;
    // Everything that can be checked without rights is checked first, and the old driver runs until the new one is in
    // place.
    const auto source = resourceBundlePath();
    if (!QFileInfo(CaptureDriver::programIn(source)).isExecutable()) {
        whyFailed = QCoreApplication::translate("CaptureComputerAudio",
                                                "%1: the driver is missing from the program's resources")
                        .arg(source);
        return false;
    }
    if (!CaptureDriver::canRun(source, whyFailed) || !runWithAdmin(replaceCommand(source)))
        return false;
    CaptureDriver::unload();
    return CaptureDriver::load(installedBundlePath(), whyFailed);
}

QString lastError() {
    return whyFailed;
}

bool isBusy() {
    return busy;
}

bool loadIfInstalled() {
    if (CaptureDriver::isLoaded())
        return true;
    QString why;
    return isExist() && CaptureDriver::load(installedBundlePath(), why, kLaunchPatienceMs);
}

ExtensionsFolderScope::ExtensionsFolderScope(const QString& folder) : before_(extensionsFolder) {
    extensionsFolder = folder;
}

ExtensionsFolderScope::~ExtensionsFolderScope() {
    extensionsFolder = before_;
}

} // namespace KextInstallControl
