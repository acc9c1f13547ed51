// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

namespace CommandLine {

/// Sets new values in the library's entries of a file, through the running window or else in the stored library. @p
/// done says what has happened to the file, for the failure message ("the tags are written").
/// @return the error; empty on success, also when the library has no entry for the file
[[nodiscard]] QString tellLibrary(const QString& path, const Dictionary& changed, const QString& done);

/// The stored entry of a recording's file; empty when the library has none.
[[nodiscard]] Dictionary entryOf(const QString& path);

/// Adds a finished file to the recordings of the library, through the running window or else in the stored library.
/// @return the error; empty on success
[[nodiscard]] QString addRecording(const QString& path, const Dictionary& tags);
/// The same for a file that was made from a recording: with its length, and today as its date.
[[nodiscard]] QString addRecording(const QString& path, const Dictionary& tags, double seconds);

} // namespace CommandLine
