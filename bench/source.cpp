// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_source NODE-NAME DESCRIPTION CHANNELS < SAMPLES
// An input device that repeats the samples of its standard input: 32-bit float, one or two channels, 48,000 Hz. It has
// a clock of its own, like a sound card, and like one it takes the cycle length that its listeners ask for. Prints
// "ready" when the server knows the device, and ends with the server or with SIGTERM.
#include "Platform/Audio/linux/SignalSource.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <vector>

int main(int argc, char** argv) {
    const std::uint32_t channels = argc == 4 && std::strcmp(argv[3], "1") == 0 ? 1 : 2;
    if (argc != 4)
        return 2;
    // Blocked before the server's threads start, so that only the wait below receives the signal.
    sigset_t ending;
    sigemptyset(&ending);
    for (const int each : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&ending, each);
    sigprocmask(SIG_BLOCK, &ending, nullptr);

    std::vector<float> samples;
    std::vector<float> block(1 << 16);
    while (const std::size_t count = std::fread(block.data(), sizeof(float), block.size(), stdin))
        samples.insert(samples.end(), block.begin(), block.begin() + std::ptrdiff_t(count));
    const std::uint64_t frames = samples.size() / channels;
    if (frames == 0) {
        std::fprintf(stderr, "bench_source: no samples\n");
        return 1;
    }
    Platform::SignalSource source(
        {.nodeName = argv[1], .description = argv[2], .channels = channels, .cycle = 8192, .ownClock = true},
        [&](float* out, std::uint32_t count, std::uint32_t, std::uint64_t position) {
            for (std::uint32_t i = 0; i < count; ++i)
                std::memcpy(out + channels * i, &samples[channels * ((position + i) % frames)],
                            channels * sizeof(float));
        });
    std::string why;
    if (!source.start(why)) {
        std::fprintf(stderr, "bench_source: %s\n", why.c_str());
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    while (source.alive()) {
        const timespec wait = {.tv_sec = 0, .tv_nsec = 200'000'000};
        if (sigtimedwait(&ending, nullptr, &wait) > 0)
            break;
    }
    return 0;
}
