// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxDesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace Platform {
namespace {

bool start(const QString& program, const QString& argument) {
    QProcess process;
    process.setProgram(program);
    process.setArguments({argument});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

/// Opens a file, folder or address with the desktop's default program. The path is absolute, so it never looks like an
/// option.
bool openWithDefault(const QString& target) {
    return start(QStringLiteral("xdg-open"), target);
}

class LinuxWorkspace final : public Workspace {
public:
    explicit LinuxWorkspace(const QString& busAddress) : busAddress_(busAddress) {}

    bool selectFile(const QString& path) override {
        const QFileInfo file(path);
        const QString folder = file.absolutePath();
        if (!file.exists())
            return QFileInfo(folder).isDir() && openWithDefault(folder);
        const QDBusConnection bus = busAddress_.isEmpty() ? QDBusConnection::sessionBus()
                                                          : QDBusConnection::connectToBus(busAddress_, busAddress_);
        if (!bus.isConnected())
            return openWithDefault(folder);
        // A plain method call, not a QDBusInterface: that one introspects the service first and blocks.
        QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
            QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
        call << QStringList{QString::fromLatin1(QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded())} << QString();
        auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [folder](QDBusPendingCallWatcher* done) {
            if (done->isError())
                openWithDefault(folder);
            done->deleteLater();
        });
        return true;
    }

    bool openFile(const QString& path, const QString& application) override {
        const QString file = QFileInfo(path).absoluteFilePath();
        if (!QFileInfo::exists(file))
            return false;
        if (application.isEmpty() || application == QStringLiteral("iTunes"))
            return openWithDefault(file);
        const QString program = QStandardPaths::findExecutable(application);
        return program.isEmpty() ? false : start(program, file);
    }

    bool openUrl(const QUrl& url) override {
        return url.isValid() && !url.scheme().isEmpty() && openWithDefault(QString::fromLatin1(url.toEncoded()));
    }

private:
    QString busAddress_;
};

} // namespace

std::unique_ptr<Workspace> createWorkspace(const QString& busAddress) {
    return std::make_unique<LinuxWorkspace>(busAddress);
}

} // namespace Platform
