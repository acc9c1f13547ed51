// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/LinuxServices.h"
#include "Platform/Media/ExtAudioFile.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/HotKey/HotKeyRegister.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/MainWndController.h"
#include "Source/WndController/StatusBarItem.h"
#include "tests/Program/DesktopProgram.h"
#include "tests/support/WaitFor.h"
#include "tests/support/XvfbSession.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// The whole program in this process, driven with the pointer and the keyboard of a real X server, recording the tone
/// of a sound server of its own.
class MainWindowOnADesktop : public testing::Test {
protected:
    void SetUp() override {
        services.install(Platform::LinuxServices::Mode::Window);
        QString why;
        ASSERT_TRUE(services.startAudio(why)) << qPrintable(why);
        PreferenceStore::setPreferenceValue(0, PreferenceStore::PreferenceFilterKey);
        // The one library of the process outlives each test's folders.
        auto& library = MediaLibrary::shareLibrary();
        library.setRecords({});
        library.setRingtones({});
        library.setCurrentNewArray({});
        library.saveMediaLibraryList();
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
        // The window manager may still be moving the window to its place: the button itself tells when the pointer is
        // on it.
        const QWidget& widget = outlet(name);
        ASSERT_TRUE(waitFor([&] {
            const QPoint place = widget.mapToGlobal(widget.rect().center());
            return desktop().xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y())}) &&
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
    /// Makes a recording of at least this length by hand.
    void makeRecording(double seconds) {
        const auto before = MediaLibrary::shareLibrary().records().size();
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() >= seconds; }, 60000));
        controller->startAndStopRecord();
        ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == before + 1; }, 60000));
        controller->library().reloadFromMediaLibrary();
    }
    static double lengthOf(const QString& path) {
        Platform::AudioFileInfo info;
        Platform::MediaError error;
        return Platform::services().mediaFiles->info(path, info, error) ? info.seconds : -1;
    }
    /// Calls @p act as soon as a dialog is up. The dialog runs a loop of its own.
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

} // namespace

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
    makeRecording(6); // longer than a busy machine takes from the beginning to the key that pauses
    // Two clicks are one double click, however late the second one is.
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
    makeRecording(0.5);
    clickAt(rowPlace(0));
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
    // Every press of a hot key is told; by the second one the first has done all that it does.
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
    // A tray moves its icons about while it makes room for them: a click may miss.
    const auto opensItsMenu = [&] {
        const auto isOpen = [&] { return item->systemBarMenu()->isVisible(); };
        return waitFor([&] {
            clickAt(item->icon()->geometry().center(), 3);
            return waitFor(isOpen, 2000);
        });
    };
    ASSERT_TRUE(waitFor(isThere)) << "the tray came after the program";
    EXPECT_FALSE(item->icon()->icon().pixmap(20, 20).isNull());
    controller->startAndStopRecord();
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.2; }, 60000));
    controller->pauseAndResumeRecord();
    // Trays keep copies of the menus: the titles are right before the menu opens.
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
    desktop().stopTray();
    ASSERT_TRUE(waitFor([&] { return !isThere(); }));
    ASSERT_TRUE(desktop().startTray());
    ASSERT_TRUE(waitFor(isThere)) << "a tray that comes back has the item again";
    ASSERT_TRUE(opensItsMenu());
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !item->systemBarMenu()->isVisible(); }));
    desktop().stopTray();
}
