// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxDesktop.h"

#include <cstdio>

namespace Platform {
namespace {

class CommandLineAlerts final : public Alerts {
public:
    int runModal(const QString& title, const QString& text, const QStringList&) override {
        QString line = title.isEmpty() || text.isEmpty() ? title + text : title + QStringLiteral(": ") + text;
        std::fprintf(stderr, "sonaphex: %s\n", line.replace(u'\n', u' ').toLocal8Bit().constData());
        return 0;
    }
};

} // namespace

std::unique_ptr<Alerts> createCommandLineAlerts() {
    return std::make_unique<CommandLineAlerts>();
}

} // namespace Platform
