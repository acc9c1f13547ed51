// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/Record/RecordSources.h"
#include "Source/View/ElidedLabel.h"
#include "Source/WndController/StatusBarItem.h"
#include "tests/Program/MainWindowOnADesktop.h"
#include "tests/fakes/FakeAdminShell.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/TestSource.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace {

/// The window with a sound server that has only the devices that the test connects.
class InputOnADesktop : public MainWindowOnADesktop {
protected:
    void SetUp() override {
        session = &PrivateAudioSession::shared(); // the program finds it and starts none of its own
        MainWindowOnADesktop::SetUp();
    }
    void TearDown() override {
        if (record().isStateAudioRecord())
            controller->startAndStopRecord();
        EXPECT_TRUE(waitFor([&] { return record().jobsInQueue() == 0; }));
        MainWindowOnADesktop::TearDown();
        PrivateAudioSession::end();
    }

    [[nodiscard]] QString hint() const { return controller->display().hint(); }
    [[nodiscard]] bool isShown(const QString& words) const {
        const auto& line = static_cast<QLabel&>(outlet("noticeField"));
        return waitFor([&] { return line.isVisible() && line.toolTip().contains(words); });
    }
    [[nodiscard]] bool isLive() const {
        const auto& levels = controller->display().audioRecordWaveView()->audioLevelArray();
        return !levels.isEmpty() && levels.first() > 0.01F;
    }
    [[nodiscard]] QComboBox& devices() const { return static_cast<QComboBox&>(outlet("popBuiltInDevice_")); }
    [[nodiscard]] QImage trayShape() const {
        return controller->findChild<StatusBarItem*>()->icon()->icon().pixmap(20, 20).toImage().createAlphaMask();
    }
    /// Stop, Pause and Split must not be offered.
    void expectIdle() const {
        EXPECT_EQ(record().state(), RecordState::Idle);
        EXPECT_FALSE(outlet("btnPauseRecord_").isEnabled());
        EXPECT_FALSE(outlet("btnSplitRecord_").isEnabled());
        EXPECT_EQ(outlet("btnSatrtRecord_").toolTip(), u"Start Record"_s);
        EXPECT_EQ(controller->window()->windowTitle(), u"Sonaphex"_s);
    }

    PrivateAudioSession* session = nullptr;
};

} // namespace

TEST_F(InputOnADesktop, AStartWithoutADeviceStaysIdleAndSaysWhyUntilOneIsConnected) {
    ASSERT_TRUE(waitFor([&] { return hint() == u"No input device"_s; })) << qPrintable(hint());
    EXPECT_TRUE(outlet("hintField").isVisible());
    click("btnSatrtRecord_");
    ASSERT_TRUE(isShown(u"There is no input device. Nothing is recorded."_s));
    expectIdle();
    keys(u"ctrl+r"_s);
    keys(u"ctrl+n"_s);
    // Keys arrive in their order: a start that came after the device would succeed.
    keys(u"ctrl+f"_s);
    ASSERT_TRUE(waitFor([&] { return outlet("searchField_").hasFocus(); }));
    expectIdle();
    TestSource microphone({.name = "test.microphone", .description = "Test Microphone"});
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(waitFor([&] { return hint().isEmpty() && isLive(); }));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.3; }, 60000));
}

TEST_F(InputOnADesktop, AServerThatIsGoneIsNamedAndTheNextOneIsHeard) {
    TestSource microphone({.name = "test.microphone", .description = "Test Microphone"});
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(waitFor([&] { return isLive(); }));
    ASSERT_TRUE(session->stopServer());
    ASSERT_TRUE(waitFor([&] { return hint() == u"No sound server"_s; })) << qPrintable(hint());
    ASSERT_TRUE(waitFor([&] { return !isLive(); })) << "nothing can be heard without a server";
    click("btnSatrtRecord_");
    ASSERT_TRUE(isShown(u"Nothing is recorded."_s));
    expectIdle();
    microphone.remove();
    ASSERT_TRUE(session->startServer());
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(waitFor([&] { return hint().isEmpty() && isLive(); }, 60000)) << qPrintable(hint());
}

TEST_F(InputOnADesktop, ADeviceThatGoesIsReplacedByNameAndTheNoticeLeadsToTheOthers) {
    TestSource desk({.name = "test.desk", .description = "Desk Microphone"});
    TestSource headset({.name = "test.headset", .description = "Headset"});
    ASSERT_TRUE(desk.start());
    ASSERT_TRUE(waitFor([&] { return devices().currentText() == u"Desk Microphone"_s; }));
    ASSERT_TRUE(headset.start());
    ASSERT_TRUE(waitFor([&] { return devices().count() == 2; }));
    desk.remove();
    ASSERT_TRUE(isShown(u"Desk Microphone is gone. Headset takes its place until it is back."_s));
    EXPECT_EQ(devices().currentText(), u"Headset"_s);
    EXPECT_EQ(static_cast<QToolButton&>(outlet("helpButton")).text(), u"Choose Device"_s);
    ASSERT_TRUE(waitFor([&] { return isLive(); }));
    click("helpButton");
    ASSERT_TRUE(waitFor([&] { return devices().view()->isVisible(); }));
    keys(u"Return"_s);
    ASSERT_TRUE(waitFor([&] { return !devices().view()->isVisible(); }));
    EXPECT_TRUE(waitFor([&] { return !outlet("noticeLine").isVisible(); })) << "the choice settles it";
}

TEST_F(InputOnADesktop, AnUnpluggingDuringARecordingTellsTheSecondsThatAreMissing) {
    TestSource microphone({.name = "test.microphone", .description = "Test Microphone"});
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(waitFor([&] { return isLive(); }));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.3; }, 60000));
    microphone.remove();
    ASSERT_TRUE(isShown(u"The input device went away. The recording so far is kept"_s));
    ASSERT_TRUE(waitFor([&] { return !isLive(); }));
    ASSERT_TRUE(microphone.start());
    ASSERT_TRUE(isShown(u" s are missing: the input device was away. The recording goes on."_s));
    EXPECT_EQ(record().notices().filter(u"away"_s).size(), 1) << qPrintable(record().notices().join(u'\n'));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == 1; }, 60000));
    EXPECT_TRUE(outlet("noticeLine").isVisible()) << "it stays until it was seen";
    click("btnSatrtRecord_");
    EXPECT_TRUE(waitFor([&] { return record().notices().filter(u"away"_s).isEmpty(); }))
        << "the next recording has no loss";
}

TEST_F(InputOnADesktop, ComputerAudioWaitsForTheFirstSoundAndSaysSo) {
    TestSource computer({.name = "test.computer",
                         .description = RecordSources::ComputerAudioName.toStdString(),
                         .content = TestSource::Content::Silence});
    ASSERT_TRUE(computer.start());
    ASSERT_TRUE(waitFor([&] { return record().hasComputerAudioDevice(); }));
    ASSERT_TRUE(desktop().startTray());
    auto* item = controller->findChild<StatusBarItem*>();
    ASSERT_TRUE(waitFor([&] { return item->icon() != nullptr; }));
    const QImage atRest = trayShape();
    click("btnComputerAudioRecord_");
    click("btnBuiltInRecord_");
    ASSERT_TRUE(waitFor([&] { return record().computerAudioChecked() && !record().builtInChecked(); }));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().state() == RecordState::Armed; }));
    EXPECT_EQ(hint(), u"Waiting for the first sound of computer audio"_s);
    EXPECT_EQ(controller->window()->windowTitle(), u"Waiting for the first sound \u2013 Sonaphex"_s);
    EXPECT_EQ(item->icon()->toolTip(), u"Sonaphex: Waiting for the first sound"_s);
    EXPECT_EQ(static_cast<QLabel&>(outlet("lblLostFrames_")).text(), QString());
    const QImage armed = trayShape();
    EXPECT_NE(armed, atRest);
    computer.setContent(TestSource::Content::Tone);
    ASSERT_TRUE(waitFor([&] { return record().state() == RecordState::Recording; }));
    ASSERT_TRUE(waitFor([&] { return hint().isEmpty(); }));
    const QImage recording = trayShape();
    click("btnPauseRecord_");
    ASSERT_TRUE(waitFor([&] { return record().state() == RecordState::Paused; }));
    const QImage paused = trayShape();
    EXPECT_NE(recording, armed);
    EXPECT_NE(recording, atRest);
    EXPECT_NE(paused, armed);
    EXPECT_NE(paused, atRest);
    EXPECT_NE(paused, recording);
    desktop().stopTray();
}

TEST_F(InputOnADesktop, InstallingTheAddOnIsToldAndTicksItsBox) {
    // Only the password and the folder are the test's.
    QTemporaryDir folder;
    const KextInstallControl::ExtensionsFolderScope extensions(folder.filePath(u"Extensions"_s));
    FakeAdminShell shell;
    auto* const before = std::exchange(Platform::services().adminShell, &shell);
    auto& box = static_cast<QCheckBox&>(outlet("btnComputerAudioRecord_"));
    QString asked;
    whenAsked([&](QMessageBox& alert) {
        asked = alert.text() + u'|' + alert.informativeText();
        keys(u"Return"_s); // Install
    });
    click("btnComputerAudioRecord_");
    ASSERT_TRUE(waitFor([&] { return !asked.isEmpty(); }));
    EXPECT_TRUE(asked.startsWith(u"Add-on required to record the system audio.|"_s)) << qPrintable(asked);
    EXPECT_TRUE(asked.contains(u"runs on Linux"_s)) << qPrintable(asked);
    EXPECT_TRUE(waitFor([&] { return box.isChecked(); }, 60000));
    const auto& line = static_cast<ElidedLabel&>(outlet("lblStatus_"));
    EXPECT_EQ(line.text(),
              u"The computer-audio device is installed. What the computer plays is recorded from now on."_s);
    EXPECT_TRUE(record().computerAudioChecked());
    Platform::services().adminShell = before;
    EXPECT_TRUE(CaptureDriver::unload(20000));
}
