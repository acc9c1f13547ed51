// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// The path of the local socket at which a RunningProgram answers.
[[nodiscard]] QString requestSocket(const QString& bundleIdentifier);

} // namespace Platform
