// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/libav/RateConverter.h"
#include "Platform/Media/linux/libav/LibAv.h"

#include <algorithm>
#include <numeric>

namespace Platform {

namespace {

constexpr std::size_t blockFrames = 4096;

Av::ResamplerPtr createEngine(std::size_t channels, int inRate, int outRate, bool soxr) {
    Av::ResamplerPtr engine(swr_alloc());
    if (!engine)
        return nullptr;
    AVChannelLayout layout = {};
    layout.order = AV_CHANNEL_ORDER_UNSPEC;
    layout.nb_channels = int(channels);
    av_opt_set_chlayout(engine.get(), "in_chlayout", &layout, 0);
    av_opt_set_chlayout(engine.get(), "out_chlayout", &layout, 0);
    av_opt_set_int(engine.get(), "in_sample_rate", inRate, 0);
    av_opt_set_int(engine.get(), "out_sample_rate", outRate, 0);
    av_opt_set_sample_fmt(engine.get(), "in_sample_fmt", AV_SAMPLE_FMT_FLTP, 0);
    av_opt_set_sample_fmt(engine.get(), "out_sample_fmt", AV_SAMPLE_FMT_FLTP, 0);
    if (soxr) {
        av_opt_set_int(engine.get(), "resampler", SWR_ENGINE_SOXR, 0);
        av_opt_set_double(engine.get(), "precision", 20, 0);
    } else {
        av_opt_set_int(engine.get(), "filter_size", 64, 0);
        av_opt_set_double(engine.get(), "cutoff", 0.97, 0);
        av_opt_set_int(engine.get(), "exact_rational", 1, 0);
    }
    if (swr_init(engine.get()) < 0)
        return nullptr;
    return engine;
}

} // namespace

struct RateConverter::Engine {
    Av::ResamplerPtr swr;
};

RateConverter::RateConverter(std::size_t channels, int inRate, int outRate)
    : engine_(std::make_unique<Engine>()), channels_(channels), inRate_(inRate), outRate_(outRate) {
    if (inRate > 0 && outRate > 0)
        period_ = inRate / std::gcd(inRate, outRate);
    reset();
}

RateConverter::~RateConverter() = default;

bool RateConverter::valid() const {
    return inRate_ > 0 && outRate_ > 0 && channels_ > 0 && (passesThrough() || engine_->swr);
}

void RateConverter::reset() {
    if (passesThrough() || inRate_ <= 0 || outRate_ <= 0 || channels_ == 0)
        return;
    engine_->swr = createEngine(channels_, inRate_, outRate_, true);
    if (!engine_->swr)
        engine_->swr = createEngine(channels_, inRate_, outRate_, false); // libswresample was built without soxr
}

void RateConverter::feed(const float* const* rows, std::size_t frames, Planes& out) {
    if (frames == 0)
        return;
    if (passesThrough()) {
        const std::size_t at = out.frames();
        out.resize(at + frames);
        for (std::size_t c = 0; c < channels_; ++c)
            std::copy_n(rows[c], frames, out.row(c) + at);
        return;
    }
    std::vector<const std::uint8_t*> in(channels_);
    for (std::size_t done = 0; done < frames; done += blockFrames) {
        for (std::size_t c = 0; c < channels_; ++c)
            in[c] = reinterpret_cast<const std::uint8_t*>(rows[c] + done);
        run(in.data(), std::min(blockFrames, frames - done), out);
    }
}

void RateConverter::flush(Planes& out) {
    if (!passesThrough())
        run(nullptr, 0, out);
}

void RateConverter::run(const std::uint8_t** in, std::size_t frames, Planes& out) {
    if (!engine_->swr)
        return;
    std::vector<std::uint8_t*> rows(channels_);
    for (;;) {
        const std::size_t at = out.frames();
        const std::size_t room = std::size_t(std::int64_t(frames) * outRate_ / inRate_) + blockFrames;
        out.resize(at + room);
        for (std::size_t c = 0; c < channels_; ++c)
            rows[c] = reinterpret_cast<std::uint8_t*>(out.row(c) + at);
        const int got = swr_convert(engine_->swr.get(), rows.data(), int(room), in, int(frames));
        out.resize(at + std::size_t(std::max(0, got)));
        if (got < int(room))
            return;
        frames = 0; // the whole input is consumed by the first call; the loop only drains
    }
}

std::int64_t RateConverter::outputFrames(std::int64_t inputFrames) const {
    if (inRate_ <= 0 || passesThrough())
        return inputFrames;
    const std::int64_t whole = inputFrames / inRate_ * outRate_;
    return whole + (inputFrames % inRate_ * outRate_ + inRate_ / 2) / inRate_;
}

ConversionStream::ConversionStream(std::size_t channels, int inRate, int outRate)
    : converter_(channels, inRate, outRate), channels_(channels), fresh_(channels) {
}

void ConversionStream::feed(const float* const* rows, std::size_t frames, Planes& out) {
    const std::lock_guard lock(mutex_);
    out.clear();
    fed_ += std::int64_t(frames);
    const std::size_t at = fresh_.frames();
    converter_.feed(rows, frames, fresh_);
    skipFrom(at);
    distribute(out);
}

void ConversionStream::pass(std::size_t frames) {
    const std::lock_guard lock(mutex_);
    fed_ += std::int64_t(frames);
    produced_ += std::int64_t(frames);
}

void ConversionStream::cut(std::shared_ptr<CutTail> tail) {
    const std::lock_guard lock(mutex_);
    segments_.push_back({std::max(produced_, converter_.outputFrames(fed_)), std::move(tail)});
    distribute(fresh_); // with equal rates nothing is held back
}

void ConversionStream::finish(Planes& out) {
    const std::lock_guard lock(mutex_);
    out.clear();
    flushToEnd();
    distribute(out);
}

void ConversionStream::completeTails() {
    const std::lock_guard lock(mutex_);
    if (segments_.empty())
        return;
    flushToEnd();
    distribute(fresh_); // frames behind the last cut stay for the next file
    // The new converter starts shortly before this position, where input and output positions coincide.
    converter_.reset();
    const std::int64_t start = fed_ / converter_.period() * converter_.period();
    skip_ = converter_.outputFrames(fed_) - converter_.outputFrames(start);
    Planes silence(channels_);
    silence.resize(std::size_t(fed_ - start));
    std::vector<const float*> rows(channels_);
    for (std::size_t c = 0; c < channels_; ++c)
        rows[c] = silence.row(c);
    const std::size_t at = fresh_.frames();
    converter_.feed(rows.data(), silence.frames(), fresh_);
    skipFrom(at);
}

/// Drains the converter until the output has the length of the input.
void ConversionStream::flushToEnd() {
    const std::size_t at = fresh_.frames();
    converter_.flush(fresh_);
    skipFrom(at);
    fresh_.resize(std::size_t(std::max<std::int64_t>(0, converter_.outputFrames(fed_) - produced_)));
}

/// Removes from the output, from @p at on, the frames before the position at which the converter was restarted.
void ConversionStream::skipFrom(std::size_t at) {
    const auto count = std::min<std::size_t>(std::size_t(skip_), fresh_.frames() - at);
    fresh_.erase(at, count);
    skip_ -= std::int64_t(count);
}

void ConversionStream::distribute(Planes& out) {
    std::size_t from = 0;
    const std::size_t all = fresh_.frames();
    while (!segments_.empty()) {
        const Segment segment = segments_.front();
        const std::size_t take = std::size_t(std::min<std::int64_t>(segment.end - produced_, std::int64_t(all - from)));
        const std::lock_guard lock(segment.tail->mutex);
        segment.tail->frames.append(fresh_, from, from + take);
        from += take;
        produced_ += std::int64_t(take);
        if (produced_ < segment.end)
            break;
        segment.tail->complete = true;
        segment.tail->changed.notify_all();
        segments_.pop_front();
    }
    if (&out == &fresh_) {
        fresh_.erase(0, from);
        return;
    }
    out.append(fresh_, from, all);
    produced_ += std::int64_t(all - from);
    fresh_.clear();
}

} // namespace Platform
