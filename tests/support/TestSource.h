// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/linux/SignalSource.h"

#include <atomic>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The signals of test devices and players. Every value is a function of the frame's index, so that a capture can be
/// checked sample by sample without the source.
namespace Signal {

inline constexpr std::uint32_t rampMask = 0xFFFFFF; ///< the ramp repeats after 2^24 frames (380 s at 44.1 kHz)

/// A value that encodes its frame number: exact in 32-bit float and in 24 or 32-bit integers, in [-1, 1).
[[nodiscard]] inline float ramp(std::uint64_t frame, std::uint32_t channel) noexcept {
    const auto code = std::int32_t((frame + channel * 4096u) & rampMask) - 0x800000;
    return float(code) / 0x800000;
}
/// The frame number (modulo 2^24) that a ramp's value encodes.
[[nodiscard]] inline std::uint32_t rampFrame(float value, std::uint32_t channel) noexcept {
    return (std::uint32_t(std::int32_t(std::lround(double(value) * 0x800000)) + 0x800000) - channel * 4096u) & rampMask;
}
/// Broadband noise in [-0.5, 0.5), white, the channels independent.
[[nodiscard]] inline float noise(std::uint64_t frame, std::uint32_t channel) noexcept {
    std::uint64_t x = frame * 2 + channel + 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
    x ^= x >> 31;
    return float(double(x >> 11) / 9007199254740992.0 - 0.5);
}
[[nodiscard]] inline float tone(std::uint64_t frame, double frequency, double rate, double amplitude) noexcept {
    return float(amplitude * std::sin(2 * std::numbers::pi * std::fmod(double(frame) * frequency / rate, 1.0)));
}

} // namespace Signal

/// An input device of the private session ("Audio/Source"), in this process, which the test controls.
///
///     TestSource source({.name = "test.ramp", .description = "Test Ramp", .rate = 44100}); // content: Ramp
///     ASSERT_TRUE(source.start()); // ports and the device list follow within milliseconds
///     source.setContent(TestSource::Content::Silence);
///     source.remove();             // unplugged
///     ASSERT_TRUE(source.start()); // back under the same name, from frame 0
///
/// Several may run at once. A source has its own clock like a sound card, which runs .clockErrorPpm faster than
/// nominal; two such sources drift apart. It waits with a cycle until the previous one was processed, so that nothing
/// is lost on an overloaded machine. With .ownClock = false it follows the server's clock, and on a busy machine cycles
/// may be lost (the recording side counts them). A source at 44.1 kHz is exact at its own rate: the private session
/// allows it. With .mediaClass = "Stream/Output/Audio" it is a program that plays into the output named .target
/// (node.name; empty: the default output); see TestPlayer.
class TestSource {
public:
    enum class Content { Ramp, Noise, Tone, Silence };
    struct Options {
        std::string name = "test.source";
        std::string description = "Test Source";
        std::uint32_t rate = 48000;
        std::uint32_t channels = 2;
        std::vector<std::uint32_t> positions{}; ///< SPA_AUDIO_CHANNEL_..., one per channel
        Content content = Content::Ramp;
        double frequency = 440;  ///< of the tone, Hz
        double amplitude = 0.25; ///< of the tone
        bool ownClock = true;
        double clockErrorPpm = 0;
        std::uint32_t cycle = 1024;
        std::string mediaClass = "Audio/Source";
        std::string target{};
        bool connects = true;       ///< false: a player that no output plays
        bool staysAtTarget = false; ///< WirePlumber 0.4 moves a player of the default output with the default
        int sessionPriority = 0;
        /// Replaces the content: one sample of a channel, by the frame's index. Runs on the data thread.
        std::function<float(std::uint64_t frame, std::uint32_t channel)> sample{};
    };

    explicit TestSource(Options options);

    [[nodiscard]] testing::AssertionResult start();
    void remove() { source_.stop(); }
    /// Takes effect with the next cycle. The frame count continues.
    void setContent(Content content) { content_ = content; }
    /// Frames played since start().
    [[nodiscard]] std::uint64_t position() const { return source_.position(); }
    [[nodiscard]] bool alive() const { return source_.alive(); }
    [[nodiscard]] const Options& options() const { return options_; }

private:
    [[nodiscard]] float sampleRt(std::uint64_t frame, std::uint32_t channel) const;

    Options options_;
    std::atomic<Content> content_;
    Platform::SignalSource source_;
};

/// A program that plays into an output of the private session. position() counts from the first frame played; playing
/// starts when the session manager has linked it, about 10 ms after start().
class TestPlayer : public TestSource {
public:
    explicit TestPlayer(Options options = {}) : TestSource(asPlayer(std::move(options))) {}

private:
    static Options asPlayer(Options options) {
        options.mediaClass = "Stream/Output/Audio";
        options.ownClock = false;
        if (options.name == "test.source")
            options.name = "test.player";
        return options;
    }
};
