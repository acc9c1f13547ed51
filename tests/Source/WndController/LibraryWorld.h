// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeClock.h"
#include "tests/fakes/FakeSound.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"

#include <QFile>
#include <QTemporaryDir>

/// The services that a window needs, as doubles, and files to fill a library with.
struct LibraryWorld {
    LibraryWorld() {
        auto& services = Platform::services();
        services.userDefaults = &defaults;
        services.alerts = &alerts;
        services.workspace = &workspace;
        services.clock = &clock;
        services.sounds = &sounds;
        services.bundle = &bundle;
        sounds.otherLength = 0;
    }

    /// An existing file without audio.
    QString file(const QString& name) const {
        QFile made(folder.filePath(name));
        (void)made.open(QIODevice::WriteOnly);
        return made.fileName();
    }
    static Dictionary entry(const QString& key, const QString& title, const QString& path, double seconds = 1) {
        return {{AudioRecordEntry::NodeDataKey, key},
                {AudioRecordEntry::Title, title},
                {AudioRecordEntry::Artist, QStringLiteral("NO Artist")},
                {AudioRecordEntry::Album, QStringLiteral("NO Album")},
                {AudioRecordEntry::SavePath, path},
                {AudioRecordEntry::AddDate, QStringLiteral("2026/11/21")},
                {AudioRecordEntry::Length, seconds}};
    }
    /// An entry with its own file, named after its title.
    Dictionary made(const QString& title, double seconds = 1, const QString& ending = QStringLiteral("m4a")) const {
        return entry(title, title, file(title + u'.' + ending), seconds);
    }
    static std::shared_ptr<const MediaLibraryNode> leaf(const MediaLibrary& library, const QString& key) {
        for (const auto& group : library.rootNode().nonLeafNode())
            for (const auto& node : group->nonLeafNode())
                if (node->key() == key)
                    return node;
        return nullptr;
    }

    Platform::ServicesScope scope;
    FakeUserDefaults defaults;
    FakeAlerts alerts;
    FakeWorkspace workspace;
    FakeClock clock;
    FakeSounds sounds;
    FakeBundle bundle;
    QTemporaryDir folder;
};
