// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/CaptureDriver.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "CaptureComputerAudio/IOService.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

namespace CaptureDriver {

namespace {

/// The engine's property that ends the driver. It addresses the node, so it cannot end another process by mistake.
const auto kQuitKey = u"korvane.driver.quit"_s;

template <typename Condition>
bool becomesTrue(Condition condition, int patienceMs) {
    const QDeadlineTimer deadline(patienceMs);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 5);
        QThread::msleep(2);
    }
    return true;
}

} // namespace

QString programIn(const QString& bundlePath) {
    return bundlePath + u"/CaptureDriver"_s;
}

bool isLoaded() {
    return !IOService::getServicesByClassName(CaptureComputerAudio::kEngineClass).empty();
}

bool canRun(const QString& bundlePath, QString& why) {
    const auto program = programIn(bundlePath);
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, {u"--check"_s});
    if (!process.waitForStarted() || !process.waitForFinished()) {
        why = u"%1: %2"_s.arg(program, process.errorString());
        return false;
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    const auto said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed().section(u'\n', 0, 0);
    why = said.isEmpty()
              ? QCoreApplication::translate("CaptureComputerAudio", "%1: the driver does not run on this machine")
                    .arg(program)
              : said;
    return false;
}

bool load(const QString& bundlePath, QString& why, int patienceMs) {
    if (isLoaded())
        return true;
    const auto program = programIn(bundlePath);
    if (!QFileInfo(program).isExecutable()) {
        why = QCoreApplication::translate("CaptureComputerAudio", "%1: no such program").arg(program);
        return false;
    }
    QProcess process;
    process.setProgram(program);
    process.setWorkingDirectory(u"/"_s);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (!process.startDetached()) {
        why = u"%1: %2"_s.arg(program, process.errorString());
        return false;
    }
    if (!becomesTrue(isLoaded, patienceMs)) {
        why = QCoreApplication::translate("CaptureComputerAudio",
                                          "the driver was started, but its device did not appear");
        return false;
    }
    return true;
}

bool unload(int patienceMs) {
    // A value that was never used before: the server only reports changes.
    const auto now = QDateTime::currentMSecsSinceEpoch();
    for (auto& engine : IOService::getServicesByClassName(CaptureComputerAudio::kEngineClass))
        engine.setProperty(now, kQuitKey);
    return becomesTrue([] { return !isLoaded(); }, patienceMs);
}

} // namespace CaptureDriver
