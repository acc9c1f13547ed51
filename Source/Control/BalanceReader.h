// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"
#include "Source/Model/RecordingTracks.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

/// How two tracks are mixed.
struct BalanceSettings {
    /// A gain at or below this one is silence. The other end of the range is the largest gain.
    static constexpr double kSilent = -60;
    static constexpr double kLoudest = 20;
    static constexpr double kLongestDelayMs = 2000; ///< in both directions

    double inputGain = 0;    ///< dB
    double computerGain = 0; ///< dB
    double delayMs = 0;      ///< how much later computer audio is; negative: earlier

    [[nodiscard]] bool operator==(const BalanceSettings&) const = default;
    [[nodiscard]] bool isSane() const;
    /// Both gains lower by @p decibels.
    [[nodiscard]] BalanceSettings loweredBy(double decibels) const;
    [[nodiscard]] static double factor(double decibels);
};

/// What a reader of a balance follows while another thread reads it: the settings may change at any time, from any
/// thread. Shared by the reader and whoever controls it.
class BalanceControls {
public:
    explicit BalanceControls(const BalanceSettings& settings) { set(settings); }
    void set(const BalanceSettings& settings);

    [[nodiscard]] float inputGain() const { return inputGain_.load(std::memory_order_relaxed); }
    [[nodiscard]] float computerGain() const { return computerGain_.load(std::memory_order_relaxed); }
    /// Frames of the mix's rate.
    [[nodiscard]] std::int64_t delay() const { return delay_.load(std::memory_order_relaxed); }

private:
    std::atomic<float> inputGain_{1};
    std::atomic<float> computerGain_{1};
    std::atomic<std::int64_t> delay_{0};
};

/// Reads the sum of two tracks with their gains and the delay: 44100 Hz, two channels, as long as the longer track. The
/// delay moves computer audio against the input; what it moves beyond an end of the recording is not in the sum. A
/// changed gain is reached over one block, and a changed delay between two blocks of silence of that track, so that
/// neither clicks. The sum is not limited. One thread at a time.
class BalanceReader final : public Platform::ExtAudioFileReader {
public:
    static constexpr int kRate = 44100;

    static Platform::Result<std::unique_ptr<BalanceReader>> open(const RecordingTracks::Tracks& tracks,
                                                                 std::shared_ptr<BalanceControls> controls);

    [[nodiscard]] AudioStreamBasicDescription fileDataFormat() const override;
    [[nodiscard]] std::int64_t fileLengthFrames() const override { return length_; }
    /// Only the reader's own format is accepted.
    OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) override;
    OSStatus seek(std::int64_t clientFrame) override;
    OSStatus read(std::uint32_t& frames, AudioBufferList* data) override;
    [[nodiscard]] Platform::Error firstError() const override;

private:
    struct Track {
        std::unique_ptr<Platform::ExtAudioFileReader> file;
        std::int64_t length = 0; ///< frames at the mix's rate
        std::int64_t next = 0;   ///< frame of the track that the next read returns
        float gain = 0;          ///< at the end of the last block
        std::array<std::vector<float>, 2> samples;
    };

    BalanceReader() = default;
    void readTrack(Track& track, std::int64_t first, std::uint32_t frames);
    static void add(Track& track, float gain, std::uint32_t frames, AudioBufferList* data);

    std::shared_ptr<BalanceControls> controls_;
    Track input_;
    Track computer_;
    std::int64_t delay_ = 0; ///< of the block that is being read
    std::int64_t length_ = 0;
    std::int64_t position_ = 0;
    OSStatus status_ = noErr;
};
