// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/fakes/FakePanels.h"
#include "tests/support/Environment.h"
#include "tests/support/Mpeg4Files.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QTest>

/// The environment of an editing window: real files and their real encoders, a player that records its calls, scripted
/// alerts and panels, and a delegate that records its calls.
struct EditWorld : LibraryWorld, RecordingEditDelegate {
    EditWorld() : tmpBefore(g_strTmpPath), media(Platform::createMediaFiles()) {
        auto& services = Platform::services();
        services.mediaFiles = media.get();
        services.panels = &panels;
        g_strTmpPath = folder.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
    }
    ~EditWorld() override { g_strTmpPath = tmpBefore; }

    [[nodiscard]] QString at(const QString& name) const { return folder.filePath(name); }
    /// The entry of a recording of a tone.
    Dictionary recording(const QString& title, int seconds = 10) {
        const QString path = at(title + QStringLiteral(".m4a"));
        (void)Mpeg4Files::make(path, Mpeg4Files::Shape::IndexAtEnd, seconds);
        sounds.lengths.insert(path, seconds);
        Dictionary made = entry(title, title, path, seconds);
        made.insert(AudioRecordEntry::Year, 2012);
        made.insert(AudioRecordEntry::Genre, QStringLiteral("NO General"));
        return made;
    }
    /// Files beside the recordings.
    [[nodiscard]] QStringList files() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    void updateFile(const QString& path, const Dictionary& tags) override {
        updatedPaths.append(path);
        updatedTags.append(tags);
    }
    bool isFilePlaying(const QString& path) override { return path == playedElsewhere; }

    QString tmpBefore;
    std::unique_ptr<Platform::MediaFiles> media;
    FakePanels panels;
    QStringList updatedPaths;
    QList<Dictionary> updatedTags;
    QString playedElsewhere;
    EnvironmentScope data{"XDG_DATA_HOME", folder.filePath(QStringLiteral("data")).toUtf8()};
};
