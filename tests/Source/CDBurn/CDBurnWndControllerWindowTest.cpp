// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/CDBurnWndController.h"

#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/NotificationCenter.h"
#include "Source/View/Theme.h"
#include "tests/Source/CDBurn/BurnWorld.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class BurnWindow : public testing::Test {
protected:
    BurnWindow() { Theme::install(*qApp, nullptr); }

    /// What a state shows, apart from its text.
    void expectState(const QString& message, bool ready) {
        auto& label = world.outlet<QLabel>("lblState_");
        auto& burn = world.outlet<QPushButton>("btnBurn_");
        EXPECT_EQ(label.text(), message);
        EXPECT_EQ(burn.isEnabled(), ready) << qPrintable(message);
        EXPECT_EQ(burn.icon().name(), ready ? u"burn1.png"_s : u"burn3.png"_s);
        const bool red = label.palette().color(QPalette::WindowText) == QColor(Qt::red);
        EXPECT_EQ(red, !ready) << qPrintable(message);
        EXPECT_EQ(label.font().families().first() == u"Lucida Grande"_s, !ready);
        if (!ready)
            EXPECT_EQ(label.font().pixelSize(), 13);
        else
            EXPECT_EQ(label.font(), world.outlet<QLabel>("lblSummary_").font());
    }
    void expectEject(bool possible) {
        auto& eject = world.outlet<QToolButton>("btnEject_");
        EXPECT_EQ(eject.isEnabled(), possible);
        EXPECT_EQ(eject.icon().name(), possible ? u"EjectDisc1.png"_s : u"EjectDisc2.png"_s);
    }
    /// An audio file that the doubles know.
    QString file(const QString& name, double seconds) {
        Platform::AudioFileInfo info;
        info.dataFormat.mSampleRate = 44100;
        info.dataFormat.mFramesPerPacket = 1;
        info.packetCount = info.frameCount = std::int64_t(seconds * 44100);
        const QString path = u"/files/"_s + name;
        world.media.infos.insert(path, info);
        return path;
    }

    /// Runs the modal session; @p act must end it.
    void runModal(const std::function<void()>& act) {
        bool ended = false;
        QTimer::singleShot(0, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowExposed(world.controller->window(), 30000));
            act();
            ended = !world.controller->window()->isVisible();
            world.controller->window()->hide(); // after a failed test, the loop must still end
        });
        world.controller->runModal();
        EXPECT_TRUE(ended);
    }

    BurnWorld world;
};

} // namespace

TEST_F(BurnWindow, AnEmptyListWaitsForMusicWithAndWithoutADisc) {
    world.open();
    expectState(u"Waiting for the import Music File"_s, false);
    world.insert(*world.drive);
    expectState(u"Waiting for the import Music File"_s, false);
    expectEject(true);
}

TEST_F(BurnWindow, MusicWithoutADiscWaitsForOne) {
    world.open(BurnWorld::records());
    expectState(u"Waiting for the inserted Disc"_s, false);
    expectEject(false);
}

TEST_F(BurnWindow, AWrittenDiscMustBeErasedOrReplaced) {
    world.drive->erasable = true;
    world.insert(*world.drive);
    world.drive->blank = false;
    world.open(BurnWorld::records());
    expectState(u"Is not blank, Please erase the Disc"_s, false);
    world.drive->erasable = false;
    world.controller->flushDVDStartinfo();
    expectState(u"Is not blank, Please replace the Disc"_s, false);
    expectEject(true);
}

TEST_F(BurnWindow, MusicThatJustFitsIsReadyAndAMegabyteMoreIsNot) {
    world.open(BurnWorld::records());
    EXPECT_EQ(world.summary(), u" 5 Items     Size: 628 MB"_s);
    world.insert(*world.drive, BurnWorld::blocksOf(628));
    expectState(u"Ready to burn"_s, true);
    world.takeOut(*world.drive);
    world.insert(*world.drive, BurnWorld::blocksOf(627));
    expectState(u"Disc space not enough for music"_s, false);
    world.clickTick(0);
    EXPECT_EQ(world.summary(), u" 4 Items     Size: 520 MB"_s);
    expectState(u"Ready to burn"_s, true);
}

TEST_F(BurnWindow, FreeSpaceIsCountedInThousandthsOfTheEnginesGigabyte) {
    world.open({BurnWorld::record(u"Long.m4a"_s, 5553)}); // 999.72 MB
    world.insert(*world.drive, 524'288);                  // 1024 * 1024 * 1024 bytes
    expectState(u"Ready to burn"_s, true);
    world.controller->setAudioDataForCDBurn({BurnWorld::record(u"Longer.m4a"_s, 5562)}); // 1001.34 MB
    expectState(u"Disc space not enough for music"_s, false);
}

TEST_F(BurnWindow, FollowsInsertedAndRemovedDiscs) {
    world.open(BurnWorld::records());
    world.drive->state.mediaState = Platform::DRDeviceMediaStateInTransition;
    world.tell(*world.drive);
    expectState(u"Waiting for the inserted Disc"_s, false);
    world.insert(*world.drive);
    expectState(u"Ready to burn"_s, true);
    expectEject(true);
    world.takeOut(*world.drive);
    expectState(u"Waiting for the inserted Disc"_s, false);
    expectEject(false);
}

TEST_F(BurnWindow, ObservesNotificationsOfAnySender) {
    world.open(BurnWorld::records());
    auto& center = Platform::NotificationCenter::defaultCenter();
    // The system knows the disc, but no drive has reported it to the engine.
    world.drive->insertBlankDisc(BurnWorld::blocksOf(686));
    world.arbitration.described.insert(world.drive->path());
    center.post(u"DvdInsert"_s);
    expectState(u"Waiting for the inserted Disc"_s, false);
    center.post(u"DvdIn"_s);
    expectState(u"Ready to burn"_s, true);
    world.drive->removeDisc();
    center.post(u"DvdInsert"_s);
    expectState(u"Ready to burn"_s, true);
    center.post(u"DvdOut"_s);
    expectState(u"Waiting for the inserted Disc"_s, false);
}

TEST_F(BurnWindow, TheChosenDriveDecides) {
    world.insert(*world.other);
    world.open(BurnWorld::records());
    auto& popUp = world.outlet<QComboBox>("popDrives_");
    EXPECT_EQ(popUp.count(), 2);
    EXPECT_EQ(popUp.currentText(), u"Fast Burner 52x"_s);
    expectState(u"Waiting for the inserted Disc"_s, false);
    popUp.setFocus();
    world.key(Qt::Key_Down);
    EXPECT_EQ(world.controller->burnControl().recordNum(), 1U);
    expectState(u"Ready to burn"_s, true);
}

TEST_F(BurnWindow, ChoosingTheChosenDriveDoesNothing) {
    world.open(BurnWorld::records());
    world.drive->insertBlankDisc(BurnWorld::blocksOf(686));
    world.arbitration.described.insert(world.drive->path());
    world.controller->chooseBurnDevice(0);
    expectState(u"Waiting for the inserted Disc"_s, false);
    world.controller->chooseBurnDevice(1);
    world.controller->chooseBurnDevice(0);
    expectState(u"Ready to burn"_s, true);
}

TEST_F(BurnWindow, ListsAddedAndRemovedDrives) {
    world.open(BurnWorld::records());
    auto& popUp = world.outlet<QComboBox>("popDrives_");
    world.controller->chooseBurnDevice(1);
    world.insert(*world.other);
    expectState(u"Ready to burn"_s, true);
    world.recording.drives.erase(world.recording.drives.begin());
    world.recording.listChanged();
    EXPECT_EQ(popUp.count(), 1);
    EXPECT_EQ(popUp.currentText(), u"Disc Image (CUE/BIN)"_s);
    EXPECT_EQ(world.controller->burnControl().recordNum(), 0U);
    expectState(u"Ready to burn"_s, true);
    world.recording.drives.insert(world.recording.drives.begin(), world.drive);
    world.recording.listChanged();
    EXPECT_EQ(popUp.count(), 2);
    EXPECT_EQ(popUp.currentIndex(), 1);
    world.recording.drives.pop_back();
    world.recording.listChanged();
    EXPECT_EQ(popUp.currentText(), u"Fast Burner 52x"_s);
    expectState(u"Waiting for the inserted Disc"_s, false);
}

TEST_F(BurnWindow, ShowsAProblemOfTheDrive) {
    world.drive->state.problem = u"another program uses the drive"_s;
    world.open(BurnWorld::records());
    auto& label = world.outlet<QLabel>("lblProblem_");
    EXPECT_TRUE(label.isVisible());
    EXPECT_TRUE(label.text().contains(u"another program uses the drive"_s));
    world.controller->chooseBurnDevice(1);
    EXPECT_FALSE(label.isVisible());
}

TEST_F(BurnWindow, EjectEjectsTheDisc) {
    world.open(BurnWorld::records());
    world.insert(*world.drive);
    BurnWorld::click(world.outlet("btnEject_"));
    EXPECT_EQ(world.drive->ejects, 1);
    world.takeOut(*world.drive);
    BurnWorld::click(world.outlet("btnEject_"));
    EXPECT_EQ(world.drive->ejects, 1);
}

TEST_F(BurnWindow, UntickingLowersCountSizeAndTimeButKeepsTheEntries) {
    world.open(BurnWorld::records());
    EXPECT_EQ(world.outlet<QLabel>("lblTotalTime_").text(), u"Time: 00:58:10"_s);
    world.clickTick(1);
    EXPECT_EQ(world.summary(), u" 4 Items     Size: 487 MB"_s);
    EXPECT_EQ(world.outlet<QLabel>("lblTotalTime_").text(), u"Time: 00:45:10"_s);
    for (const int row : {0, 2, 3, 4})
        world.clickTick(row);
    EXPECT_EQ(world.summary(), u" 0 Items     Size: 0 MB"_s);
    EXPECT_FALSE(world.controller->trackList().isNullForData());
    expectState(u"Waiting for the inserted Disc"_s, false);
    world.clickTick(1);
    EXPECT_EQ(world.summary(), u" 1 Items     Size: 140 MB"_s);
}

TEST_F(BurnWindow, TheSpaceBarGivesAllSelectedRowsTheSameTick) {
    world.open(BurnWorld::records());
    world.clickRow(1);
    world.key(Qt::Key_Space);
    EXPECT_EQ(world.summary(), u" 4 Items     Size: 487 MB"_s);
    world.clickRow(0);
    world.clickRow(2, Qt::ShiftModifier);
    world.key(Qt::Key_Space);
    EXPECT_EQ(world.controller->trackList().dataCountNum(), 2) << "all three follow the current row";
    world.key(Qt::Key_Space);
    EXPECT_EQ(world.controller->trackList().dataCountNum(), 5);
}

TEST_F(BurnWindow, RowsMoveWithAltAndTheArrowKeys) {
    world.open(BurnWorld::records());
    const QStringList before = world.names();
    world.clickRow(0);
    world.clickRow(2, Qt::ControlModifier);
    world.key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(world.names(), (QStringList{before[1], before[3], before[0], before[2], before[4]}));
    world.key(Qt::Key_Down, Qt::AltModifier);
    world.key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(world.names(), (QStringList{before[1], before[3], before[4], before[0], before[2]}));
    for (int i = 0; i < 5; ++i)
        world.key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(world.names(), (QStringList{before[0], before[2], before[1], before[3], before[4]}));
}

TEST_F(BurnWindow, DeleteRemovesRowsUntilTheListIsEmpty) {
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    world.clickRow(0);
    world.clickRow(3, Qt::ShiftModifier);
    world.key(Qt::Key_Delete);
    EXPECT_EQ(world.names(), QStringList{u"Encore.m4a"_s});
    expectState(u"Ready to burn"_s, true);
    world.key(Qt::Key_Delete);
    expectState(u"Waiting for the import Music File"_s, false);
    EXPECT_EQ(world.summary(), u" 0 Items     Size: 0 MB"_s);
}

TEST_F(BurnWindow, FilesOfThePanelAreAppended) {
    world.open(BurnWorld::records());
    world.panels.answers = {file(u"a.wav"_s, 2.0), u"/files"_s, file(u"short.wav"_s, 1.9), file(u"a.wav"_s, 2.0),
                            u"/gone.wav"_s};
    BurnWorld::click(world.outlet("btnAddFiles_"));
    EXPECT_EQ(world.panels.prompts, QStringList{u"Select"_s});
    EXPECT_EQ(world.panels.startFolders, QStringList{Platform::Folders::home()});
    EXPECT_EQ(world.names().mid(5), (QStringList{u"a.wav"_s, u"a.wav"_s}));
    EXPECT_EQ(world.summary(), u" 7 Items     Size: 629 MB"_s);
    world.panels.answers = {};
    BurnWorld::click(world.outlet("btnAddFiles_"));
    EXPECT_EQ(world.names().size(), 7) << "Cancel";
}

TEST_F(BurnWindow, RejectedFilesDoNotChangeTheList) {
    world.open(BurnWorld::records());
    auto& list = world.controller->trackList();
    const QSignalSpy inserted(list.model(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy reset(list.model(), &QAbstractItemModel::modelReset);
    EXPECT_FALSE(
        list.addFilesToDataAry({QUrl::fromLocalFile(u"/files"_s), QUrl::fromLocalFile(file(u"short.wav"_s, 1.9)),
                                QUrl(u"https://example.com/a.wav"_s)}));
    EXPECT_FALSE(list.addFilesToDataAry({}));
    EXPECT_EQ(inserted.count() + reset.count(), 0);
    EXPECT_TRUE(list.addFilesToDataAry({QUrl::fromLocalFile(file(u"b.wav"_s, 100))}));
    EXPECT_EQ(inserted.count(), 1);
}

TEST_F(BurnWindow, RecordingsReplaceTheList) {
    world.open(BurnWorld::records());
    Dictionary withoutLength = BurnWorld::record(u"Nothing.m4a"_s, 0);
    withoutLength.remove(AudioRecordEntry::Length);
    world.controller->setAudioDataForCDBurn(
        {BurnWorld::record(u"One.m4a"_s, 100), withoutLength, BurnWorld::record(u"Blink.m4a"_s, 1.5)});
    EXPECT_EQ(world.names(), QStringList{u"One.m4a"_s});
    EXPECT_EQ(world.summary(), u" 1 Items     Size: 18 MB"_s);
}

TEST_F(BurnWindow, BurnTakesTheTickedEntriesInTheirOrder) {
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    world.clickTick(1);
    world.clickRow(4);
    world.key(Qt::Key_Up, Qt::AltModifier);
    BurnWorld::click(world.outlet("btnEjectAfterBurn_"));
    BurnWorld::click(world.outlet("btnBurn_"));
    const auto burn = world.recording.lastBurn();
    ASSERT_TRUE(burn && burn->layout);
    QStringList paths;
    for (const auto& track : *burn->layout)
        paths.append(track->path());
    EXPECT_EQ(paths, (QStringList{u"/music/Interview with Ada.m4a"_s, u"/music/Choir.m4a"_s, u"/music/Encore.m4a"_s,
                                  u"/music/Lecture 7.m4a"_s}));
    EXPECT_EQ(burn->properties().completionAction, Platform::DRBurnCompletionActionEject);
    EXPECT_TRUE(world.sheet().isVisible());
    EXPECT_TRUE(world.sheet().isModal());
    EXPECT_EQ(world.sheet().parentWidget(), world.controller->window());
}

TEST_F(BurnWindow, WithoutEjectTheFinishedDiscIsMounted) {
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    world.key(Qt::Key_Return);
    ASSERT_TRUE(world.recording.lastBurn());
    EXPECT_EQ(world.recording.lastBurn()->properties().completionAction, Platform::DRBurnCompletionActionMount);
}

TEST_F(BurnWindow, ADiscRemovedWithoutNotificationStartsNoBurn) {
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    world.arbitration.described.clear();
    world.drive->removeDisc();
    expectState(u"Ready to burn"_s, true);
    BurnWorld::click(world.outlet("btnBurn_"));
    EXPECT_FALSE(world.recording.lastBurn());
    EXPECT_FALSE(world.sheet().isVisible());
    expectState(u"Waiting for the inserted Disc"_s, false);
}

TEST_F(BurnWindow, WithoutATickedEntryBurnReportsItAndStartsNothing) {
    world.insert(*world.drive);
    world.open({BurnWorld::record(u"One.m4a"_s, 100)});
    world.clickTick(0);
    expectState(u"Ready to burn"_s, true);
    BurnWorld::click(world.outlet("btnBurn_"));
    EXPECT_FALSE(world.recording.lastBurn());
    EXPECT_TRUE(world.controller->window()->isVisible());
    ASSERT_EQ(world.alerts.shown.size(), 1);
    EXPECT_EQ(world.alerts.shown[0].title, u"There is nothing to burn."_s);
}

TEST_F(BurnWindow, AnImageWithoutAPathStartsNoBurn) {
    world.insert(*world.drive);
    world.recording.declinesBurns = true;
    world.open(BurnWorld::records());
    BurnWorld::click(world.outlet("btnBurn_"));
    EXPECT_FALSE(world.sheet().isVisible());
    EXPECT_TRUE(world.controller->window()->isVisible());
    expectState(u"Ready to burn"_s, true);
}

TEST_F(BurnWindow, TheModalSessionEndsWithTheSheet) {
    world.insert(*world.drive);
    world.open(BurnWorld::records()).window()->hide();
    runModal([this] {
        EXPECT_TRUE(world.controller->window()->isModal());
        world.key(Qt::Key_Return);
        ASSERT_TRUE(world.recording.lastBurn());
        world.recording.lastBurn()->reach(Platform::DRStatusStateFailed, 0.5, u"The laser is cold."_s);
    });
    EXPECT_FALSE(world.controller->window()->isVisible());
    EXPECT_FALSE(world.sheet().isVisible());
    EXPECT_TRUE(world.alerts.shown.isEmpty()) << "the reason is in the log";
}

TEST_F(BurnWindow, EscapeEndsTheModalSessionAndTheSizeIsKept) {
    world.open(BurnWorld::records()).window()->hide();
    EXPECT_EQ(world.controller->window()->size(), QSize(720, 480));
    runModal([this] {
        world.controller->window()->resize(800, 500);
        world.key(Qt::Key_Escape);
    });
    EXPECT_FALSE(world.controller->window()->isVisible());
    world.open();
    EXPECT_EQ(world.controller->window()->size(), QSize(800, 500));
}

TEST_F(BurnWindow, EveryControlHasANameAndIsReachedByTab) {
    world.insert(*world.drive);
    world.open(BurnWorld::records());
    QSet<QWidget*> reached;
    for (int i = 0; i < 12; ++i) {
        world.key(Qt::Key_Tab);
        if (QWidget* focus = QApplication::focusWidget())
            reached.insert(focus);
    }
    for (const char* name :
         {"popDrives_", "btnEject_", "trackList_", "btnAddFiles_", "btnEjectAfterBurn_", "btnBurn_"}) {
        QWidget& widget = world.outlet(name);
        EXPECT_TRUE(reached.contains(&widget)) << name;
        const auto* button = qobject_cast<QAbstractButton*>(&widget);
        EXPECT_FALSE(widget.accessibleName().isEmpty() && (!button || button->text().isEmpty())) << name;
    }
}
