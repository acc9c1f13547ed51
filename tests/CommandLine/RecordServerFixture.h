// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/ServerProbe.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/Environment.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"
#include "tests/support/WaitFor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

using namespace Qt::StringLiterals;

/// The program as a separate process on a private sound server, with its own folders.
class RecordServer : public testing::Test {
protected:
    RecordServer() {
        QDir(dir_.path()).mkdir(u"tmp"_s);
        QFile::setPermissions(tmp_, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    /// A tone as input device.
    TestSource& tone() {
        source_ = std::make_unique<TestSource>(TestSource::Options{.name = "test.tone",
                                                                   .description = "Test Tone",
                                                                   .content = TestSource::Content::Tone,
                                                                   .frequency = 440,
                                                                   .ownClock = true});
        EXPECT_TRUE(source_->start());
        // The program does not wait for a session manager that creates a device's ports late.
        EXPECT_TRUE(Platform::PipeWire::serverIsThere(30000, true, "test.tone"));
        return *source_;
    }
    [[nodiscard]] QStringList recordArguments(QStringList more) const {
        return QStringList{u"record"_s, u"--input"_s, u"Test Tone"_s, u"--folder"_s, folder_, u"--filter"_s, u"off"_s} +
               more;
    }
    ToolResult sonaphex(const QStringList& arguments) {
        return runTool(QStringLiteral(SONAPHEX_PROGRAM), arguments, 60000);
    }
    [[nodiscard]] static QStringList filesBelow(const QString& folder) {
        QStringList all;
        QDirIterator tree(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (tree.hasNext())
            all << tree.next();
        return all;
    }
    /// The raw file of the running recording, as soon as it contains audio.
    [[nodiscard]] QString rawFile(qint64 bytes) const {
        QString raw;
        (void)waitFor(
            [&] {
                for (const QString& path : filesBelow(tmp_))
                    if (path.endsWith(u".m4a"_s) && QFileInfo(path).size() >= bytes)
                        raw = path;
                return !raw.isEmpty();
            },
            60000);
        return raw;
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    QTemporaryDir dir_;
    QString tmp_ = dir_.filePath(u"tmp"_s);
    QString folder_ = dir_.filePath(u"recordings"_s);
    EnvironmentScope home_{"HOME", dir_.path().toUtf8()};
    EnvironmentScope config_{"XDG_CONFIG_HOME", dir_.filePath(u"config"_s).toUtf8()};
    EnvironmentScope data_{"XDG_DATA_HOME", dir_.filePath(u"data"_s).toUtf8()};
    EnvironmentScope runtime_{"XDG_RUNTIME_DIR", dir_.path().toUtf8()};
    EnvironmentScope temporary_{"TMPDIR", tmp_.toUtf8()};
    EnvironmentScope display_{"DISPLAY"};
    std::unique_ptr<TestSource> source_;
};
