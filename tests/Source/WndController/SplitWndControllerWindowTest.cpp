// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/CustomSound.h"
#include "Source/WndController/SplitPartsModel.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/Source/WndController/SplitWorld.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SplitWindow : public testing::Test {
protected:
    void openHalfSecondCuts() {
        world.open(world.splitRecording(u"One"_s));
        world.length().setValue(4);
        ASSERT_EQ(world.cuts().size(), 3U);
    }
    void waitForSheet() {
        ASSERT_TRUE(waitFor([&] { return !world.controller.waitWndController().isSheetUp(); }, 60000));
    }
    static auto about(double seconds) { return DoubleNear(seconds, 0.03); }

    SplitWorld world;
};

} // namespace

TEST_F(SplitWindow, ShowsTheCutsWhileTheSlidersMove) {
    world.open(world.splitRecording(u"One"_s));
    EXPECT_THAT(world.cuts(), ElementsAre(about(8.6))) << "silences of a second below -60 dB";
    EXPECT_EQ(world.found(), u"One cut. The longest silence found: 1.1 s."_s);
    world.length().setFocus();
    for (int step = 0; step < 6; ++step)
        world.key(Qt::Key_Left); // 0.4 s
    EXPECT_THAT(world.cuts(), ElementsAre(about(2.5), about(5.25), about(8.6)));
    EXPECT_EQ(world.found(), u"3 cuts. The longest silence found: 1.1 s."_s);
    EXPECT_EQ(world.table().model()->rowCount(), 4);
    world.key(Qt::Key_End);
    EXPECT_THAT(world.cuts(), IsEmpty());
    EXPECT_EQ(world.found(), u"No silence is long enough. The longest silence found: 1.1 s."_s);
    EXPECT_FALSE(world.button("btnSplit_").isEnabled());
    world.key(Qt::Key_Home);
    EXPECT_EQ(world.cuts().size(), 3U);
    world.level().setFocus();
    world.key(Qt::Key_Home); // the encoder's noise lies above -90 dB
    const std::size_t atLowest = world.cuts().size();
    world.key(Qt::Key_End);
    EXPECT_GE(world.cuts().size(), atLowest);
}

TEST_F(SplitWindow, SaysWhenThereIsNoSilence) {
    const QString path = world.at(u"Loud.m4a"_s);
    MediaTest::writeFile(path, kAudioFileM4AType, MediaTest::tones(3 * SplitWorld::kRate));
    world.open(SplitWorld::entry(u"Loud"_s, u"Loud"_s, path, 3));
    EXPECT_EQ(world.found(), u"No silence found at this level. Choose a higher level, or add cuts yourself."_s);
    EXPECT_FALSE(world.button("btnSplit_").isEnabled());
    EXPECT_TRUE(world.button("btnAdd_").isEnabled());
    EXPECT_FALSE(world.button("btnRemove_").isEnabled());
    EXPECT_FALSE(world.button("btnListen_").isEnabled());
}

TEST_F(SplitWindow, SaysWhyAFileOfAnotherProgramCannotBeSplit) {
    const Dictionary entry = world.recording(u"Other"_s, 3);
    world.open(entry);
    EXPECT_TRUE(world.found().contains(u"not a finished recording of Sonaphex"_s)) << qPrintable(world.found());
    EXPECT_FALSE(world.button("btnSplit_").isEnabled());
    EXPECT_FALSE(world.button("btnAdd_").isEnabled());
}

TEST_F(SplitWindow, TheMouseMovesAndAddsCuts) {
    openHalfSecondCuts();
    world.drag(world.onWave(5.25), world.onWave(6.5));
    EXPECT_THAT(world.cuts(), ElementsAre(about(2.5), DoubleNear(6.5, 0.05), about(8.6)));
    EXPECT_EQ(world.bar().currentCut(), 1);
    // By its handle, and not past the next cut.
    world.drag(world.bar().handleRect(1).center(),
               {double(world.bar().width()), world.bar().handleRect(1).center().y()});
    EXPECT_NEAR(world.cuts()[1], world.cuts()[2] - 0.05, 0.001);
    QTest::mouseDClick(world.controller.window()->windowHandle(), Qt::LeftButton, {}, world.inWindow(world.onWave(4)));
    EXPECT_EQ(world.cuts().size(), 4U);
    EXPECT_NEAR(world.cuts()[1], 4, 0.05);
    EXPECT_EQ(world.bar().currentCut(), 1) << "the added cut is the current one";
    world.click("btnRemove_");
    EXPECT_EQ(world.cuts().size(), 3U);
    world.click("btnReset_");
    EXPECT_THAT(world.cuts(), ElementsAre(about(2.5), about(5.25), about(8.6)));
    EXPECT_FALSE(world.button("btnReset_").isEnabled());
}

TEST_F(SplitWindow, TheKeyboardMovesAddsAndRemovesCuts) {
    openHalfSecondCuts();
    const double before = world.cuts()[0];
    world.key(Qt::Key_Home); // chooses nothing, the current cut goes to its limit
    EXPECT_NEAR(world.cuts()[0], 0.05, 0.001);
    world.click("btnReset_");
    world.bar().setFocus();
    world.key(Qt::Key_Up);
    world.key(Qt::Key_Up);
    EXPECT_EQ(world.bar().currentCut(), 0);
    world.key(Qt::Key_Right);
    EXPECT_NEAR(world.cuts()[0], before + 0.1, 0.001);
    world.key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(world.cuts()[0], before + 1.1, 0.001);
    world.key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_NEAR(world.cuts()[0], before + 1.09, 0.001);
    world.key(Qt::Key_Down);
    EXPECT_EQ(world.bar().currentCut(), 1);
    world.key(Qt::Key_Delete);
    EXPECT_EQ(world.cuts().size(), 2U);
    EXPECT_EQ(world.table().currentIndex().row(), 2) << "the part behind the next cut";

    world.key(Qt::Key_Tab, Qt::ShiftModifier); // the play position
    world.key(Qt::Key_PageUp);
    EXPECT_EQ(world.bar().playFrame(), 10 * SplitWorld::kRate);
    world.key(Qt::Key_Insert);
    EXPECT_EQ(world.cuts().size(), 3U);
    EXPECT_DOUBLE_EQ(world.cuts()[2], 10);
    EXPECT_EQ(world.bar().currentCut(), 2);
}

TEST_F(SplitWindow, PlaysAroundACut) {
    openHalfSecondCuts();
    world.bar().setCurrentCut(1);
    world.click("btnListen_");
    FakeSound& sound = *world.sounds.last;
    EXPECT_TRUE(sound.playing);
    EXPECT_NEAR(sound.time, world.cuts()[1] - 2, 0.001);
    sound.time = world.cuts()[1] + 1;
    world.controller.updatePlayPosition();
    EXPECT_FALSE(world.controller.audioPlayControl()->isPause());
    EXPECT_NEAR(double(world.bar().playFrame()) / SplitWorld::kRate, world.cuts()[1] + 1, 0.001);
    sound.time = world.cuts()[1] + 2.01;
    world.controller.updatePlayPosition();
    EXPECT_TRUE(world.controller.audioPlayControl()->isPause()) << "it ends behind the cut";
    EXPECT_EQ(world.button("btnPlay_").text(), u"Play"_s);
    world.key(Qt::Key_P);
    EXPECT_NEAR(sound.time, world.cuts()[1] - 2, 0.001);
    world.key(Qt::Key_Space);
    EXPECT_TRUE(world.controller.audioPlayControl()->isPause());
    // A click on the outline plays from there on.
    QTest::mouseClick(world.controller.window()->windowHandle(), Qt::LeftButton, {}, world.inWindow(world.onWave(7)));
    EXPECT_NEAR(sound.time, 7, 0.05);
    world.key(Qt::Key_Space);
    EXPECT_TRUE(world.controller.audioPlayControl()->isPlaying());
    sound.time = 11.95;
    world.controller.updatePlayPosition();
    EXPECT_TRUE(world.controller.audioPlayControl()->isStop());
}

TEST_F(SplitWindow, ZoomsToPlaceACutExactly) {
    openHalfSecondCuts();
    auto& scroll = world.outlet<QScrollBar>("scrollBar_");
    EXPECT_FALSE(scroll.isEnabled());
    world.bar().setCurrentCut(1);
    for (int i = 0; i < 20; ++i)
        world.key(Qt::Key_Plus);
    EXPECT_NEAR(double(world.bar().visibleFrames()) / SplitWorld::kRate, 1, 0.01) << "a second at most";
    EXPECT_TRUE(scroll.isEnabled());
    const std::int64_t first = world.bar().firstVisible();
    EXPECT_LT(first, world.bar().cuts()[1]);
    EXPECT_GT(first + world.bar().visibleFrames(), world.bar().cuts()[1]);
    const double from = world.cuts()[1];
    world.drag(world.bar().handleRect(1).center(), world.bar().handleRect(1).center() + QPointF(60, 0));
    EXPECT_NEAR(world.cuts()[1], from + 60 / world.bar().waveRect().width(), 0.005);
    scroll.setValue(0);
    EXPECT_EQ(world.bar().firstVisible(), 0);
    world.bar().setCurrentCut(2);
    EXPECT_GT(world.bar().firstVisible(), 0) << "it scrolls to the current cut";
    for (int i = 0; i < 20; ++i)
        world.key(Qt::Key_Minus);
    EXPECT_EQ(world.bar().zoom(), 1);
    EXPECT_FALSE(scroll.isEnabled());
}

TEST_F(SplitWindow, ChoosingAPartChoosesItsCut) {
    openHalfSecondCuts();
    const QAbstractItemModelTester tester(world.table().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    world.table().setFocus();
    world.table().setCurrentIndex(world.table().model()->index(0, 0));
    world.key(Qt::Key_Down);
    world.key(Qt::Key_Down);
    EXPECT_EQ(world.bar().currentCut(), 1);
    world.key(Qt::Key_Delete);
    EXPECT_EQ(world.cuts().size(), 2U) << "Delete in the list removes the cut before the part";
    world.length().setValue(10);
    world.length().setValue(1);
    world.length().setValue(4);
    EXPECT_EQ(world.table().model()->rowCount(), 3);
}

TEST_F(SplitWindow, WritesThePartsWithTheirTitlesAndKeepsTheRecording) {
    openHalfSecondCuts();
    const QByteArray before = Mpeg4Files::contentOf(world.path);
    world.table().setFocus();
    world.table().setCurrentIndex(world.table().model()->index(1, SplitPartsModel::Title));
    world.key(Qt::Key_F2);
    auto* const editor = world.table().findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    editor->selectAll();
    QTest::keyClicks(editor, u"Rain 100%1"_s);
    ASSERT_TRUE(Mpeg4Files::write(world.at(u"One 2.m4a"_s), "another"));
    const auto whole = MediaTest::readFile(world.path).rows;
    world.click("btnSplit_"); // while the title is being typed
    waitForSheet();
    EXPECT_TRUE(world.alerts.shown.isEmpty());
    EXPECT_FALSE(world.controller.window()->isVisible());
    const QStringList names{u"One (2) 1.m4a"_s, u"One (2) 2.m4a"_s, u"One (2) 3.m4a"_s, u"One (2) 4.m4a"_s};
    MediaTest::Samples all(2);
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(world.updatedPaths.value(i), world.at(names[i]));
        const auto part = MediaTest::readFile(world.at(names[i])).rows;
        for (std::size_t channel = 0; channel < 2; ++channel)
            all[channel].insert(all[channel].end(), part[channel].begin(), part[channel].end());
    }
    EXPECT_TRUE(all == whole) << "sample by sample";
    EXPECT_EQ(world.updatedTags[1].value(AudioRecordEntry::Title).toString(), u"Rain 100%1"_s);
    EXPECT_EQ(Mpeg4Files::probe(world.at(names[1]))[u"title"_s].toString(), u"Rain 100%1"_s);
    EXPECT_TRUE(world.updatedTags[1].contains(AudioRecordEntry::Length));
    EXPECT_EQ(Mpeg4Files::contentOf(world.at(u"One 2.m4a"_s)), "another") << "nothing is overwritten";
    EXPECT_EQ(Mpeg4Files::contentOf(world.path), before);
    EXPECT_TRUE(world.removed.isEmpty());
    EXPECT_EQ(world.shownPath, world.at(names[0]));
}

TEST_F(SplitWindow, RemovesTheRecordingOnlyWhenAsked) {
    openHalfSecondCuts();
    world.outlet<QCheckBox>("boxDelete_").click();
    world.click("btnSplit_");
    waitForSheet();
    ASSERT_EQ(world.removed.size(), 1);
    EXPECT_EQ(world.removed[0].value(AudioRecordEntry::SavePath).toString(), world.path);
    EXPECT_EQ(world.updatedPaths.size(), 4);
    world.open(world.splitRecording(u"Two"_s));
    EXPECT_FALSE(world.outlet<QCheckBox>("boxDelete_").isChecked()) << "it applies to one recording";
}

TEST_F(SplitWindow, AFailedSplitKeepsEverythingAndSaysWhy) {
    openHalfSecondCuts();
    const QStringList before = world.files();
    QFile::setPermissions(g_strTmpPath, QFile::ReadOwner);
    QDir(g_strTmpPath).removeRecursively(); // as on a disk that is gone
    world.outlet<QCheckBox>("boxDelete_").click();
    world.click("btnSplit_");
    waitForSheet();
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"The recording was not split."_s);
    EXPECT_FALSE(world.alerts.shown[0].text.isEmpty());
    EXPECT_TRUE(world.controller.window()->isVisible()) << "the cuts are not lost";
    EXPECT_EQ(world.files(), before);
    EXPECT_TRUE(world.removed.isEmpty());
    EXPECT_TRUE(world.updatedPaths.isEmpty());
}

TEST_F(SplitWindow, WritingCanBeCancelled) {
    openHalfSecondCuts();
    const QStringList before = world.files();
    WaitWndController& sheet = world.controller.waitWndController();
    auto& cancel = *sheet.window()->findChild<QPushButton*>();
    world.controller.split();
    ASSERT_TRUE(sheet.isSheetUp());
    EXPECT_TRUE(cancel.isVisible());
    QTest::keyClick(sheet.window(), Qt::Key_Escape);
    EXPECT_FALSE(cancel.isEnabled()) << "it is cancelled once";
    waitForSheet();
    // The worker may have finished before it saw the wish; then the parts are there, all of them.
    if (world.updatedPaths.isEmpty()) {
        EXPECT_EQ(world.files(), before);
        EXPECT_TRUE(world.controller.window()->isVisible());
    } else {
        EXPECT_EQ(world.updatedPaths.size(), 4);
    }
    EXPECT_TRUE(world.alerts.shown.isEmpty());
}

TEST_F(SplitWindow, EscapeClosesTheWindow) {
    openHalfSecondCuts();
    world.key(Qt::Key_Escape);
    EXPECT_FALSE(world.controller.window()->isVisible());
    EXPECT_EQ(world.files(), QStringList{u"One.m4a"_s});
}

TEST_F(SplitWindow, EveryControlHasANameAndTheSearchShowsItsProgress) {
    world.controller.setRecording(world.splitRecording(u"One"_s));
    EXPECT_TRUE(world.found().startsWith(u"Searching for silences…"_s)) << qPrintable(world.found());
    EXPECT_FALSE(world.button("btnSplit_").isEnabled());
    ASSERT_TRUE(waitFor([&] { return world.controller.isSearched(); }, 60000));
    for (QWidget* each : world.controller.window()->findChildren<QWidget*>())
        if ((each->focusPolicy() & Qt::TabFocus) && !qobject_cast<QAbstractButton*>(each)) {
            EXPECT_FALSE(each->accessibleName().isEmpty()) << each->metaObject()->className();
        }
}
