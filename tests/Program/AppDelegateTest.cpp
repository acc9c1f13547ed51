// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppDelegate.h"

#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/NoteFile.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Preferences/Settings.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakeBundle.h"
#include "tests/fakes/FakeUserDefaults.h"
#include "tests/fakes/FakeWorkspace.h"
#include "tests/support/Environment.h"
#include "tests/support/LogCatcher.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct FakeRunning : Platform::RunningProgram {
    bool free = true;
    bool listens = true;
    int acquired = 0;
    QString problem;
    Handler handler;
    bool acquire() override {
        ++acquired;
        return free;
    }
    QString lastError() const override { return problem; }
    bool listen(Handler answer) override {
        handler = std::move(answer);
        return listens;
    }
    bool ask(const QByteArray&, QByteArray&, int) override { return false; }
};

/// Windows that record their calls in order.
struct FakeWindows : AppDelegate::Windows {
    struct Window : AppDelegate::WindowController {
        Window(QStringList& log, const QString& name) : log(log), name(name) {}
        QStringList& log;
        QString name;
        bool visible = false;
        bool isWindowVisible() const override { return visible; }
        void showWindow() override { log << name + u": showWindow"_s; }
        void makeKeyAndOrderFront() override {
            visible = true;
            log << name + u": makeKeyAndOrderFront"_s;
        }
        void center() override { log << name + u": center"_s; }
    };

    QStringList log;
    std::function<void()> whenPreferencesAreMade = [] {};
    std::function<void()> whenMainIsMade = [] {};

    std::unique_ptr<AppDelegate::WindowController> makePreferenceWndController(const QString& file) override {
        log << u"make "_s + file;
        whenPreferencesAreMade();
        return std::make_unique<Window>(log, file);
    }
    std::unique_ptr<AppDelegate::WindowController> makeMainWndController(const QString& file, AppDelegate&) override {
        log << u"make "_s + file;
        whenMainIsMade();
        return std::make_unique<Window>(log, file);
    }
    void setupSystemStatusBar(AppDelegate&) override { log << u"status bar"_s; }
    void insertTheSystemAudioRecordDevice(AppDelegate::WindowController& preferences, QObject* sender) override {
        log << u"install for %1 by %2"_s.arg(static_cast<Window&>(preferences).name,
                                             sender ? sender->objectName() : u"nobody"_s);
    }
    Platform::RunningProgram::Reply answer(AppDelegate::WindowController&, const QByteArray& request) override {
        return QByteArray("window heard " + request);
    }
    QString whyNotOpened;
    QString openFile(AppDelegate::WindowController&, const QString& path) override {
        log << u"open "_s + path;
        return whyNotOpened;
    }
    void finishRecording(AppDelegate::WindowController&) override { log << u"finish"_s; }
};

struct AppDelegateTest : testing::Test {
    QTemporaryDir dir;
    EnvironmentScope home{"HOME", dir.path().toUtf8()};
    EnvironmentScope temporary{"TMPDIR", dir.path().toUtf8()};
    Platform::ServicesScope scope;
    FakeBundle bundle;
    FakeUserDefaults defaults;
    FakeWorkspace workspace;
    FakeRunning running;
    FakeWindows windows;
    AppDelegate delegate{windows, running};

    AppDelegateTest() {
        Platform::services().bundle = &bundle;
        Platform::services().userDefaults = &defaults;
        Platform::services().workspace = &workspace;
        g_SplitTimeMS = 77;
        g_strTmpPath = QString();
    }
    [[nodiscard]] QString path(const QString& name) const { return dir.filePath(name); }
    [[nodiscard]] QString tmp() const { return path(u"com.korvane.Sonaphex"_s); }
    [[nodiscard]] QString music() const { return path(u"Music/com.korvane.Sonaphex"_s); }
    static void make(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    static QStringList in(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
};

} // namespace

TEST_F(AppDelegateTest, LaunchesInItsOrder) {
    QObject::connect(&delegate, &AppDelegate::willChangeValueForKey, &delegate, [&](const QString& key) {
        EXPECT_EQ(delegate.mainWndController(), nullptr);
        windows.log << u"will change "_s + key;
    });
    QObject::connect(&delegate, &AppDelegate::didChangeValueForKey, &delegate, [&](const QString& key) {
        EXPECT_NE(delegate.mainWndController(), nullptr);
        windows.log << u"did change "_s + key;
    });
    windows.whenPreferencesAreMade = [&] {
        EXPECT_EQ(g_SplitTimeMS, -1) << "the split time comes first";
        EXPECT_TRUE(QDir(tmp()).exists()) << "then the temporary folder";
        EXPECT_FALSE(QDir(music()).exists()) << "the Music folder comes after the preferences";
    };
    windows.whenMainIsMade = [&] { EXPECT_TRUE(QDir(music()).exists()); };
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(windows.log, (QStringList{u"make PreferenceWnd"_s, u"will change mainWndController_"_s, u"make MainWnd"_s,
                                        u"did change mainWndController_"_s, u"MainWnd: makeKeyAndOrderFront"_s,
                                        u"MainWnd: center"_s, u"status bar"_s}));
}

TEST_F(AppDelegateTest, ShowsNothingWhenItStartsHidden) {
    ASSERT_TRUE(delegate.applicationDidFinishLaunching(true));
    EXPECT_FALSE(windows.log.contains(u"MainWnd: makeKeyAndOrderFront"_s));
    EXPECT_TRUE(windows.log.contains(u"status bar"_s));
    delegate.performAction(u"NoSuchAction"_s, {});
    EXPECT_FALSE(windows.log.contains(u"MainWnd: makeKeyAndOrderFront"_s));
    delegate.performAction(u"Show"_s, {});
    EXPECT_TRUE(windows.log.contains(u"MainWnd: makeKeyAndOrderFront"_s));
}

TEST_F(AppDelegateTest, UsesTheDefaultsAtAFirstLaunch) {
    using namespace PreferenceStore;
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(g_SplitTimeMS, -1);
    EXPECT_EQ(g_strTmpPath, tmp());
    EXPECT_TRUE(Platform::boolValue(preferenceValueForKey(PreferenceFilterKey, 1)));
    EXPECT_EQ(Platform::intValue(preferenceValueForKey(PreferenceFilterTimeKey, u"5"_s)), 5);
    EXPECT_EQ(preferenceValueForKey(PreferenceSavePathKey, defaultMusicFolder()).toString(), music());
    EXPECT_EQ(preferenceValueForKey(PreferenceRingtoneSavePathKey, defaultMusicFolder()).toString(), music());
    EXPECT_TRUE(Platform::boolValue(preferenceValueForKey(ChooseRecordBuiltIn, true)));
    EXPECT_FALSE(Platform::boolValue(preferenceValueForKey(ChooseRecordComputerAudio, false)));
    EXPECT_EQ(defaults.changes(), 0) << "a default is never written back";
}

TEST_F(AppDelegateTest, SplitsAfter300MillisecondsWhenOnlyTheSwitchIsStored) {
    defaults.setObject(PreferenceStore::PreferenceSplitKey, 1);
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(g_SplitTimeMS, 300);
}

TEST_F(AppDelegateTest, ReadsTheSplitTimeFromItsText) {
    defaults.setObject(PreferenceStore::PreferenceSplitKey, 1);
    const std::pair<QVariant, int> cases[] = {{u"500"_s, 500},        {u"2000ms"_s, 2000}, {u"soon"_s, 0},
                                              {QVariantList{1}, 300}, {750, 750},          {u"-5"_s, -5}};
    for (const auto& [stored, expected] : cases) {
        defaults.setObject(PreferenceStore::PreferenceSplitTimeMSKey, stored);
        EXPECT_EQ(Settings::storedSplitTimeMS(), expected);
    }
    defaults.setObject(PreferenceStore::PreferenceSplitKey, 0);
    EXPECT_EQ(Settings::storedSplitTimeMS(), -1);
}

TEST_F(AppDelegateTest, EmptiesTheTemporaryFolderOfACrashedRun) {
    QDir().mkpath(tmp() + u"/deep/er"_s);
    make(tmp() + u"/BuiltInA0.m4a"_s);
    make(tmp() + u"/deep/er/.hidden"_s);
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_TRUE(QDir(tmp()).exists());
    EXPECT_EQ(in(tmp()), QStringList());
    struct stat is {};
    ASSERT_EQ(stat(qPrintable(tmp()), &is), 0);
    EXPECT_EQ(is.st_mode & 0777, 0700U);
}

TEST_F(AppDelegateTest, MovesTheFilesOfAnInterruptedRecordingOutOfTheTemporaryFolder) {
    const EnvironmentScope data("XDG_DATA_HOME", path(u"data"_s).toUtf8());
    QDir().mkpath(tmp());
    make(tmp() + u"/BuiltInA0.m4a"_s);
    make(tmp() + u"/BuiltInA1.m4a"_s);
    QString files;
    {
        auto note = NoteFile::create(u"Exports"_s, u".export"_s);
        ASSERT_TRUE(note);
        ASSERT_TRUE(note->append({{u"stage"_s, u"raw"_s}, {u"input"_s, tmp() + u"/BuiltInA0.m4a"_s}}));
        files = note->path().chopped(7);
    } // its process ends
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(in(tmp()), QStringList()) << "a recording that still ran is deleted";
    EXPECT_EQ(in(files), QStringList{u"BuiltInA0.m4a"_s});
}

TEST_F(AppDelegateTest, ReplacesAFileInThePlaceOfTheTemporaryFolder) {
    make(tmp());
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_TRUE(QDir(tmp()).exists());
}

TEST_F(AppDelegateTest, NeverFollowsALinkWhenItEmptiesTheFolder) {
    QDir().mkpath(path(u"precious"_s));
    make(path(u"precious/file"_s));
    ASSERT_EQ(symlink("precious", qPrintable(tmp())), 0);
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(in(path(u"precious"_s)), QStringList{u"file"_s});
    EXPECT_FALSE(QFileInfo(tmp()).isSymLink());
    ASSERT_EQ(symlink("../precious", qPrintable(tmp() + u"/inside"_s)), 0);
    AppDelegate again(windows, running);
    ASSERT_TRUE(again.applicationDidFinishLaunching());
    EXPECT_EQ(in(path(u"precious"_s)), QStringList{u"file"_s});
    EXPECT_EQ(in(tmp()), QStringList());
}

TEST_F(AppDelegateTest, RemovesNothingWhileAnotherInstanceRuns) {
    QDir().mkpath(tmp());
    make(tmp() + u"/BuiltInA0.m4a"_s);
    running.free = false;
    EXPECT_FALSE(delegate.applicationDidFinishLaunching());
    EXPECT_FALSE(delegate.lastError().isEmpty());
    EXPECT_EQ(in(tmp()), QStringList{u"BuiltInA0.m4a"_s});
    EXPECT_TRUE(windows.log.isEmpty());
}

TEST_F(AppDelegateTest, RefusesATemporaryFolderOfAnotherUser) {
    const EnvironmentScope none("TMPDIR");
    const EnvironmentScope cache("XDG_CACHE_HOME", path(u"cache"_s).toUtf8());
    QDir().mkpath(path(u"cache"_s));
    ASSERT_EQ(symlink("/tmp", qPrintable(path(u"cache/tmp"_s))), 0);
    EXPECT_FALSE(delegate.applicationDidFinishLaunching());
    EXPECT_TRUE(delegate.lastError().contains(u"is a link"_s));
    EXPECT_TRUE(windows.log.isEmpty());
}

TEST_F(AppDelegateTest, KeepsAnExistingMusicFolder) {
    QDir().mkpath(music());
    make(music() + u"/Track0.m4a"_s);
    defaults.setObject(PreferenceStore::PreferenceSavePathKey, path(u"elsewhere"_s));
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_EQ(in(music()), QStringList{u"Track0.m4a"_s});
}

TEST_F(AppDelegateTest, CreatesTheDefaultMusicFolderEvenWhenAnotherIsChosen) {
    defaults.setObject(PreferenceStore::PreferenceSavePathKey, path(u"elsewhere"_s));
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    EXPECT_TRUE(QDir(music()).exists());
    EXPECT_FALSE(QDir(path(u"elsewhere"_s)).exists());
}

TEST_F(AppDelegateTest, LogsThatItCannotListen) {
    running.listens = false;
    running.problem = u"/run/user/1000/sonaphex.socket: Permission denied"_s;
    const LogCatcher log;
    EXPECT_TRUE(delegate.applicationDidFinishLaunching()) << "it records all the same";
    EXPECT_EQ(log.lines().filter(running.problem).size(), 1);
}

TEST_F(AppDelegateTest, LaunchesWhenTheMusicFolderCannotBeCreated) {
    make(path(u"Music"_s));
    EXPECT_TRUE(delegate.applicationDidFinishLaunching());
}

TEST_F(AppDelegateTest, ForwardsItsMenuActions) {
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    windows.log.clear();
    delegate.perference();
    EXPECT_EQ(windows.log, (QStringList{u"PreferenceWnd: makeKeyAndOrderFront"_s, u"PreferenceWnd: center"_s}));
    windows.log.clear();
    QObject item;
    item.setObjectName(u"item"_s);
    delegate.insertTheSystemAudioRecordDevice(&item);
    delegate.insertTheSystemAudioRecordDevice();
    EXPECT_EQ(windows.log,
              (QStringList{u"install for PreferenceWnd by item"_s, u"install for PreferenceWnd by nobody"_s}));
}

TEST_F(AppDelegateTest, OpensItsPagesInTheBrowser) {
    delegate.support();
    delegate.audioDevice();
    ASSERT_EQ(workspace.urls.size(), 2);
    EXPECT_EQ(workspace.urls[0].fileName(), u"support.html"_s);
    EXPECT_EQ(workspace.urls[1].fileName(), u"computer-audio.html"_s);
    for (const QUrl& url : workspace.urls)
        EXPECT_TRUE(QFile::exists(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/") + url.fileName()));
}

TEST_F(AppDelegateTest, RaisesItsWindowWhenASecondLaunchAsks) {
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    windows.log.clear();
    EXPECT_EQ(running.handler("show").line, "ok");
    EXPECT_EQ(windows.log, (QStringList{u"MainWnd: showWindow"_s, u"MainWnd: center"_s}));
    EXPECT_EQ(running.handler("split").line, "window heard split");
}

TEST_F(AppDelegateTest, AnswersBeforeItOpensAFileAndReportsAFailure) {
    FakeAlerts alerts;
    Platform::services().alerts = &alerts;
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    windows.log.clear();
    const auto reply = running.handler("open " + QUrl::toPercentEncoding(u"/tmp/a b%\n日.m4a"_s));
    EXPECT_EQ(reply.line, "ok");
    EXPECT_TRUE(windows.log.isEmpty()) << "the trim window is modal: the caller would wait for its end";
    ASSERT_TRUE(reply.afterwards);
    reply.afterwards();
    EXPECT_EQ(windows.log.value(windows.log.size() - 1), u"open /tmp/a b%\n日.m4a"_s);
    EXPECT_TRUE(alerts.shown.isEmpty());

    windows.whyNotOpened = u"it is no sound file"_s;
    delegate.openFile(u"/etc/passwd"_s);
    ASSERT_EQ(alerts.shown.size(), 1);
    EXPECT_EQ(alerts.shown[0].text, u"it is no sound file"_s);
}

TEST_F(AppDelegateTest, FinishesARecordingBeforeADialogOrPromptReturns) {
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    windows.log.clear();
    // The code behind a prompt's loop waits until the prompt is closed.
    Platform::MainQueue::post([this] {
        QEventLoop prompt;
        Platform::MainQueue::post([this] {
            delegate.terminate();
            windows.log << u"terminated"_s;
        });
        prompt.exec();
        windows.log << u"prompt left"_s;
    });
    QCoreApplication::exec();
    EXPECT_EQ(windows.log, (QStringList{u"finish"_s, u"terminated"_s, u"prompt left"_s}));
}

TEST_F(AppDelegateTest, FinishesARecordingBeforeItEnds) {
    delegate.applicationWillTerminate();
    EXPECT_TRUE(windows.log.isEmpty()) << "nothing to finish before the launch";
    ASSERT_TRUE(delegate.applicationDidFinishLaunching());
    delegate.applicationWillTerminate();
    EXPECT_EQ(windows.log.last(), u"finish"_s);
}
