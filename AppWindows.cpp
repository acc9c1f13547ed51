// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppWindows.h"

#include "Platform/Desktop/Autostart.h"
#include "Platform/Desktop/MediaPlayer.h"
#include "Platform/Desktop/Notifications.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/PrepareCodecs.h"
#include "Source/CDBurn/CDBurnWndController.h"
#include "Source/Control/EditNote.h"
#include "Source/HotKey/HotKeyRegister.h"
#include "Source/HotKey/KeybordShortcutTextView.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/ControlRequests.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "Source/View/KeyNames.h"
#include "Source/View/QtAlerts.h"
#include "Source/View/QtFocusProbe.h"
#include "Source/View/QtPanels.h"
#include "Source/View/Theme.h"
#include "Source/WndController/ComputerAudioDevice.h"
#include "Source/WndController/EditWindows.h"
#include "Source/WndController/LibraryPlayer.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/MainWndController.h"
#include "Source/WndController/PreferenceWndController.h"
#include "Source/WndController/RecordingNotifier.h"
#include "Source/WndController/StatusBarItem.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThreadPool>
#include <QTimer>

#include <chrono>

namespace {

/// Delay after which workers prepare the first recording and the first change of a long library, so that they do not
/// compete with the start of the window.
constexpr auto afterFirstPaint = std::chrono::milliseconds(500);

/// A hot key's operation and its guard.
struct ShortcutCommand {
    KeybordShortcutTextView* field;
    QAction* menuItem;
    void (MainWndController::*command)();
    bool (MainWndController::*guard)() const;
};

/// The real windows. Panels and alerts are dialogs while it exists.
class ProgramWindows : public AppDelegate::Windows {
public:
    ProgramWindows() {
        auto& services = Platform::services();
        Theme::install(*qApp, services.colorScheme);
        KeyNames::install();
        services.alerts = &alerts_;
        services.panels = &panels_;
        services.focusProbe = &focusProbe_;
    }

    std::unique_ptr<AppDelegate::WindowController> makePreferenceWndController(const QString& /*file*/) override {
        return std::make_unique<PreferenceWndController>(
            ComputerAudioDevice::system([this] {
                return record_ && record_->isStateAudioRecord()
                           ? QObject::tr("The device stays as it is until the recording ends.")
                           : QString();
            }),
            Platform::Autostart::create(Platform::services().bundle->bundleIdentifier()));
    }

    std::unique_ptr<AppDelegate::WindowController> makeMainWndController(const QString& /*file*/,
                                                                         AppDelegate& application) override {
        record_ = std::make_unique<RecordStateController>();
        record_->awakeFromNib();
        EditNote::recover(MediaLibraryRequests::retag); // before the window shows the library
        record_->tellUnfinishedRecordings();
        auto window = std::make_unique<MainWndController>(*record_, MediaLibrary::shareLibrary());
        editWindows_ = new EditWindows(*window, window.get());
        QTimer::singleShot(afterFirstPaint, window.get(), [] {
            QThreadPool::globalInstance()->start(Platform::prepareCodecs);
            MediaLibrary::shareLibrary().prepareForChanges();
        });
        if (Platform::services().discRecording) {
            window->commands().setOpener(WindowCommands::Window::CDBurn,
                                         [main = window.get()](const QVariantList& entries) {
                                             CDBurnWndController burn(main->window());
                                             burn.setAudioDataForCDBurn(entries);
                                             burn.runModal();
                                         });
            window->menus().update();
        }
        window->bindWindows();
        record_->finishInterruptedRecordings();
        QObject::connect(window.get(), &MainWndController::perference, &application,
                         [&application] { application.perference(); });
        QObject::connect(window.get(), &MainWndController::support, &application,
                         [&application] { application.support(); });
        QObject::connect(window.get(), &MainWndController::audioDevice, &application,
                         [&application] { application.audioDevice(); });
        QObject::connect(window.get(), &MainWndController::requestSystemAudioRecordDevice, &application,
                         [&application] { application.insertTheSystemAudioRecordDevice(); });
        // Not quit(): it asks every window first, and the main window refuses to close.
        QObject::connect(window.get(), &MainWndController::terminateRequested, &application,
                         [] { QCoreApplication::exit(0); });
        return window;
    }

    void setupSystemStatusBar(AppDelegate& application) override {
        auto& window = static_cast<MainWndController&>(*application.mainWndController());
        auto& preferences = static_cast<PreferenceWndController&>(*application.preferenceWndController());
        QObject::connect(record_.get(), &RecordStateController::stateChanged, &preferences,
                         &PreferenceWndController::flushExistSystemAudioRecordDevice);
        // Queued: the box that asked for the installation is switched off when the command returns.
        QObject::connect(&preferences, &PreferenceWndController::systemAudioRecordDeviceInstalled, &window,
                         &MainWndController::systemAudioRecordDeviceInstalled, Qt::QueuedConnection);
        // Children of the window's controller, so they are destroyed first.
        const QString identifier = Platform::services().bundle->bundleIdentifier();
        new LibraryPlayer(window, Platform::MediaPlayer::create(QStringLiteral("sonaphex"), identifier),
                          Platform::Folders::cache() + u'/' + identifier + QStringLiteral("/cover"), &window);
        new RecordingNotifier(window, Platform::Notifications::create(QStringLiteral("Sonaphex"), identifier), &window);
        auto* item = new StatusBarItem(window, &window);
        const ShortcutCommand commands[] = {
            {preferences.startStopShortcut(), item->startStopMenu(), &MainWndController::startAndStopRecord,
             &MainWndController::isStateAudioCanStartRecord},
            {preferences.pauseResumeShortcut(), item->pauseResumeMenu(), &MainWndController::pauseAndResumeRecord,
             &MainWndController::isStateAudioRecord},
            {preferences.startNewRecordShortcut(), item->startNewRecordMenu(), &MainWndController::splitTheRecord,
             &MainWndController::isStateAudioRecord},
        };
        for (const ShortcutCommand& each : commands) {
            each.field->setMenuItem(each.menuItem);
            // Looks up the delegate's window when the key is pressed, not now.
            each.field->hotKeyRegister()->setOperation([&application, each] {
                auto* target = static_cast<MainWndController*>(application.mainWndController());
                if (target && (target->*each.guard)())
                    (target->*each.command)();
            });
        }
    }

    void insertTheSystemAudioRecordDevice(AppDelegate::WindowController& preferences, QObject* /*sender*/) override {
        static_cast<PreferenceWndController&>(preferences).insertTheSystemAudioRecordDevice();
    }

    Platform::RunningProgram::Reply answer(AppDelegate::WindowController& mainWindow,
                                           const QByteArray& request) override {
        const LibraryPresenter& library = static_cast<MainWndController&>(mainWindow).library();
        if (request == "playing") // answers {"path": P}, the file that the window plays now, if any
            return "ok " +
                   QJsonDocument(QJsonObject{{QStringLiteral("path"),
                                              library.isPlaySoundPlaying() ? library.playingPath() : QString()}})
                       .toJson(QJsonDocument::Compact);
        return ControlRequests(*record_).answer(request);
    }

    QString openFile(AppDelegate::WindowController& /*mainWindow*/, const QString& path) override {
        return editWindows_->openFile(path);
    }

    void finishRecording(AppDelegate::WindowController& /*mainWindow*/) override { record_->finishAll(); }

private:
    Platform::ServicesScope scope_; ///< restores the previous services after the windows are destroyed
    QtAlerts alerts_;
    QtPanels panels_;
    QtFocusProbe focusProbe_;
    std::unique_ptr<RecordStateController> record_;
    EditWindows* editWindows_ = nullptr; ///< a child of the main window's controller
};

} // namespace

std::unique_ptr<AppDelegate::Windows> createAppWindows() {
    return std::make_unique<ProgramWindows>();
}
