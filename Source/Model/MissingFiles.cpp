// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MissingFiles.h"

#include "Platform/Foundation/MainQueue.h"

#include <QFileInfo>

#include <utility>

namespace {
// Each watch costs kernel memory and counts against the user's limit; recordings are in one or two folders.
constexpr int kWatchedFolders = 64;
} // namespace

MissingFiles::MissingFiles(QObject* parent) : QObject(parent) {
    worker_.setMaxThreadCount(1);
    connect(&folders_, &QFileSystemWatcher::directoryChanged, this, &MissingFiles::forgetFolder);
}

MissingFiles::~MissingFiles() {
    worker_.clear();
    worker_.waitForDone();
}

bool MissingFiles::isMissing(const QString& path) {
    if (path.isEmpty())
        return false;
    const auto known = missing_.constFind(path);
    if (known == missing_.constEnd() || stale_.contains(path))
        lookAt(path);
    return known != missing_.constEnd() && *known;
}

void MissingFiles::lookAt(const QString& path) {
    // Until the answer arrives the file counts as present, so that painting asks once and not in every frame.
    if (!stale_.remove(path))
        missing_.insert(path, false);
    wanted_.append(path);
    if (std::exchange(askScheduled_, true))
        return;
    Platform::MainQueue::post(this, [this] {
        askScheduled_ = false;
        worker_.start([this, paths = std::exchange(wanted_, {})] {
            QHash<QString, bool> answers;
            QSet<QString> folders;
            for (const QString& each : paths) {
                const QFileInfo info(each);
                answers.insert(each, !info.exists());
                folders.insert(info.path());
            }
            Platform::MainQueue::post(this, [this, answers, folders] {
                bool news = false;
                for (auto it = answers.cbegin(); it != answers.cend(); ++it) {
                    if (missing_.value(it.key()) != it.value())
                        news = true;
                    missing_.insert(it.key(), it.value());
                }
                for (const QString& folder : folders)
                    if (folders_.directories().size() < kWatchedFolders && !folders_.directories().contains(folder))
                        folders_.addPath(folder);
                if (news)
                    Q_EMIT changed();
            });
        });
    });
}

void MissingFiles::forget(const QString& path) {
    if (missing_.contains(path))
        stale_.insert(path);
    Q_EMIT changed();
}

void MissingFiles::forgetAll() {
    for (auto it = missing_.cbegin(); it != missing_.cend(); ++it)
        stale_.insert(it.key());
    Q_EMIT changed();
}

void MissingFiles::forgetFolder(const QString& folder) {
    const QString prefix = folder + u'/';
    for (auto it = missing_.cbegin(); it != missing_.cend(); ++it)
        if (it.key().startsWith(prefix))
            stale_.insert(it.key());
    Q_EMIT changed();
}
