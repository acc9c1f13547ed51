// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop starts and controls the program through its name on the session bus. The bus starts services; gio is the
// launcher.
#include "tests/Program/DesktopProgram.h"
#include "tests/Program/StartingBus.h"
#include "tests/support/XvfbSession.h"

#include <QPushButton>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ProgramByItsName : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bus.runs()); }
    void TearDown() override {
        call(u"org.mpris.MediaPlayer2.sonaphex"_s, u"/org/mpris/MediaPlayer2"_s, u"org.mpris.MediaPlayer2.Quit"_s, {});
        EXPECT_TRUE(waitFor([] { return !isOnTheBus(); }, 60000));
    }
    static XvfbSession& desktop() { return *XvfbSession::current(); }
    static ToolResult call(const QString& name, const QString& path, const QString& method,
                           const QStringList& arguments) {
        return runTool(u"gdbus"_s,
                       QStringList{u"call"_s, u"--session"_s, u"--timeout"_s, u"60"_s, u"--dest"_s, name,
                                   u"--object-path"_s, path, u"--method"_s, method} +
                           arguments,
                       70000);
    }
    static ToolResult application(const QString& method, const QStringList& arguments) {
        return call(u"com.korvane.Sonaphex"_s, u"/com/korvane/Sonaphex"_s, u"org.freedesktop.Application."_s + method,
                    arguments);
    }
    static bool isOnTheBus() {
        return call(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus.NameHasOwner"_s,
                    {u"com.korvane.Sonaphex"_s})
            .output.contains("true");
    }
    /// Does what the desktop does when the user clicks the program's icon, or opens files with it.
    static ToolResult launch(const QStringList& files = {}) {
        return runTool(
            u"gio"_s,
            QStringList{u"launch"_s, QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/com.korvane.Sonaphex.desktop")} +
                files,
            60000);
    }
    static bool isShown(const QString& title) {
        return desktop().xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, title});
    }
    static bool stateBecomes(const QString& state) {
        return waitFor([&] { return DesktopProgram::state() == state; }, 60000);
    }

    Home user;
    EnvironmentScope path{"PATH", QByteArray(SONAPHEX_BIN_DIR ":") + qgetenv("PATH")};
    StartingBus bus{user.folder};
};

} // namespace

TEST_F(ProgramByItsName, IsStartedRaisedAndGivenFilesByTheLauncher) {
    const auto started = launch();
    ASSERT_EQ(started.status, 0) << started.errors.constData();
    ASSERT_TRUE(waitFor([] { return isShown(u"Sonaphex"_s); }, 60000));
    ASSERT_TRUE(isOnTheBus());
    QList<quint32> ours;
    ASSERT_TRUE(waitFor([&] {
        ours = desktop().windowsOfRoot("_NET_ACTIVE_WINDOW");
        return ours.size() == 1 && ours.front() != 0;
    }));
    QPushButton cover(u"another program"_s);
    cover.resize(1200, 900);
    cover.show();
    const QList<quint32> covers{static_cast<quint32>(cover.winId())};
    ASSERT_TRUE(waitFor([&] { return desktop().windowsOfRoot("_NET_ACTIVE_WINDOW") == covers; }));
    EXPECT_EQ(launch().status, 0);
    EXPECT_TRUE(waitFor([&] { return desktop().windowsOfRoot("_NET_ACTIVE_WINDOW") == ours; })) << "raised";

    const QString file = user.folder.filePath(u"a song & more.wav"_s);
    ASSERT_EQ(runTool(u"sox"_s, {u"-n"_s, file, u"synth"_s, u"3"_s, u"sine"_s, u"440"_s}).status, 0);
    EXPECT_EQ(launch({file}).status, 0);
    ASSERT_TRUE(waitFor([] { return isShown(u"^Trim"_s); }));
    ASSERT_TRUE(waitFor([] {
        const QString trim = desktop().xdotoolOutput({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Trim"_s});
        return desktop().windowsOfRoot("_NET_ACTIVE_WINDOW") == QList<quint32>{trim.toUInt()};
    }));
    ASSERT_TRUE(desktop().xdotool({u"key"_s, u"Escape"_s}));
    EXPECT_TRUE(waitFor([] { return !isShown(u"^Trim"_s); }));
}

TEST_F(ProgramByItsName, RecordsPausesAndShowsByItsActions) {
    const auto started = application(u"ActivateAction"_s, {u"StartStop"_s, u"[]"_s, u"{}"_s});
    ASSERT_EQ(started.status, 0) << started.errors.constData();
    ASSERT_TRUE(stateBecomes(u"recording"_s));
    EXPECT_FALSE(isShown(u"Sonaphex"_s)) << "started hidden";
    EXPECT_EQ(application(u"ActivateAction"_s, {u"PauseResume"_s, u"[]"_s, u"{}"_s}).status, 0);
    EXPECT_TRUE(stateBecomes(u"paused"_s));
    EXPECT_EQ(application(u"ActivateAction"_s, {u"NoSuchAction"_s, u"[]"_s, u"{}"_s}).status, 0);
    EXPECT_EQ(application(u"ActivateAction"_s, {u"Show"_s, u"[]"_s, u"{}"_s}).status, 0);
    EXPECT_TRUE(waitFor([] { return isShown(u"Sonaphex"_s); }));
    EXPECT_EQ(application(u"ActivateAction"_s, {u"StartStop"_s, u"[]"_s, u"{}"_s}).status, 0);
    EXPECT_TRUE(stateBecomes(u"idle"_s));
}

TEST_F(ProgramByItsName, StartsHiddenAtLoginAndLeavesARunningOneAlone) {
    DesktopProgram program;
    ASSERT_TRUE(program.start({u"--hidden"_s}));
    EXPECT_FALSE(isShown(u"Sonaphex"_s));
    const auto again = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"--hidden"_s}, 60000);
    EXPECT_EQ(again.status, 0) << again.errors.constData();
    EXPECT_FALSE(isShown(u"Sonaphex"_s));
    EXPECT_EQ(DesktopProgram::launchAgain().status, 0);
    EXPECT_TRUE(waitFor([] { return isShown(u"Sonaphex"_s); })) << "a launch by hand shows it";
}
