// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Platform {

/// An input device, or a playing program, whose samples a function computes. The private session's tone is one.
/// It has a connection and threads of its own. All methods belong to the thread that made it.
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
        std::uint32_t rate = 48000; ///< Hz
        std::uint32_t channels = 2;
        /// SPA_AUDIO_CHANNEL_..., one a channel; empty is mono, front left and right, or numbered places.
        std::vector<std::uint32_t> positions{};
        std::uint32_t cycle = 1024; ///< frames it asks to be called for at a time
        /// Keeps its own time like a sound card, instead of the server's: needed for two devices whose clocks differ.
        bool ownClock = false;
        /// How much faster than it says that clock runs, in millionths.
        double clockErrorPpm = 0;
        /// How long that clock waits with a cycle until the one before was heard. A listener that left in the midst of
        /// one holds the source up for as long.
        int patienceMs = 500;
        int sessionPriority = 0; ///< the highest becomes the default device
    };

    SignalSource(Options options, GeneratorRt generator);
    ~SignalSource();
    SignalSource(const SignalSource&) = delete;
    SignalSource& operator=(const SignalSource&) = delete;

    /// Connects and waits, at most five seconds, until the server knows the node. On failure @p why says the reason.
    [[nodiscard]] bool start(std::string& why);
    /// Takes the device away. May be started again: the count of frames begins anew.
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
