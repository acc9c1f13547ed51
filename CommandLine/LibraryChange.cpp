// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/LibraryChange.h"

#include "CommandLine/CommandLine.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <optional>

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

} // namespace CommandLine
