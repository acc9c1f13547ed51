// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// The function @p name in the module @p file, one of the program's own files. The module stays loaded. Null when it
/// cannot be loaded, with the reason in @p why.
[[nodiscard]] void* loadModuleFunction(const QString& file, const char* name, QString& why);

template <typename Function>
[[nodiscard]] Function loadFunction(const QString& file, const char* name, QString& why) {
    return reinterpret_cast<Function>(loadModuleFunction(file, name, why));
}

} // namespace Platform
