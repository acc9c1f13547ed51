// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/CDTextControl.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/CDBurn/TrackEntry.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QFileInfo>

namespace {

using Kind = Platform::Error::Kind;

constexpr OSStatus kNoSuchFile = -43;
constexpr OSStatus kNotPermitted = OSStatus(fourCharCode("prm?"));
constexpr OSStatus kUnsupportedType = OSStatus(fourCharCode("typ?"));
constexpr OSStatus kUnspecified = OSStatus(fourCharCode("wht?"));

OSStatus statusOf(Kind kind) {
    switch (kind) {
    case Kind::None:
        return noErr;
    case Kind::NotFound:
        return kNoSuchFile;
    case Kind::NotPermitted:
        return kNotPermitted;
    case Kind::NotAFile:
    case Kind::UnknownFormat:
    case Kind::NoAudio:
        return kUnsupportedType;
    default:
        return kUnspecified;
    }
}

constexpr std::int64_t kLongestRefused = 2; ///< an entry's seconds, which are those of the file plus one
/// A damaged library entry may contain any length.
constexpr std::int64_t kLongest = std::int64_t(365) * 24 * 3600;

Dictionary entryOf(const QString& path, std::int64_t wholeSeconds) {
    const std::int64_t length = std::min(wholeSeconds, kLongest) + 1;
    if (length <= kLongestRefused)
        return {};
    return {{TrackEntry::FilePath, path},
            {TrackEntry::FileName, QFileInfo(path).fileName()},
            {TrackEntry::FileTimeLong, qlonglong(length)},
            {TrackEntry::FileSize, CDTextControl::kMegabytesPerSecond * float(length)},
            {TrackEntry::ChooseTheAudio, true}};
}

} // namespace

OSStatus CreateAudioFileFromPath(const QString& path, Platform::AudioFileInfo& audioFile) {
    Platform::MediaFiles* const files = Platform::services().mediaFiles;
    if (!files)
        return kUnspecified;
    const auto info = files->info(path);
    if (!info)
        return statusOf(info.error().kind);
    audioFile = *info;
    return noErr;
}

std::uint64_t CAGetLengthOfAudioFile(const QString& path) {
    Platform::AudioFileInfo file;
    if (CreateAudioFileFromPath(path, file) != noErr)
        return 0;
    const AudioStreamBasicDescription& format = file.dataFormat;
    if (!(format.mSampleRate > 0))
        return 0;
    // Formats with packets of varying length (Vorbis) have no frame count per packet; use the file's own length.
    const double frames =
        format.mFramesPerPacket > 0 ? double(file.packetCount) * format.mFramesPerPacket : double(file.frameCount);
    const double seconds = frames / format.mSampleRate;
    return seconds > 0 && seconds < kLongest ? std::uint64_t(seconds) : 0;
}

namespace CDTextControl {

Dictionary setAudioInfoForDic(const QString& path) {
    return entryOf(path, std::int64_t(CAGetLengthOfAudioFile(path)));
}

Dictionary addRecordAudioInfoForDic(const Dictionary& record) {
    return entryOf(record.value(AudioRecordEntry::SavePath).toString(),
                   Platform::longLongValue(record.value(AudioRecordEntry::Length)));
}

} // namespace CDTextControl
