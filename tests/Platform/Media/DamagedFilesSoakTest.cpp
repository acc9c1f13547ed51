// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Platform/Media/DamagedFiles.h"

using namespace MediaTest;

TEST(ManyDamagedFiles, NeitherCrashNorBlockTheReader) {
    readDamagedFiles(10000, 1);
}

TEST(BigWaveFiles, Beyond4GibAreRf64AndReadToTheEnd) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("big.wav"));
    constexpr std::int64_t minutes = 205; // 4.3 GB
    Samples minute = tones(44100 * 60);
    auto writer = newWriter(path, kAudioFileWAVEType, waveFormat(), clientFormat());
    for (int i = 0; i < minutes; ++i)
        writeAll(*writer, minute, 8192);
    ASSERT_EQ(writer->dispose(), noErr) << writer->firstError().text.toStdString();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.read(4), "RF64");
    const auto info = media().info(path);
    ASSERT_TRUE(info) << info.error().text.toStdString();
    EXPECT_EQ(info->frameCount, minutes * 44100 * 60);
    const auto end = readFile(path, 44100, 2, (minutes - 1) * 44100 * 60);
    ASSERT_EQ(end.rows[0].size(), minute[0].size());
    EXPECT_GT(signalToError(minute[1], end.rows[1]), 140);
    const auto probed =
        tool(QStringLiteral("ffprobe"), {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                                         QStringLiteral("format=duration"), path});
    EXPECT_TRUE(probed.out.contains("duration=12300.000000")) << probed.out.toStdString();
}
