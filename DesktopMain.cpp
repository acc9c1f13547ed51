// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The module that the program loads to show windows, draw or read images: the windows, and the commands that are not in
// the program itself.
#include "AppDelegate.h"
#include "AppWindows.h"
#include "CaptureComputerAudio/KextInstallControl.h"
#include "CommandLine/CommandLine.h"
#include "Platform/Desktop/Activation.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/ApplicationService.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TerminationSignals.h"
#include "Platform/Foundation/Translations.h"
#include "Platform/LinuxServices.h"
#include "Source/ProcessRequests/Launch.h"
#include "Source/Record/CutOffRecordings.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QProgressDialog>
#include <QSessionManager>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace {

/// The end of the desktop session ends the program unconditionally. Qt would ask the windows first, and the main window
/// refuses to close during a recording.
class EndWithTheSession : public QObject {
public:
    explicit EndWithTheSession(AppDelegate& delegate) : delegate_(delegate) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != qApp || event->type() != QEvent::Quit)
            return QObject::eventFilter(watched, event);
        delegate_.terminate();
        return true;
    }

private:
    AppDelegate& delegate_;
};

/// Informs the user that the program waits for the sound server, and lets the user continue without it.
class WaitingForServer {
public:
    bool goOn() {
        if (!dialog_) {
            dialog_ = std::make_unique<QProgressDialog>(
                QObject::tr("The sound server does not answer yet. Waiting for it…"), QObject::tr("Do Not Wait"), 0, 0);
            dialog_->setWindowTitle(QApplication::applicationName());
            dialog_->setMinimumDuration(0);
            dialog_->show();
        }
        QCoreApplication::processEvents();
        return !dialog_->wasCanceled();
    }

private:
    std::unique_ptr<QProgressDialog> dialog_;
};

/// The absolute path of the file argument; empty when there is none.
QString fileToOpen(int argc, char** argv) {
    if (argc < 2 || argv[1][0] == '-')
        return {};
    return QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath();
}

/// Whether the desktop started the program at login, or to send it a request. It then shows no window by itself.
bool startsHidden(int argc, char** argv) {
    return argc == 2 && qstrcmp(argv[1], "--hidden") == 0;
}

int openInRunningProgram(Platform::RunningProgram& running, const QString& file) {
    QByteArray answer;
    if (running.ask("open " + QUrl::toPercentEncoding(file), answer) && answer == "ok")
        return CommandLine::Done;
    return CommandLine::fail(
        QCoreApplication::translate("DesktopMain", "%1 was not opened: the running program does not answer").arg(file));
}

int runWindows(int argc, char** argv) {
    const QString file = fileToOpen(argc, argv);
    const bool hidden = startsHidden(argc, argv);
    const QByteArray launchToken = Platform::Activation::launchToken();
    QApplication application(argc, argv);
    const QString language = Platform::Translations::install();
    QApplication::setLayoutDirection(QLocale(language).textDirection());
    // Closing the last visible window does not end the program: all windows but the main one may be closed.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("Sonaphex"));
    // A Wayland compositor finds icon and title of a window by this name of its desktop file.
    QApplication::setDesktopFileName(QStringLiteral("com.korvane.Sonaphex"));
    Platform::LinuxServices services;
    services.install(Platform::LinuxServices::Mode::Window);
    const auto tell = [](const QString& what, const QString& why) {
        (void)Platform::services().alerts->runModal(what, why, {Platform::Alerts::okLabel()});
    };

    const auto running = Platform::RunningProgram::create(Platform::services().bundle->bundleIdentifier());
    // A hidden start must not raise the window of a program that already runs.
    if (hidden && !running->acquire() && running->lastError().isEmpty())
        return CommandLine::Done;
    switch (Launch::begin(*running, launchToken)) {
    case Launch::Outcome::Raised:
        return file.isEmpty() ? CommandLine::Done : openInRunningProgram(*running, file);
    case Launch::Outcome::NobodyAnswers:
        return CommandLine::fail(
            QCoreApplication::translate("DesktopMain", "it is already running, but does not answer"));
    case Launch::Outcome::First:
    case Launch::Outcome::NoPlace: // the delegate reports the reason
        break;
    }

    const auto service = Platform::ApplicationService::create(Platform::services().bundle->bundleIdentifier());

    // Created before the windows: they end the recording first, and the lock is released after both.
    const CutOffRecordings::Keeper keepCutOffRecordings;
    const auto windows = createAppWindows();
    if (const auto audio =
            services.startAudio([waiting = std::make_shared<WaitingForServer>()] { return waiting->goOn(); });
        !audio)
        tell(QCoreApplication::translate("DesktopMain", "Nothing can be recorded or played."), audio.error().text);
    KextInstallControl::loadIfInstalled(); // before the devices are listed

    AppDelegate delegate(*windows, *running);
    if (!delegate.applicationDidFinishLaunching(hidden)) {
        tell(QCoreApplication::translate("DesktopMain", "Sonaphex cannot start."), delegate.lastError());
        return CommandLine::Failed;
    }
    const Platform::TerminationSignals ending([&delegate](int) { delegate.terminate(); });
    EndWithTheSession endWithTheSession(delegate);
    application.installEventFilter(&endWithTheSession);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &delegate,
                     &AppDelegate::applicationWillTerminate, Qt::DirectConnection);
    using Service = Platform::ApplicationService;
    QObject::connect(service.get(), &Service::activated, &delegate, &AppDelegate::activate);
    QObject::connect(service.get(), &Service::actionRequested, &delegate, &AppDelegate::performAction);
    QObject::connect(service.get(), &Service::openRequested, &delegate,
                     [&delegate](const QStringList& paths, const QByteArray& token) {
                         delegate.activate(token);
                         for (const QString& path : paths) // one after the other: each window is modal
                             delegate.openFile(path);
                     });
    service->begin();
    if (!file.isEmpty())
        QTimer::singleShot(0, &delegate, [&delegate, file] { delegate.openFile(file); });
    return QApplication::exec();
}

} // namespace

extern "C" Q_DECL_EXPORT int sonaphexDesktopMain(int argc, char** argv) {
    if (const auto status = CommandLine::runCommand(argc, argv))
        return *status;
    return runWindows(argc, argv);
}
