// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Module.h"

#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <QFile>

#include <dlfcn.h>

namespace Platform {

Result<void*> loadModuleFunction(const QString& file, const char* name) {
    const QString path = createBundle()->pathForTool(file);
    void* const module = dlopen(QFile::encodeName(path).constData(), RTLD_LAZY | RTLD_LOCAL);
    void* const function = module ? dlsym(module, name) : nullptr;
    if (!function)
        return Error{Error::Kind::NotFound,
                     QStringLiteral("a part of the program is missing: ") + QString::fromLocal8Bit(dlerror())};
    return function;
}

} // namespace Platform
