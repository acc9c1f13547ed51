// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Platform {

/// Makes sure that no standard stream can end the process or damage a file. Call it first, before any file is opened
/// and any thread starts.
/// Ignores SIGPIPE: a write to a pipe without a reader fails with EPIPE instead of ending a recording. Programs that
/// QProcess starts get the default action back. Opens /dev/null for each of the three streams that is closed: otherwise
/// the next opened file would get its number, and messages would be written into a recording.
void secureStandardStreams();

} // namespace Platform
