// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QByteArray>
#include <memory>
#include <optional>

namespace Platform::PropertyList {

/// The XML form of a dictionary. What a property list cannot hold (an invalid QVariant, an unknown type) is left out.
[[nodiscard]] QByteArray toXml(const Dictionary& dictionary);

/// The dictionary of an XML property list; nothing when the data is no such list, or is nested so deeply that only
/// malice can have written it.
/// @param spent takes what was needed only for reading: the caller lets go of it when nobody waits any more. Giving
/// back the small pieces of a long library takes a sixth of the time of reading it.
[[nodiscard]] std::optional<Dictionary> fromXml(const QByteArray& xml, std::shared_ptr<void>* spent = nullptr);

} // namespace Platform::PropertyList
