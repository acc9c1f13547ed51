// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QByteArray>
#include <optional>

namespace Platform::PropertyList {

/// The dictionary of a list in the form that toXml() writes. Nothing when anything else stands in it, however valid:
/// libplist reads it then. It makes no tree of nodes, so a library of thousands of entries is read in a quarter of the
/// time; texts that repeat from entry to entry are shared.
[[nodiscard]] std::optional<Dictionary> fromOwnXml(const QByteArray& xml);

} // namespace Platform::PropertyList
