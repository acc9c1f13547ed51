// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxAdminShell.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

Error cancelled() {
    return {Error::Kind::Cancelled, QCoreApplication::translate("Desktop", "the password prompt was cancelled")};
}

/// How often the worker checks for an interruption request.
constexpr int kLookMs = 100;

class LinuxAdminShell final : public AdminShell {
public:
    explicit LinuxAdminShell(bool haveRights) : haveRights_(haveRights) {}

    Result<> executeShellStringWithAdmin(const QString& command) override {
        QStringList words{u"/bin/sh"_s, u"-c"_s, command};
        if (!haveRights_) {
            const auto helper = QStandardPaths::findExecutable(u"pkexec"_s);
            if (helper.isEmpty())
                return Error{Error::Kind::NotFound,
                             QCoreApplication::translate(
                                 "Desktop", "pkexec is not installed: administrator rights cannot be requested")};
            words.prepend(helper);
        }
        QProcess process;
        process.setProgram(words.takeFirst());
        process.setArguments(words);
        process.setStandardInputFile(QProcess::nullDevice());
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start();
        if (!process.waitForStarted(-1))
            return Error{Error::Kind::Other, process.errorString()};
        // No time limit: the user may leave the password prompt open.
        bool isCancelled = false;
        while (process.state() != QProcess::NotRunning && !process.waitForFinished(kLookMs)) {
            if (haveRights_ || isCancelled || !QThread::currentThread()->isInterruptionRequested())
                continue;
            // Ends the helper while it prompts. The command that it starts afterwards runs as root and is not affected.
            process.terminate();
            isCancelled = true;
        }
        if (isCancelled && process.exitStatus() == QProcess::CrashExit)
            return cancelled();
        return resultOf(process);
    }

private:
    [[nodiscard]] Result<> resultOf(QProcess& process) const {
        if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
            return {};
        // 126 and 127 are exit codes of pkexec itself, so they only count when the command ran through it.
        if (!haveRights_ && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 126)
            return cancelled();
        if (!haveRights_ && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 127)
            return Error{Error::Kind::NotPermitted,
                         QCoreApplication::translate("Desktop", "administrator rights were not given")};
        const auto said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed().section(u'\n', 0, 0);
        return Error{
            Error::Kind::Other,
            said.isEmpty()
                ? QCoreApplication::translate("Desktop", "the command ended with status %1").arg(process.exitCode())
                : said};
    }

    bool haveRights_;
};

} // namespace

std::unique_ptr<AdminShell> createAdminShell() {
    return createAdminShell(geteuid() == 0);
}

std::unique_ptr<AdminShell> createAdminShell(bool haveRights) {
    return std::make_unique<LinuxAdminShell>(haveRights);
}

} // namespace Platform
