// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/play/PipeWireSounds.h"
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/RealPointer.h"
#include "tests/support/Standstills.h"
#include "tests/support/TestCapture.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRate = 48000;
constexpr double kSeconds = 100;
constexpr double kLevel = 0.5;

/// What the output played, computed from a recording whose left channel encodes the time and whose right channel is
/// constant: their ratio gives the position in the file, the right one alone the volume.
struct Heard {
    double place = 0; ///< position in the file, in seconds
    double gain = 0;
};

std::vector<Heard> heard(const std::vector<float>& interleaved) {
    std::vector<Heard> all;
    for (std::size_t i = 0; i + 1 < interleaved.size(); i += 2)
        if (const double right = double(interleaved[i + 1]); right > 0.002 * kLevel)
            all.push_back({double(interleaved[i]) / right * kSeconds, right / kLevel});
    return all;
}

/// One pass through the selection: frames with increasing positions.
std::vector<std::vector<Heard>> passes(const std::vector<Heard>& all) {
    std::vector<std::vector<Heard>> found;
    for (const Heard& each : all) {
        // Near silence, rounding of the float samples changes the ratio by less than this.
        if (found.empty() || each.place < found.back().back().place - 1)
            found.emplace_back();
        found.back().push_back(each);
    }
    return found;
}

double decibels(double ratio) {
    return 20 * std::log10(ratio);
}

class RingtonePreview : public testing::Test {
protected:
    RingtonePreview() {
        PrivateAudioSession::shared();
        const QString path = world.folder.filePath(u"ramp.wav"_s);
        auto& source = world.media.addSource(path, 0, [](int channel, std::int64_t frame) {
            return float(channel == 0 ? kLevel * double(frame) / (kSeconds * kRate) : kLevel);
        });
        source.rate = kRate;
        source.frames = std::int64_t(kSeconds * kRate);
        sounds = Platform::createSounds(world.media);
        Platform::services().sounds = sounds.get();
        world.maker.openFile(path, LibraryWorld::entry(u"k"_s, u"ramp"_s, path, kSeconds));
    }
    ~RingtonePreview() override { Platform::services().sounds = &world.sounds; }

    static bool click(QWidget& view) {
        return RealPointer::run(RealPointer::moveTo(RealPointer::onScreen(view, QPointF(12, view.height() / 2))) +
                                QStringList{u"click"_s, u"1"_s});
    }

    RingtoneWorld world;
    std::unique_ptr<Platform::Sounds> sounds;
};

TEST_F(RingtonePreview, LoopsOverTheSelectionWithItsFades) {
    constexpr double from = 10;
    constexpr double to = 20;
    constexpr double fade = RingtoneFile::kFadeSeconds;
    auto& selection = world.outlet<AudioWaveTrimView>("audioWaveTrimView");
    selection.setAudioFrom(from * 10);
    selection.setAudioLength((to - from) * 10);
    world.show();
    ASSERT_TRUE(RealPointer::shown(*world.maker.window()));
    ASSERT_TRUE(click(world.outlet("fadeInBox")));
    ASSERT_TRUE(click(world.outlet("fadeOutBox")));
    ASSERT_TRUE(waitFor([&] { return world.maker.fadeInEnable() && world.maker.fadeOutEnable(); }));
    std::vector<std::vector<Heard>> runs;
    Standstills standstills;
    standstills.attemptInOnePiece([&] {
        TestCapture capture({.target = "sonaphex.output", .monitor = true, .rate = kRate});
        ASSERT_TRUE(capture.start());
        world.maker.sound()->setCurrentTime(from); // an attempt before this one ended elsewhere
        ASSERT_TRUE(click(world.outlet("btnPreview")));
        ASSERT_TRUE(waitFor([&] { return world.maker.previewSound(); }));
        int jumps = 0;
        double before = 0;
        ASSERT_TRUE(waitFor(
            [&] {
                const double now = world.maker.sound()->currentTime();
                jumps += now < before - 1;
                before = now;
                return jumps == 2 && now > from + 1;
            },
            90000));
        ASSERT_TRUE(click(world.outlet("btnPreview")));
        ASSERT_TRUE(waitFor([&] { return !world.maker.previewSound(); }));
        runs = passes(heard(capture.interleaved()));
        for (const auto& run : runs)
            std::printf("heard from %.3f s to %.3f s\n", run.front().place, run.back().place);
    });
    if (HasFatalFailure())
        return;
    world.maker.closeWindow();
    ASSERT_EQ(runs.size(), 3U);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        EXPECT_NEAR(runs[i].front().place, from, 0.1);
        if (i + 1 < runs.size()) {
            EXPECT_NEAR(runs[i].back().place, to, 0.1);
        }
    }
    double worst = 0;
    for (int point = 0; point < 20; ++point) {
        const double rule = (point % 10 + 0.5) / 10;
        const double place = point < 10 ? from + rule * fade : to - rule * fade;
        // A busy machine may apply the volume late once; a wrong rule would show in each pass.
        double off = 100;
        for (std::size_t pass = 0; pass < 2; ++pass) {
            const auto at = std::lower_bound(runs[pass].begin(), runs[pass].end(), place,
                                             [](const Heard& each, double wanted) { return each.place < wanted; });
            ASSERT_NE(at, runs[pass].end());
            if (const double here = decibels(at->gain / rule); std::fabs(here) < std::fabs(off))
                off = here;
        }
        EXPECT_LT(std::fabs(off), 0.5) << off << " dB at " << place << " s of the file";
        worst = std::max(worst, std::fabs(off));
    }
    std::printf("farthest from the rule: %.2f dB\n", worst);
}

} // namespace
