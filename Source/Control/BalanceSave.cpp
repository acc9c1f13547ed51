// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/BalanceSave.h"

#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Source/BuiltInAudioRecord/ExportFormat.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using Platform::Error;

namespace BalanceSave {
namespace {

constexpr std::uint32_t kBlockFrames = 16384;
constexpr double kShareOfPeak = 0.2; ///< decoding only; the rest is decoded and encoded
constexpr double kShareOfMix = 0.97; ///< then the tags and the disk follow

QString text(const char* sentence) {
    return QCoreApplication::translate("BalanceSave", sentence);
}

/// The sum of two tracks in blocks.
struct Block {
    std::array<std::vector<float>, 2> samples{std::vector<float>(kBlockFrames), std::vector<float>(kBlockFrames)};
    struct {
        AudioBufferList head;
        AudioBuffer second;
    } list;

    /// Reads the next block. @return its frames; 0 at the end
    std::uint32_t fill(BalanceReader& reader) {
        constexpr auto bytes = kBlockFrames * std::uint32_t(sizeof(float));
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, bytes, samples[0].data()};
        list.second = {1, bytes, samples[1].data()};
        std::uint32_t frames = kBlockFrames;
        (void)reader.read(frames, &list.head); // damage is silence, and the reader keeps the error
        return frames;
    }
    [[nodiscard]] float peak(std::uint32_t frames) const {
        float most = 0;
        for (const auto& row : samples)
            for (std::uint32_t i = 0; i < frames; ++i)
                most = std::max(most, std::fabs(row[i]));
        return most;
    }
};

Error stopped() {
    return {Error::Kind::Cancelled, text(QT_TRANSLATE_NOOP("BalanceSave", "It was stopped before the end."))};
}

/// Writes the sum to @p path. @return its length in seconds
Platform::Result<double> write(const Task& task, const BalanceSettings& settings, const QString& path,
                               const std::function<bool(double)>& progress) {
    auto reader = BalanceReader::open(task.tracks, std::make_shared<BalanceControls>(settings));
    if (!reader)
        return reader.error();
    auto created = Platform::services().mediaFiles->createWriter(path, kAudioFileM4AType, aacExportFormat(),
                                                                 kAudioFileFlags_EraseFile);
    if (!created)
        return created.error();
    Platform::ExtAudioFileWriter& writer = **created;
    (void)writer.setClientDataFormat((*reader)->fileDataFormat());
    const double length = double(std::max<std::int64_t>(1, (*reader)->fileLengthFrames()));
    Block block;
    std::int64_t written = 0;
    while (const std::uint32_t frames = block.fill(**reader)) {
        if (writer.write(frames, &block.list.head) != noErr)
            break;
        written += frames;
        if (progress && !progress(double(written) / length)) {
            (void)writer.dispose();
            return stopped();
        }
    }
    (void)writer.dispose();
    if (const Error error = writer.firstError())
        return error;
    // A damaged part is silence in the new mix. The present one is kept: it may contain the sound.
    if (const Error damage = (*reader)->firstError(); damage && task.file.replace)
        return damage;
    return double(written) / BalanceReader::kRate;
}

} // namespace

QString refusal(const RecordingTracks::Tracks& tracks, const QString& mix) {
    for (const QString& path : {tracks.input, tracks.computer, mix})
        if (!QFileInfo(path).isFile())
            return text(QT_TRANSLATE_NOOP("BalanceSave", "The file “%1” is no longer there."))
                .replace(u"%1"_s, QFileInfo(path).fileName());
    if (Platform::FileManager::isOpenForWriting(mix))
        return text(QT_TRANSLATE_NOOP("BalanceSave", "The file “%1” is still being recorded to."))
            .replace(u"%1"_s, QFileInfo(mix).fileName());
    return {};
}

double decibels(double sample) {
    return sample > 1e-10 ? 20 * std::log10(sample) : -200;
}

Platform::Result<double> peak(const RecordingTracks::Tracks& tracks, const BalanceSettings& settings,
                              const std::function<bool(double)>& progress) {
    auto reader = BalanceReader::open(tracks, std::make_shared<BalanceControls>(settings));
    if (!reader)
        return reader.error();
    const double length = double(std::max<std::int64_t>(1, (*reader)->fileLengthFrames()));
    Block block;
    double most = 0;
    std::int64_t done = 0;
    while (const std::uint32_t frames = block.fill(**reader)) {
        most = std::max(most, double(block.peak(frames)));
        done += frames;
        if (progress && !progress(double(done) / length))
            return stopped();
    }
    return most;
}

Result run(const Task& task, const std::function<bool(double)>& progress) {
    Result result;
    result.settings = task.settings;
    QString& problem = result.file.problem;
    problem = refusal(task.tracks, task.file.source);
    if (!problem.isEmpty())
        return result;
    const auto part = [&progress](double from, double to) {
        return [&progress, from, to](double share) { return !progress || progress(from + (to - from) * share); };
    };
    const auto most = peak(task.tracks, task.settings, part(0, kShareOfPeak));
    if (!most) {
        problem = most.error().text;
        return result;
    }
    if (*most > 1) {
        // Rounded up to a hundredth, so that the lowered sum fits.
        result.tooLoud = std::ceil(decibels(*most) * 100) / 100;
        if (!task.lowersToFit) {
            problem =
                text(QT_TRANSLATE_NOOP("BalanceSave", "The sum of both tracks is too loud and would be clipped."));
            return result;
        }
        result.settings = task.settings.loweredBy(result.tooLoud);
    }
    const QString temporary = g_strTmpPath + u"/TempExportBalanceAudio.m4a"_s;
    (void)Platform::FileManager::removeFile(temporary);
    const auto removeTemporary = qScopeGuard([&] { (void)Platform::FileManager::removeFile(temporary); });
    const auto written = write(task, result.settings, temporary, part(kShareOfPeak, kShareOfMix));
    if (!written) {
        problem = written.error().text;
        problem.replace(temporary, text(QT_TRANSLATE_NOOP("BalanceSave", "the new file")));
        return result;
    }
    result.seconds = *written;
    result.file = AudioTrimSave::deliver(task.file, temporary);
    if (result.file.done && progress)
        (void)progress(1);
    return result;
}

} // namespace BalanceSave
