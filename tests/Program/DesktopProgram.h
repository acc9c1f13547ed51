// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Environment.h"
#include "tests/support/RunTool.h"
#include "tests/support/WaitFor.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// Empty user folders for the duration of a test.
struct Home {
    QTemporaryDir folder;
    EnvironmentScope home{"HOME", QFile::encodeName(folder.path())};
    EnvironmentScope config{"XDG_CONFIG_HOME", QFile::encodeName(folder.filePath(u".config"_s))};
    EnvironmentScope cache{"XDG_CACHE_HOME", QFile::encodeName(folder.filePath(u".cache"_s))};
    EnvironmentScope data{"XDG_DATA_HOME", QFile::encodeName(folder.filePath(u".local/share"_s))};
    EnvironmentScope runtime{"XDG_RUNTIME_DIR", QFile::encodeName(folder.path())};
    EnvironmentScope temporary{"TMPDIR"};
    EnvironmentScope server{"PIPEWIRE_RUNTIME_DIR"};

    [[nodiscard]] QString recording(int number) const {
        return folder.filePath(u"Music/com.korvane.Sonaphex/Track%1.m4a"_s.arg(number));
    }
};

/// The program in a separate process, with its window on the test's display.
class DesktopProgram {
public:
    DesktopProgram() { process_.setProcessChannelMode(QProcess::ForwardedChannels); }
    ~DesktopProgram() { end(); }
    DesktopProgram(const DesktopProgram&) = delete;
    DesktopProgram& operator=(const DesktopProgram&) = delete;

    /// Returns when its window is ready.
    [[nodiscard]] bool start(const QStringList& arguments = {}) {
        process_.start(QStringLiteral(SONAPHEX_PROGRAM), arguments);
        return waitFor([this] { return state() == u"idle"_s; }, 60000);
    }
    /// Ends it normally, if it still runs.
    void end() {
        if (process_.state() == QProcess::NotRunning)
            return;
        process_.terminate();
        if (process_.waitForFinished(20000))
            return;
        process_.kill();
        process_.waitForFinished();
    }
    /// The output of another launch.
    [[nodiscard]] static ToolResult launchAgain() { return runTool(QStringLiteral(SONAPHEX_PROGRAM), {}, 20000); }
    [[nodiscard]] static bool control(const QString& command) {
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"control"_s, command}, 20000).status == 0;
    }
    [[nodiscard]] static QJsonObject status() {
        const auto said = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"control"_s, u"status"_s, u"--json"_s}, 20000);
        return said.status == 0 ? QJsonDocument::fromJson(said.output).object() : QJsonObject();
    }
    [[nodiscard]] static QString state() { return status().value(u"state"_s).toString(); }
    /// Starts a recording and waits until it is longer than the filter's limit: the clock counts from the start, but
    /// the length on the disk counts.
    [[nodiscard]] static bool recordForAWhile() {
        const auto recorded = [] {
            QDirIterator files(QDir::homePath(), {u"BuiltInA*.m4a"_s}, QDir::Files | QDir::Hidden,
                               QDirIterator::Subdirectories);
            qint64 most = 0;
            while (files.hasNext())
                most = std::max(most, QFileInfo(files.next()).size());
            return most;
        };
        return control(u"start-stop"_s) &&
               waitFor([&] { return recorded() > 120000 && state() == u"recording"_s; }, 60000); // seven seconds
    }
    [[nodiscard]] QProcess& process() { return process_; }
    /// Whether it ended by itself with exit status 0.
    [[nodiscard]] bool endsWell() {
        return waitFor([this] { return process_.state() == QProcess::NotRunning; }, 60000) &&
               process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
    }

private:
    QProcess process_;
};
