// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"

#include <QString>
#include <QStringList>

#include <map>
#include <mutex>

/// Hands out names for new files. A recording's name is reserved until it is released: within this object by a list,
/// against other processes of the user by a marker file, which is locked by its process. Any thread. No lock is held
/// while the folder is read, so a folder on a slow share delays only the caller.
class RecordingNames {
public:
    RecordingNames();
    ~RecordingNames();
    RecordingNames(const RecordingNames&) = delete;
    RecordingNames& operator=(const RecordingNames&) = delete;

    /// The first of Track0.m4a, Track1.m4a, … in @p folder that neither exists nor is reserved; it is then reserved. A
    /// missing folder is created; failing to create it does not fail the call. A reserved name @p own counts as free:
    /// when it is the first free one, it is returned.
    [[nodiscard]] QString getAudioRecordPath(const QString& folder, const QString& own = {});
    /// Reserves a name without reading the folder, for a thread that must not wait for a disk: the next number after
    /// those that getAudioRecordPath() found taken. A file may have that name by now; getAudioRecordPath() with the
    /// name as @p own checks that.
    [[nodiscard]] QString nextAudioRecordPath(const QString& folder);
    /// Ends a reservation when its file exists or was moved elsewhere. Ignores other names.
    void release(const QString& path);
    /// release() for a name that got no file: nextAudioRecordPath() may return it again.
    void giveBack(const QString& path);
    [[nodiscard]] QStringList aryForRecordedAudioPath() const;

    /// The first of Ringtone.m4r, Ringtone1.m4r, … in @p folder that does not exist. Not reserved.
    [[nodiscard]] static QString nextRingtoneMakerFilePath(const QString& folder);

private:
    [[nodiscard]] bool reserve(const QString& path);
    /// Ends a reservation with the mutex locked. False when there is none.
    [[nodiscard]] bool end(const QString& path);

    mutable std::mutex mutex_; ///< guards the members below
    QString nextFolder_;       ///< the folder of nextNumber_
    int nextNumber_ = 0;       ///< at the last listing all smaller numbers were taken or reserved
    std::map<QString, Platform::FileLock>
        reserved_; ///< with their markers; a marker is not held when it could not be created
};
