// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/LeafChanges.h"

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QSet>

#include <algorithm>
#include <iterator>

using AudioRecordEntry::keyOf;

namespace LeafChanges {
namespace {

// For more steps than this a view is faster with a new list than row by row.
constexpr qsizetype mostSteps = 64;

bool isSameEntry(const QVariant& one, const QVariant& other) {
    const QVariant key = keyOf(one);
    return key.isValid() ? key == keyOf(other) : one == other;
}

} // namespace

std::optional<std::vector<Step>> between(const QVariantList& before, const QVariantList& after) {
    // Long lists usually differ in a few rows only: equal rows at both ends are skipped without looking at keys.
    const auto top = std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    const auto first = top.first;
    const auto firstNow = top.second;
    const auto bottom = std::mismatch(before.crbegin(), std::make_reverse_iterator(first), after.crbegin(),
                                      std::make_reverse_iterator(firstNow));
    const auto last = bottom.first.base();
    const auto lastNow = bottom.second.base();
    if (std::abs((last - first) - (lastNow - firstNow)) > mostSteps)
        return std::nullopt;

    QSet<QString> keysNow;
    for (auto it = firstNow; it != lastNow; ++it)
        keysNow.insert(Platform::stringForm(keyOf(*it)));
    const auto isGone = [&](const QVariant& entry) {
        const QVariant key = keyOf(entry);
        return key.isValid() ? !keysNow.contains(Platform::stringForm(key))
                             : std::find(firstNow, lastNow, entry) == lastNow;
    };
    std::vector<Step> steps;
    QVariantList kept; // in reverse order
    for (auto it = last; it != first;) {
        if (isGone(*--it))
            steps.push_back({Step::Kind::Removed, static_cast<int>(it - before.cbegin())});
        else
            kept.append(*it);
    }
    for (auto it = firstNow; it != lastNow; ++it) {
        const int index = static_cast<int>(it - after.cbegin());
        if (kept.isEmpty() || !isSameEntry(kept.last(), *it))
            steps.push_back({Step::Kind::Inserted, index});
        else if (kept.takeLast() != *it)
            steps.push_back({Step::Kind::Replaced, index});
    }
    if (!kept.isEmpty() || steps.size() > mostSteps)
        return std::nullopt;
    return steps;
}

} // namespace LeafChanges
