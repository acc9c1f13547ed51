// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Describes an audio file without decoding it: length, format, number of packets, tags.
#include "Platform/Media/linux/decode/InputFile.h"

#include <algorithm>

namespace Platform {

namespace {

/// Frames that libavcodec removes from the beginning and the end of a packet's output.
struct Skipped {
    std::int64_t front = 0;
    std::int64_t back = 0;
};

Skipped skippedBy(const AVPacket& packet) {
    std::size_t size = 0;
    const std::uint8_t* data = Av::codecs().packetSideData(&packet, AV_PKT_DATA_SKIP_SAMPLES, &size);
    if (!data || size < 10)
        return {};
    const auto number = [](const std::uint8_t* p) {
        return std::int64_t(p[0]) | std::int64_t(p[1]) << 8 | std::int64_t(p[2]) << 16 | std::int64_t(p[3]) << 24;
    };
    return {number(data), number(data + 4)};
}

} // namespace

bool InputFile::isPcm() const {
    const AVCodecID id = stream_->codecpar->codec_id;
    return id >= AV_CODEC_ID_FIRST_AUDIO && id < AV_CODEC_ID_ADPCM_IMA_QT;
}

bool InputFile::formatIs(const char* name) const {
    const std::string names = std::string(",") + format_->iformat->name + ",";
    return names.find(std::string(",") + name + ",") != std::string::npos;
}

bool InputFile::timestampsAreExact() const {
    const AVCodecID id = stream_->codecpar->codec_id;
    return timesAreFine() && (isPcm() || id == AV_CODEC_ID_FLAC || (formatIs("mp4") && !facts_.fragmented));
}

std::int64_t InputFile::lengthFrames() {
    if (!length_)
        findLength();
    return *length_;
}

void InputFile::findLength() {
    const bool hasDuration = stream_->duration != AV_NOPTS_VALUE && stream_->duration > 0 &&
                             format_->duration_estimation_method != AVFMT_DURATION_FROM_BITRATE;
    if (facts_.validFrames)
        length_ = *facts_.validFrames;
    else if (hasDuration && timestampsAreExact())
        length_ = inFrames(stream_->duration);
    else
        countPackets();
}

/// Counts the frames of all packets of the file, without decoding them.
void InputFile::countPackets() {
    length_ = 0;
    packets_ = 0;
    const auto opened = open(path_, false);
    if (!opened)
        return;
    InputFile* const counter = opened->get();
    std::int64_t begin = 0;
    std::int64_t end = 0; // both in the stream's time
    std::int64_t usual = 0;
    std::int64_t off = 0;
    while (av_->readFrame(counter->format_.get(), packet_.get()) >= 0) {
        if (packet_->stream_index == counter->stream_->index) {
            const std::int64_t time = packet_->pts != AV_NOPTS_VALUE ? packet_->pts : end;
            const std::int64_t duration = counter->durationOf(*packet_);
            const Skipped skipped = skippedBy(*packet_);
            if (packets_++ == 0) {
                begin = std::max<std::int64_t>(0, time + counter->inStreamTime(skipped.front));
            }
            end = std::max(end, time + duration);
            // Some containers reduce the last duration by the padding, others do not.
            off = duration + counter->inStreamTime(skipped.back) <= usual ? 0 : skipped.back;
            usual = std::max(usual, duration);
        }
        Av::codecs().unrefPacket(packet_.get());
    }
    const std::int64_t lasting = av_rescale_q(end - begin, counter->stream_->time_base, AVRational{1, rate_});
    length_ = std::max<std::int64_t>(0, lasting - av_rescale(off, rate_, counter->rate_) - facts_.primingFrames);
}

AudioStreamBasicDescription InputFile::dataFormat() const {
    const AVCodecParameters& parameters = *stream_->codecpar;
    AudioStreamBasicDescription format;
    format.mSampleRate = rate_;
    format.mChannelsPerFrame = std::uint32_t(channels_);
    if (isPcm()) {
        const AVCodecID id = parameters.codec_id;
        const auto bits = std::uint32_t(std::max(0, Av::codecs().bitsPerSample(id)));
        const bool isFloat = id == AV_CODEC_ID_PCM_F32LE || id == AV_CODEC_ID_PCM_F32BE ||
                             id == AV_CODEC_ID_PCM_F64LE || id == AV_CODEC_ID_PCM_F64BE;
        const bool isUnsigned = id == AV_CODEC_ID_PCM_U8 || id == AV_CODEC_ID_PCM_U16LE || id == AV_CODEC_ID_PCM_U16BE;
        format.mFormatID = kAudioFormatLinearPCM;
        format.mFormatFlags = kAudioFormatFlagIsPacked | (isFloat      ? kAudioFormatFlagIsFloat
                                                          : isUnsigned ? 0
                                                                       : kAudioFormatFlagIsSignedInteger);
        format.mBitsPerChannel = bits;
        format.mBytesPerFrame = format.mBytesPerPacket = bits / 8 * format.mChannelsPerFrame;
        format.mFramesPerPacket = 1;
    } else if (parameters.codec_id == AV_CODEC_ID_AAC) {
        format.mFormatID = kAudioFormatMPEG4AAC;
        format.mFramesPerPacket = std::uint32_t(parameters.frame_size > 0 ? parameters.frame_size : 1024);
    } else {
        // The first four letters of the codec's name.
        const char* name = Av::codecs().name(parameters.codec_id);
        for (int i = 0; i < 4; ++i) {
            const char letter = *name ? *name++ : ' ';
            format.mFormatID = (format.mFormatID << 8) | std::uint8_t(letter);
        }
        format.mFramesPerPacket = std::uint32_t(std::max(0, parameters.frame_size));
        const AVCodecDescriptor* descriptor = Av::codecs().descriptor(parameters.codec_id);
        if (descriptor && (descriptor->props & AV_CODEC_PROP_LOSSLESS) && !(descriptor->props & AV_CODEC_PROP_LOSSY))
            format.mBitsPerChannel = std::uint32_t(std::max(0, parameters.bits_per_raw_sample));
    }
    return format;
}

std::int64_t InputFile::packetCount() {
    if (packets_ < 0) {
        if (isPcm())
            packets_ = lengthFrames();
        else if (formatIs("mp4") && !facts_.fragmented)
            packets_ = av_->indexEntriesCount(stream_);
        else {
            const auto length = length_;
            countPackets();
            if (length)
                length_ = length;
        }
    }
    return std::max<std::int64_t>(0, packets_);
}

QString InputFile::metadata(const QString& key) const {
    const QByteArray name = key.toUtf8();
    // Some containers store the tags in the file's dictionary, some in the stream's.
    for (const AVDictionary* tags : {format_->metadata, stream_->metadata})
        if (const AVDictionaryEntry* entry = av_dict_get(tags, name.constData(), nullptr, 0))
            return QString::fromUtf8(entry->value).trimmed();
    return {};
}

} // namespace Platform
