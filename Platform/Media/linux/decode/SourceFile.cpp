// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/decode/SourceFile.h"

#include "Platform/Foundation/linux/OpenFile.h"
#include "Platform/Media/linux/encode/PacketFile.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

SourceFile::~SourceFile() {
    if (fd_ >= 0)
        ::close(fd_);
}

Result<> SourceFile::open(const QString& path) {
    OpenedFile opened = openFile(path);
    if (!opened.file)
        return makeError(opened.error.kind, path, opened.error.text, opened.error.detail);
    if (opened.status.st_size == 0)
        return makeError(Error::Kind::UnknownFormat, path, QCoreApplication::translate("Media", "the file is empty"));
    fd_ = opened.file.release();
    ::posix_fadvise(fd_, 0, 0, POSIX_FADV_SEQUENTIAL);
    return {};
}

std::int64_t SourceFile::size() const {
    struct stat info = {};
    return ::fstat(fd_, &info) == 0 ? std::int64_t(info.st_size) : 0;
}

std::int64_t SourceFile::read(std::int64_t offset, std::span<std::uint8_t> out) const {
    return readAllAt(fd_, out.data(), out.size(), offset);
}

bool SourceFile::readAll(std::int64_t offset, std::span<std::uint8_t> out) const {
    return read(offset, out) == std::int64_t(out.size());
}

namespace {

constexpr double longestBelieved = 1e15; // frames; a larger length is not believed

/// The time scale of a "mvhd" or "mdhd".
std::int64_t timeScale(const std::vector<std::uint8_t>& bytes) {
    const std::size_t at = !bytes.empty() && bytes[0] == 1 ? 20 : 12;
    return bytes.size() >= at + 4 ? std::int64_t(bigEndian(bytes.data() + at, 4)) : 0;
}

struct Edit {
    std::int64_t duration = 0;
    std::int64_t start = 0;
};

/// The single edit that an audio track normally has; nothing when there are several, which libavformat handles.
std::optional<Edit> onlyEdit(const std::vector<std::uint8_t>& bytes) {
    if (bytes.size() < 8 || bigEndian(bytes.data() + 4, 4) != 1)
        return std::nullopt;
    const int width = bytes[0] == 1 ? 8 : 4;
    if (bytes.size() < 8 + std::size_t(width) * 2)
        return std::nullopt;
    const auto start = bigEndian(bytes.data() + 8 + width, width);
    const std::int64_t signedStart = width == 4 ? std::int32_t(std::uint32_t(start)) : std::int64_t(start);
    if (signedStart < 0)
        return std::nullopt;
    return Edit{std::int64_t(bigEndian(bytes.data() + 8, width)), signedStart};
}

std::int64_t sumOfDurations(const std::vector<std::uint8_t>& bytes) {
    double sum = 0;
    for (std::size_t at = 8; at + 8 <= bytes.size(); at += 8)
        sum += double(bigEndian(bytes.data() + at, 4)) * double(bigEndian(bytes.data() + at + 4, 4));
    return sum < longestBelieved ? std::int64_t(sum) : 0;
}

} // namespace

ContainerFacts readMpeg4Facts(const SourceFile& file, int rate) {
    ContainerFacts facts;
    const auto movie = findBox(file, {0, file.size()}, {fourCharCode("moov")});
    if (!movie)
        return facts;
    facts.fragmented = findBox(file, *movie, {fourCharCode("mvex")}).has_value();
    const std::int64_t movieScale = timeScale(boxBytes(file, *movie, {fourCharCode("mvhd")}));
    int soundTracks = 0;
    eachBox(file, *movie, [&](std::uint32_t type, ByteRange track) {
        if (type != fourCharCode("trak"))
            return true;
        const auto handler = boxBytes(file, track, {fourCharCode("mdia"), fourCharCode("hdlr")});
        if (handler.size() < 12 || bigEndian(handler.data() + 8, 4) != fourCharCode("soun"))
            return true;
        if (++soundTracks > 1) {
            facts = {}; // libavformat decides which of them is read
            return false;
        }
        const auto scale = timeScale(boxBytes(file, track, {fourCharCode("mdia"), fourCharCode("mdhd")}));
        facts.ownEncoder = movieScale == scale && handler.size() >= 24 + std::strlen(mpeg4HandlerName) &&
                           std::memcmp(handler.data() + 24, mpeg4HandlerName, std::strlen(mpeg4HandlerName)) == 0;
        const auto edit = onlyEdit(boxBytes(file, track, {fourCharCode("edts"), fourCharCode("elst")}));
        const auto table = findBox(file, track, {fourCharCode("mdia"), fourCharCode("minf"), fourCharCode("stbl")});
        if (!table)
            return true;
        const std::int64_t media = sumOfDurations(boxBytes(file, *table, {fourCharCode("stts")}));
        const auto formats = boxBytes(file, *table, {fourCharCode("stsd")});
        facts.descriptions = formats.size() < 8 ? 0 : std::int64_t(bigEndian(formats.data() + 4, 4));
        if (facts.fragmented || scale != rate || movieScale <= 0 || media <= 0 || !edit || edit->start > media)
            return true;
        // A time scale of milliseconds cannot express the exact frame: within the rounding the media duration is used.
        const std::int64_t left = media - edit->start;
        const double edited = double(edit->duration) * rate / double(movieScale);
        if (!(edited >= 0 && edited < longestBelieved))
            return true;
        const bool rounded = movieScale < rate && std::abs(edited - double(left)) <= double(rate) / double(movieScale);
        facts.editStart = edit->start;
        facts.validFrames = rounded ? left : std::min(left, std::int64_t(std::llround(edited)));
        return true;
    });
    return facts;
}

std::optional<AudioFileInfo> readOwnRecording(const SourceFile& file) {
    const auto media =
        findBox(file, {0, file.size()}, {fourCharCode("moov"), fourCharCode("trak"), fourCharCode("mdia")});
    if (!media)
        return std::nullopt;
    const auto rate = timeScale(boxBytes(file, *media, {fourCharCode("mdhd")}));
    const auto table = findBox(file, *media, {fourCharCode("minf"), fourCharCode("stbl")});
    if (rate <= 0 || rate > 1'000'000 || !table)
        return std::nullopt;
    const ContainerFacts facts = readMpeg4Facts(file, int(rate));
    const auto description = boxBytes(file, *table, {fourCharCode("stsd")});
    const auto sizes = findBox(file, *table, {fourCharCode("stsz")});
    constexpr std::size_t channelsAt =
        8 + 8 + 16; // the table's header, the entry's header, and the fields of every entry
    std::uint8_t head[12];
    if (!facts.ownEncoder || facts.fragmented || !facts.validFrames || description.size() < channelsAt + 2 ||
        bigEndian(description.data() + 12, 4) != fourCharCode("mp4a") || !sizes || sizes->to - sizes->from < 12 ||
        !file.readAll(sizes->from, head))
        return std::nullopt;
    AudioFileInfo info;
    info.dataFormat.mSampleRate = double(rate);
    info.dataFormat.mFormatID = kAudioFormatMPEG4AAC;
    info.dataFormat.mFramesPerPacket = 1024;
    info.dataFormat.mChannelsPerFrame = std::uint32_t(bigEndian(description.data() + channelsAt, 2));
    info.packetCount = std::int64_t(bigEndian(head + 8, 4));
    info.frameCount = *facts.validFrames;
    info.seconds = double(info.frameCount) / double(rate);
    if (info.dataFormat.mChannelsPerFrame == 0 || info.frameCount > info.packetCount * 1024)
        return std::nullopt;
    return info;
}

ContainerFacts readCafFacts(const SourceFile& file) {
    ContainerFacts facts;
    const std::int64_t end = file.size();
    std::int64_t at = 8;
    for (int i = 0; i < 10000 && end - at >= 12; ++i) {
        std::uint8_t head[12];
        if (!file.readAll(at, head))
            break;
        const auto size = std::int64_t(bigEndian(head + 4, 8));
        if (bigEndian(head, 4) == fourCharCode("pakt")) {
            std::uint8_t table[24];
            if (!file.readAll(at + 12, table))
                break;
            const auto valid = std::int64_t(bigEndian(table + 8, 8));
            const auto priming = std::int32_t(std::uint32_t(bigEndian(table + 16, 4)));
            if (valid >= 0 && priming >= 0) {
                facts.validFrames = valid;
                facts.primingFrames = priming;
            }
            break;
        }
        if (size < 0 || size > end - at - 12)
            break;
        at += 12 + size;
    }
    return facts;
}

} // namespace Platform
