// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

namespace CommandLine {

/// Gives the library's entries of a file new values, in the running window or else in the stored library. @p done is
/// what has happened to the file, for the sentence of a failure ("the tags are written").
/// @return what went wrong; empty when nothing did, also when the file is none of the library's
[[nodiscard]] QString tellLibrary(const QString& path, const Dictionary& changed, const QString& done);

} // namespace CommandLine
