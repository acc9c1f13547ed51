// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// The locations of the program's own files. Immutable after construction, any thread.
class Bundle {
public:
    virtual ~Bundle() = default;
    /// "com.korvane.Sonaphex": names the defaults file, the temporary folder and the Music folder.
    [[nodiscard]] virtual QString bundleIdentifier() const = 0;
    /// The folder of the resources, absolute, without a slash at its end: beside the program in a build tree,
    /// under share/ when installed.
    [[nodiscard]] virtual QString resourcePath() const = 0;
    /// The path of a resource; the file may not exist.
    [[nodiscard]] QString pathForResource(const QString& name) const { return resourcePath() + u'/' + name; }
    /// The folder of the helper programs, the module with the windows and the driver bundle: the folder of the
    /// resources in a build tree, under lib/ when installed, because these files depend on the processor.
    [[nodiscard]] virtual QString toolsPath() const { return resourcePath(); }
    /// The path of a helper program, module or bundle; the file may not exist.
    [[nodiscard]] QString pathForTool(const QString& name) const { return toolsPath() + u'/' + name; }
};

} // namespace Platform
