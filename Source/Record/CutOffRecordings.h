// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The files in the temporary folder that hold the only copy of recorded audio. The display and session libraries call
/// exit() when their connection breaks, and then no event loop can finish a recording. Such files are moved to the
/// folder for unfinished recordings, because the next launch empties the temporary folder. Other raw files (of an armed
/// wait, of a recording that the filter dropped) stay and are deleted by that launch.
namespace CutOffRecordings {

/// The file at @p path contains audio from now on. Any thread.
void add(const QString& path);
/// The file was delivered, moved or deleted. Any thread; unknown paths are ignored.
void remove(const QString& path);

/// Moves the registered files to FileManager::unfinishedFolder(). A thread that is still writing to one continues to
/// write to it under its new name.
void keep();

/// Calls keep() when the process ends: in its destructor, or when exit() ends the process without running it. Make it
/// after the lock on the temporary folder was taken and destroy it before that lock is released. Otherwise the next
/// launch may delete the files first. Main thread; one at a time.
class Keeper {
public:
    Keeper();
    ~Keeper();
    Keeper(const Keeper&) = delete;
    Keeper& operator=(const Keeper&) = delete;
};

} // namespace CutOffRecordings
