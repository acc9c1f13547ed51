// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

/// A note on the disk about work that must be completed when the process is killed. The process holds a lock on it
/// while it works, so the next start can tell the notes of killed processes from those of running ones. Movable; one
/// thread at a time.
class NoteFile {
public:
    /// Creates and locks an empty note in the folder $XDG_DATA_HOME/<bundle id>/@p folder. Its name is random and ends
    /// with @p ending, ".edit" for example.
    static Platform::Result<NoteFile> create(const QString& folder, const QString& ending);
    /// Locks and returns the notes of processes that have ended.
    [[nodiscard]] static std::vector<NoteFile> ofEndedProcesses(const QString& folder, const QString& ending);
    /// The paths of all notes, also of running processes.
    [[nodiscard]] static QStringList pathsOf(const QString& folder, const QString& ending);
    /// The folder of the notes; it may not exist.
    [[nodiscard]] static QString folderPath(const QString& folder);

    /// Adds values, which replace earlier ones of the same keys. Returns when they are on the disk.
    Platform::Result<> append(const QJsonObject& values);
    /// The values that were written completely. An error when the note cannot be read.
    [[nodiscard]] Platform::Result<QJsonObject> values() const;
    [[nodiscard]] QString path() const { return lock_.path(); }
    /// Removes the note; without this call the next start handles it.
    void remove() { lock_.removeAndRelease(); }

private:
    explicit NoteFile(Platform::FileLock lock) : lock_(std::move(lock)) {}
    Platform::FileLock lock_; // held during the work
};
