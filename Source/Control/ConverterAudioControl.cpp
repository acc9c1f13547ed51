// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/ConverterAudioControl.h"

#include "Platform/Audio/ClientFormat.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Services.h"
#include "Source/BuiltInAudioRecord/ExportFormat.h"
#include "Source/Control/Fades.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(converterLog, "sonaphex.converter")

/// Blocks between two progress reports: about three quarters of a second of audio.
constexpr int kBlocksPerReport = 64;

std::uint32_t containerOf(int type) {
    switch (type) {
    case 0:
        return kAudioFileWAVEType;
    case 1:
    case 3:
        return kAudioFileM4AType;
    case 2:
        return kAudioFileCAFType;
    default:
        return 0;
    }
}

} // namespace

/// A source that is being copied, and the block that carries its frames to the output.
struct ConverterAudioControl::Source {
    std::unique_ptr<Platform::ExtAudioFileReader> file;
    double rate = 0;
    ClientBlock block;
    int blocks = 0;

    /// The number of whole frames up to a time, rounded down.
    [[nodiscard]] std::int64_t frameAt(double seconds) const { return static_cast<std::int64_t>(rate * seconds); }
    [[nodiscard]] bool timeToReport() { return ++blocks % kBlocksPerReport == 0; }
};

ConverterAudioControl::ConverterAudioControl() : actualOutputFormat_(clientFormat()) {
}

ConverterAudioControl::~ConverterAudioControl() = default;

AudioStreamBasicDescription ConverterAudioControl::exportDescription(int type) {
    if (type >= 1 && type <= 3)
        return aacExportFormat();
    return type == 0 ? waveExportFormat() : AudioStreamBasicDescription{};
}

bool ConverterAudioControl::createOutPutFile(const QString& path, int type) {
    if (type == 3)
        type = 1;
    if (outputAudioFile_)
        closeExportFile();
    exportError_ = {};
    outputAudioFilePath_ = path;

    auto* files = Platform::services().mediaFiles;
    const auto folder = QFileInfo(path).path();
    if (!files || !QFileInfo(folder).isDir()) {
        exportError_ = {Platform::Error::Kind::NotFound,
                        QCoreApplication::translate("Control", "%1: no such folder").arg(folder)};
        return false;
    }

    auto file = files->createWriter(path, containerOf(type), exportDescription(type), kAudioFileFlags_EraseFile);
    exportError_ = file.error();
    if (!file)
        return false;
    // Kept from here on, even when the next step fails: the owner closes it or starts another one.
    outputAudioFile_ = *std::move(file);
    if (outputAudioFile_->setClientDataFormat(actualOutputFormat_) != noErr) {
        exportError_ = outputAudioFile_->firstError();
        return false;
    }
    if (actualOutputFormat_.mChannelsPerFrame == 2 && outputAudioFile_->hasAudioConverter()) {
        // Both channels of the file get the first channel of the source, on purpose.
        constexpr std::array<std::int32_t, 2> firstChannelTwice{0, 0};
        outputAudioFile_->setConverterChannelMap(firstChannelTwice);
    }
    return true;
}

bool ConverterAudioControl::openSource(const QString& path, Source& source) {
    sourceError_ = {};
    auto* files = Platform::services().mediaFiles;
    if (!files || !QFileInfo::exists(path)) {
        sourceError_ = {Platform::Error::Kind::NotFound,
                        QCoreApplication::translate("Control", "%1: no such file").arg(path)};
        return false;
    }
    auto file = files->openReader(path);
    sourceError_ = file.error();
    if (!file)
        return false;
    source.file = *std::move(file);
    source.rate = actualOutputFormat_.mSampleRate;
    if (source.file->setClientDataFormat(actualOutputFormat_) != noErr) {
        sourceError_ = source.file->firstError();
        return false;
    }
    return true;
}

void ConverterAudioControl::writeBlock(Source& source, std::uint32_t frames) {
    if (outputAudioFile_)
        outputAudioFile_->write(frames, source.block.list());
}

bool ConverterAudioControl::goesOn(double share) {
    return !progress_ || progress_(std::clamp(share, 0.0, 1.0));
}

bool ConverterAudioControl::finishCopy(Source& source, const QString& path, bool stopped) {
    sourceError_ = source.file->firstError();
    source.file.reset();
    Platform::noteFileSystemChanged(path);
    closeExportFile();
    if (!stopped && progress_)
        progress_(1);
    return !stopped;
}

bool ConverterAudioControl::startConverterSource(const QString& path, float trimFrom, float trimTo) {
    Source source;
    if (!openSource(path, source))
        return false;

    const bool toTheEnd = trimTo < 0.1F;
    const double end = double(trimTo) * source.rate;
    const auto first = source.frameAt(trimFrom);
    const auto fileRate = source.file->fileDataFormat().mSampleRate;
    double total = fileRate > 0 ? double(source.file->fileLengthFrames()) * source.rate / fileRate : 0;
    if (!toTheEnd)
        total = std::min(total, end);
    total = std::max(total - double(first), 1.0);

    source.file->seek(first);
    auto position = first;
    bool stopped = !goesOn(0);
    while (!stopped) {
        auto frames = source.block.prepare(actualOutputFormat_);
        source.file->read(frames, source.block.list());
        if (frames == 0)
            break;
        position += frames;
        writeBlock(source, frames);
        if (!toTheEnd && double(position) >= end)
            break;
        if (source.timeToReport())
            stopped = !goesOn(double(position - first) / total);
    }
    if (!finishCopy(source, path, stopped))
        return false;
    converterFinish();
    return true;
}

bool ConverterAudioControl::startFadeInFadeOutConverterSource(const QString& path, float trimFrom, float trimTo,
                                                              float fadeInTime, float fadeOutTime,
                                                              float converterLength) {
    Source source;
    if (!openSource(path, source))
        return false;

    const Fades fades{trimFrom, double(trimTo) - 0.1, fadeInTime, fadeOutTime, converterLength};
    const auto first = source.frameAt(trimFrom);
    source.file->seek(first);
    auto position = first;
    std::int64_t written = 0;
    bool stopped = !goesOn(0);
    while (!stopped) {
        auto frames = source.block.prepare(actualOutputFormat_);
        if (source.file->read(frames, source.block.list()) != noErr)
            qCWarning(converterLog, "read Audio Data Error");
        const auto gain = fades.gainAt(double(position) / source.rate, double(written) / source.rate);
        if (gain <= 0.999)
            source.block.scale(static_cast<float>(gain));
        if (frames == 0) {
            qCWarning(converterLog, "numFrames  =  0");
            break;
        }
        position += frames;
        written += frames;
        writeBlock(source, frames);
        if (double(written) >= fades.length * source.rate)
            break;
        if (double(position) >= fades.rangeEnd * source.rate) {
            source.file->seek(first);
            position = first;
        }
        if (source.timeToReport())
            stopped = !goesOn(double(written) / std::max(fades.length * source.rate, 1.0));
    }
    return finishCopy(source, path, stopped);
}

void ConverterAudioControl::closeExportFile() {
    if (!outputAudioFile_)
        return;
    outputAudioFile_->dispose();
    exportError_ = outputAudioFile_->firstError();
    outputAudioFile_.reset();
    Platform::noteFileSystemChanged(outputAudioFilePath_);
}

void ConverterAudioControl::converterFinish() {
    if (delegate_)
        delegate_->converterFinish();
}
