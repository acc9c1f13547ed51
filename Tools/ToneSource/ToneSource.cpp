// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The input device on a machine without one: 440 Hz at -12 dBFS on both channels. Ends with the sound server or with
// SIGTERM.

#include "Platform/Audio/linux/SignalSource.h"

#include <cmath>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <numbers>

int main() {
    sigset_t ending;
    sigemptyset(&ending);
    for (const int each : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&ending, each);
    sigprocmask(SIG_BLOCK, &ending,
                nullptr); // inherited by the server's threads, so that only the wait below receives them

    constexpr double rate = 48000;
    constexpr double frequency = 440;
    constexpr int period = 48000 / 40; // 440 Hz repeats after 11 periods in 1200 frames
    static float table[period];
    for (int i = 0; i < period; ++i)
        table[i] = float(std::pow(10.0, -12.0 / 20.0) * std::sin(2 * std::numbers::pi * frequency * i / rate));

    Platform::SignalSource source({.nodeName = "sonaphex.tone",
                                   .description = "Test Tone",
                                   .rate = std::uint32_t(rate),
                                   // More than the server allows. Like a sound card, the tone takes the cycle length
                                   // that its listeners ask for, and asks for none itself.
                                   .cycle = 8192,
                                   .ownClock = true,
                                   .sessionPriority = 2000},
                                  [](float* out, std::uint32_t frames, std::uint32_t channels, std::uint64_t position) {
                                      for (std::uint32_t i = 0; i < frames; ++i)
                                          for (std::uint32_t c = 0; c < channels; ++c)
                                              *out++ = table[(position + i) % period];
                                  });
    std::string why;
    if (!source.start(why)) {
        fprintf(stderr, "ToneSource: %s\n", why.c_str());
        return 1;
    }
    while (source.alive()) {
        const timespec wait = {.tv_sec = 0, .tv_nsec = 200'000'000};
        if (sigtimedwait(&ending, nullptr, &wait) > 0)
            break;
    }
    return 0;
}
