// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/LibraryChange.h"

#include "CommandLine/CommandLine.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace CommandLine {

QString tellLibrary(const QString& path, const Dictionary& changed, const QString& done) {
    std::optional<bool> stored;
    if (const auto answer = askWindow(MediaLibraryRequests::retagRequest(path, changed))) {
        stored = MediaLibraryRequests::retaggingOf(*answer);
        if (!stored)
            return done + u", but the running program does not know this request: it is another version"_s;
    } else {
        stored = MediaLibraryRequests::retag(path, changed);
    }
    return *stored ? QString() : done + u", but the library could not be saved"_s;
}

} // namespace CommandLine
