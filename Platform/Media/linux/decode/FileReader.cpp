// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/decode/FileReader.h"

#include <QCoreApplication>

#include <cmath>
#include <cstring>
#include <numeric>

namespace Platform {

namespace {

/// Source frames to feed before the first wanted one, so that the converter's filter has settled.
constexpr std::int64_t settleFrames = 8192;

} // namespace

FileReader::FileReader(std::unique_ptr<InputFile> input) : input_(std::move(input)) {
    setClientDataFormat(planarFloatFormat(input_->rate(), std::uint32_t(input_->channels())));
}

OSStatus FileReader::setClientDataFormat(const AudioStreamBasicDescription& format) {
    const double rate = format.mSampleRate;
    if (format.mFormatID != kAudioFormatLinearPCM || !(format.mFormatFlags & kAudioFormatFlagIsFloat) ||
        format.mBitsPerChannel != 32 || format.mChannelsPerFrame < 1 || format.mChannelsPerFrame > 64 ||
        !(rate >= 1 && rate <= 3'000'000))
        return kMediaInvalidPropertyError;
    client_ = format;
    input_->setOutputChannels(int(format.mChannelsPerFrame));
    rows_.assign(format.mChannelsPerFrame, nullptr);
    converted_ = Planes(format.mChannelsPerFrame);
    return seek(0);
}

OSStatus FileReader::seek(std::int64_t clientFrame) {
    const auto clientRate = std::int64_t(std::lround(client_.mSampleRate));
    const std::int64_t rate = input_->rate();
    clientFrame = std::max<std::int64_t>(0, clientFrame);
    waiting_ = 0;
    drop_ = 0;
    ended_ = false;
    converter_.reset();
    std::int64_t source = clientFrame;
    if (clientRate != rate) {
        if (rate < 1)
            return kMediaInvalidPropertyError;
        converter_ = std::make_unique<ConversionStream>(client_.mChannelsPerFrame, int(rate), int(clientRate));
        if (!converter_->valid())
            return kMediaInvalidPropertyError;
        // Start where a source frame and a client frame coincide.
        const std::int64_t common = std::gcd(rate, clientRate);
        const std::int64_t step = rate / common;
        const std::int64_t steps =
            std::max<std::int64_t>(0, (clientFrame / (clientRate / common) * step - settleFrames) / step);
        source = steps * step;
        drop_ = clientFrame - steps * (clientRate / common);
    }
    if (source == 0 && atStart_) {
        return noErr;
    }
    atStart_ = false;
    if (!input_->seek(source)) {
        ended_ = true;
        const auto error = makeError(Error::Kind::Damaged, input_->path(),
                                     QCoreApplication::translate("Media", "cannot be read from the beginning"));
        if (!firstError_)
            firstError_ = error;
        return statusOf(error);
    }
    return noErr;
}

/// Decodes the next block; false at the end.
bool FileReader::fill(OSStatus& status) {
    while (waiting_ == 0 && !ended_) {
        atStart_ = false;
        const InputFile::Block block = input_->next();
        if (block.error) {
            status = statusOf(*block.error);
            if (!firstError_)
                firstError_ = *block.error;
        }
        ended_ = block.frames == 0;
        if (!converter_) {
            std::copy_n(block.rows, ended_ ? 0 : rows_.size(), rows_.begin());
            waiting_ = block.frames;
            continue;
        }
        if (ended_)
            converter_->finish(converted_);
        else
            converter_->feed(block.rows, block.frames, converted_);
        const auto dropped = std::min<std::int64_t>(drop_, std::int64_t(converted_.frames()));
        drop_ -= dropped;
        waiting_ = converted_.frames() - std::size_t(dropped);
        for (std::size_t c = 0; c < rows_.size(); ++c)
            rows_[c] = converted_.row(c) + dropped;
    }
    return waiting_ > 0;
}

OSStatus FileReader::read(std::uint32_t& frames, AudioBufferList* data) {
    if (!data)
        return kMediaInvalidPropertyError;
    const bool apart = client_.mFormatFlags & kAudioFormatFlagIsNonInterleaved;
    const std::size_t stride = apart ? 1 : client_.mChannelsPerFrame;
    const auto buffers = std::span(data->mBuffers, data->mNumberBuffers);
    std::size_t most = frames;
    for (const AudioBuffer& buffer : buffers)
        most = std::min(most, std::size_t(buffer.mDataByteSize) / (4 * stride));
    OSStatus status = noErr;
    std::size_t done = 0;
    while (done < most && fill(status)) {
        const std::size_t count = std::min(waiting_, most - done);
        for (std::size_t c = 0; c < rows_.size(); ++c) {
            const std::size_t index = apart ? c : 0;
            auto* out = index < buffers.size() ? static_cast<float*>(buffers[index].mData) : nullptr;
            if (out && apart)
                std::memcpy(out + done, rows_[c], count * sizeof(float));
            else if (out)
                for (std::size_t i = 0; i < count; ++i)
                    out[(done + i) * stride + c] = rows_[c][i];
            rows_[c] += count;
        }
        waiting_ -= count;
        done += count;
    }
    for (AudioBuffer& buffer : buffers)
        buffer.mDataByteSize = std::uint32_t(done * 4 * stride);
    frames = std::uint32_t(done);
    return status;
}

FileReader::Rows FileReader::readRows(std::size_t most) {
    Rows result;
    if (!fill(result.status))
        return result;
    given_ = rows_;
    result.rows = given_.data();
    result.frames = std::min(most, waiting_);
    for (auto& row : rows_)
        row += result.frames;
    waiting_ -= result.frames;
    return result;
}

bool FileReader::seeksExactly() const {
    return client_.mSampleRate == input_->rate() && input_->seeksExactly();
}

bool FileReader::sparseSamples(std::span<const std::int64_t> frames, std::span<float> out) {
    return client_.mSampleRate == input_->rate() && input_->channels() <= 2 &&
           int(client_.mChannelsPerFrame) >= input_->channels() && input_->sparseSamples(frames, out);
}

} // namespace Platform
