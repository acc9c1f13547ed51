// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/InputUnit.h"

#include "tests/support/BusyLoops.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/ServerWatch.h"
#include "tests/support/Standstills.h"
#include "tests/support/TestCapture.h"
#include "tests/support/TestSource.h"
#include "tests/support/UnitCapture.h"
#include "tests/support/WaitFor.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <memory>
#include <set>
#include <thread>

using namespace Platform;
using namespace Qt::StringLiterals;
using Event = InputUnit::Event;

namespace {

class InputUnitTest : public testing::Test {
protected:
    AudioObjectID add(TestSource& source) {
        EXPECT_TRUE(source.start());
        return waitForDevice(*hardware_, QString::fromStdString(source.options().description));
    }
    [[nodiscard]] static bool captured(const UnitCapture& capture, double seconds) {
        return waitFor([&] { return double(capture.frames()) >= seconds * capture.sampleRate(); },
                       int(seconds * 1000) + 20000);
    }

    PrivateAudioSession& session_ = PrivateAudioSession::shared();
    std::unique_ptr<AudioHardware> hardware_ = createAudioHardware();
};

/// Expects the ramp in two pieces, with a step at the gap.
void expectTwoRamps(const std::vector<float>& samples, std::size_t& secondAt) {
    secondAt = 0;
    for (std::size_t i = 1; i < samples.size() && secondAt == 0; ++i)
        if (samples[i - 1] != 0 && samples[i] != Signal::ramp(Signal::rampFrame(samples[i - 1], 0) + 1, 0))
            secondAt = i;
    ASSERT_GT(secondAt, 0u) << "there is no hole";
    EXPECT_TRUE(isUnbrokenRamp({samples.begin(), samples.begin() + std::ptrdiff_t(secondAt)}, 0));
}

} // namespace

TEST_F(InputUnitTest, DeliversEverySampleAsItWasPlayedAt44100) {
    TestSource source({.description = "Ramp 44", .rate = 44100});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    EXPECT_EQ(capture.sampleRate(), 44100);
    ASSERT_TRUE(captured(capture, 3));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(1), 1));
    EXPECT_EQ(capture.unit().lostFrames(), 0u);
}

TEST_F(InputUnitTest, DeliversOrCountsEverySampleOfADeviceOnTheServersClock) {
    TestSource source({.description = "Ramp 44 follower", .rate = 44100, .ownClock = false});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 1));
    capture.stop();
    // The server's clock does not wait for an overloaded machine; the frames lost by that must be counted.
    const auto samples = capture.samples(0);
    const auto first = std::ranges::find_if(samples, [](float value) { return value != 0; });
    const auto played = Signal::rampFrame(samples.back(), 0) - Signal::rampFrame(*first, 0) + 1;
    EXPECT_EQ(std::uint64_t(samples.end() - first) + capture.unit().lostFrames(), played);
}

TEST_F(InputUnitTest, DeliversEverySampleAt48000BesideFourBusyLoops) {
    const BusyLoops busy(4);
    TestSource source({.description = "Ramp 48"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 5));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(1), 1));
    EXPECT_EQ(capture.unit().lostFrames(), 0u);
}

TEST_F(InputUnitTest, DeliversCyclesOfTheAnnouncedSize) {
    TestSource source({.description = "Odd cycles", .cycle = 441});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 1));
    capture.stop();
    for (const auto& each : capture.cycles())
        ASSERT_EQ(each.frames, capture.cycleFrames());
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
}

TEST_F(InputUnitTest, DeliversEverySampleWithItsTimeWhenTheServerDeliversLongBlocks) {
    for (const std::uint32_t rate : {44100u, 48000u}) {
        // Sound cards ask for no cycle length; the listeners decide.
        TestSource source({.description = "Long blocks " + std::to_string(rate), .rate = rate, .cycle = 8192});
        UnitCapture capture(*hardware_, add(source));
        ASSERT_TRUE(capture.start());
        ASSERT_TRUE(captured(capture, 0.5));
        std::set<std::uint64_t> positions;
        ASSERT_TRUE(waitFor([&] {
            positions.insert(source.position());
            return double(capture.frames()) > 2 * capture.sampleRate();
        }));
        capture.stop();
        // With blocks of 1024 frames there would be twice as many positions. At 44.1 kHz the server's limit, scaled to
        // the rate and rounded to a power of two, is 1024.
        const double frames = double(*positions.rbegin() - *positions.begin());
        EXPECT_LT(double(positions.size()), 1.4 * frames / (rate == 48000 ? 2048 : 1024));
        EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
        EXPECT_TRUE(isUnbrokenRamp(capture.samples(1), 1));
        EXPECT_EQ(capture.unit().lostFrames(), 0u);
        const auto cycles = capture.cycles();
        for (std::size_t i = 1; i < cycles.size(); ++i) {
            EXPECT_EQ(cycles[i - 1].frames, capture.cycleFrames());
            EXPECT_NEAR(double(cycles[i].hostTime - cycles[i - 1].hostTime) * 1e-9,
                        capture.cycleFrames() / capture.sampleRate(), 0.0005);
        }
    }
}

TEST_F(InputUnitTest, AHoldFirstDeliversWhatWasCaptured) {
    TestSource source({.description = "Behind"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    int complete = 0; // the hold waits for a tenth of a second only: a busy machine may need more
    for (int i = 0; i < 5; ++i) {
        capture.unit().holdCycles();
        const auto before = capture.frames();
        const auto played = source.position();
        EXPECT_TRUE(waitFor([&] { return source.position() > played + 24000; }));
        capture.unit().releaseCycles();
        capture.unit().holdCycles();
        complete += capture.frames() >= before + 20000 ? 1 : 0;
        capture.unit().releaseCycles();
    }
    capture.stop();
    EXPECT_GE(complete, 3);
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
}

TEST_F(InputUnitTest, StampsEachCycleWithItsCaptureTime) {
    TestSource source({.description = "Stamped"});
    const auto clock = [] { return std::uint64_t(std::chrono::steady_clock::now().time_since_epoch().count()); };
    const auto begun = clock();
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 1));
    // A stall of the I/O thread must not appear in the times.
    capture.unit().holdCycles();
    const auto before = source.position();
    ASSERT_TRUE(waitFor([&] { return source.position() > before + 24000; }));
    capture.unit().releaseCycles();
    ASSERT_TRUE(captured(capture, 2));
    capture.stop();
    const auto cycles = capture.cycles();
    const double seconds = double(cycles.back().firstFrame) / capture.sampleRate();
    EXPECT_NEAR(double(cycles.back().hostTime - cycles.front().hostTime) * 1e-9, seconds, 0.001);
    // The first cycle is recorded from its first frame on, which was captured as the source began to run.
    EXPECT_GT(double(cycles.front().hostTime) * 1e-9 + cycles.front().frames / capture.sampleRate(),
              double(begun) * 1e-9);
    EXPECT_LT(cycles.back().hostTime, clock());
    for (std::size_t i = 0; i < cycles.size(); ++i) {
        EXPECT_EQ(cycles[i].scopeTime, cycles[i].hostTime);
        EXPECT_EQ(cycles[i].sampleTime, double(cycles[i].firstFrame));
        if (i > 0) {
            EXPECT_NEAR(double(cycles[i].hostTime - cycles[i - 1].hostTime) * 1e-9,
                        cycles[i - 1].frames / capture.sampleRate(), 0.0005);
        }
    }
}

TEST_F(InputUnitTest, ShowsTheDriftBetweenTwoClocksInTheCaptureTimes) {
    TestSource right({.name = "test.clock.right", .description = "Right clock"});
    TestSource fast({.name = "test.clock.fast", .description = "Fast clock", .clockErrorPpm = 1000});
    UnitCapture one(*hardware_, add(right));
    UnitCapture two(*hardware_, add(fast));
    ASSERT_TRUE(one.start());
    ASSERT_TRUE(two.start());
    ASSERT_TRUE(captured(one, 2) && captured(two, 2));
    one.stop();
    two.stop();
    const auto measuredRate = [](const UnitCapture& capture) {
        const auto cycles = capture.cycles();
        return double(cycles.back().firstFrame - cycles.front().firstFrame) /
               (double(cycles.back().hostTime - cycles.front().hostTime) * 1e-9);
    };
    EXPECT_NEAR(measuredRate(one), 48000, 2);
    EXPECT_NEAR(measuredRate(two), 48048, 2);
    EXPECT_TRUE(isUnbrokenRamp(one.samples(0), 0));
    EXPECT_TRUE(isUnbrokenRamp(two.samples(0), 0));
}

TEST_F(InputUnitTest, CopiesAMonoDeviceToBothChannels) {
    TestSource source({.description = "Mono", .channels = 1});
    UnitCapture capture(*hardware_, add(source), 2);
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 1));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
    EXPECT_EQ(capture.samples(0), capture.samples(1));
}

TEST_F(InputUnitTest, DeliversAllChannelsOfADeviceWithMoreThanTwo) {
    TestSource source({.description = "Six channels", .channels = 6});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 1));
    capture.stop();
    for (std::uint32_t i = 0; i < 6; ++i)
        EXPECT_TRUE(isUnbrokenRamp(capture.samples(i), i));
}

TEST_F(InputUnitTest, FillsTheTimeBetweenLosingADeviceAndItsReturn) {
    TestSource source({.name = "test.unplug", .description = "Unplugged"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.5));
    source.remove();
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceLost); }));
    const auto framesBefore = capture.frames();
    {
        // Another device measures how long this one is away.
        TestSource beside({.name = "test.beside", .description = "Beside"});
        UnitCapture meanwhile(*hardware_, add(beside));
        ASSERT_TRUE(meanwhile.start());
        ASSERT_TRUE(captured(meanwhile, 0.4));
        meanwhile.stop();
    }
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceReturned); }));
    ASSERT_TRUE(waitFor([&] { return capture.frames() > framesBefore + 24000; }));
    capture.stop();
    EXPECT_TRUE(capture.heard(Event::FramesLost));
    const auto samples = capture.samples(0);
    std::size_t secondAt = 0;
    expectTwoRamps(samples, secondAt);
    EXPECT_TRUE(isUnbrokenRamp({samples.begin() + std::ptrdiff_t(secondAt), samples.end()}, 0));
    // Both the count of lost frames and the capture times must match the time that the device was away.
    const double lost = double(capture.unit().lostFrames()) / capture.sampleRate();
    EXPECT_GT(lost, 0.3);
    EXPECT_GT(double(capture.unit().awayFrames()) / capture.sampleRate(), 0.3);
    EXPECT_LE(capture.unit().awayFrames(), capture.unit().lostFrames());
    const auto cycles = capture.cycles();
    const double elapsed = double(cycles.back().hostTime - cycles.front().hostTime) * 1e-9;
    EXPECT_NEAR(elapsed, double(cycles.back().firstFrame) / capture.sampleRate() + lost, 0.005);
}

TEST_F(InputUnitTest, ReplacesTheTimeWithoutADeviceWithSilenceWhenAsked) {
    TestSource source({.name = "test.filled", .description = "Filled"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    capture.unit().setFillLostFrames(true);
    ASSERT_TRUE(captured(capture, 0.5));
    source.remove();
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceLost); }));
    const auto framesBefore = capture.frames();
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return capture.frames() > framesBefore + 48000; }));
    capture.stop();
    EXPECT_GT(capture.unit().lostFrames(), 0u);
    const auto cycles = capture.cycles();
    const double elapsed = double(cycles.back().hostTime - cycles.front().hostTime) * 1e-9;
    EXPECT_NEAR(elapsed, double(cycles.back().firstFrame) / capture.sampleRate(), 0.005);
    const auto samples = capture.samples(0);
    const auto silent = std::count(samples.begin() + std::ptrdiff_t(framesBefore) - 2048, samples.end(), 0.0f);
    EXPECT_NEAR(double(silent), double(capture.unit().lostFrames()), 2048);
}

TEST_F(InputUnitTest, ContinuesWhenTheServerReturns) {
    TestSource source({.name = "test.server", .description = "Server restarts"});
    const auto device = add(source);
    UnitCapture capture(*hardware_, device);
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.5));
    ASSERT_TRUE(session_.stopServer());
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::ServerLost); }));
    EXPECT_FALSE(capture.heard(Event::DeviceLost));
    const auto framesBefore = capture.frames();
    ASSERT_TRUE(session_.startServer());
    ASSERT_TRUE(source.start());
    ASSERT_TRUE(waitFor([&] { return capture.frames() > framesBefore + 24000; }));
    capture.stop();
    EXPECT_TRUE(capture.heard(Event::ServerReturned));
    EXPECT_GT(capture.unit().lostFrames(), 0u);
    const auto samples = capture.samples(0);
    std::size_t secondAt = 0;
    expectTwoRamps(samples, secondAt);
    EXPECT_TRUE(isUnbrokenRamp({samples.begin() + std::ptrdiff_t(secondAt), samples.end()}, 0));
}

TEST_F(InputUnitTest, ReportsThatNothingComesWhileTheServerIsStopped) {
    // The source follows the server's clock: since PipeWire 1.4 a source with its own clock wakes its listeners even
    // while the server is stopped.
    TestSource source({.description = "Standing still", .ownClock = false});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.3));
    EXPECT_FALSE(capture.heard(Event::DeviceLost));
    ASSERT_EQ(kill(session_.serverProcess(), SIGSTOP), 0);
    const bool reported = waitFor([&] { return capture.heard(Event::NothingComes); });
    ASSERT_EQ(kill(session_.serverProcess(), SIGCONT), 0);
    EXPECT_TRUE(reported);
    const auto frames = capture.frames();
    EXPECT_TRUE(waitFor([&] { return capture.frames() > frames + 4800; }));
}

TEST_F(InputUnitTest, AStandstillOfTheMachineIsNoLossOfTheDevice) {
    TestSource source({.description = "Stopped with us", .ownClock = false});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.3));
    ASSERT_EQ(kill(session_.serverProcess(), SIGSTOP), 0);
    const bool stood = Standstills::make(3);
    // The unit looks for audio before the server runs again.
    const bool looked = waitFor([&] { return capture.heard(Event::NothingComes); });
    ASSERT_EQ(kill(session_.serverProcess(), SIGCONT), 0);
    EXPECT_TRUE(stood);
    EXPECT_TRUE(looked);
    const auto frames = capture.frames();
    EXPECT_TRUE(waitFor([&] { return capture.frames() > frames + 4800; }));
    EXPECT_FALSE(capture.heard(Event::DeviceLost));
}

TEST_F(InputUnitTest, KeepsItsRateWhenADeviceReturnsWithAnother) {
    const auto make = [](std::uint32_t rate, std::uint32_t channels) {
        return std::make_unique<TestSource>(TestSource::Options{.name = "test.changing",
                                                                .description = "Changing",
                                                                .rate = rate,
                                                                .channels = channels,
                                                                .content = TestSource::Content::Tone,
                                                                .frequency = 1000});
    };
    auto source = make(48000, 2);
    UnitCapture capture(*hardware_, add(*source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.5));
    source.reset();
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceLost); }));
    source = make(44100, 1);
    const auto before = capture.frames();
    ASSERT_TRUE(source->start());
    ASSERT_TRUE(waitFor([&] { return capture.frames() > before + 48000; }));
    capture.stop();
    // A 1000 Hz tone crosses zero 2000 times in the last 48000 frames only if these are exactly one second.
    const auto samples = capture.samples(0);
    int crossings = 0;
    for (std::size_t i = samples.size() - 40000; i < samples.size(); ++i)
        crossings += (samples[i - 1] < 0) != (samples[i] < 0) ? 1 : 0;
    EXPECT_NEAR(crossings, 40000 / 24, 3);
    EXPECT_EQ(capture.samples(1).size(), samples.size());
    EXPECT_GT(*std::max_element(samples.end() - 40000, samples.end()), 0.2f);
}

TEST_F(InputUnitTest, FollowsItsOwnDeviceNotItsReplacement) {
    TestSource source({.name = "test.mine", .description = "Mine"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.3));
    source.remove();
    ASSERT_TRUE(waitFor([&] { return capture.heard(Event::DeviceLost); }));
    TestSource other({.name = "test.not.mine",
                      .description = "Not mine",
                      .content = TestSource::Content::Tone,
                      .sessionPriority = 9000});
    const auto stranger = add(other);
    // The other device runs, so one of its cycles would have arrived.
    UnitCapture its(*hardware_, stranger);
    ASSERT_TRUE(its.start());
    ASSERT_TRUE(captured(its, 0.3));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0)) << "nothing of the stranger";
}

TEST_F(InputUnitTest, RunsNoCycleWhileHeldAndLosesNothing) {
    TestSource source({.description = "Held"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.3));
    capture.unit().holdCycles();
    capture.unit().holdCycles();
    const auto held = capture.frames();
    const auto position = source.position();
    ASSERT_TRUE(waitFor([&] { return source.position() > position + 48000; }));
    capture.unit().releaseCycles();
    EXPECT_EQ(capture.frames(), held);
    capture.unit().releaseCycles();
    ASSERT_TRUE(waitFor([&] { return capture.frames() > held + 48000; }));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
    EXPECT_EQ(capture.unit().lostFrames(), 0u);
}

TEST_F(InputUnitTest, CanBeHeldFromItsOwnCallback) {
    TestSource source({.description = "Self held"});
    UnitCapture capture(*hardware_, add(source));
    std::atomic<int> holds{0};
    capture.inCycle = [&] {
        capture.unit().holdCycles();
        ++holds;
        capture.unit().releaseCycles();
    };
    ASSERT_TRUE(capture.start());
    EXPECT_TRUE(waitFor([&] { return holds > 10; }));
    capture.stop();
    EXPECT_TRUE(isUnbrokenRamp(capture.samples(0), 0));
}

TEST_F(InputUnitTest, StopsWhileHeld) {
    TestSource source({.description = "Stopped held"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.1));
    capture.unit().holdCycles();
    capture.stop();
    const auto frames = capture.frames();
    capture.unit().releaseCycles();
    EXPECT_EQ(capture.frames(), frames);
}

TEST_F(InputUnitTest, CanBeStartedAgain) {
    TestSource source({.description = "Again"});
    UnitCapture capture(*hardware_, add(source));
    for (int i = 0; i < 5; ++i) {
        ASSERT_EQ(i == 0 ? int(bool(capture.start())) : int(capture.unit().start() == noErr), 1);
        const auto before = capture.frames();
        ASSERT_TRUE(waitFor([&] { return capture.frames() > before + 4800; }));
        capture.stop();
        EXPECT_EQ(capture.unit().lostFrames(), 0u);
        EXPECT_EQ(capture.cycles().size() > 0, true);
    }
}

TEST_F(InputUnitTest, CountsTheFramesThatAFullRingRejects) {
    TestSource source({.description = "Overflow", .rate = 96000});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.1));
    capture.unit().holdCycles();
    ASSERT_TRUE(waitFor([&] { return capture.unit().lostFrames() > 9600; }, 40000));
    capture.unit().releaseCycles();
    const auto frames = capture.frames();
    EXPECT_TRUE(waitFor([&] { return capture.frames() > frames + 960000; }));
    EXPECT_TRUE(waitFor([&] { return capture.heard(Event::FramesLost); }));
    ASSERT_TRUE(
        waitFor([&] { return capture.cycles().back().sampleTime > double(capture.cycles().back().firstFrame); }));
    capture.stop();
    const auto cycles = capture.cycles();
    EXPECT_EQ(cycles.back().sampleTime - double(cycles.back().firstFrame), double(capture.unit().lostFrames()));
}

TEST_F(InputUnitTest, RefusesImpossibleStepsWithAReason) {
    bool found = false;
    const auto unit = hardware_->openOutputUnit(found);
    ASSERT_TRUE(found && unit);
    AudioStreamBasicDescription format;
    std::uint32_t frames = 0;
    EXPECT_NE(unit->getDeviceFormat(format), noErr);
    EXPECT_NE(unit->getBufferFrameSize(frames), noErr);
    EXPECT_NE(unit->initialize(), noErr);
    EXPECT_NE(unit->start(), noErr);
    EXPECT_NE(unit->setEnableOutput(true), noErr);
    EXPECT_NE(unit->setCurrentDevice(0), noErr);
    EXPECT_NE(unit->setCurrentDevice(deviceNamed(*hardware_, u"Silent Output"_s)), noErr);
    EXPECT_EQ(unit->lastError(), u"Silent Output has no input"_s);
    EXPECT_NE(unit->render(nullptr, nullptr, 1, 512, nullptr), noErr);
    EXPECT_EQ(unit->stop(), noErr);
}

TEST_F(InputUnitTest, DoesNotStartOnARemovedDevice) {
    TestSource source({.name = "test.left", .description = "Left before"});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    capture.stop();
    source.remove();
    ASSERT_TRUE(waitFor([&] { return deviceNamed(*hardware_, u"Left before"_s) == 0; }));
    EXPECT_NE(capture.unit().start(), noErr);
    EXPECT_EQ(capture.unit().lastError(), u"the device is not there"_s);
}

TEST_F(InputUnitTest, AsksAgainForADeviceThatIsRefusedForAMoment) {
    TestSource source({.name = "test.taken", .description = "Taken"});
    const auto device = add(source);
    // The unit asks for a second. A machine that stands still in it says nothing.
    Standstills standstills;
    testing::AssertionResult started = testing::AssertionFailure();
    standstills.attemptInOnePiece([&] {
        UnitCapture capture(*hardware_, device);
        auto taker = std::make_unique<TestCapture>(
            TestCapture::Options{.target = "test.taken", .monitor = false, .exclusive = true});
        ASSERT_TRUE(taker->start());
        ServerWatch watch;
        ASSERT_TRUE(watch.start());
        std::atomic<bool> ended{false};
        std::thread release([&] {
            const auto wait = [&](bool forNode) {
                while (!ended && watch.stateOf("sonaphex.capture").empty() == forNode)
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
            };
            wait(true);
            wait(false); // its node is gone: the first request was refused
            taker.reset();
        });
        started = capture.start();
        ended = true;
        release.join();
        EXPECT_TRUE(!started || captured(capture, 0.1));
        EXPECT_FALSE(capture.heard(Event::DeviceLost));
    });
    EXPECT_TRUE(started);
}

TEST_F(InputUnitTest, TellsThatADeviceStaysRefused) {
    TestSource source({.name = "test.kept", .description = "Kept"});
    UnitCapture capture(*hardware_, add(source));
    TestCapture taker({.target = "test.kept", .monitor = false, .exclusive = true});
    ASSERT_TRUE(taker.start());
    EXPECT_FALSE(capture.start());
    EXPECT_FALSE(capture.unit().lastError().isEmpty());
}

TEST_F(InputUnitTest, KeepsUnityGainWhateverTheSessionManagerStored) {
    // A device at full scale arrives at full scale: no volume control lies between it and the unit.
    TestSource source({.description = "Full scale",
                       .sample = [](std::uint64_t, std::uint32_t channel) { return channel == 0 ? 1.0f : -1.0f; }});
    UnitCapture capture(*hardware_, add(source));
    ASSERT_TRUE(capture.start());
    ASSERT_TRUE(captured(capture, 0.2));
    capture.stop();
    EXPECT_EQ(capture.samples(0).back(), 1.0f);
    EXPECT_EQ(capture.samples(1).back(), -1.0f);
}
