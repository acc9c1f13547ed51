// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QString>

namespace Platform {

/// The function @p name in the module @p file, one of the program's own files. The module stays loaded. Never null.
Result<void*> loadModuleFunction(const QString& file, const char* name);

template <typename Function>
Result<Function> loadFunction(const QString& file, const char* name) {
    const auto function = loadModuleFunction(file, name);
    if (!function)
        return function.error();
    return reinterpret_cast<Function>(*function);
}

} // namespace Platform
