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
        resources_ =
            QFileInfo(beside).isDir() ? beside : QDir::cleanPath(programFolder + QStringLiteral("/../share/sonaphex"));
    }
    QString bundleIdentifier() const override { return QStringLiteral("com.korvane.Sonaphex"); }
    QString resourcePath() const override { return resources_; }

private:
    QString resources_;
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
