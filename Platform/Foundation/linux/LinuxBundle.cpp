// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/linux/LinuxFoundation.h"

#include <QDir>
#include <QFileInfo>

namespace Platform {
namespace {

class LinuxBundle final : public Bundle {
public:
    explicit LinuxBundle(const QString& programFolder) {
        const QString beside = programFolder + QStringLiteral("/Resources");
        const bool installed = !QFileInfo(beside).isDir();
        // Relative to the program, so that an installation can be moved as a whole.
        resources_ =
            installed ? QDir::cleanPath(programFolder + QStringLiteral("/" SONAPHEX_RESOURCES_FROM_BIN)) : beside;
        tools_ = installed ? QDir::cleanPath(programFolder + QStringLiteral("/" SONAPHEX_TOOLS_FROM_BIN)) : beside;
    }
    QString bundleIdentifier() const override { return QStringLiteral("com.korvane.Sonaphex"); }
    QString resourcePath() const override { return resources_; }
    QString toolsPath() const override { return tools_; }

private:
    QString resources_;
    QString tools_;
};

} // namespace

std::unique_ptr<Bundle> createBundle() {
    // Not from argv[0], which may be a bare name, a link or a relative path.
    return createBundle(QFileInfo(QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget()).path());
}

std::unique_ptr<Bundle> createBundle(const QString& programFolder) {
    return std::make_unique<LinuxBundle>(programFolder);
}

} // namespace Platform
