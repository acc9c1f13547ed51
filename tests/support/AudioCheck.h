// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/RunTool.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numbers>
#include <vector>

#include <QFile>
#include <QString>

/// Examines recorded files with other programs, independently of the code under test.
namespace AudioCheck {

/// One vector per channel.
using Channels = std::vector<std::vector<float>>;

inline Channels channelsOf(const QByteArray& interleaved, std::size_t channels) {
    Channels result(channels);
    const std::size_t frames = std::size_t(interleaved.size()) / sizeof(float) / channels;
    for (std::size_t frame = 0; frame < frames; ++frame)
        for (std::size_t channel = 0; channel < channels; ++channel) {
            float value = 0;
            std::memcpy(&value, interleaved.constData() + (frame * channels + channel) * sizeof(float), sizeof value);
            result[channel].push_back(value);
        }
    return result;
}

/// ffmpeg's decoded samples of a stereo file; no channels when it fails.
inline Channels decodedByFfmpeg(const QString& path) {
    const auto result =
        runTool(QStringLiteral("ffmpeg"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path, QStringLiteral("-f"),
                 QStringLiteral("f32le"), QStringLiteral("-ac"), QStringLiteral("2"), QStringLiteral("-")});
    return result.status == 0 ? channelsOf(result.output, 2) : Channels();
}

/// faad's decoded samples of a stereo file, as 32-bit float.
inline Channels decodedByFaad(const QString& path) {
    const auto result =
        runTool(QStringLiteral("faad"), {QStringLiteral("-q"), QStringLiteral("-f"), QStringLiteral("2"),
                                         QStringLiteral("-b"), QStringLiteral("4"), QStringLiteral("-w"), path});
    return result.status == 0 ? channelsOf(result.output, 2) : Channels();
}

/// Length of the file's stream in its own frames, as ffprobe reads it; -1 when it fails.
inline std::int64_t framesByFfprobe(const QString& path) {
    const auto result =
        runTool(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                 QStringLiteral("stream=duration_ts"), QStringLiteral("-of"), QStringLiteral("csv=p=0"), path});
    bool good = false;
    const qint64 frames = result.output.trimmed().toLongLong(&good);
    return result.status == 0 && good ? frames : -1;
}

/// The samples of a WAVE file of 32-bit integers, two channels; no channels for any other file.
inline Channels waveSamples(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray all = file.readAll();
    const auto data = all.indexOf("data");
    if (!all.startsWith("RIFF") || data < 0)
        return {};
    Channels result(2);
    for (qsizetype at = data + 8; at + 8 <= all.size(); at += 8)
        for (int channel = 0; channel < 2; ++channel) {
            std::int32_t value = 0;
            std::memcpy(&value, all.constData() + at + channel * 4, sizeof value);
            result[std::size_t(channel)].push_back(float(double(value) / 2147483648.0));
        }
    return result;
}

/// Pitch in Hz of a tone louder than -40 dB, by counting its upward zero crossings.
inline double pitchOf(const std::vector<float>& samples, double rate) {
    double first = 0;
    double last = 0;
    int periods = -1;
    bool wasLow = false;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        wasLow |= samples[i] < -0.01F;
        if (wasLow && samples[i - 1] < 0 && samples[i] >= 0) {
            wasLow = false;
            last = double(i) - double(samples[i]) / double(samples[i] - samples[i - 1]);
            if (++periods == 0)
                first = last;
        }
    }
    return periods > 0 ? periods * rate / (last - first) : 0;
}

/// Root of the mean square.
inline double levelOf(const std::vector<float>& samples) {
    double sum = 0;
    for (const float sample : samples)
        sum += double(sample) * double(sample);
    return samples.empty() ? 0 : std::sqrt(sum / double(samples.size()));
}

/// The level of a tone of this pitch, in dB below full scale; other tones do not change it. The window's side lobes are
/// below -92 dB (Blackman and Harris, four terms): a tone with a gap would otherwise have traces of every other pitch.
inline double toneLevel(const std::vector<float>& samples, double pitch, double rate) {
    double sine = 0;
    double cosine = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double phase = 2 * std::numbers::pi * double(i) / double(samples.size());
        const double window =
            0.35875 - 0.48829 * std::cos(phase) + 0.14128 * std::cos(2 * phase) - 0.01168 * std::cos(3 * phase);
        const double angle = 2 * std::numbers::pi * pitch * double(i) / rate;
        sine += double(samples[i]) * window * std::sin(angle);
        cosine += double(samples[i]) * window * std::cos(angle);
    }
    return 20 * std::log10(std::max(2 * std::hypot(sine, cosine) / (0.35875 * double(samples.size())), 1e-12));
}

/// The largest difference between a sample and the value that a tone of this pitch would have after the two samples
/// before it: a click, a gap and a repetition all show here.
inline double worstClick(const std::vector<float>& samples, double pitch, double rate) {
    const double factor = 2 * std::cos(2 * std::numbers::pi * pitch / rate);
    double worst = 0;
    for (std::size_t i = 2; i < samples.size(); ++i)
        worst =
            std::max(worst, std::fabs(double(samples[i]) - factor * double(samples[i - 1]) + double(samples[i - 2])));
    return worst;
}

/// Without its first and last @p frames samples, where an encoder starts up and pads.
inline std::vector<float> inner(const std::vector<float>& samples, std::size_t frames) {
    if (samples.size() <= 2 * frames)
        return {};
    return {samples.begin() + std::ptrdiff_t(frames), samples.end() - std::ptrdiff_t(frames)};
}

} // namespace AudioCheck
