// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/PreferenceWndController.h"

#include "CaptureComputerAudio/CaptureDriver.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"
#include "Platform/Audio/linux/DeviceRegistry.h"
#include "Platform/Foundation/Services.h"
#include "tests/fakes/FakeAdminShell.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeHotKeys.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/support/PrivateAudioSession.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

// The real window, the real driver and a real sound server; only the installation folder is the test's.
class InstallingTheDevice : public testing::Test {
protected:
    InstallingTheDevice() : session(PrivateAudioSession::shared()), hardware(Platform::createAudioHardware()) {
        auto& set = Platform::services();
        set.audioHardware = hardware.get();
        set.ioRegistry = registry.get();
        set.adminShell = &shell;
        set.alerts = &alerts;
        set.bundle = &bundle;
        set.userDefaults = &defaults;
        set.hotKeys = &hotKeys;
        controller = std::make_unique<PreferenceWndController>(ComputerAudioDevice::system());
        controller->makeKeyAndOrderFront();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(controller->window(), 30000));
    }
    ~InstallingTheDevice() override {
        controller.reset();
        EXPECT_TRUE(CaptureDriver::unload(20000));
    }
    bool listed() {
        for (const auto device : hardware->devices())
            if (QString name; hardware->getDeviceName(device, name) == noErr && name == u"Korvane System Audio"_s)
                return true;
        return false;
    }
    template <typename T>
    T* find(const char* name) {
        return controller->window()->findChild<T*>(QString::fromLatin1(name));
    }

    Platform::ServicesScope scope;
    PrivateAudioSession& session;
    std::unique_ptr<Platform::AudioHardware> hardware;
    std::unique_ptr<Platform::IORegistry> registry = Platform::createIORegistry();
    QTemporaryDir folder;
    KextInstallControl::ExtensionsFolderScope extensions{folder.filePath(u"a folder; 'quoted'/Extensions"_s)};
    FakeAdminShell shell;
    FakeAlerts alerts;
    FakeBundle bundle;
    FakeUserDefaults defaults;
    FakeHotKeys hotKeys;
    std::unique_ptr<PreferenceWndController> controller;
};

} // namespace

TEST_F(InstallingTheDevice, AddsItsSourceAndUninstallingRemovesIt) {
    auto* insert = find<QPushButton>("insertDeviceButton");
    auto* remove = find<QPushButton>("unInsertDeviceButton");
    ASSERT_TRUE(insert->isEnabled());
    EXPECT_FALSE(listed());

    insert->click();
    EXPECT_TRUE(alerts.shown.isEmpty()) << qPrintable(KextInstallControl::lastError());
    EXPECT_TRUE(waitFor([&] { return listed() && remove->isEnabled(); }));
    EXPECT_FALSE(insert->isEnabled());
    EXPECT_EQ(find<QLabel>("deviceStateField")->text(), u"The computer-audio device is installed."_s);

    remove->click();
    EXPECT_TRUE(waitFor([&] { return !listed() && insert->isEnabled(); }));
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_FALSE(controller->systemAudioRecordDeviceExist());
}

TEST_F(InstallingTheDevice, KeepsTheWindowResponsiveAndShowsActivity) {
    std::atomic<bool> waiting{false}, goOn{false};
    shell.before = [&] {
        waiting = true;
        while (!goOn)
            QThread::msleep(1);
    };
    bool seen = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (!waiting)
            return;
        // The password prompt is open; this timer runs, and a second installation is refused.
        seen =
            find<QProgressBar>("deviceProgress")->isVisible() && !find<QPushButton>("insertDeviceButton")->isEnabled();
        controller->insertTheSystemAudioRecordDevice();
        goOn = true;
        look.stop();
    });
    look.start(5);
    find<QPushButton>("insertDeviceButton")->click();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(controller->systemAudioRecordDeviceExist());
    EXPECT_TRUE(alerts.shown.isEmpty());
    controller->unInsertTheSystemAudioRecordDevice();
}

TEST_F(InstallingTheDevice, ARefusedPasswordShowsTheAlertAndLeavesNothing) {
    shell.refusal = Platform::Error{Platform::Error::Kind::Cancelled, u"the password prompt was cancelled"_s};
    find<QPushButton>("insertDeviceButton")->click();
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown.first().title, u"Can not insert the system audio device, Please try it again."_s);
    EXPECT_TRUE(waitFor([&] { return find<QPushButton>("insertDeviceButton")->isEnabled(); }));
    EXPECT_EQ(find<QLabel>("deviceProblemField")->text(), u"the password prompt was cancelled"_s);
    EXPECT_FALSE(listed());
}
