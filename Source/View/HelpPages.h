// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The pages that the browser shows. The resources contain them in English. Main thread.
namespace HelpPages {

/// The page @p name ("support.html") in the user's language: the English file, or a translated copy in the cache
/// folder, which this call writes.
[[nodiscard]] QString path(const QString& name);

/// A page with its headings and paragraphs translated.
[[nodiscard]] QString translated(const QString& html);

} // namespace HelpPages
