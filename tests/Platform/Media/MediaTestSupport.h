// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/linux/MediaFilesLinux.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <future>
#include <numbers>
#include <vector>

namespace MediaTest {

using Samples = std::vector<std::vector<float>>; // one row per channel

inline Platform::MediaFiles& media() {
    static const auto files = Platform::createMediaFiles();
    return *files;
}

inline AudioStreamBasicDescription clientFormat(double rate = 44100, std::uint32_t channels = 2) {
    return {rate, kAudioFormatLinearPCM, 41, 4, 1, 4, channels, 32, 0};
}

inline AudioStreamBasicDescription waveFormat(double rate = 44100, std::uint32_t channels = 2) {
    return {rate, kAudioFormatLinearPCM, 12, 4 * channels, 1024, 4 * channels, channels, 32, 0};
}

inline AudioStreamBasicDescription aacFormat(double rate = 44100, std::uint32_t channels = 2) {
    return {rate, kAudioFormatMPEG4AAC, 0, 0, 1024, 0, channels, 0, 0};
}

/// A buffer list that points to rows, from a frame on.
class BufferList {
public:
    BufferList(Samples& rows, std::size_t from, std::size_t frames)
        : memory_(sizeof(AudioBufferList) + rows.size() * sizeof(AudioBuffer)) {
        list_ = new (memory_.data()) AudioBufferList{};
        list_->mNumberBuffers = std::uint32_t(rows.size());
        for (std::size_t c = 0; c < rows.size(); ++c)
            list_->mBuffers[c] = {1, std::uint32_t(frames * 4), rows[c].data() + from};
    }
    AudioBufferList* get() { return list_; }

private:
    std::vector<std::byte> memory_;
    AudioBufferList* list_;
};

/// Low-noise tones with a different pitch in each channel.
inline Samples tones(std::size_t frames, double rate = 44100, std::size_t channels = 2) {
    Samples rows(channels, std::vector<float>(frames));
    std::uint32_t seed = 1;
    for (std::size_t i = 0; i < frames; ++i) {
        for (std::size_t c = 0; c < channels; ++c) {
            seed = seed * 1664525 + 1013904223;
            const double noise = double(seed >> 8) / (1 << 24) - 0.5;
            rows[c][i] =
                float(0.3 * std::sin(2 * std::numbers::pi * (440 + 220 * double(c)) * double(i) / rate) + 0.01 * noise);
        }
    }
    return rows;
}

/// A sweep that stays in the middle of the audible band; a rate converter must preserve it.
inline Samples sweep(std::size_t frames, double rate, std::size_t channels = 2) {
    Samples rows(channels, std::vector<float>(frames));
    for (std::size_t i = 0; i < frames; ++i) {
        const double t = double(i) / rate;
        for (std::size_t c = 0; c < channels; ++c)
            rows[c][i] = float(0.2 * std::sin(2 * std::numbers::pi * (300 * t + 900 * std::sin(1.3 * t))) +
                               0.2 * std::sin(2 * std::numbers::pi * (5000 + 100 * double(c)) * t));
    }
    return rows;
}

inline void writeAll(Platform::ExtAudioFileWriter& writer, Samples& rows, std::size_t block = 512, bool async = false) {
    const std::size_t frames = rows[0].size();
    for (std::size_t at = 0; at < frames; at += block) {
        const std::size_t count = std::min(block, frames - at);
        BufferList list(rows, at, count);
        const auto status = async ? writer.writeAsync(std::uint32_t(count), list.get())
                                  : writer.write(std::uint32_t(count), list.get());
        if (status != noErr)
            return;
    }
}

inline std::unique_ptr<Platform::ExtAudioFileWriter> newWriter(const QString& path, std::uint32_t type,
                                                               const AudioStreamBasicDescription& format,
                                                               const AudioStreamBasicDescription& client) {
    auto created = media().createWriter(path, type, format, kAudioFileFlags_EraseFile);
    EXPECT_TRUE(created) << created.error().text.toStdString();
    auto writer = std::move(created).valueOr(nullptr);
    if (writer) {
        EXPECT_EQ(writer->setClientDataFormat(client), noErr);
    }
    return writer;
}

/// Writes a complete file.
inline void writeFile(const QString& path, std::uint32_t type, Samples rows, double rate = 44100,
                      std::size_t block = 512) {
    const auto channels = std::uint32_t(rows.size());
    auto writer =
        newWriter(path, type, type == kAudioFileWAVEType ? waveFormat() : aacFormat(), clientFormat(rate, channels));
    ASSERT_TRUE(writer);
    writeAll(*writer, rows, block);
    EXPECT_EQ(writer->dispose(), noErr) << writer->firstError().text.toStdString();
}

struct ReadResult {
    Samples rows;
    int errors = 0;
    Platform::Error openError;
    std::int64_t length = -1;
};

/// All frames of a file in a client format; at most @p most, starting at @p from.
inline ReadResult readFile(const QString& path, double rate = 44100, std::uint32_t channels = 2, std::int64_t from = 0,
                           std::size_t most = std::size_t(1) << 40, std::uint32_t block = 512) {
    ReadResult result;
    result.rows.resize(channels);
    auto opened = media().openReader(path);
    result.openError = opened.error();
    if (!opened)
        return result;
    const auto reader = *std::move(opened);
    result.length = reader->fileLengthFrames();
    EXPECT_EQ(reader->setClientDataFormat(clientFormat(rate, channels)), noErr);
    if (from > 0) {
        EXPECT_EQ(reader->seek(from), noErr);
    }
    Samples buffer(channels, std::vector<float>(block));
    while (result.rows[0].size() < most) {
        auto frames = std::uint32_t(std::min<std::size_t>(block, most - result.rows[0].size()));
        BufferList list(buffer, 0, frames);
        if (reader->read(frames, list.get()) != noErr)
            ++result.errors;
        if (frames == 0)
            break;
        for (std::size_t c = 0; c < channels; ++c)
            result.rows[c].insert(result.rows[c].end(), buffer[c].begin(), buffer[c].begin() + frames);
    }
    return result;
}

/// How much @p b differs from @p a, in dB below a's own level (larger is better).
inline double signalToError(const std::vector<float>& a, const std::vector<float>& b, std::size_t from = 0,
                            std::size_t to = std::size_t(-1)) {
    double signal = 1e-30;
    double error = 1e-30;
    for (std::size_t i = from; i < std::min({a.size(), b.size(), to}); ++i) {
        signal += double(a[i]) * a[i];
        error += (double(a[i]) - b[i]) * (double(a[i]) - b[i]);
    }
    return 10 * std::log10(signal / error);
}

struct ToolResult {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

/// Runs another program to its end.
inline ToolResult tool(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    ToolResult result;
    if (!process.waitForStarted(10000) || !process.waitForFinished(100000))
        return result;
    result.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    return result;
}

} // namespace MediaTest
