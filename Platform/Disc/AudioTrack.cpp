// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/AudioTrack.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace Platform {

Result<std::unique_ptr<ExtAudioFileReader>> AudioTrack::openReader() {
    auto reader = files_.openReader(path_);
    if (reader && (*reader)->setClientDataFormat(planarFloatFormat(CDFormat::kRate, 2)) != noErr)
        return Error{Error::Kind::UnknownFormat,
                     QCoreApplication::translate("Disc", "%1: its rate cannot be converted").arg(path_)};
    return reader;
}

Result<std::shared_ptr<AudioTrack>> AudioTrack::open(MediaFiles& files, const QString& path) {
    std::shared_ptr<AudioTrack> track(new AudioTrack(files, path));
    auto opened = track->openReader();
    if (!opened)
        return opened.error();
    track->opened_ = *std::move(opened);
    const ExtAudioFileReader& reader = *track->opened_;
    const AudioStreamBasicDescription format = reader.fileDataFormat();
    const std::int64_t length = reader.fileLengthFrames();
    if (length <= 0 || format.mSampleRate <= 0)
        return Error{Error::Kind::NoAudio, QCoreApplication::translate("Disc", "%1: contains no audio").arg(path)};
    const auto rate = std::int64_t(format.mSampleRate);
    track->frames_ = rate == CDFormat::kRate ? length : (length * CDFormat::kRate + rate / 2) / rate;
    track->sectors_ = std::max(CDFormat::kShortestTrack,
                               (track->frames_ + CDFormat::kFramesPerSector - 1) / CDFormat::kFramesPerSector);
    const bool isInteger = format.mBitsPerChannel > 0 && !(format.mFormatFlags & kAudioFormatFlagIsFloat);
    track->exact_ =
        rate == CDFormat::kRate && format.mChannelsPerFrame <= 2 && isInteger && format.mBitsPerChannel <= 16;
    track->divisible_ = format.mFormatID == kAudioFormatLinearPCM || format.mFormatID == kAudioFormatMPEG4AAC;
    track->title_ = reader.metadata(QStringLiteral("title"));
    track->artist_ = reader.metadata(QStringLiteral("artist"));
    return track;
}

Result<std::unique_ptr<SectorRenderer>> AudioTrack::renderer() {
    std::unique_ptr<ExtAudioFileReader> reader;
    {
        const std::lock_guard lock(mutex_);
        reader = std::move(opened_);
    }
    if (!reader) {
        auto again = openReader();
        if (!again)
            return again.error();
        reader = *std::move(again);
    }
    return std::make_unique<SectorRenderer>(std::move(reader), path_, frames_, exact_);
}

} // namespace Platform
