// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppDelegate.h"
#include "AppWindows.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/LinuxServices.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainWndController.h"
#include "tests/Program/DesktopProgram.h"
#include "tests/support/WaitFor.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

/// The whole program in this process, controlled with the pointer and the keyboard of a real X server, recording the
/// tone of a private sound server.
class MainWindowOnADesktop : public testing::Test {
protected:
    void SetUp() override {
        services.install(Platform::LinuxServices::Mode::Window);
        const auto audio = services.startAudio();
        ASSERT_TRUE(audio) << qPrintable(audio.error().text);
        PreferenceStore::setPreferenceValue(0, PreferenceStore::PreferenceFilterKey);
        // The process's only library lives longer than each test's folders.
        auto& library = MediaLibrary::shareLibrary();
        library.setRecords(records());
        library.setRingtones({});
        library.setCurrentNewArray({});
        library.saveMediaLibraryList();
        launch();
    }
    void launch() {
        running = Platform::RunningProgram::create(Platform::services().bundle->bundleIdentifier());
        windows = createAppWindows();
        application = std::make_unique<AppDelegate>(*windows, *running);
        ASSERT_TRUE(application->applicationDidFinishLaunching()) << qPrintable(application->lastError());
        controller = static_cast<MainWndController*>(application->mainWndController());
        ASSERT_TRUE(waitFor([&] { return controller->window()->windowHandle()->isExposed(); }));
        ASSERT_TRUE(waitFor([&] { return controller->window()->isActiveWindow(); }));
    }
    void TearDown() override {
        application->applicationWillTerminate();
        application.reset();
        windows.reset();
    }
    /// Ends the program and starts it again, with the same folders and the same sound server.
    void restart() {
        TearDown();
        running.reset();
        launch();
    }

    /// The recordings that the library has when the window opens.
    [[nodiscard]] virtual QVariantList records() const { return {}; }

    static XvfbSession& desktop() { return *XvfbSession::current(); }
    [[nodiscard]] QWidget& outlet(const char* name) const {
        return *controller->window()->findChild<QWidget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QTableView& table() const { return static_cast<QTableView&>(outlet("audioTableView_")); }
    void clickAt(QPoint place, int button = 1, int times = 1) const {
        QStringList arguments{u"mousemove"_s, QString::number(place.x()), QString::number(place.y()), u"click"_s};
        if (times > 1)
            arguments << u"--repeat"_s << QString::number(times) << u"--delay"_s << u"60"_s;
        ASSERT_TRUE(desktop().xdotool(arguments << QString::number(button)));
    }
    void click(const char* name) const {
        // The window manager may still be moving the window: the button itself reports when the pointer is on it.
        const QWidget& widget = outlet(name);
        ASSERT_TRUE(waitFor([&] {
            const QPoint place = widget.mapToGlobal(widget.rect().center());
            // A pointer that is there already would not enter again.
            return desktop().xdotool({u"mousemove"_s, u"0"_s, u"0"_s, u"mousemove"_s, QString::number(place.x()),
                                      QString::number(place.y())}) &&
                   waitFor([&] { return widget.underMouse(); }, 500);
        }));
        ASSERT_TRUE(desktop().xdotool({u"click"_s, u"1"_s}));
    }
    [[nodiscard]] QPoint rowPlace(int row) const {
        return table().viewport()->mapToGlobal(
            table().visualRect(table().model()->index(row, AudioTableModel::Title)).center());
    }
    void keys(const QString& combination) const { ASSERT_TRUE(desktop().xdotool({u"key"_s, combination})); }
    [[nodiscard]] RecordStateController& record() const { return controller->record(); }
    /// Makes a recording of at least this length with the buttons.
    void makeRecording(double seconds) {
        const auto before = MediaLibrary::shareLibrary().records().size();
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() >= seconds; }, 60000));
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == before + 1; }, 60000));
        controller->library().reloadFromMediaLibrary();
    }
    static double lengthOf(const QString& path) {
        const auto info = Platform::services().mediaFiles->info(path);
        return info ? info->seconds : -1;
    }
    /// Calls @p act as soon as a dialog is open. The dialog runs its own loop.
    void whenAsked(std::function<void(QMessageBox&)> act) {
        auto* timer = new QTimer(controller);
        QObject::connect(timer, &QTimer::timeout, controller, [timer, act = std::move(act)] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow())
                return;
            timer->deleteLater();
            timer->stop();
            act(*box);
        });
        timer->start(20);
    }

    Home user;
    Platform::LinuxServices services;
    std::unique_ptr<Platform::RunningProgram> running;
    std::unique_ptr<AppDelegate::Windows> windows;
    std::unique_ptr<AppDelegate> application;
    MainWndController* controller = nullptr;
};
