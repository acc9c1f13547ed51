// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The files in the temporary folder that hold sound of a recording and have no other copy. The libraries of the
/// display and of the session call exit() when the other side goes away, and then no event loop can finish a recording.
/// Such files move to the place for what could not be finished, because the next launch empties the temporary folder.
/// Other raw files (of a wait for sound, of what the filter dropped) stay and are deleted by that launch.
namespace CutOffRecordings {

/// The file at @p path holds sound from now on. Any thread.
void add(const QString& path);
/// The file was delivered, moved or deleted. Any thread; unknown paths are ignored.
void remove(const QString& path);

/// Moves what add() named and remove() did not to FileManager::unfinishedFolder(). A thread that still writes to one
/// goes on in it under its new name.
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
