// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QVariantList>

/// The library's value in the user defaults: {"ringtones": [...], "records": [...]}.
namespace MediaLibraryStore {

/// The entries under "ringtones" or "records" of a stored value. @p damaged is set when the value is not an array of
/// dictionaries; its valid entries are returned nevertheless.
[[nodiscard]] QVariantList entries(const QVariant& stored, const QString& name, bool& damaged);

[[nodiscard]] QVariant value(const QVariantList& records, const QVariantList& ringtones);

/// Merges the changes of two processes (UserDefaults::Merge): entries that either added are kept, and entries that
/// either removed are removed, except when this process changed the entry meanwhile. An entry that both changed or
/// added gets the changed values of both; when both changed the same value, ours wins.
[[nodiscard]] QVariant merge(const QVariant& base, const QVariant& theirs, const QVariant& ours);

} // namespace MediaLibraryStore
