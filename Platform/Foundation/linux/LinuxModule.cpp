// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Module.h"

#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <QCoreApplication>
#include <QFile>

#include <dlfcn.h>

namespace Platform {

Result<void*> loadModuleFunction(const QString& file, const char* name) {
    const QString path = createBundle()->pathForTool(file);
    void* const module = dlopen(QFile::encodeName(path).constData(), RTLD_LAZY | RTLD_LOCAL);
    void* const function = module ? dlsym(module, name) : nullptr;
    if (!function)
        return Error{Error::Kind::NotFound,
                     QCoreApplication::translate("Foundation", "a part of the program is missing: %1")
                         .arg(QString::fromLocal8Bit(dlerror()))};
    return function;
}

} // namespace Platform
