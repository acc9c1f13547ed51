// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;

/// A session bus that starts the program as its installed service file says.
class StartingBus {
public:
    explicit StartingBus(const QTemporaryDir& folder) {
        QFile service(folder.filePath(u"com.korvane.Sonaphex.service"_s));
        QFile installed(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/com.korvane.Sonaphex.service.in"));
        QFile config(folder.filePath(u"starting-bus.conf"_s));
        if (!service.open(QIODevice::WriteOnly) || !installed.open(QIODevice::ReadOnly) ||
            !config.open(QIODevice::WriteOnly))
            return;
        service.write(installed.readAll().replace("@CMAKE_INSTALL_FULL_BINDIR@", SONAPHEX_BIN_DIR));
        service.close();
        const QByteArray place = QFile::encodeName(folder.path());
        config.write("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                     "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\"><busconfig><type>session</type>"
                     "<listen>unix:dir=" +
                     place + "</listen><servicedir>" + place +
                     "</servicedir><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                     "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        daemon_.start(u"dbus-daemon"_s, {u"--config-file="_s + config.fileName(), u"--nofork"_s, u"--print-address"_s});
        if (waitFor([this] { return daemon_.canReadLine(); }))
            address_.emplace("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    ~StartingBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    StartingBus(const StartingBus&) = delete;
    StartingBus& operator=(const StartingBus&) = delete;
    [[nodiscard]] bool runs() const { return address_.has_value(); }

private:
    QProcess daemon_;
    std::optional<EnvironmentScope> address_;
};
