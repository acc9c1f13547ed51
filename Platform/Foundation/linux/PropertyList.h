// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <QByteArray>
#include <memory>
#include <optional>

namespace Platform::PropertyList {

/// The XML form of a dictionary. Values that a property list cannot hold (an invalid QVariant, an unknown type) are
/// omitted.
[[nodiscard]] QByteArray toXml(const Dictionary& dictionary);

/// The dictionary of an XML property list; nothing when the data is not such a list or is nested too deeply. @param
/// spent receives the parsed form, which the caller frees when nothing waits: freeing the many small nodes of a long
/// library takes a sixth of the time of reading it.
[[nodiscard]] std::optional<Dictionary> fromXml(const QByteArray& xml, std::shared_ptr<void>* spent = nullptr);

/// fromXml() with libplist only, for any form of list.
[[nodiscard]] std::optional<Dictionary> fromAnyXml(const QByteArray& xml, std::shared_ptr<void>* spent = nullptr);

} // namespace Platform::PropertyList
