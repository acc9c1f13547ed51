// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/UnfinishedRecordings.h"

#include "Platform/Foundation/FileManager.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace UnfinishedRecordings {
namespace {

QFileInfoList files() {
    return QDir(Platform::FileManager::unfinishedFolder())
        .entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Time | QDir::Reversed);
}

/// Identifies a file in the stored list by name and time: a later file of the same name counts as unseen.
QString stamp(const QFileInfo& file) {
    return file.fileName() + u'/' + QString::number(file.lastModified().toMSecsSinceEpoch());
}

QStringList seenStamps() {
    return PreferenceStore::preferenceValueForKey(PreferenceStore::kUnfinishedSeenKey, QStringList()).toStringList();
}

} // namespace

QStringList unseen() {
    const QStringList seen = seenStamps();
    QStringList paths;
    for (const QFileInfo& file : files())
        if (!seen.contains(stamp(file)))
            paths.append(file.filePath());
    return paths;
}

void markSeen(const QStringList& paths) {
    if (paths.isEmpty())
        return;
    const QStringList before = seenStamps();
    QStringList seen;
    for (const QFileInfo& file : files()) // files that are gone are dropped from the list
        if (before.contains(stamp(file)) || paths.contains(file.filePath()))
            seen.append(stamp(file));
    if (seen != before)
        PreferenceStore::setPreferenceValue(seen, PreferenceStore::kUnfinishedSeenKey);
}

std::optional<RecordNotice> notice() {
    const QStringList paths = unseen();
    if (paths.isEmpty())
        return std::nullopt;
    RecordNotice notice;
    notice.event = u"unfinished"_s;
    notice.help = RecordNotice::Help::Show;
    notice.kept = paths;
    notice.outlivesRecording = true;
    if (paths.size() == 1) {
        notice.text = QCoreApplication::translate("Record", "An earlier recording could not be finished. It is kept at",
                                                  "a path follows");
        notice.path = paths.front();
    } else {
        notice.text =
            QCoreApplication::translate("Record", "%n earlier recordings could not be finished. They are kept in",
                                        "a path follows", int(paths.size()));
        notice.path = Platform::FileManager::unfinishedFolder();
    }
    return notice;
}

} // namespace UnfinishedRecordings
