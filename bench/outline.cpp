// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_outline FILE
// Reads the outline of an audio file as the ringtone maker's window does, and prints one line:
//   <milliseconds to the first values> <milliseconds to the last> <values>
#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "RingtoneMaker/AudioExtractWave.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const auto media = Platform::createMediaFiles();
    Platform::services().mediaFiles = media.get();
    QElapsedTimer timer;
    timer.start();
    double first = -1;
    AudioExtractWave wave;
    wave.setPoints([&](qsizetype, std::span<const float>) {
        if (first < 0)
            first = double(timer.nsecsElapsed()) / 1e6;
    });
    if (argc != 2 || !wave.openFile(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "bench_outline: %s\n", qPrintable(wave.error().text));
        return 1;
    }
    const auto values = wave.extractSamplePoint();
    std::printf("%.1f %.1f %lld\n", first, double(timer.nsecsElapsed()) / 1e6, static_cast<long long>(values.size()));
    return values.isEmpty() ? 1 : 0;
}
