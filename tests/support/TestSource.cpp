// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestSource.h"

namespace {

Platform::SignalSource::Options sourceOptions(const TestSource::Options& options) {
    return {.nodeName = options.name,
            .description = options.description,
            .mediaClass = options.mediaClass,
            .target = options.target,
            .connects = options.connects,
            .staysAtTarget = options.staysAtTarget,
            .rate = options.rate,
            .channels = options.channels,
            .positions = options.positions,
            .cycle = options.cycle,
            .ownClock = options.ownClock,
            .clockErrorPpm = options.clockErrorPpm,
            .patienceMs = 5000, // even when the server does not run for seconds, nothing is lost
            .sessionPriority = options.sessionPriority};
}

} // namespace

TestSource::TestSource(Options options)
    : options_(std::move(options)), content_(options_.content),
      source_(sourceOptions(options_),
              [this](float* out, std::uint32_t frames, std::uint32_t channels, std::uint64_t position) {
                  for (std::uint32_t i = 0; i < frames; ++i)
                      for (std::uint32_t c = 0; c < channels; ++c)
                          *out++ = sampleRt(position + i, c);
              }) {
}

testing::AssertionResult TestSource::start() {
    std::string why;
    if (source_.start(why))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << options_.name << ": " << why;
}

float TestSource::sampleRt(std::uint64_t frame, std::uint32_t channel) const {
    if (options_.sample)
        return options_.sample(frame, channel);
    switch (content_.load(std::memory_order_relaxed)) {
    case Content::Ramp:
        return Signal::ramp(frame, channel);
    case Content::Noise:
        return Signal::noise(frame, channel);
    case Content::Tone:
        return Signal::tone(frame, options_.frequency, options_.rate, options_.amplitude);
    case Content::Silence:
        break;
    }
    return 0;
}
