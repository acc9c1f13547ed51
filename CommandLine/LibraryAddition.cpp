// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Apart from LibraryChange.cpp, because ControlRequests needs the recorder and its libraries.
#include "CommandLine/CommandLine.h"
#include "CommandLine/LibraryChange.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/ControlRequests.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace CommandLine {

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
