// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/CutOffRecordings.h"

#include "Platform/Foundation/MovedFiles.h"

#include <QFileInfo>
#include <QStringList>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace CutOffRecordings {
namespace {

struct Files {
    std::mutex mutex;
    QStringList paths;
};

/// Never destroyed: exit() may run keep() after the destructors of static objects.
Files& files() {
    static auto* const all = new Files;
    return *all;
}

std::atomic<bool> keepsAtExit{false};

void atExit() {
    if (keepsAtExit)
        keep();
}

} // namespace

void add(const QString& path) {
    Files& all = files();
    const std::scoped_lock lock(all.mutex);
    if (!all.paths.contains(path))
        all.paths.append(path);
}

void remove(const QString& path) {
    Files& all = files();
    const std::scoped_lock lock(all.mutex);
    all.paths.removeAll(path);
}

void keep() {
    QStringList paths;
    {
        Files& all = files();
        const std::scoped_lock lock(all.mutex);
        paths.swap(all.paths);
    }
    for (const QString& path : paths) {
        if (!QFileInfo::exists(path))
            continue;
        const QString kept = Platform::MovedFiles::setAside(path, QFileInfo(path).fileName());
        // Runs in exit(), when the translation is gone.
        std::fprintf(stderr, "sonaphex: ended in the middle of a recording: it is kept in %s\n", qUtf8Printable(kept));
    }
}

Keeper::Keeper() {
    static const int registered = std::atexit(atExit);
    Q_UNUSED(registered)
    keepsAtExit = true;
}

Keeper::~Keeper() {
    keepsAtExit = false;
    keep();
}

} // namespace CutOffRecordings
