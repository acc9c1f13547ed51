// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/Platform/Media/MediaTestSupport.h"

#include <ctime>
#include <random>

namespace MediaTest {

/// Processor seconds used by this process, independent of the machine's load.
[[nodiscard]] inline double secondsOfWork() {
    timespec used = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return double(used.tv_sec) + double(used.tv_nsec) * 1e-9;
}

/// Reads @p count randomly damaged files of several formats: none may crash the reader, make it hang, or give endless
/// audio.
inline void readDamagedFiles(int count, unsigned seed) {
    const QTemporaryDir folder;
    std::vector<QByteArray> originals;
    const auto keep = [&](const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        originals.push_back(file.readAll());
        ASSERT_FALSE(originals.back().isEmpty());
    };
    const QString source = folder.filePath(QStringLiteral("source.wav"));
    const Samples sound = tones(60000);
    for (const auto type : {kAudioFileWAVEType, kAudioFileM4AType, kAudioFileCAFType}) {
        writeFile(source, type, sound);
        keep(source);
    }
    writeFile(source, kAudioFileWAVEType, sound);
    for (const char* name : {"a.flac", "a.mp3", "a.ogg", "a.opus", "a.aac", "a.m4a", "a.aiff"}) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        ASSERT_EQ(
            tool(QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), source,
                                            QStringLiteral("-movflags"), QStringLiteral("+empty_moov"), path})
                .status,
            0)
            << name;
        keep(path);
    }
    std::mt19937 random(seed);
    const auto below = [&](std::size_t limit) { return std::size_t(random() % std::max<std::size_t>(1, limit)); };
    const QString damaged = folder.filePath(QStringLiteral("damaged"));
    for (int i = 0; i < count; ++i) {
        QByteArray bytes = originals[std::size_t(i) % originals.size()];
        const auto size = std::size_t(bytes.size());
        const bool inHeader = random() % 2 == 0;
        for (std::size_t hits = 1 + below(20); hits > 0; --hits) {
            const auto left = std::size_t(bytes.size());
            if (left == 0)
                break;
            const auto where = qsizetype(inHeader ? below(std::min<std::size_t>(left, 700)) : below(left));
            switch (random() % 4) {
            case 0:
                bytes[where] = char(random());
                break;
            case 1:
                bytes[where] = char(bytes[where] ^ (1 << (random() % 8)));
                break;
            case 2:
                bytes.replace(where, qsizetype(below(16)), QByteArray(qsizetype(below(16)), char(random())));
                break;
            default:
                bytes.replace(where, 4, random() % 2 ? "\xff\xff\xff\xff" : "\0\0\0\0", 4);
                break;
            }
        }
        if (random() % 8 == 0)
            bytes.truncate(qsizetype(below(size)));
        QFile file(damaged);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();

        SCOPED_TRACE(i);
        const double before = secondsOfWork();
        (void)media().info(damaged);
        constexpr std::size_t most = 5'000'000; // frames of silence that a wrong length may cause
        const auto back = readFile(damaged, 44100, 2, random() % 3 ? 0 : std::int64_t(below(70000)), most, 4096);
        EXPECT_TRUE(back.openError ? !back.openError.text.isEmpty() : true);
        EXPECT_LT(secondsOfWork() - before, 30);
        if (const auto reader = media().openReader(damaged).valueOr(nullptr)) {
            std::vector<std::int64_t> frames = {0, 5000, 59000};
            std::vector<float> values(3);
            (void)reader->sparseSamples(frames, values);
        }
    }
}

} // namespace MediaTest
