// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Platform {

/// An input device, or a playing program, whose samples a function computes. The private session's tone is one. It has
/// its own connection and threads. All methods must be called on the thread that created it.
class SignalSource {
public:
    /// Fills @p frames of @p channels interleaved samples. @p position counts the frames since start(). Runs on the
    /// sound server's data thread: no lock, allocation or system call.
    using GeneratorRt =
        std::function<void(float* interleaved, std::uint32_t frames, std::uint32_t channels, std::uint64_t position)>;

    struct Options {
        std::string nodeName{};
        std::string description{};
        /// "Audio/Source" is a device; "Stream/Output/Audio" plays into a device.
        std::string mediaClass = "Audio/Source";
        /// node.name of the output to play into; empty is the default output.
        std::string target{};
        bool connects = true;       ///< false: the session manager links a player to no output
        bool staysAtTarget = false; ///< the session manager never moves it to another output
        std::uint32_t rate = 48000; ///< Hz
        std::uint32_t channels = 2;
        /// SPA_AUDIO_CHANNEL_..., one per channel; empty means mono, front left and right, or numbered positions.
        std::vector<std::uint32_t> positions{};
        std::uint32_t cycle = 1024; ///< requested frames per call
        /// Uses its own clock, like a sound card, instead of the server's. Needed to test two devices whose clocks
        /// differ.
        bool ownClock = false;
        /// How much faster than nominal that clock runs, in parts per million.
        double clockErrorPpm = 0;
        /// How long that clock waits for the previous cycle to be processed. A listener that disconnects in the middle
        /// of a cycle delays the source by this much.
        int patienceMs = 500;
        int sessionPriority = 0; ///< the source with the highest value becomes the default device
    };

    SignalSource(Options options, GeneratorRt generator);
    ~SignalSource();
    SignalSource(const SignalSource&) = delete;
    SignalSource& operator=(const SignalSource&) = delete;

    /// Connects and waits until the server knows the node, at most five seconds. On failure @p why holds the reason.
    [[nodiscard]] bool start(std::string& why);
    /// Removes the device. start() may be called again: the frame count starts from 0.
    void stop();
    /// Whether the server is still there since start().
    [[nodiscard]] bool alive() const;
    /// Frames computed since start(). Any thread.
    [[nodiscard]] std::uint64_t position() const;

private:
    struct Connection;
    Options options_;
    GeneratorRt generator_;
    std::unique_ptr<Connection> connection_;
};

} // namespace Platform
