// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstring>

namespace {
constexpr const char* usage =
    "usage: SetArtWork SOURCE IMAGE DESTINATION\n"
    "Writes a copy of the MPEG-4 audio file SOURCE to DESTINATION, with IMAGE (a JPEG or PNG\n"
    "file, detected by its content) as its cover. DESTINATION appears complete or not at all.\n";
}

/// @return 0 success, 1 failure (with the reason in one line), 2 wrong usage
int main(int argc, char** argv) {
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::fputs(usage, stdout);
        return 0;
    }
    if (argc != 4) {
        std::fputs(usage, stderr);
        return 2;
    }
    // Qt needs the application object to find the plugin that reads JPEG files.
    const QCoreApplication application(argc, argv);
    const auto copied = Platform::BasicID3Change::copyWithArtwork(
        QFile::decodeName(argv[1]), QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    if (copied)
        return 0;
    std::fprintf(stderr, "SetArtWork: %s\n", qUtf8Printable(copied.error().text));
    return 1;
}
