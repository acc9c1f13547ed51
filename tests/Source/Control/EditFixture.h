// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/Control/EditNote.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Environment.h"
#include "tests/support/Mpeg4Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// Real recordings, their library, and the folders used by an edit.
class EditFixture : public testing::Test {
protected:
    EditFixture() : tmpBefore_(g_strTmpPath), media_(Platform::createMediaFiles()) {
        auto& services = Platform::services();
        services.bundle = &bundle_;
        services.mediaFiles = media_.get();
        services.userDefaults = &defaults_;
        services.workspace = &workspace_;
        g_strTmpPath = home_.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
        QDir().mkpath(at({}));
        library().setRecords({});
        library().setRingtones({});
        library().setCurrentNewArray({});
    }
    ~EditFixture() override {
        library().setRecords({});
        g_strTmpPath = tmpBefore_;
    }

    static MediaLibrary& library() { return MediaLibrary::shareLibrary(); }
    [[nodiscard]] QString at(const QString& name) const { return home_.filePath(QStringLiteral("music/") + name); }
    static Dictionary entryOf(const QString& path, const QString& title, double seconds) {
        return {{AudioRecordEntry::NodeDataKey, QStringLiteral("the key")},
                {AudioRecordEntry::SavePath, path},
                {AudioRecordEntry::Title, title},
                {AudioRecordEntry::Artist, QStringLiteral("Artist")},
                {AudioRecordEntry::Album, QStringLiteral("Album")},
                {AudioRecordEntry::Year, 2012},
                {AudioRecordEntry::Genre, QStringLiteral("Genre")},
                {AudioRecordEntry::Length, seconds}};
    }
    /// A recording of a tone, in the library with its tags.
    Dictionary recording(const QString& title, int seconds) {
        const QString path = at(title + QStringLiteral(".m4a"));
        EXPECT_TRUE(Mpeg4Files::make(path, Mpeg4Files::Shape::IndexAtEnd, seconds));
        const Dictionary entry = entryOf(path, title, seconds);
        EXPECT_TRUE(Platform::BasicID3Change::setMpeg4ID3Information(
            path, title, QStringLiteral("Artist"), QStringLiteral("Album"), 2012, QStringLiteral("Genre")));
        library().addRecordFile(entry);
        return entry;
    }
    [[nodiscard]] Dictionary listed() const { return library().records().value(0).toMap(); }
    /// All files beside the recordings, including hidden ones.
    [[nodiscard]] QStringList files() const {
        return QDir(at({})).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    [[nodiscard]] QStringList notes() const {
        return QDir(home_.filePath(QStringLiteral("data/com.korvane.Sonaphex/Edits"))).entryList(QDir::Files);
    }
    /// The repairs that the next start makes before it shows the library.
    static void startAnew() {
        Platform::TemporaryFolder::removeWhole(g_strTmpPath);
        QDir().mkpath(g_strTmpPath);
        EditNote::recover(MediaLibraryRequests::retag);
    }
    /// The duration of the work in a separate process, plus a fifth, in microseconds; 0 when it fails.
    [[nodiscard]] static int timeOf(const std::function<bool()>& work) {
        QElapsedTimer timer;
        timer.start();
        ChildProcess child([&] { return work() ? 0 : 1; });
        return child.wait() == 0 ? int(timer.nsecsElapsed() / 1000 * 6 / 5) : 0;
    }
    [[nodiscard]] double secondsOf(const QString& path) const {
        const auto info = media_->info(path);
        return info ? info->seconds : -1;
    }

    Platform::ServicesScope scope_;
    QTemporaryDir home_;
    EnvironmentScope data_{"XDG_DATA_HOME", home_.filePath(QStringLiteral("data")).toUtf8()};
    QString tmpBefore_;
    FakeBundle bundle_;
    FakeUserDefaults defaults_;
    FakeWorkspace workspace_;
    std::unique_ptr<Platform::MediaFiles> media_;
};
