// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Platform/Media/linux/MixMovie.h"
#include "Platform/Media/linux/decode/FileReader.h"
#include "Platform/Media/linux/decode/SourceFile.h"
#include "Platform/Media/linux/encode/FileWriter.h"

#include <QCoreApplication>

namespace Platform {

namespace {

/// Whether a file of this type can hold audio in this format.
bool canBeWritten(std::uint32_t type, const AudioStreamBasicDescription& format) {
    const double rate = format.mSampleRate;
    if (!(rate >= 1000 && rate <= 1'000'000) || format.mChannelsPerFrame < 1 || format.mChannelsPerFrame > 8)
        return false;
    if (type == kAudioFileM4AType || type == kAudioFileCAFType)
        return format.mFormatID == kAudioFormatMPEG4AAC;
    if (type != kAudioFileWAVEType || format.mFormatID != kAudioFormatLinearPCM)
        return false;
    const std::uint32_t bits = format.mBitsPerChannel;
    if (format.mFormatFlags & kAudioFormatFlagIsFloat)
        return bits == 32;
    return (format.mFormatFlags & kAudioFormatFlagIsSignedInteger) && (bits == 16 || bits == 24 || bits == 32);
}

class MediaFilesLinux final : public MediaFiles {
public:
    // Damaged files are reported by our own errors, so libav prints nothing.
    MediaFilesLinux() { av_log_set_level(AV_LOG_QUIET); }

    Result<std::unique_ptr<ExtAudioFileWriter>> createWriter(const QString& path, std::uint32_t fileType,
                                                             const AudioStreamBasicDescription& format,
                                                             std::uint32_t flags) override {
        if (!canBeWritten(fileType, format))
            return makeError(Error::Kind::UnknownFormat, path,
                             QCoreApplication::translate("Media", "this format cannot be written"));
        auto writer = std::make_unique<FileWriter>(path, fileType, format);
        if (const auto opened = writer->open(flags & kAudioFileFlags_EraseFile); !opened)
            return opened.error();
        return writer;
    }

    Result<std::unique_ptr<ExtAudioFileReader>> openReader(const QString& path) override {
        auto input = InputFile::open(path, true);
        if (!input)
            return input.error();
        return std::make_unique<FileReader>(*std::move(input));
    }

    Result<AudioFileInfo> info(const QString& path) override {
        SourceFile file;
        if (file.open(path)) {
            if (const auto own = readOwnRecording(file))
                return *own;
        }
        const auto opened = InputFile::open(path, false);
        if (!opened)
            return opened.error();
        InputFile& input = **opened;
        AudioFileInfo info;
        info.dataFormat = input.dataFormat();
        info.frameCount = input.lengthFrames();
        info.packetCount = input.packetCount();
        info.seconds = double(info.frameCount) / input.rate();
        return info;
    }

    Result<std::unique_ptr<Movie>> openMovie(const QString& path) override { return createMixMovie(path); }

    OSStatus completeFormat(AudioStreamBasicDescription& format) override {
        if (format.mFormatID != kAudioFormatLinearPCM || format.mChannelsPerFrame == 0 || format.mBitsPerChannel == 0)
            return kMediaInvalidPropertyError;
        const bool apart = format.mFormatFlags & kAudioFormatFlagIsNonInterleaved;
        if (format.mBytesPerFrame == 0)
            format.mBytesPerFrame = (format.mBitsPerChannel + 7) / 8 * (apart ? 1 : format.mChannelsPerFrame);
        if (format.mFramesPerPacket == 0)
            format.mFramesPerPacket = 1;
        if (format.mBytesPerPacket == 0)
            format.mBytesPerPacket = format.mBytesPerFrame * format.mFramesPerPacket;
        return noErr;
    }
};

} // namespace

std::unique_ptr<MediaFiles> createMediaFiles() {
    return std::make_unique<MediaFilesLinux>();
}

} // namespace Platform
