// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// Captures the monitor of an output, or an input device, independently of the program under test.
///
///     TestCapture capture({.target = "sonaphex.output", .monitor = true});
///     ASSERT_TRUE(capture.start());
///     ... let something play ...
///     const std::vector<float> samples = capture.interleaved();
///
/// An output without a player delivers silence.
class TestCapture {
public:
    struct Options {
        std::string target = "sonaphex.output"; ///< node.name
        bool monitor = true;                    ///< false for an input device
        std::uint32_t rate = 48000;
        std::uint32_t channels = 2;
        bool exclusive = false; ///< the session manager refuses the target to everyone else
    };

    explicit TestCapture(Options options);
    ~TestCapture();
    TestCapture(const TestCapture&) = delete;
    TestCapture& operator=(const TestCapture&) = delete;

    /// Waits until data arrives.
    [[nodiscard]] testing::AssertionResult start();
    void stop();
    [[nodiscard]] std::uint64_t frames() const;
    /// All samples captured since start(). Any time.
    [[nodiscard]] std::vector<float> interleaved() const;
    /// The largest absolute value among the last @p frames frames.
    [[nodiscard]] float recentPeak(std::size_t frames = 4800) const;

private:
    struct Connection;
    Options options_;
    std::unique_ptr<Connection> connection_;
};
