// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <optional>
#include <vector>

/// The rows by which two lists of audio record entries differ, so that views need not load the new one as a whole.
namespace LeafChanges {

struct Step {
    enum class Kind { Removed, Inserted, Replaced };
    Kind kind;
    int index; ///< of the row at this step: removals come first, the last row first, then the others from the top down
};

/// The steps from @p before to @p after. Nothing when they are too many to be worth a step each, or when entries that
/// both have changed places.
[[nodiscard]] std::optional<std::vector<Step>> between(const QVariantList& before, const QVariantList& after);

} // namespace LeafChanges
