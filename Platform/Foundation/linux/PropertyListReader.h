// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QByteArray>
#include <optional>

namespace Platform::PropertyList {

/// The dictionary of a list in the form that toXml() writes. Nothing for any other form, even a valid one; libplist
/// reads that. It builds no node tree, so it reads a library of thousands of entries in a quarter of the time; texts
/// that repeat from entry to entry are shared.
[[nodiscard]] std::optional<Dictionary> fromOwnXml(const QByteArray& xml);

} // namespace Platform::PropertyList
