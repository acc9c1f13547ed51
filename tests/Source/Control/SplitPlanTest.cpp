// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/SplitPlan.h"

#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/Control/EditFixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::int64_t kSecond = 44100;
constexpr double kNear = 0.03 * kSecond; ///< the encoder blurs an edge

/// A plan of a recording of 12 s with silences from 2 to 3, from 5 to 5.5 and from 8 to 9.2 s.
class SplitPlans : public EditFixture {
protected:
    SplitPlans() {
        auto sound = MediaTest::tones(12 * kSecond);
        for (const auto& [from, to] : {std::pair(2.0, 3.0), {5.0, 5.5}, {8.0, 9.2}})
            for (auto& plane : sound)
                std::fill(plane.begin() + std::ptrdiff_t(from * kSecond), plane.begin() + std::ptrdiff_t(to * kSecond),
                          0.0F);
        MediaTest::writeFile(at(u"One.m4a"_s), kAudioFileM4AType, std::move(sound));
        auto map = SilenceMap::read(at(u"One.m4a"_s));
        EXPECT_TRUE(map);
        plan.setMap(std::make_shared<const SilenceMap>(*std::move(map)));
        plan.setRule({0.4, -60});
    }
    /// Tenths of seconds.
    [[nodiscard]] std::vector<int> cuts() const {
        std::vector<int> rounded;
        for (const std::int64_t cut : plan.cuts())
            rounded.push_back(int(std::lround(double(cut) / kSecond * 10)));
        return rounded;
    }
    SplitPlan plan;
};

using Tenths = std::vector<int>;

} // namespace

TEST_F(SplitPlans, TheRuleChoosesTheCuts) {
    ASSERT_EQ(plan.cuts().size(), 3U);
    EXPECT_NEAR(double(plan.cuts()[0]), 2.5 * kSecond, kNear);
    EXPECT_NEAR(double(plan.cuts()[1]), 5.25 * kSecond, kNear);
    EXPECT_EQ(plan.partCount(), 4);
    EXPECT_EQ(plan.partBegin(0), 0);
    EXPECT_EQ(plan.partEnd(0), plan.cuts()[0]);
    EXPECT_EQ(plan.partEnd(3), plan.frames());
    plan.setRule({0.7, -60});
    EXPECT_EQ(plan.cuts().size(), 2U);
    plan.setRule({5, -60});
    EXPECT_TRUE(plan.cuts().empty());
    EXPECT_EQ(plan.partCount(), 1);
    EXPECT_NEAR(double(plan.found().longest) / kSecond, 1.2, 0.06);
}

TEST_F(SplitPlans, ChangesOfTheUserStayWhileTheRuleChanges) {
    EXPECT_FALSE(plan.isChanged());
    EXPECT_EQ(plan.add(7 * kSecond), 2);
    plan.remove(0);
    plan.move(0, 4 * kSecond); // the one of 5.25 s
    EXPECT_EQ(cuts(), (Tenths{40, 70, 86}));
    plan.setRule({0.7, -60});
    EXPECT_EQ(cuts(), (Tenths{40, 70, 86})) << "2.5 s stays removed";
    plan.setRule({3, -60});
    EXPECT_EQ(cuts(), (Tenths{40, 70}));
    plan.setRule({0.4, -50});
    EXPECT_EQ(cuts(), (Tenths{40, 70, 86}));
    EXPECT_TRUE(plan.isChanged());
    plan.reset();
    EXPECT_EQ(plan.cuts().size(), 3U);
    EXPECT_FALSE(plan.isChanged());
}

TEST_F(SplitPlans, AMovedCutTakesThePlaceOfItsSilence) {
    const std::int64_t before = plan.cuts()[0];
    plan.move(0, before + 100);
    EXPECT_EQ(plan.cuts().size(), 3U);
    EXPECT_EQ(plan.cuts()[0], before + 100);
    plan.move(0, before + 4000);
    EXPECT_EQ(plan.cuts()[0], before + 4000);
    plan.remove(0);
    EXPECT_EQ(plan.cuts().size(), 2U) << "the silence gives no other cut";
}

TEST_F(SplitPlans, NoPartIsTooShortToBeWritten) {
    const std::int64_t shortest = 2205;
    EXPECT_EQ(plan.add(10), -1);
    EXPECT_EQ(plan.add(plan.frames() - 10), -1);
    EXPECT_EQ(plan.add(plan.cuts()[1] + 100), -1);
    plan.move(0, -5);
    EXPECT_EQ(plan.cuts()[0], shortest);
    plan.move(0, plan.frames());
    EXPECT_EQ(plan.cuts()[0], plan.cuts()[1] - shortest) << "a cut stops at the next one";
    plan.move(2, plan.frames());
    EXPECT_EQ(plan.cuts()[2], plan.frames() - shortest);
}

TEST_F(SplitPlans, TitlesStayWithTheirParts) {
    plan.setTitle(0, u"Begin"_s);
    plan.setTitle(2, u"Third"_s);
    EXPECT_EQ(plan.titles(), (QStringList{u"Begin"_s, {}, u"Third"_s, {}}));
    plan.remove(0);
    EXPECT_EQ(plan.titles(), (QStringList{u"Begin"_s, u"Third"_s, {}}));
    plan.move(0, plan.cuts()[0] + 3000);
    EXPECT_EQ(plan.title(1), u"Third"_s);
    plan.reset();
    plan.setTitle(2, u"Again"_s);
    plan.setRule({0.4, -40}); // moves the middle of the silence
    EXPECT_EQ(plan.title(2), u"Again"_s);
    plan.setRule({0.7, -60}); // without that cut
    EXPECT_EQ(plan.partCount(), 3);
    EXPECT_FALSE(plan.titles().contains(u"Again"_s));
    plan.setRule({0.4, -60});
    EXPECT_EQ(plan.title(2), u"Again"_s);
    plan.setTitle(2, {});
    EXPECT_EQ(plan.title(2), QString());
}

TEST(SplitPlansOfNothing, HaveNoParts) {
    SplitPlan plan;
    plan.setRule({1, -60});
    EXPECT_EQ(plan.partCount(), 0);
    EXPECT_EQ(plan.add(50000), -1);
    plan.remove(0);
    plan.move(0, 5);
    EXPECT_TRUE(plan.cuts().empty());
}
