// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QVariantList>

/// The library's value in the user defaults: {"ringtones": [...], "records": [...]}.
namespace MediaLibraryStore {

/// The entries under "ringtones" or "records" of a stored value. @p damaged becomes true when something stands there
/// that is no array of dictionaries; what is one is given all the same.
[[nodiscard]] QVariantList entries(const QVariant& stored, const QString& name, bool& damaged);

[[nodiscard]] QVariant value(const QVariantList& records, const QVariantList& ringtones);

/// Joins the changes of two processes (UserDefaults::Merge): what either added is kept, what either removed is gone,
/// but for an entry that we changed meanwhile. An entry that both changed or added has the values that either changed;
/// of two changes of one value ours wins.
[[nodiscard]] QVariant merge(const QVariant& base, const QVariant& theirs, const QVariant& ours);

} // namespace MediaLibraryStore
