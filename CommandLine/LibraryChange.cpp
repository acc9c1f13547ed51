// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/LibraryChange.h"

#include "CommandLine/CommandLine.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/ControlRequests.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace CommandLine {

QString tellLibrary(const QString& path, const Dictionary& changed, const QString& done) {
    std::optional<bool> stored;
    if (const auto answer = askWindow(MediaLibraryRequests::retagRequest(path, changed))) {
        stored = MediaLibraryRequests::retaggingOf(*answer);
        if (!stored)
            return QCoreApplication::translate(
                       "CommandLine", "%1, but the running program does not know this request: it is another version")
                .arg(done);
    } else {
        stored = MediaLibraryRequests::retag(path, changed);
    }
    return *stored ? QString()
                   : QCoreApplication::translate("CommandLine", "%1, but the library could not be saved").arg(done);
}

Dictionary entryOf(const QString& path) {
    const MediaLibrary library;
    for (const QVariant& entry : library.records()) {
        const QString other = entry.toMap().value(AudioRecordEntry::SavePath).toString();
        if (QFileInfo(other).fileName() == QFileInfo(path).fileName() && QFileInfo(other) == QFileInfo(path))
            return entry.toMap();
    }
    return {};
}

QString addRecording(const QString& path, const Dictionary& tags) {
    // Create the entry and its identity first. A window that answers too late still adds it; with the same identity the
    // library then contains it once.
    const Dictionary entry = MediaLibrary::entryForFile(path, tags);
    QByteArray rest;
    if (const auto answer = askWindow(ControlRequests::libraryAdd(path, entry));
        answer && ControlRequests::isOk(*answer, rest))
        return {};
    MediaLibrary library;
    library.addRecordFile(entry);
    return Platform::services().userDefaults->flush()
               ? QString()
               : QCoreApplication::translate("CommandLine", "%1 could not be added to the library").arg(path);
}

QString addRecording(const QString& path, const Dictionary& tags, double seconds) {
    Dictionary entry = tags;
    entry.insert(AudioRecordEntry::AddDate, Platform::services().clock->now().toString(u"yyyy/MM/dd"_s));
    entry.insert(AudioRecordEntry::Length, seconds);
    return addRecording(path, entry);
}

} // namespace CommandLine
