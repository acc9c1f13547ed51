// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"

#include <optional>

/// A note on the disk about a change of a recording's file that its library entry must follow. The file changes first
/// and the entry is stored later; when the process is killed in between, the next start finds the note and makes the
/// entry tell what the file is. Movable; one thread at a time.
class EditNote {
public:
    /// Writes and syncs the note. @p path is the recording, @p newPath its name afterwards (the same when it keeps it),
    /// @p hidden a hidden file that is written beside it and removed after a crash; may be empty.
    /// @return nothing when the note cannot be written; @p why then says so, and the change must not begin.
    [[nodiscard]] static std::optional<EditNote> begin(const QString& path, const QString& newPath,
                                                       const QString& hidden, QString& why);
    EditNote(EditNote&&) noexcept = default;
    EditNote& operator=(EditNote&&) noexcept = default;
    /// The note stays when the change was not reported as stored: the next start looks at it.
    ~EditNote() = default;

    /// Removes the note: nothing was changed, or the entry is in the library. Waits until the library is on the disk;
    /// when that fails the note stays.
    void end();

    /// Settles the notes of processes that were killed: brings the library's entries in step with the files and removes
    /// hidden files. Main thread.
    static void recover();

private:
    explicit EditNote(Platform::FileLock lock) : lock_(std::move(lock)) {}
    Platform::FileLock lock_; // held while the change is under way
};
