// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/NoteFile.h"

#include <QStringList>

#include <memory>
#include <vector>

struct ExportJob;

/// A note on the disk about a recording that has ended but is not yet a file of the library. When the process is killed
/// or the power fails, the next start of the window or of `record` finds the note and continues the job. The next start
/// also empties the temporary folder, so it first moves the job's files into a folder beside the note.
///
/// A recording that is still running has no note; its raw files are deleted with the temporary folder.
class ExportNote {
public:
    /// Writes the note of a job. Blocks until it is on the disk; on a worker.
    static Platform::Result<ExportNote> begin(const ExportJob& job);
    /// Moves the files of interrupted jobs to safety. Call it before the temporary folder of an ended process is
    /// emptied. Blocks.
    static void saveFilesOfEndedProcesses();
    /// The interrupted jobs whose files are safe, oldest first, each with its note. Notes without a job that can be
    /// continued are removed. Blocks.
    [[nodiscard]] static std::vector<std::shared_ptr<ExportJob>> interrupted();
    /// Whether a file was moved to @p place before the process was killed. A move between file systems copies: when the
    /// kill left both files, the one at @p file is removed.
    [[nodiscard]] static bool isMoved(const QString& file, const QString& place);

    /// Writes how far the job is. Blocks; an error is logged.
    void update(const ExportJob& job);
    /// Moves the job's files into the note's folder. The next start continues the job.
    void saveFiles() const;
    /// Removes the note: the recording is in the library, or its files are kept elsewhere. Waits until the library is
    /// on the disk; when that fails, the note is kept.
    void end();

private:
    explicit ExportNote(NoteFile note) : note_(std::move(note)) {}
    [[nodiscard]] QString folder() const;
    void giveUp();
    NoteFile note_;
};
