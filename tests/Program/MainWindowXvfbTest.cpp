// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Program/MainWindowOnADesktop.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/HotKey/HotKeyRegister.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/StatusBarItem.h"

#include <QAbstractButton>
#include <QMenu>

TEST_F(MainWindowOnADesktop, RecordsFromTheToneWithTheButtons) {
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().isStateAudioRecord(); }));
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 1; }, 60000));
    EXPECT_GT(record().getAudioWaveLevelValue(), 0.01F) << "the tone is heard";
    click("btnPauseRecord_");
    ASSERT_TRUE(waitFor([&] { return record().isRecordPause_(); }));
    const double paused = record().recordedSeconds();
    ASSERT_TRUE(waitFor([&] { return record().stateString() == u"Pause"_s; }));
    EXPECT_NEAR(record().recordedSeconds(), paused, 0.3) << "a pause records nothing";
    click("btnPauseRecord_");
    ASSERT_TRUE(waitFor([&] { return !record().isRecordPause_(); }));
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > paused + 1; }, 60000));
    click("btnSplitRecord_");
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == 1; }, 60000));
    EXPECT_TRUE(record().isStateAudioRecord()) << "it goes on in the next file";
    const double cut = record().recordedSeconds();
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > cut + 1; }, 60000));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == 2; }, 60000));
    ASSERT_TRUE(waitFor([&] { return controller->library().tableViewShowEnable(); }));
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(controller->library().tableViewSelectionAudioPath(), user.recording(1));
    EXPECT_GT(lengthOf(user.recording(0)), 2);
    EXPECT_GT(lengthOf(user.recording(1)), 1);
}

TEST_F(MainWindowOnADesktop, ADoubleClickPlaysAndTheBarSeeks) {
    makeRecording(6); // longer than a busy machine needs from the start to the key that pauses
    // Two clicks count as a double click, even when the second one is delivered late.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(30000);
    clickAt(rowPlace(0), 1, 2);
    ASSERT_TRUE(waitFor([&] { return controller->library().isPlaySoundPlaying(); }));
    QApplication::setDoubleClickInterval(interval);
    ASSERT_TRUE(waitFor([&] { return controller->display().currentTime() > 0.2; })) << "the sound is there";
    EXPECT_FALSE(controller->display().tabViewShowWave());
    keys(u"space"_s);
    ASSERT_TRUE(waitFor([&] { return !controller->library().isPlaySoundPlaying(); }));
    const QWidget* bar = controller->window()->findChild<QWidget*>(u"audioPlayProgressView"_s);
    ASSERT_NE(bar, nullptr);
    clickAt(bar->mapToGlobal(QPoint(5 + (bar->width() - 10) / 2, bar->height() / 2)));
    const double half = controller->display().duration() / 2;
    EXPECT_TRUE(waitFor([&] { return std::abs(controller->display().currentTime() - half) < 0.2; }));
    EXPECT_TRUE(controller->display().playSound()->isPause()) << "a paused sound stays paused";
    click("btnPlayAudio_");
    EXPECT_TRUE(waitFor([&] { return !controller->display().playSound(); })) << "it ends by itself and is let go";
    EXPECT_FALSE(controller->library().isPlaySoundPlaying());
}

TEST_F(MainWindowOnADesktop, DeletingAsksAndEscapeKeepsTheFile) {
    makeRecording(0.5); // is selected; a click on its title would begin to edit it
    ASSERT_TRUE(waitFor([&] { return controller->library().tableViewDeleteEnable(); }));
    QString asked;
    whenAsked([&](QMessageBox& box) {
        asked = box.text();
        keys(u"Escape"_s);
    });
    keys(u"Delete"_s);
    ASSERT_TRUE(waitFor([&] { return !asked.isEmpty() && !QApplication::activeModalWidget(); }));
    EXPECT_EQ(asked, u"Do you want to move these items to the trash?"_s);
    EXPECT_TRUE(QFile::exists(user.recording(0)));
    ASSERT_EQ(MediaLibrary::shareLibrary().records().size(), 1);
    whenAsked([&](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            if (button->text() == u"Remove"_s)
                clickAt(button->mapToGlobal(button->rect().center()));
    });
    click("btnDelete_");
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().isEmpty(); }));
    EXPECT_FALSE(QFile::exists(user.recording(0)));
    EXPECT_EQ(table().model()->rowCount(), 0);
}

TEST_F(MainWindowOnADesktop, ClosingWhileRecordingIsRefused) {
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.2; }, 60000));
    QString said;
    whenAsked([&](QMessageBox& box) {
        said = box.text() + u'|' + box.informativeText();
        keys(u"Return"_s);
    });
    keys(u"alt+F4"_s);
    ASSERT_TRUE(waitFor([&] { return !said.isEmpty() && !QApplication::activeModalWidget(); }));
    EXPECT_EQ(said, u"Waring:|Please stop your recording."_s);
    EXPECT_TRUE(controller->window()->isVisible());
    EXPECT_TRUE(record().isStateAudioRecord());
}

TEST_F(MainWindowOnADesktop, AContextClickSelectsItsRowAndOffersItsCommands) {
    makeRecording(0.3);
    makeRecording(0.3);
    clickAt(rowPlace(0));
    ASSERT_TRUE(waitFor([&] { return controller->library().tableViewShowEnable(); }));
    QMenu* menu = controller->menus().audioTableViewMenu();
    clickAt(rowPlace(1), 3);
    ASSERT_TRUE(waitFor([&] { return menu->isVisible(); }));
    EXPECT_EQ(controller->library().tableViewSelectionAudioPath(), user.recording(0));
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !menu->isVisible(); }));
    keys(u"ctrl+a"_s);
    ASSERT_TRUE(waitFor([&] { return controller->library().tableViewSelectionAudioArray().size() == 2; }));
    clickAt(rowPlace(0), 3);
    ASSERT_TRUE(waitFor([&] { return menu->isVisible(); }));
    EXPECT_EQ(controller->library().tableViewSelectionAudioArray().size(), 2) << "the selection of both is kept";
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !menu->isVisible(); }));
    clickAt(table().viewport()->mapToGlobal(QPoint(50, table().viewport()->height() - 20)), 3);
    ASSERT_TRUE(waitFor([&] { return controller->library().tableViewSelectionAudioArray().isEmpty(); }));
    EXPECT_FALSE(menu->isVisible()) << "nothing is offered for nothing";
}

TEST_F(MainWindowOnADesktop, HotKeysWorkWhileTheWindowIsMinimisedAndObeyTheirGuards) {
    controller->window()->showMinimized();
    ASSERT_TRUE(waitFor([&] { return !controller->window()->isActiveWindow(); }));
    keys(u"ctrl+super+p"_s);
    keys(u"ctrl+super+s"_s);
    ASSERT_TRUE(waitFor([&] { return record().isStateAudioRecord(); })) << "start works from anywhere";
    EXPECT_FALSE(record().isRecordPause_()) << "a pause while idle does nothing";
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.2; }, 60000));
    keys(u"ctrl+super+p"_s);
    ASSERT_TRUE(waitFor([&] { return record().isRecordPause_(); }));
    keys(u"ctrl+super+s"_s);
    ASSERT_TRUE(waitFor([&] { return !record().isStateAudioRecord(); }));
    record().chooseRecordBuiltIn(false);
    // Every press of a hot key is reported; when the second one arrives, the first has been handled.
    int arrived = 0;
    const auto presses = Platform::NotificationCenter::defaultCenter().addObserver(
        HotKeyRegister::HotKeyRegisterNotification, [&](const QString&, const Dictionary&) { ++arrived; });
    keys(u"ctrl+super+s"_s);
    keys(u"ctrl+super+p"_s);
    ASSERT_TRUE(waitFor([&] { return arrived == 2; }));
    EXPECT_FALSE(record().isStateAudioRecord()) << "no source, no start";
}

TEST_F(MainWindowOnADesktop, TheStatusBarItemShowsTheTitlesOfTheState) {
    ASSERT_TRUE(desktop().startTray());
    auto* item = controller->findChild<StatusBarItem*>();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(StatusBarItem::kImageSize, 20);
    const auto isThere = [] {
        return std::ranges::any_of(QApplication::topLevelWidgets(), [](QWidget* each) {
            return each->inherits("QSystemTrayIconSys") && each->windowHandle() && each->windowHandle()->isExposed();
        });
    };
    // A tray moves its icons while it makes room for them, so a click may miss.
    const auto opensItsMenu = [&] {
        const auto isOpen = [&] { return item->systemBarMenu()->isVisible(); };
        return waitFor([&] {
            clickAt(item->icon()->geometry().center(), 3);
            return waitFor(isOpen, 2000);
        });
    };
    ASSERT_TRUE(waitFor(isThere)) << "the tray came after the program";
    // The shape shows the state, and the tool tip contains the state and the time.
    const auto shape = [&] { return item->icon()->icon().pixmap(20, 20).toImage().createAlphaMask(); };
    const QImage atRest = shape();
    EXPECT_FALSE(atRest.isNull());
    EXPECT_EQ(item->icon()->toolTip(), u"Sonaphex"_s);
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.2; }, 60000));
    const QImage recording = shape();
    EXPECT_NE(recording, atRest);
    EXPECT_TRUE(waitFor([&] { return item->icon()->toolTip() == u"Sonaphex: Recording 00:01"_s; }));
    controller->pauseAndResumeRecord();
    EXPECT_NE(shape(), recording);
    EXPECT_NE(shape(), atRest);
    EXPECT_TRUE(item->icon()->toolTip().startsWith(u"Sonaphex: Paused 00:0"_s)) << qPrintable(item->icon()->toolTip());
    // Trays keep copies of the menus, so the titles must be right before the menu opens.
    EXPECT_EQ(item->startStopMenu()->text(), u"Stop Record"_s);
    EXPECT_EQ(item->pauseResumeMenu()->text(), u"Resume Record"_s);
    EXPECT_TRUE(item->startNewRecordMenu()->isEnabled());
    ASSERT_TRUE(opensItsMenu());
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !item->systemBarMenu()->isVisible(); }));
    controller->startAndStopRecord();
    EXPECT_EQ(item->startStopMenu()->text(), u"Start Record"_s);
    EXPECT_EQ(item->pauseResumeMenu()->text(), u"Pause Record"_s);
    EXPECT_FALSE(item->pauseResumeMenu()->isEnabled());
    EXPECT_EQ(shape(), atRest);
    EXPECT_EQ(item->icon()->toolTip(), u"Sonaphex"_s);
    desktop().stopTray();
    ASSERT_TRUE(waitFor([&] { return !isThere(); }));
    ASSERT_TRUE(desktop().startTray());
    ASSERT_TRUE(waitFor(isThere)) << "a tray that comes back has the item again";
    ASSERT_TRUE(opensItsMenu());
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !item->systemBarMenu()->isVisible(); }));
    desktop().stopTray();
}
