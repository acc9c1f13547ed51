// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"

#include <QString>
#include <QStringList>

#include <map>

/// Hands out names for new files. A recording's name is reserved until it is released: within this object by a list,
/// against other processes of the user by a marker file, which ends with its process. No lock of its own.
class RecordingNames {
public:
    RecordingNames();
    ~RecordingNames();
    RecordingNames(const RecordingNames&) = delete;
    RecordingNames& operator=(const RecordingNames&) = delete;

    /// The first of Track0.m4a, Track1.m4a, … in @p folder that neither exists nor is reserved; reserved from now on.
    /// The folder is made when it is missing; one that cannot be made does not fail the call.
    [[nodiscard]] QString getAudioRecordPath(const QString& folder);
    /// Gives a reserved name back; others are left alone.
    void release(const QString& path);
    [[nodiscard]] QStringList aryForRecordedAudioPath() const;

    /// The first of Ringtone.m4r, Ringtone1.m4r, … in @p folder that does not exist. Not reserved.
    [[nodiscard]] static QString nextRingtoneMakerFilePath(const QString& folder);

private:
    [[nodiscard]] bool reserve(const QString& path);

    std::map<QString, Platform::FileLock> reserved_; ///< with their markers; not held when none could be made
};
