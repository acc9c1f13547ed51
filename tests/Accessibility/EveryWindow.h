// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterAudio/AudioFilterController.h"
#include "RingtoneMaker/AudioWaveTrimView.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/HotKey/KeybordShortcutTextView.h"
#include "Source/View/AcceptDragImageView.h"
#include "Source/View/AudioTrimEditView.h"
#include "Source/View/QtAlerts.h"
#include "Source/View/QtFocusProbe.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTrimWndController.h"
#include "Source/WndController/ID3EditWndController.h"
#include "Source/WndController/PreferenceWndController.h"
#include "Source/WndController/StatusBarItem.h"
#include "Source/WndController/WaitWndController.h"
#include "tests/RingtoneMaker/RingtoneWorld.h"
#include "tests/Source/CDBurn/BurnWorld.h"
#include "tests/Source/WndController/BalanceWorld.h"
#include "tests/Source/WndController/EditWorld.h"
#include "tests/Source/WndController/SplitWorld.h"
#include "tests/Source/WndController/WindowWorld.h"
#include "tests/fakes/FakeAutostart.h"
#include "tests/fakes/FakeHotKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <functional>

/// Every window and dialog of the program, opened one after the other in the states that matter: for tests of what all
/// windows must have in common. Their files, devices and drives are doubles.
class EveryWindow {
public:
    /// Called with each window while it is shown and active.
    using Look = std::function<void(QWidget& window, const QString& name)>;

    explicit EveryWindow(Look look) : look_(std::move(look)) { Theme::install(*qApp, nullptr); }

    void open() {
        mainWindow();
        emptyMainWindow();
        preferences();
        trim();
        split();
        balance();
        tags();
        ringtone();
        filter();
        burn();
        alert();
    }

    void emptyMainWindow() {
        WindowWorld world;
        world.open();
        world.record->setDisplayClockRunning(false);
        look(*world.controller->window(), QStringLiteral("main window, empty"));
    }

    void mainWindow() {
        WindowWorld world;
        PreferenceStore::setPreferenceValue(true, PreferenceStore::ChooseRecordBuiltIn);
        for (const char* title : {"Interview with Ada", "Rain on the roof", "Choir rehearsal"}) {
            const Dictionary entry = world.made(QString::fromLatin1(title), 125);
            world.sounds.lengths.insert(entry.value(AudioRecordEntry::SavePath).toString(), 125);
            world.library->addRecordFile(entry);
        }
        world.library->addRingtoneFile(world.made(QStringLiteral("Ringtone"), 24, QStringLiteral("m4r")));
        MainWndController& main = world.open();
        main.bindWindows();
        for (const auto each :
             {WindowCommands::Window::AudioTrim, WindowCommands::Window::ID3Edit, WindowCommands::Window::CDBurn})
            main.commands().setOpener(each, [](const QVariantList&) {});
        main.menus().update();
        world.record->setDisplayClockRunning(false);
        world.selectNode(QStringLiteral("all-record"));
        QTableView& table = world.outlet<QTableView>("audioTableView_");
        table.selectRow(1);
        QWidget& window = *main.window();
        look(window, QStringLiteral("main window, list"));

        QMenu& menu = *main.menus().audioTableViewMenu();
        menu.popup(window.geometry().center());
        look(menu, QStringLiteral("context menu"));
        menu.close();
        StatusBarItem item(main);
        QMenu& status = *qobject_cast<QMenu*>(item.startStopMenu()->associatedObjects().value(0));
        status.popup(window.geometry().center());
        look(status, QStringLiteral("status menu"));
        status.close();

        main.tableViewDoubleAction(); // plays
        main.display().setTabViewShowWave(false);
        look(window, QStringLiteral("main window, playing"));
        main.stopSoundPlaying();
        main.display().setTabViewShowWave(true);

        main.startAndStopRecord();
        world.hardware.unitOf(WindowWorld::kMicrophone)->feedValue(0.5F, 512);
        for (int i = 0; i < 60; ++i)
            world.record->recordFlushTime();
        main.display().setNotices({{.text = QStringLiteral("The disk is nearly full."),
                                    .help = RecordNotice::Help::FreeSpace,
                                    .event = QStringLiteral("disk")},
                                   {.text = QStringLiteral("The input device is gone."),
                                    .help = RecordNotice::Help::ChooseDevice,
                                    .event = QStringLiteral("gone")}});
        look(window, QStringLiteral("main window, recording"));
        main.startAndStopRecord();
        (void)waitFor([&] { return world.record->jobsInQueue() == 0; });

        whenModal([this](QWidget& box) {
            look(box, QStringLiteral("about"));
            box.close();
        });
        main.menus().showAbout();
    }

    void preferences() {
        for (const bool hotKeysWork : {true, false}) {
            LibraryWorld world;
            FakeHotKeys hotKeys;
            FakePanels panels;
            QtFocusProbe probe;
            if (!hotKeysWork)
                hotKeys.currentWay = Platform::HotKeys::Way::None;
            auto& services = Platform::services();
            services.hotKeys = &hotKeys;
            services.panels = &panels;
            services.focusProbe = &probe;
            FakeAutostart::Desktop desktop;
            const auto no = [] { return false; };
            PreferenceWndController controller(
                ComputerAudioDevice{no, no, no, no, [] { return QString(); }, [] { return QString(); }},
                std::make_unique<FakeAutostart>(desktop));
            controller.makeKeyAndOrderFront();
            look(*controller.window(),
                 hotKeysWork ? QStringLiteral("preferences") : QStringLiteral("preferences without global shortcuts"));
        }
    }

    void trim() {
        EditWorld world;
        AudioTrimWndController trim;
        const Dictionary entry = world.recording(QStringLiteral("Interview with Ada"), 3);
        world.sounds.lengths[entry.value(AudioRecordEntry::SavePath).toString()] = 754;
        trim.setTrimAudioSourceData(entry);
        trim.window()->resize(720, 320);
        ToolControl::showWindowNib(trim);
        auto& bar = *trim.window()->findChild<AudioTrimEditView*>();
        (void)waitFor([&] { return !bar.outline().isEmpty(); });
        trim.setLeftTrim(0.2F);
        trim.setRightTrim(0.7F);
        trim.seekPlay(0.4F);
        look(*trim.window(), QStringLiteral("trim"));
        trim.startConverter();
        trim.waitWndController().setProgress(0.4);
        look(*trim.waitWndController().window(), QStringLiteral("waiting"));
        trim.waitWndController().setStopWork();
        trim.window()->hide();
    }

    void split() {
        SplitWorld world;
        world.open(world.splitRecording(QStringLiteral("Choir rehearsal")));
        world.length().setValue(4);
        world.bar().setCurrentCut(1);
        look(*world.controller.window(), QStringLiteral("split"));
        world.controller.waitWndController().beginSheet(
            world.controller.window(), [] {}, [] {});
        world.controller.waitWndController().setIsWorking(QStringLiteral("Writing the parts…"));
        world.controller.waitWndController().setProgress(0.4);
        look(*world.controller.waitWndController().window(), QStringLiteral("waiting, with Cancel"));
        world.controller.waitWndController().setStopWork();
        world.controller.window()->hide();
    }

    void balance() {
        BalanceWorld world;
        world.open();
        world.balance.window()->resize(720, 420);
        ToolControl::showWindowNib(world.balance);
        (void)waitFor([&] { return world.balance.isMeasured(); });
        look(*world.balance.window(), QStringLiteral("balance"));
        world.balance.window()->hide();
    }

    void tags() {
        EditWorld world;
        ID3EditWndController tags;
        tags.window()->resize(520, 300);
        tags.setID3EditDataSource(world.recording(QStringLiteral("Rain on the roof"), 1));
        ToolControl::showWindowNib(tags);
        look(*tags.window(), QStringLiteral("tags"));
    }

    void ringtone() {
        RingtoneWorld world;
        world.open(192);
        world.show();
        (void)world.outlineDone();
        world.outlet<AudioWaveTrimView>("audioWaveTrimView").setAudioFrom(100);
        world.maker.setAudioPosition(230);
        QCoreApplication::processEvents();
        look(*world.maker.window(), QStringLiteral("ringtone"));
    }

    void filter() {
        LibraryWorld world;
        AudioFilterController filter;
        filter.setAudioArray({world.made(QStringLiteral("Short"), 4), world.made(QStringLiteral("Shorter"), 2)});
        QWidget& window = filter.makeWindow();
        window.show();
        look(window, QStringLiteral("short recordings"));
        window.hide();
    }

    void burn() {
        BurnWorld world;
        world.insert(*world.drive);
        world.open(BurnWorld::records());
        look(*world.controller->window(), QStringLiteral("burn"));
        world.outlet<QAbstractButton>("btnBurn_").click();
        if (FakeBurn* writing = world.recording.lastBurn().get())
            writing->reach(Platform::DRStatusStateTrackWrite, 0.437);
        look(world.sheet(), QStringLiteral("burning"));
    }

    void alert() {
        whenModal([this](QWidget& box) {
            look(box, QStringLiteral("question"));
            box.close();
        });
        QtAlerts alerts;
        (void)alerts.runModal(QStringLiteral("Do you want to replace the file?"), QStringLiteral("/music/Track0.m4a"),
                              {QStringLiteral("OK"), QStringLiteral("Cancel")});
    }

private:
    void look(QWidget& window, const QString& name) {
        (void)QTest::qWaitForWindowExposed(&window, 30000);
        if (!qobject_cast<QMenu*>(&window)) {
            window.activateWindow();
            (void)waitFor([&] { return window.isActiveWindow(); }, 3000);
        }
        QCoreApplication::processEvents();
        look_(window, name);
    }
    /// Calls @p act as soon as a modal dialog is open. The dialog runs its own loop.
    static void whenModal(std::function<void(QWidget&)> act) {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
            QWidget* box = QApplication::activeModalWidget();
            if (!box || !box->isVisible())
                return;
            timer->stop();
            timer->deleteLater();
            act(*box);
        });
        timer->start(20);
    }

    Look look_;
};
