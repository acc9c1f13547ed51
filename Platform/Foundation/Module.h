// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// The function @p name of the module @p file among the program's resources, which stays loaded. Null when it cannot be
/// loaded; @p why then says so.
[[nodiscard]] void* loadModuleFunction(const QString& file, const char* name, QString& why);

template <typename Function>
[[nodiscard]] Function loadFunction(const QString& file, const char* name, QString& why) {
    return reinterpret_cast<Function>(loadModuleFunction(file, name, why));
}

} // namespace Platform
