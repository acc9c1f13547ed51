// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// A text as one line for a terminal: control characters become blanks, because a terminal would execute them.
[[nodiscard]] QString onOneLine(QString text);

/// Quotes a word for a shell command line, whatever characters it contains.
[[nodiscard]] QString shellWord(QString word);

} // namespace Platform
