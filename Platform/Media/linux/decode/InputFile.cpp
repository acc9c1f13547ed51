// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/decode/InputFile.h"

#include <QCoreApplication>

namespace Platform {

namespace {

constexpr int ioBufferBytes = 1 << 16;
constexpr std::int64_t prerollFrames = 16384; // decoded before a seek's target, for decoders with state
constexpr std::int64_t packetPreroll = 1024;  // the same where a packet needs only its predecessor
constexpr int mostFailuresInARow = 10000;
constexpr int mostRate = 3'000'000;

/// libavformat's access to a SourceFile. It sees no path and can open no other file.
struct Reading {
    const SourceFile* file;
    std::int64_t at = 0;
};

int readSome(void* opaque, std::uint8_t* out, int size) {
    auto* reading = static_cast<Reading*>(opaque);
    const std::int64_t got = reading->file->read(reading->at, std::span(out, std::size_t(size)));
    if (got <= 0)
        return got == 0 ? AVERROR_EOF : int(got);
    reading->at += got;
    return int(got);
}

std::int64_t seekTo(void* opaque, std::int64_t offset, int whence) {
    auto* reading = static_cast<Reading*>(opaque);
    if (whence & AVSEEK_SIZE)
        return reading->file->size();
    switch (whence & ~AVSEEK_FORCE) {
    case SEEK_CUR:
        offset += reading->at;
        break;
    case SEEK_END:
        offset += reading->file->size();
        break;
    default:
        break;
    }
    if (offset < 0)
        return AVERROR(EINVAL);
    return reading->at = offset;
}

int openNothing(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) {
    return AVERROR(EPERM);
}

} // namespace

Result<std::unique_ptr<InputFile>> InputFile::open(const QString& path, bool decode) {
    std::unique_ptr<InputFile> input(new InputFile(path));
    if (const auto opened = input->file_.open(path); !opened)
        return opened.error();
    std::string why;
    input->av_ = Av::formatLibrary(&why);
    if (!input->av_)
        return makeError(Error::Kind::Other, path,
                         QCoreApplication::translate("Media", "audio files cannot be read: %1")
                             .arg(QString::fromLocal8Bit(why.c_str())));
    input->frame_.reset(av_frame_alloc());
    input->packet_.reset(Av::codecs().allocPacket());
    if (const auto opened = input->openContainer(); !opened)
        return opened.error();
    if (decode)
        if (const auto opened = input->openDecoder(); !opened)
            return opened.error();
    return input;
}

InputFile::~InputFile() {
    format_.reset();
    if (io_)
        delete static_cast<Reading*>(io_->opaque);
}

Result<> InputFile::openContainer() {
    codec_.reset();
    format_.reset();
    stream_ = nullptr;
    if (!io_) {
        auto* buffer = static_cast<std::uint8_t*>(av_malloc(ioBufferBytes));
        auto reading = std::make_unique<Reading>(Reading{&file_});
        io_.reset(av_->allocIo(buffer, ioBufferBytes, 0, reading.get(), readSome, nullptr, seekTo));
        if (!io_) {
            av_free(buffer);
            return makeError(Error::Kind::Other, path_, QCoreApplication::translate("Media", "out of memory"));
        }
        (void)reading.release(); // freed with the file
    }
    if (av_->seekIo(io_.get(), 0, SEEK_SET) < 0) {
        return makeError(Error::Kind::Damaged, path_, QCoreApplication::translate("Media", "cannot be read"));
    }
    AVFormatContext* context = av_->allocContext();
    if (!context) {
        return makeError(Error::Kind::Other, path_, QCoreApplication::translate("Media", "out of memory"));
    }
    context->pb = io_.get();
    context->io_open = openNothing;
    // On failure libavformat frees the context.
    int code = av_->openInput(&context, "", nullptr, nullptr);
    if (code < 0) {
        const bool unknown = code == AVERROR_INVALIDDATA || code == AVERROR_EOF;
        return makeError(Error::Kind::UnknownFormat, path_,
                         unknown ? QCoreApplication::translate("Media", "not an audio file, or too damaged to be read")
                                 : QString::fromStdString(Av::text(code)),
                         QStringLiteral("libavformat: ") + QString::fromStdString(Av::text(code)));
    }
    format_.reset(context);
    code = av_->findStreamInfo(context, nullptr);
    const int best = av_->findBestStream(context, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (best < 0) {
        return makeError(Error::Kind::NoAudio, path_,
                         QCoreApplication::translate("Media", "the file contains no audio"));
    }
    stream_ = context->streams[best];
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        if (int(i) != best)
            context->streams[i]->discard = AVDISCARD_ALL;
    }
    rate_ = stream_->codecpar->sample_rate;
    channels_ = stream_->codecpar->ch_layout.nb_channels;
    if (code < 0 || rate_ <= 0 || rate_ > mostRate || channels_ <= 0 || channels_ > 64 || stream_->time_base.num <= 0 ||
        stream_->time_base.den <= 0) {
        return makeError(Error::Kind::Damaged, path_,
                         QCoreApplication::translate("Media", "its audio format is not supported"));
    }
    if (formatIs("mp4"))
        facts_ = readMpeg4Facts(file_, rate_);
    else if (formatIs("caf") && !isPcm())
        facts_ = readCafFacts(file_);
    return {};
}

Result<> InputFile::openDecoder() {
    codec_ = Av::createDecoder(*stream_);
    if (!codec_ || Av::codecs().open(codec_.get(), nullptr, nullptr) < 0) {
        codec_.reset();
        return makeError(Error::Kind::UnknownFormat, path_,
                         QCoreApplication::translate("Media", "no decoder for its audio format"));
    }
    if (outputChannels_ == 0)
        outputChannels_ = channels_;
    position_ = -facts_.primingFrames;
    target_ = 0;
    draining_ = timeFromFrames_ = frameIsWaiting_ = false;
    silence_ = packetTime_ = origin_ = 0;
    // Only a decoded frame gives the rate and channels reliably: some headers are incomplete.
    std::optional<Error> ignored;
    Got got = Got::Silence;
    for (int i = 0; i < 64 && got == Got::Silence; ++i)
        got = decodeOne(ignored);
    if (got == Got::Frame) {
        const bool believable = frame_->sample_rate > 0 && frame_->sample_rate <= mostRate;
        if (believable && frame_->sample_rate != rate_) {
            rate_ = frame_->sample_rate;
            facts_.validFrames.reset();
        }
        channels_ = std::max(1, frame_->ch_layout.nb_channels);
        // Frames before time 0 are priming that libavformat marked but did not remove.
        if (frame_->pts != AV_NOPTS_VALUE && frame_->pts < 0)
            position_ += inFrames(frame_->pts);
        else if (frame_->pts != AV_NOPTS_VALUE)
            origin_ = frame_->pts;
        frameIsWaiting_ = true;
        return {};
    }
    if (got == Got::Silence) {
        return makeError(Error::Kind::Damaged, path_,
                         QCoreApplication::translate("Media", "its audio cannot be decoded"));
    }
    if (ignored) {
        return *ignored;
    }
    return {}; // no frames at all: an empty recording
}

bool InputFile::timesAreFine() const {
    return std::int64_t(stream_->time_base.num) * rate_ <= stream_->time_base.den;
}

std::int64_t InputFile::inFrames(std::int64_t timestamp) const {
    return av_rescale_q(timestamp, stream_->time_base, AVRational{1, rate_});
}

/// In the stream's time; 0 when it is not known.
std::int64_t InputFile::durationOf(const AVPacket& packet) const {
    if (packet.duration > 0)
        return packet.duration;
    const AVCodecParameters& parameters = *stream_->codecpar;
    // libavformat does not know the duration of the first packet of a CAF file.
    if (parameters.codec_id != AV_CODEC_ID_AAC || parameters.frame_size <= 0 || parameters.sample_rate <= 0)
        return 0;
    return av_rescale_q(parameters.frame_size, AVRational{1, parameters.sample_rate}, stream_->time_base);
}

std::int64_t InputFile::inStreamTime(std::int64_t frames) const {
    return av_rescale_q(frames, AVRational{1, rate_}, stream_->time_base);
}

void InputFile::setOutputChannels(int channels) {
    outputChannels_ = channels;
    mixer_.reset();
}

/// Decodes the next frame, or gives the length of the silence that replaces a damaged one.
InputFile::Got InputFile::decodeOne(std::optional<Error>& error) {
    const auto damaged = [&](int code) {
        error = makeError(Error::Kind::Damaged, path_,
                          QCoreApplication::translate("Media", "damaged at frame %1 (%2)")
                              .arg(position_)
                              .arg(QString::fromStdString(Av::text(code))));
    };
    for (;;) {
        av_frame_unref(frame_.get());
        const int received = Av::codecs().receiveFrame(codec_.get(), frame_.get());
        if (received >= 0) {
            failuresInARow_ = 0;
            if (frame_->nb_samples > 0 && frame_->ch_layout.nb_channels > 0)
                return Got::Frame;
            continue;
        }
        if (received == AVERROR_EOF)
            return Got::End;
        if (received != AVERROR(EAGAIN)) {
            damaged(received);
            if (++failuresInARow_ > mostFailuresInARow || draining_)
                return Got::End;
            silence_ = 0;
            return Got::Silence;
        }
        if (draining_)
            return Got::End;
        const int read = av_->readFrame(format_.get(), packet_.get());
        if (read < 0) {
            if (read != AVERROR_EOF && read != AVERROR(EAGAIN))
                damaged(read);
            draining_ = true;
            if (Av::codecs().sendPacket(codec_.get(), nullptr) < 0)
                return Got::End;
            continue;
        }
        if (packet_->stream_index != stream_->index) {
            Av::codecs().unrefPacket(packet_.get());
            continue;
        }
        const std::int64_t duration = durationOf(*packet_);
        if (packet_->pts == AV_NOPTS_VALUE)
            packet_->pts = packetTime_;
        packetTime_ = packet_->pts + duration;
        const int sent = Av::codecs().sendPacket(codec_.get(), packet_.get());
        Av::codecs().unrefPacket(packet_.get());
        if (sent < 0 && sent != AVERROR(EAGAIN)) {
            damaged(sent);
            if (sent == AVERROR(ENOMEM) || ++failuresInARow_ > mostFailuresInARow)
                return Got::End;
            silence_ = std::min<std::int64_t>(inFrames(duration), rate_);
            return Got::Silence;
        }
    }
}

InputFile::Block InputFile::next() {
    Block block;
    // A wrong length in a header must only remove the padding of codecs that pad.
    const bool cut = facts_.validFrames.has_value();
    for (;;) {
        if (cut && position_ >= *facts_.validFrames)
            return block;
        std::optional<Error> error;
        const Got got = std::exchange(frameIsWaiting_, false) ? Got::Frame : decodeOne(error);
        if (error && !block.error)
            block.error = error;
        if (got == Got::End)
            return block;
        std::int64_t frames = got == Got::Frame ? frame_->nb_samples : silence_;
        if (got == Got::Frame && timeFromFrames_) {
            const std::int64_t time = frame_->pts != AV_NOPTS_VALUE ? frame_->pts : frame_->best_effort_timestamp;
            if (time != AV_NOPTS_VALUE)
                position_ = inFrames(time - origin_) - facts_.primingFrames;
            timeFromFrames_ = false;
        }
        const std::int64_t from = position_;
        position_ += frames;
        if (cut)
            frames = std::min(frames, *facts_.validFrames - from);
        const std::int64_t skip = std::max<std::int64_t>(0, target_ - from);
        if (skip >= frames)
            continue;
        if (got == Got::Silence) {
            mixed_.assign(std::size_t(outputChannels_), std::vector<float>(std::size_t(frames - skip)));
            rows_.clear();
            for (const auto& row : mixed_)
                rows_.push_back(row.data());
            block.rows = rows_.data();
            block.frames = std::size_t(frames - skip);
            return block;
        }
        Block converted = convert(skip, frames - skip);
        if (block.error && !converted.error)
            converted.error = block.error;
        if (converted.frames > 0)
            return converted;
        block.error = converted.error;
    }
}

/// Converts the samples of frame_ to the output's layout.
InputFile::Block InputFile::convert(std::int64_t skip, std::int64_t most) {
    Block block;
    const int have = frame_->ch_layout.nb_channels;
    const auto width = std::size_t(outputChannels_);
    rows_.resize(width);
    block.frames = std::size_t(most);
    if (frame_->format == AV_SAMPLE_FMT_FLTP && (have == outputChannels_ || have == 1)) {
        for (std::size_t c = 0; c < width; ++c)
            rows_[c] = reinterpret_cast<const float*>(frame_->extended_data[have == 1 ? 0 : c]) + skip;
        block.rows = rows_.data();
        return block;
    }
    // One channel fills all; where the layout is unknown, or has fewer channels, the first ones are used.
    const auto frames = std::size_t(frame_->nb_samples);
    const std::size_t made = have == 1 ? 1 : width;
    if (!mixer_ || swr_is_initialized(mixer_.get()) == 0 || mixerFormat_ != frame_->format || mixerChannels_ != have) {
        mixer_.reset();
        AVChannelLayout in = {};
        AVChannelLayout out = {};
        if (frame_->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
            av_channel_layout_default(&in, have);
        else
            av_channel_layout_copy(&in, &frame_->ch_layout);
        if (int(made) == have)
            av_channel_layout_copy(&out, &in);
        else
            av_channel_layout_default(&out, int(made));
        SwrContext* context = nullptr;
        swr_alloc_set_opts2(&context, &out, AV_SAMPLE_FMT_FLTP, rate_, &in, AVSampleFormat(frame_->format), rate_, 0,
                            nullptr);
        av_channel_layout_uninit(&in);
        av_channel_layout_uninit(&out);
        mixer_.reset(context);
        if (mixer_)
            av_opt_set_double(mixer_.get(), "rematrix_maxval", 1.0,
                              0); // a downmix of full-scale channels must not clip
        if (!mixer_ || swr_init(mixer_.get()) < 0) {
            mixer_.reset();
            block.frames = 0;
            block.error = makeError(Error::Kind::Damaged, path_,
                                    QCoreApplication::translate("Media", "channels that cannot be mixed"));
            return block;
        }
        mixerFormat_ = frame_->format;
        mixerChannels_ = have;
    }
    mixed_.resize(made);
    std::vector<std::uint8_t*> out(made);
    for (std::size_t c = 0; c < made; ++c) {
        mixed_[c].resize(frames);
        out[c] = reinterpret_cast<std::uint8_t*>(mixed_[c].data());
    }
    const int got = swr_convert(mixer_.get(), out.data(), int(frames),
                                const_cast<const std::uint8_t**>(frame_->extended_data), int(frames));
    if (got < int(frames)) {
        block.frames = 0;
        return block;
    }
    for (std::size_t c = 0; c < width; ++c)
        rows_[c] = mixed_[made == 1 ? 0 : c].data() + skip;
    block.rows = rows_.data();
    return block;
}

bool InputFile::seek(std::int64_t frame) {
    frame = std::max<std::int64_t>(0, frame);
    failuresInARow_ = 0;
    const std::int64_t preroll = seeksExactly() ? packetPreroll : prerollFrames;
    if (timestampsAreExact() && frame > preroll) {
        const std::int64_t time = inStreamTime(frame - preroll) + origin_;
        if (av_->seekFrame(format_.get(), stream_->index, time, AVSEEK_FLAG_BACKWARD) >= 0) {
            Av::codecs().flushBuffers(codec_.get());
            draining_ = frameIsWaiting_ = false;
            timeFromFrames_ = true;
            target_ = frame;
            return true;
        }
    }
    // Starts over, as if the file had just been opened.
    if (!openContainer() || !openDecoder())
        return false;
    target_ = frame;
    if (frame <= 2 * prerollFrames || !timesAreFine())
        return true;
    // When the target is far ahead, the packets before it are skipped without decoding.
    const std::int64_t origin = origin_;
    if (!openContainer())
        return false;
    codec_ = Av::createDecoder(*stream_);
    if (!codec_ || Av::codecs().open(codec_.get(), nullptr, nullptr) < 0)
        return false;
    frameIsWaiting_ = draining_ = false;
    packetTime_ = 0;
    std::int64_t longest = 0;
    while (inFrames(packetTime_ - origin + 2 * longest) < frame - prerollFrames) {
        if (av_->readFrame(format_.get(), packet_.get()) < 0)
            break;
        if (packet_->stream_index == stream_->index) {
            const std::int64_t duration = durationOf(*packet_);
            longest = std::max(longest, duration);
            packetTime_ = (packet_->pts != AV_NOPTS_VALUE ? packet_->pts : packetTime_) + duration;
        }
        Av::codecs().unrefPacket(packet_.get());
    }
    timeFromFrames_ = true;
    return true;
}

} // namespace Platform
