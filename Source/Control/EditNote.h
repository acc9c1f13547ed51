// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/NoteFile.h"

#include <functional>

/// A note on the disk about a change of a recording's file that its library entry must follow. The file changes first
/// and the entry is stored later; when the process is killed in between, the next start finds the note and updates the
/// entry from the file. Movable; one thread at a time.
class EditNote {
public:
    /// Writes and syncs the note. @p path is the recording, @p newPath its name afterwards (may be the same), @p hidden
    /// a hidden file that is written beside it and removed after a crash; may be empty.
    /// After an error the change must not begin.
    static Platform::Result<EditNote> begin(const QString& path, const QString& newPath, const QString& hidden);
    EditNote(EditNote&&) noexcept = default;
    EditNote& operator=(EditNote&&) noexcept = default;
    /// Keeps the note when end() was not called: the next start handles it.
    ~EditNote() = default;

    /// Removes the note: nothing was changed, or the entry is in the library. Waits until the library is on the disk;
    /// when that fails the note is kept.
    void end();

    /// Whether there is any note, also of a process that is still running. Any thread.
    [[nodiscard]] static bool anyIsLeft();

    /// MediaLibraryRequests::retag(), or a double of it.
    using Retag = std::function<bool(const QString& path, const Dictionary& facts)>;
    /// Handles the notes of killed processes: updates the library's entries from the files and removes hidden files.
    /// Without the service that reads audio files, the notes are kept. Main thread.
    static void recover(const Retag& retag);

private:
    explicit EditNote(NoteFile note) : note_(std::move(note)) {}
    NoteFile note_;
};
