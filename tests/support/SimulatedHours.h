// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Services.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Source/BuiltInAudioRecord/BuildInAudioRecord.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>

#include <malloc.h>

#include <gtest/gtest.h>

/// Records into a real file from a device that plays as fast as the engine takes it.
struct SimulatedHours : testing::Test {
    Platform::ServicesScope scope;
    QTemporaryDir dir;
    FakeAudioHardware hardware;
    FakeWorkspace workspace;
    std::unique_ptr<Platform::MediaFiles> media = Platform::createMediaFiles();
    BuildInAudioRecord engine;

    SimulatedHours() {
        Platform::services().audioHardware = &hardware;
        Platform::services().mediaFiles = media.get();
        Platform::services().workspace = &workspace;
    }
    ~SimulatedHours() override { engine.cleanUp(); }

    static std::size_t heapInUse() {
        const auto info = mallinfo2();
        return info.uordblks + info.hblkhd;
    }

    /// Waits until the file's thread has processed its input: everything except an incomplete fragment.
    void drain(const QString& path, std::int64_t given) {
        const auto written = [&] { return media->info(path).valueOr({}).frameCount; };
        const std::int64_t fragment = 44100;
        const std::int64_t expected = given * 44100 / 48000 - 2 * fragment;
        EXPECT_TRUE(waitFor([&] { return written() >= expected; }, 600'000)) << written() << " of " << expected;
    }

    /// @param kept receives the growth of the heap in bytes between the first and the last tenth.
    void record(double seconds, std::int64_t& kept) {
        const QString path = dir.filePath(QStringLiteral("hour.m4a"));
        EXPECT_TRUE(engine.configureAudioUnit(7));
        EXPECT_TRUE(engine.setOutPutAudioPath(path, 1));
        EXPECT_TRUE(engine.startRecordAudio());
        std::vector<std::vector<float>> block(2, std::vector<float>(512));
        const auto cycles = std::int64_t(seconds * 48000 / 512);
        std::size_t early = 0;
        for (std::int64_t cycle = 0; cycle < cycles; ++cycle) {
            for (std::size_t i = 0; i < 512; ++i)
                block[0][i] = block[1][i] = float(0.25 * std::sin(double(cycle * 512 + std::int64_t(i)) * 0.13));
            EXPECT_EQ(hardware.unit()->feed(block, std::uint64_t(cycle + 1) * 10666667), noErr);
            if (cycle == cycles / 10) {
                drain(path, (cycle + 1) * 512);
                early = heapInUse();
            }
        }
        drain(path, cycles * 512);
        kept = std::int64_t(heapInUse()) - std::int64_t(early);
        engine.stopRecordAudio();
        EXPECT_FALSE(engine.writeError()) << qPrintable(engine.writeError().text);
        EXPECT_NEAR(double(AudioCheck::framesByFfprobe(path)), double(cycles * 512) * 44100 / 48000, 1.0);
    }
};
