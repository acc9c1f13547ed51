// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/ProcessWndController.h"

#include "Source/View/Theme.h"
#include "tests/Source/CDBurn/BurnWorld.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The sheet of a burn that has just started.
class ProgressSheet : public testing::Test {
protected:
    ProgressSheet() {
        Theme::install(*qApp, nullptr);
        world.insert(*world.drive);
        world.open(BurnWorld::records());
        BurnWorld::click(world.outlet("btnBurn_"));
        burn = world.recording.lastBurn();
        (void)QTest::qWaitForWindowExposed(&world.sheet(), 30000);
    }
    void progress(double share) { burn->reach(Platform::DRStatusStateTrackWrite, share); }
    void finish() { burn->reach(Platform::DRStatusStateDone, 1); }
    void fail() { burn->reach(Platform::DRStatusStateFailed, 0.5, u"No more room."_s); }
    template <typename W>
    [[nodiscard]] W& part(const char* name) const {
        return *world.sheet().findChild<W*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QString percent() const { return part<QLabel>("lblPercent_").text(); }
    [[nodiscard]] QString message() const { return part<QLabel>("lblMessage_").text(); }
    [[nodiscard]] bool canCancel() const { return part<QPushButton>("btnCancel_").isEnabled(); }
    [[nodiscard]] bool allClosed() const {
        return !world.sheet().isVisible() && !world.controller->window()->isVisible();
    }
    void clickCancel() { BurnWorld::click(part<QPushButton>("btnCancel_")); }

    BurnWorld world;
    std::shared_ptr<FakeBurn> burn;
};

} // namespace

TEST_F(ProgressSheet, WaitsUntilThereIsAPercentage) {
    EXPECT_TRUE(world.sheet().isVisible());
    EXPECT_EQ(part<QLabel>("lblTitle_").text(), u"Burn Progress:"_s);
    EXPECT_EQ(message(), u"Please waiting a moment ..."_s);
    EXPECT_EQ(percent(), u"0  %"_s);
    EXPECT_EQ(part<QPushButton>("btnCancel_").text(), u"Cancel"_s);
    EXPECT_FALSE(canCancel());
    EXPECT_EQ(part<QLabel>("lblTitle_").font().pixelSize(), 20);
    EXPECT_EQ(part<QLabel>("lblMessage_").font().pixelSize(), 16);
}

TEST_F(ProgressSheet, ShowsWholePercentAndNeverAHundred) {
    const QList<QPair<double, QString>> shown{{0.0, u"0  %"_s},    {0.129, u"12  %"_s}, {0.989, u"98  %"_s},
                                              {0.995, u"99  %"_s}, {1.0, u"99  %"_s},   {7.0, u"99  %"_s}};
    for (const auto& [share, text] : shown) {
        progress(share);
        EXPECT_EQ(percent(), text) << share;
        EXPECT_EQ(message(), u"Burning Disc..."_s);
    }
}

TEST_F(ProgressSheet, UnknownProgressKeepsThePercentage) {
    progress(0.42);
    const int bar = part<QProgressBar>("progressBar_").value();
    progress(-1);
    EXPECT_EQ(percent(), u"42  %"_s);
    EXPECT_EQ(message(), u"Please waiting a moment ..."_s);
    EXPECT_EQ(part<QProgressBar>("progressBar_").value(), bar);
    EXPECT_TRUE(canCancel());
    progress(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(percent(), u"42  %"_s);
    progress(0.43);
    EXPECT_EQ(message(), u"Burning Disc..."_s);
}

TEST_F(ProgressSheet, TheBarMovesBetweenTwoPercentages) {
    progress(0.201);
    const int before = part<QProgressBar>("progressBar_").value();
    progress(0.202);
    EXPECT_EQ(percent(), u"20  %"_s);
    EXPECT_GT(part<QProgressBar>("progressBar_").value(), before);
}

TEST_F(ProgressSheet, CancelIsOfferedFromFourPercent) {
    progress(0.0399);
    EXPECT_FALSE(canCancel()) << "3 percent";
    progress(0.04);
    EXPECT_TRUE(canCancel());
    progress(0.03);
    EXPECT_TRUE(canCancel()) << "once offered it stays";
}

TEST_F(ProgressSheet, StaysFiveSecondsAfterSuccessThenClosesTheWindow) {
    progress(0.9);
    QElapsedTimer timer;
    timer.start();
    finish();
    EXPECT_EQ(percent(), u"99  %"_s);
    EXPECT_TRUE(world.sheet().isVisible());
    EXPECT_FALSE(canCancel()) << "nothing is left to be cancelled";
    ASSERT_TRUE(waitFor([this] { return allClosed(); }));
    EXPECT_GE(timer.elapsed(), 5000);
    EXPECT_TRUE(world.alerts.shown.isEmpty());
}

TEST_F(ProgressSheet, AFailureClosesAtOnceWithoutAMessage) {
    progress(0.5);
    fail();
    EXPECT_TRUE(allClosed());
    EXPECT_TRUE(world.alerts.shown.isEmpty());
}

TEST_F(ProgressSheet, CancelAsksAndKeepsBurningByDefault) {
    progress(0.5);
    clickCancel();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"Warning:"_s);
    EXPECT_EQ(world.alerts.shown[0].text, u"Are you sure to end the task?"_s);
    EXPECT_EQ(world.alerts.shown[0].buttons, (QStringList{u"Cancel"_s, u"OK"_s}));
    EXPECT_EQ(burn->aborts, 0);
    EXPECT_TRUE(world.sheet().isVisible());
    progress(0.6);
    EXPECT_EQ(percent(), u"60  %"_s);
}

TEST_F(ProgressSheet, OkEndsTheBurnAndCloses) {
    progress(0.5);
    world.alerts.answers = {1};
    clickCancel();
    EXPECT_EQ(burn->aborts, 1);
    EXPECT_TRUE(allClosed());
    fail(); // notifications after an abort are not delivered
    EXPECT_TRUE(allClosed());
}

TEST_F(ProgressSheet, EscapeAsksToo) {
    QTest::keyClick(world.sheet().windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(world.alerts.shown.isEmpty()) << "there is nothing to cancel yet";
    EXPECT_TRUE(world.sheet().isVisible());
    progress(0.5);
    QTest::keyClick(world.sheet().windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(world.alerts.shown.size(), 1);
    EXPECT_TRUE(world.sheet().isVisible());
    world.sheet().close();
    EXPECT_EQ(world.alerts.shown.size(), 2) << "the close box";
    EXPECT_TRUE(world.sheet().isVisible());
}

TEST_F(ProgressSheet, ABurnThatEndsDuringTheQuestionIsNotStopped) {
    progress(0.98);
    world.alerts.answers = {1, 1};
    world.alerts.whileShown = [this] { finish(); };
    clickCancel();
    EXPECT_EQ(burn->aborts, 0);
    EXPECT_TRUE(world.sheet().isVisible()) << "it lingers as after any success";
}

TEST_F(ProgressSheet, ABurnThatFailsDuringTheQuestionClosesOnce) {
    progress(0.5);
    world.alerts.answers = {1};
    world.alerts.whileShown = [this] { fail(); };
    clickCancel();
    EXPECT_EQ(burn->aborts, 0);
    EXPECT_TRUE(allClosed());
}

TEST_F(ProgressSheet, TheNextBurnStartsFromTheBeginning) {
    progress(0.5);
    fail();
    world.controller->window()->show();
    BurnWorld::click(world.outlet("btnBurn_"));
    EXPECT_TRUE(world.sheet().isVisible());
    EXPECT_EQ(percent(), u"0  %"_s);
    EXPECT_EQ(part<QProgressBar>("progressBar_").value(), 0);
    EXPECT_EQ(message(), u"Please waiting a moment ..."_s);
    EXPECT_FALSE(canCancel());
}

TEST_F(ProgressSheet, BlocksInputToTheBurnWindow) {
    progress(0.5);
    BurnWorld::click(world.outlet("btnBurn_"));
    EXPECT_EQ(world.recording.burns.size(), 1U);
    world.controller->window()->windowHandle()->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(world.controller->window()->isVisible());
}
