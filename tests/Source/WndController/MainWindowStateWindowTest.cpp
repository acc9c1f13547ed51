// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileManager.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/View/ConvertingTipView.h"
#include "Source/View/ElidedLabel.h"
#include "Source/View/TransportButton.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/WindowLayout.h"
#include "tests/Source/WndController/MainWindowTest.h"
#include "tests/fakes/FakeRecordingFiles.h"
#include "tests/support/Environment.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Counts how often a widget is shown.
class ShowCounter : public QObject {
public:
    explicit ShowCounter(QWidget& widget) { widget.installEventFilter(this); }
    [[nodiscard]] int count() const { return count_; }
    bool eventFilter(QObject* watched, QEvent* event) override {
        count_ += event->type() == QEvent::Show;
        return QObject::eventFilter(watched, event);
    }

private:
    int count_ = 0;
};

/// What the window shows of the recording: its state, notices and progress.
class StateOfTheMainWindow : public MainWindow {};

} // namespace

TEST_F(StateOfTheMainWindow, TheConvertingNoticeSlidesInAndOut) {
    MainWndController& controller = world.open();
    ConvertingTipView& tip = controller.recordPanel().fileConvertingTipView();
    EXPECT_FALSE(tip.isVisible());
    const QString text = u"         Audio File Converting\n         Please Wait .."_s;
    tip.showFileConvertTipView(true, text, 0.5);
    EXPECT_TRUE(tip.isVisible());
    EXPECT_EQ(tip.text(), text);
    EXPECT_EQ(tip.palette().color(tip.foregroundRole()), QColor(Qt::red));
    const int height = tip.parentWidget()->height();
    ASSERT_TRUE(waitFor([&] { return tip.y() == height - tip.height(); }));
    tip.showFileConvertTipView(false, text, -1);
    EXPECT_TRUE(waitFor([&] { return !tip.isVisible(); }));
    EXPECT_EQ(tip.y(), height);
}

TEST_F(StateOfTheMainWindow, TheConvertingNoticeDoesNotFlashAtAStopOfOneSource) {
    MainWndController& controller = world.open();
    ConvertingTipView& tip = controller.recordPanel().fileConvertingTipView();
    ShowCounter shows(tip);
    const QSignalSpy finished(world.record.get(), &RecordStateController::recordingFinished);
    for (int i = 0; i < 3; ++i) {
        world.click("btnSatrtRecord_");
        feed(0.5F);
        world.click("btnSatrtRecord_");
        ASSERT_TRUE(waitFor([&] { return finished.count() == i + 1 && world.record->jobsInQueue() == 0; }));
    }
    EXPECT_EQ(shows.count(), 0);
}

TEST_F(StateOfTheMainWindow, TheConvertingNoticeStaysForLongWork) {
    FakeRecordingFiles files;
    files.holdMix = true; // two sources: mixing takes a while
    Platform::services().mediaFiles = &files;
    PreferenceStore::setPreferenceValue(true, PreferenceStore::ChooseRecordComputerAudio);
    MainWndController& controller = world.open();
    ConvertingTipView& tip = controller.recordPanel().fileConvertingTipView();
    world.click("btnSatrtRecord_");
    feed(0.5F);
    feed(0.5F, WindowWorld::kComputer);
    world.click("btnSatrtRecord_");
    const QString text = u"         Audio File Converting\n         Please Wait "_s;
    EXPECT_TRUE(waitFor([&] { return tip.isVisible() && tip.text().startsWith(text); }));
    files.holdMix = false;
    EXPECT_TRUE(waitFor([&] { return world.record->jobsInQueue() == 0 && !tip.isVisible(); }));
}

TEST_F(StateOfTheMainWindow, LostFramesAndNoticesAreShown) {
    MainWndController& controller = world.open();
    auto& lost = world.outlet<QLabel>("lblLostFrames_");
    EXPECT_EQ(lost.text(), QString()) << "nothing is recorded yet";
    world.click("btnSatrtRecord_");
    EXPECT_EQ(lost.text(), u"No frames lost"_s);
    feed(0.5F);
    for (const auto& state : world.hardware.opened)
        state->lost = 480;
    world.record->recordFlushTime();
    ASSERT_TRUE(waitFor([&] { return lost.text() == u"0.010 s lost"_s; })) << qPrintable(lost.text());
    EXPECT_EQ(lost.toolTip(), u"480 frames"_s);
    EXPECT_TRUE(waitFor([&] { return controller.display().notices().size() == 1; }));
    for (const auto& state : world.hardware.opened)
        state->lost = 960;
    world.record->recordFlushTime();
    ASSERT_TRUE(waitFor([&] { return controller.display().notices().value(0).text.contains(u"(960 frames)"_s); }));
    EXPECT_EQ(controller.display().notices().size(), 1) << "a loss that grows is one notice";
    world.click("dismissNoticeButton");
    EXPECT_TRUE(world.record->notices().isEmpty());
    world.click("btnSatrtRecord_");
}

TEST_F(StateOfTheMainWindow, AnUnfinishedRecordingIsShownAndSoSeen) {
    const EnvironmentScope data("XDG_DATA_HOME", QFile::encodeName(world.folder.filePath(u"data"_s)));
    const QString kept = Platform::FileManager::unfinishedFolder() + u"/Track7.m4a"_s;
    ASSERT_TRUE(QFile(kept).open(QIODevice::WriteOnly));
    world.open();
    world.record->tellUnfinishedRecordings();
    ASSERT_TRUE(world.outlet("noticeLine").isVisible());
    world.click("helpButton");
    EXPECT_EQ(world.workspace.selected, QStringList{kept});
    EXPECT_FALSE(world.outlet("noticeLine").isVisible());
    world.record->tellUnfinishedRecordings();
    EXPECT_FALSE(world.outlet("noticeLine").isVisible());
}

TEST_F(StateOfTheMainWindow, ChooseDeviceOpensTheListOfDevices) {
    world.hardware.list.push_back({30, u"USB Headset"_s, u"usb"_s});
    world.open();
    auto& devices = world.outlet<QComboBox>("popBuiltInDevice_");
    world.hardware.remove(WindowWorld::kMicrophone);
    ASSERT_TRUE(waitFor([&] { return world.outlet("helpButton").isVisible(); }));
    EXPECT_EQ(world.outlet<QToolButton>("helpButton").text(), u"Choose Device"_s);
    world.click("helpButton");
    ASSERT_TRUE(waitFor([&] { return devices.view()->isVisible(); }));
    devices.hidePopup();
}

TEST_F(StateOfTheMainWindow, EachNoticeIsAnsweredWithTheKeyboard) {
    const EnvironmentScope data("XDG_DATA_HOME", QFile::encodeName(world.folder.filePath(u"data"_s)));
    const QString kept = Platform::FileManager::unfinishedFolder() + u"/Track7.m4a"_s;
    ASSERT_TRUE(QFile(kept).open(QIODevice::WriteOnly));
    world.hardware.list.push_back({30, u"USB Headset"_s, u"usb"_s});
    world.open();
    auto& devices = world.outlet<QComboBox>("popBuiltInDevice_");
    const auto key = [&](int code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(world.controller->window()->windowHandle(), Qt::Key(code), modifiers);
    };
    world.record->tellUnfinishedRecordings();
    world.hardware.remove(WindowWorld::kMicrophone);
    ASSERT_TRUE(waitFor([&] { return world.record->noticeList().size() == 2; }));
    EXPECT_EQ(world.outlet<QToolButton>("helpButton").text(), u"Choose Device"_s);
    key(Qt::Key_F8);
    EXPECT_EQ(world.outlet<QToolButton>("helpButton").text(), u"Show"_s);
    key(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(world.workspace.selected, QStringList{kept});
    EXPECT_EQ(world.record->noticeList().size(), 1) << "it was seen";
    key(Qt::Key_F8, Qt::ShiftModifier);
    ASSERT_TRUE(waitFor([&] { return devices.view()->isVisible(); }));
    devices.hidePopup();
    EXPECT_EQ(world.record->noticeList().size(), 1);
}

TEST_F(StateOfTheMainWindow, AfterTheInstallationTheWindowSaysSoAndTicksTheBox) {
    std::erase_if(world.hardware.list, [](const auto& each) { return each.id == WindowWorld::kComputer; });
    MainWndController& controller = world.open();
    auto& box = world.outlet<QAbstractButton>("btnComputerAudioRecord_");
    controller.systemAudioRecordDeviceInstalled();
    EXPECT_EQ(status(), u"The computer-audio device is installed."_s);
    EXPECT_FALSE(box.isChecked()) << "its source is not there yet";
    world.hardware.add({WindowWorld::kComputer, u"Korvane System Audio"_s, u"korvane"_s});
    EXPECT_TRUE(waitFor([&] { return box.isChecked(); }));
    EXPECT_EQ(status(), u"The computer-audio device is installed. What the computer plays is recorded from now on."_s);
    EXPECT_TRUE(world.alerts.shown.isEmpty()) << "it must not ask for the installation once more";
    // Chosen once: the user may switch it off.
    world.click("btnComputerAudioRecord_");
    EXPECT_FALSE(box.isChecked());
    world.hardware.remove(WindowWorld::kComputer);
    world.hardware.add({WindowWorld::kComputer, u"Korvane System Audio"_s, u"korvane"_s});
    QCoreApplication::processEvents();
    EXPECT_FALSE(box.isChecked());
}

TEST_F(StateOfTheMainWindow, TitleAndButtonShowTheState) {
    world.open();
    const auto title = [&] { return world.controller->window()->windowTitle(); };
    EXPECT_EQ(title(), u"Sonaphex"_s);
    world.click("btnSatrtRecord_");
    feed(0.5F);
    world.record->setDisplayClockRunning(false);
    for (int i = 0; i < 2 * 3725; ++i)
        world.record->recordFlushTime();
    EXPECT_TRUE(title().startsWith(u"Recording 1:02:05"_s)) << qPrintable(title());
    world.click("btnPauseRecord_");
    EXPECT_TRUE(title().startsWith(u"Paused 1:02:05"_s)) << qPrintable(title());
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStopWaiting.png"_s);
    world.click("btnPauseRecord_");
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStop.png"_s);
    world.click("btnSatrtRecord_");
    EXPECT_EQ(title(), u"Sonaphex"_s);
}

TEST_F(StateOfTheMainWindow, AHiddenWindowNeedsTheLevelLater) {
    using Use = Platform::InputUnit::Use;
    world.open();
    const auto use = [&] { return world.hardware.stateOf(WindowWorld::kMicrophone)->use; };
    EXPECT_EQ(use(), Use::Now);
    world.controller->window()->hide();
    EXPECT_TRUE(waitFor([&] { return use() == Use::Later; }));
    world.controller->window()->show();
    EXPECT_TRUE(waitFor([&] { return use() == Use::Now; }));
}

TEST_F(StateOfTheMainWindow, ThePlaybackSideShowsStateAndTimeDuringARecording) {
    world.open();
    world.click("changeTabViewButton");
    EXPECT_FALSE(world.outlet("timeField").isVisible()) << "nothing is recorded";
    world.click("changeTabViewButton");
    world.click("btnSatrtRecord_");
    feed(0.5F);
    world.record->recordFlushTime();
    world.click("changeTabViewButton");
    EXPECT_TRUE(world.outlet("playPage").isVisible());
    EXPECT_TRUE(world.outlet("timeField").isVisible());
    EXPECT_TRUE(world.outlet<QLabel>("stateField").text().startsWith(u"Rec"_s));
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(world.outlet("timeField").isVisible()) << "a stop shows the recording side";
}

TEST_F(StateOfTheMainWindow, ShowsThatAnArmedRecordingWaits) {
    PreferenceStore::setPreferenceValue(false, PreferenceStore::ChooseRecordBuiltIn);
    PreferenceStore::setPreferenceValue(true, PreferenceStore::ChooseRecordComputerAudio);
    world.open();
    auto& hint = world.outlet<QLabel>("hintField");
    EXPECT_FALSE(hint.isVisible());
    world.click("btnSatrtRecord_");
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(hint.text().simplified(), u"Waiting for the first sound of computer audio"_s);
    EXPECT_EQ(world.outlet<QLabel>("lblLostFrames_").text(), QString());
    EXPECT_EQ(world.controller->window()->windowTitle(), u"Waiting for the first sound \u2013 Sonaphex"_s);
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStopWaiting.png"_s);
    EXPECT_TRUE(button("btnPauseRecord_").isEnabled());
    feed(0.5F, WindowWorld::kComputer);
    EXPECT_TRUE(waitFor([&] {
        world.record->recordFlushTime();
        return !hint.isVisible();
    }));
    EXPECT_EQ(world.outlet<QLabel>("lblLostFrames_").text(), u"No frames lost"_s);
    EXPECT_EQ(button("btnSatrtRecord_").image(), u"RecorderStop.png"_s);
    world.click("btnSatrtRecord_");
}

TEST_F(StateOfTheMainWindow, ShowsThatATestToneIsRecordedWithoutASoundServer) {
    world.hardware.testTone = true;
    world.open();
    auto& health = world.outlet<QLabel>("hintField");
    EXPECT_EQ(health.text().simplified(), u"No sound server: a test tone is recorded"_s);
    world.click("btnSatrtRecord_");
    feed(0.5F);
    world.record->recordFlushTime();
    EXPECT_EQ(health.text().simplified(), u"No sound server: a test tone is recorded"_s) << "cut off";
    world.click("btnSatrtRecord_");
}

TEST_F(StateOfTheMainWindow, ShowsWhyNothingCanBeRecorded) {
    world.open();
    auto& health = world.outlet<QLabel>("hintField");
    while (!world.hardware.list.empty())
        world.hardware.remove(world.hardware.list.back().id);
    EXPECT_TRUE(waitFor([&] { return health.text() == u"No input device"_s; })) << qPrintable(health.text());
    world.click("btnSatrtRecord_");
    EXPECT_FALSE(world.record->isStateAudioRecord());
    EXPECT_FALSE(button("btnPauseRecord_").isEnabled());
    world.hardware.isConnected = false;
    Q_EMIT world.hardware.connectedChanged(false);
    EXPECT_EQ(health.text(), u"No sound server"_s);
}
