// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/BalanceReader.h"

#include "Platform/Foundation/Services.h"

#include <algorithm>
#include <cmath>

bool BalanceSettings::isSane() const {
    const auto isGain = [](double gain) { return gain >= kSilent && gain <= kLoudest; };
    return isGain(inputGain) && isGain(computerGain) && std::fabs(delayMs) <= kLongestDelayMs;
}

BalanceSettings BalanceSettings::loweredBy(double decibels) const {
    BalanceSettings lowered = *this;
    for (double* gain : {&lowered.inputGain, &lowered.computerGain})
        *gain = std::max(kSilent, *gain - decibels);
    return lowered;
}

double BalanceSettings::factor(double decibels) {
    return decibels <= kSilent ? 0 : std::pow(10, decibels / 20);
}

void BalanceControls::set(const BalanceSettings& settings) {
    inputGain_.store(float(BalanceSettings::factor(settings.inputGain)), std::memory_order_relaxed);
    computerGain_.store(float(BalanceSettings::factor(settings.computerGain)), std::memory_order_relaxed);
    delay_.store(std::llround(settings.delayMs * BalanceReader::kRate / 1000), std::memory_order_relaxed);
}

Platform::Result<std::unique_ptr<BalanceReader>> BalanceReader::open(const RecordingTracks::Tracks& tracks,
                                                                     std::shared_ptr<BalanceControls> controls) {
    std::unique_ptr<BalanceReader> reader(new BalanceReader);
    auto* const files = Platform::services().mediaFiles;
    const auto format = reader->fileDataFormat();
    for (const auto& [track, path] :
         {std::pair(&reader->input_, tracks.input), {&reader->computer_, tracks.computer}}) {
        auto file = files->openReader(path);
        if (!file)
            return file.error();
        track->file = *std::move(file);
        const double rate = track->file->fileDataFormat().mSampleRate;
        if (rate > 0)
            track->length = std::llround(double(track->file->fileLengthFrames()) * kRate / rate);
        if (track->file->setClientDataFormat(format) != noErr)
            return track->file->firstError();
    }
    reader->length_ = std::max(reader->input_.length, reader->computer_.length);
    reader->controls_ = std::move(controls);
    reader->delay_ = reader->controls_->delay();
    reader->input_.gain = reader->controls_->inputGain();
    reader->computer_.gain = reader->controls_->computerGain();
    return reader;
}

AudioStreamBasicDescription BalanceReader::fileDataFormat() const {
    return planarFloatFormat(kRate, 2);
}

OSStatus BalanceReader::setClientDataFormat(const AudioStreamBasicDescription& format) {
    return format == fileDataFormat() ? noErr : kAudioUnitErr_FormatNotSupported;
}

OSStatus BalanceReader::seek(std::int64_t clientFrame) {
    position_ = std::clamp<std::int64_t>(clientFrame, 0, length_);
    return noErr;
}

/// Fills the track's samples from its frame @p first on; before its beginning and behind its end it is silent.
void BalanceReader::readTrack(Track& track, std::int64_t first, std::uint32_t frames) {
    for (auto& row : track.samples)
        row.assign(frames, 0);
    const std::int64_t begin = std::clamp<std::int64_t>(first, 0, track.length);
    const std::int64_t end = std::clamp<std::int64_t>(first + frames, begin, track.length);
    if (begin == end)
        return;
    if (track.next != begin)
        track.file->seek(begin);
    track.next = begin;
    while (track.next < end) {
        const auto at = std::size_t(track.next - first);
        auto count = std::uint32_t(end - track.next);
        struct {
            AudioBufferList head;
            AudioBuffer second;
        } list;
        list.head.mNumberBuffers = 2;
        list.head.mBuffers[0] = {1, count * std::uint32_t(sizeof(float)), track.samples[0].data() + at};
        list.second = {1, count * std::uint32_t(sizeof(float)), track.samples[1].data() + at};
        // A damaged part comes as silence of its length, with an error.
        if (const OSStatus status = track.file->read(count, &list.head); status != noErr)
            status_ = status;
        if (count == 0)
            return;
        track.next += count;
    }
}

void BalanceReader::add(Track& track, float gain, std::uint32_t frames, AudioBufferList* data) {
    const float from = track.gain;
    track.gain = gain;
    for (std::size_t channel = 0; channel < 2; ++channel) {
        auto* out = static_cast<float*>((&data->mBuffers[0] + channel)->mData);
        const float* in = track.samples[channel].data();
        if (from == gain) {
            for (std::uint32_t i = 0; i < frames; ++i)
                out[i] += in[i] * gain;
        } else {
            for (std::uint32_t i = 0; i < frames; ++i)
                out[i] += in[i] * (from + (gain - from) * float(i + 1) / float(frames));
        }
    }
}

OSStatus BalanceReader::read(std::uint32_t& frames, AudioBufferList* data) {
    if (data->mNumberBuffers != 2) {
        frames = 0;
        return kAudioUnitErr_FormatNotSupported;
    }
    frames = std::uint32_t(std::min<std::int64_t>(frames, length_ - position_));
    for (std::size_t channel = 0; channel < 2; ++channel) {
        auto& buffer = *(&data->mBuffers[0] + channel);
        frames = std::min(frames, buffer.mDataByteSize / std::uint32_t(sizeof(float)));
    }
    for (std::size_t channel = 0; channel < 2; ++channel) {
        auto& buffer = *(&data->mBuffers[0] + channel);
        buffer.mDataByteSize = frames * std::uint32_t(sizeof(float));
        std::fill_n(static_cast<float*>(buffer.mData), frames, 0.0F);
    }
    if (frames == 0)
        return noErr;
    status_ = noErr;
    // With another delay the track ends in this block, and begins at its new place in the next one.
    const std::int64_t delay = controls_->delay();
    readTrack(input_, position_, frames);
    add(input_, controls_->inputGain(), frames, data);
    readTrack(computer_, position_ - delay_, frames);
    add(computer_, delay == delay_ ? controls_->computerGain() : 0, frames, data);
    delay_ = delay;
    position_ += frames;
    return status_;
}

Platform::Error BalanceReader::firstError() const {
    for (const Track* track : {&input_, &computer_})
        if (track->file)
            if (const auto error = track->file->firstError())
                return error;
    return {};
}
