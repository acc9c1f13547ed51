// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppDelegate.h"

#include "Platform/Desktop/Activation.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Foundation/UserDefaults.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Preferences/Settings.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "Source/Record/ExportNote.h"
#include "Source/View/HelpPages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QUrl>

#include <cerrno>
#include <sys/stat.h>

namespace {

void openPage(const QString& name) {
    (void)Platform::services().workspace->openUrl(QUrl::fromLocalFile(HelpPages::path(name)));
}

} // namespace

AppDelegate::AppDelegate(Windows& windows, Platform::RunningProgram& running, QObject* parent)
    : QObject(parent), windows_(windows), running_(running) {
}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::applicationDidFinishLaunching(bool hidden) {
    g_SplitTimeMS = Settings::storedSplitTimeMS();

    if (!recreateTemporaryFolder())
        return false;

    preferenceWndController_ = windows_.makePreferenceWndController(QStringLiteral("PreferenceWnd"));

    // Created even when the user has chosen other folders.
    const QString music = PreferenceStore::defaultMusicFolder();
    if (!QFileInfo::exists(music))
        (void)QDir().mkpath(music);

    const QString key = QStringLiteral("mainWndController_");
    Q_EMIT willChangeValueForKey(key);
    mainWndController_ = windows_.makeMainWndController(QStringLiteral("MainWnd"), *this);
    Q_EMIT didChangeValueForKey(key);

    if (!hidden)
        ToolControl::showWindowNib(*mainWndController_);
    setupSystemStatusBar();
    if (!running_.listen([this](const QByteArray& request) { return answer(request); }))
        qWarning("commands and further launches cannot reach this window: %s", qUtf8Printable(running_.lastError()));
    return true;
}

bool AppDelegate::recreateTemporaryFolder() {
    // Raw recordings of an earlier run are deleted on purpose, but never those of a running program, nor those of a
    // recording that had ended.
    if (!running_.acquire()) {
        lastError_ = running_.lastError().isEmpty() ? tr("it is already running") : running_.lastError();
        return false;
    }
    const auto temporary = Platform::Folders::temporary();
    lastError_ = temporary.error().text;
    if (!temporary)
        return false;
    g_strTmpPath = *temporary + u'/' + Platform::services().bundle->bundleIdentifier();
    ExportNote::saveFilesOfEndedProcesses();
    Platform::TemporaryFolder::removeWhole(g_strTmpPath);
    // If something in the way could not be removed, the first write to the folder reports it.
    (void)::mkdir(QFile::encodeName(g_strTmpPath).constData(), 0700);
    return true;
}

void AppDelegate::applicationWillTerminate() {
    if (mainWndController_)
        windows_.finishRecording(*mainWndController_);
    (void)Platform::services().userDefaults->flush();
}

void AppDelegate::terminate() {
    applicationWillTerminate();
    QCoreApplication::exit(0);
}

Platform::RunningProgram::Reply AppDelegate::answer(const QByteArray& request) {
    if (const auto answer = MediaLibraryRequests::answer(request))
        return *answer;
    if (request.startsWith("open ")) {
        const QString path = QUrl::fromPercentEncoding(request.mid(5));
        return {"ok",
                [this, path] { openFile(path); }}; // the window is modal: the caller must not wait until it is closed
    }
    if (request != "show" && !request.startsWith("show "))
        return windows_.answer(*mainWndController_, request);
    activate(request.mid(5));
    return QByteArray("ok");
}

void AppDelegate::activate(const QByteArray& token) {
    Platform::Activation::setToken(token);
    ToolControl::showWindowNib(*mainWndController_);
}

void AppDelegate::performAction(const QString& action, const QByteArray& token) {
    static const QHash<QString, QByteArray> requests{{QStringLiteral("StartStop"), "start-stop"},
                                                     {QStringLiteral("PauseResume"), "pause-resume"},
                                                     {QStringLiteral("Split"), "split"}};
    if (action == QStringLiteral("Show")) {
        activate(token);
        return;
    }
    if (!requests.contains(action))
        return;
    const auto reply = answer(requests.value(action));
    if (reply.afterwards)
        reply.afterwards();
}

void AppDelegate::openFile(const QString& path) {
    ToolControl::showWindowNib(*mainWndController_);
    if (const QString why = windows_.openFile(*mainWndController_, path); !why.isEmpty())
        (void)Platform::services().alerts->runModal(tr("The file cannot be opened."), why,
                                                    {Platform::Alerts::okLabel()});
}

void AppDelegate::perference(QObject*) {
    ToolControl::showWindowNib(*preferenceWndController_);
}

void AppDelegate::support(QObject*) {
    openPage(QStringLiteral("support.html"));
}

void AppDelegate::audioDevice(QObject*) {
    openPage(QStringLiteral("computer-audio.html"));
}

void AppDelegate::insertTheSystemAudioRecordDevice(QObject* sender) {
    windows_.insertTheSystemAudioRecordDevice(*preferenceWndController_, sender);
}

void AppDelegate::setupSystemStatusBar() {
    windows_.setupSystemStatusBar(*this);
}
