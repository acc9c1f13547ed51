// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_mix FIRST SECOND WAVE M4A: what becomes of a recording of two sources. Both are laid over one another in WAVE,
// which is then encoded.
#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/Control/ConverterAudioControl.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 5)
        return 2;
    const auto files = Platform::createMediaFiles();
    Platform::services().mediaFiles = files.get();
    Platform::MediaError error;
    const auto movie = files->openMovie(arguments[1], error);
    const auto other = movie ? files->openMovie(arguments[2], error) : nullptr;
    if (other && movie->insertSoundTrackOf(*other))
        error = movie->writeWave(arguments[3], {});
    if (error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error.text));
        return 1;
    }
    ConverterAudioControl converter;
    return converter.createOutPutFile(arguments[4], 1) && converter.startConverterSource(arguments[3], 0, 0) ? 0 : 1;
}
