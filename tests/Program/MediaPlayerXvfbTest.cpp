// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a player on the session bus, controlled with playerctl and observed with gdbus, two independent
// programs.
#include "Platform/Foundation/RunningProgram.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/ProcessRequests/ControlRequests.h"
#include "tests/Program/DesktopProgram.h"

#include <QImage>
#include <QUrl>

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// gdbus, which prints every signal of the player.
class Monitor {
public:
    Monitor() {
        process_.start(u"gdbus"_s, {u"monitor"_s, u"--session"_s, u"--dest"_s, u"org.mpris.MediaPlayer2.sonaphex"_s});
        listens_ = waitForText("owned by");
    }
    ~Monitor() {
        process_.kill();
        process_.waitForFinished();
    }
    Monitor(const Monitor&) = delete;
    Monitor& operator=(const Monitor&) = delete;

    [[nodiscard]] bool listens() const { return listens_; }
    [[nodiscard]] bool waitForText(const QByteArray& text, int deadlineMs = 20000) {
        return waitFor(
            [&] {
                heard += process_.readAllStandardOutput();
                return heard.contains(text);
            },
            deadlineMs);
    }
    QByteArray heard;

private:
    QProcess process_;
    bool listens_ = false;
};

class PlayerOnTheBus : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.start());
        const auto running = Platform::RunningProgram::create(u"com.korvane.Sonaphex"_s);
        QImage cover(64, 64, QImage::Format_RGB32);
        cover.fill(Qt::darkCyan);
        ASSERT_TRUE(cover.save(user.folder.filePath(u"cover.png"_s)));
        for (const QString& title : {u"Third & last"_s, u"Second"_s, u"First"_s}) { // the newest is first
            const QString path = user.folder.filePath(title + u".m4a"_s);
            QStringList arguments{u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=f=330:d=60"_s};
            if (title == u"First"_s)
                arguments << u"-i"_s << user.folder.filePath(u"cover.png"_s) << u"-map"_s << u"0"_s << u"-map"_s
                          << u"1"_s << u"-disposition:v"_s << u"attached_pic"_s << u"-c:v"_s << u"copy"_s;
            arguments << u"-metadata"_s << u"title="_s + title << path;
            const auto made = runTool(u"ffmpeg"_s, arguments);
            ASSERT_EQ(made.status, 0) << made.errors.constData();
            QByteArray answer;
            ASSERT_TRUE(running->ask(ControlRequests::libraryAdd(path, {{AudioRecordEntry::NodeDataKey, title},
                                                                        {AudioRecordEntry::Title, title},
                                                                        {AudioRecordEntry::Artist, u"Somebody"_s},
                                                                        {AudioRecordEntry::Album, u"Evening"_s},
                                                                        {AudioRecordEntry::Length, 60.0},
                                                                        {AudioRecordEntry::IsNew, true}}),
                                     answer));
            ASSERT_TRUE(answer.startsWith("ok")) << answer.constData();
        }
        ASSERT_TRUE(waitFor([] { return property("CanPlay") == "(<true>,)"; }));
    }
    static QByteArray playerctl(const QStringList& arguments) {
        const auto said = runTool(u"playerctl"_s, QStringList{u"-p"_s, u"sonaphex"_s} + arguments, 20000);
        return (said.output + said.errors).trimmed();
    }
    static QByteArray property(const char* name) {
        return runTool(u"gdbus"_s,
                       {u"call"_s, u"--session"_s, u"--dest"_s, u"org.mpris.MediaPlayer2.sonaphex"_s,
                        u"--object-path"_s, u"/org/mpris/MediaPlayer2"_s, u"--method"_s,
                        u"org.freedesktop.DBus.Properties.Get"_s, u"org.mpris.MediaPlayer2.Player"_s,
                        QString::fromLatin1(name)},
                       20000)
            .output.trimmed();
    }
    static bool statusBecomes(const QByteArray& status) {
        return waitFor([&] { return playerctl({u"status"_s}) == status; });
    }
    static QByteArray title() { return playerctl({u"metadata"_s, u"xesam:title"_s}); }

    Home user;
    DesktopProgram program;
};

} // namespace

TEST_F(PlayerOnTheBus, IsControlledByPlayerctl) {
    // It lists the players of both buses, and the tests have one bus for both.
    QByteArrayList players = runTool(u"playerctl"_s, {u"-l"_s}).output.trimmed().split('\n');
    players.erase(std::unique(players.begin(), players.end()), players.end());
    EXPECT_EQ(players, QByteArrayList{"sonaphex"});
    EXPECT_EQ(playerctl({u"status"_s}), "Stopped");
    playerctl({u"play"_s});
    ASSERT_TRUE(statusBecomes("Playing"));
    EXPECT_EQ(
        playerctl({u"metadata"_s, u"--format"_s, u"{{title}} | {{artist}} | {{album}} | {{duration(mpris:length)}}"_s}),
        "First | Somebody | Evening | 1:00");
    EXPECT_TRUE(waitFor([] { return playerctl({u"position"_s}).toDouble() > 0.2; })) << "it moves";
    playerctl({u"position"_s, u"40"_s});
    EXPECT_TRUE(waitFor([] { return playerctl({u"position"_s}).toDouble() >= 40; }));
    playerctl({u"position"_s, u"10-"_s});
    EXPECT_LT(playerctl({u"position"_s}).toDouble(), 40);
    playerctl({u"pause"_s});
    ASSERT_TRUE(statusBecomes("Paused"));
    const QByteArray stands = playerctl({u"position"_s});
    EXPECT_EQ(playerctl({u"position"_s}), stands);
    playerctl({u"next"_s});
    EXPECT_TRUE(waitFor([] { return title() == "Second"; }));
    EXPECT_EQ(playerctl({u"status"_s}), "Paused");
    playerctl({u"play-pause"_s});
    ASSERT_TRUE(statusBecomes("Playing"));
    playerctl({u"next"_s});
    EXPECT_TRUE(waitFor([] { return title() == "Third & last"; }));
    playerctl({u"previous"_s});
    EXPECT_TRUE(waitFor([] { return title() == "Second"; }));
    playerctl({u"volume"_s, u"0.5"_s});
    EXPECT_EQ(playerctl({u"volume"_s}).toDouble(), 0.5);
    playerctl({u"stop"_s});
    EXPECT_TRUE(statusBecomes("Stopped"));
}

TEST_F(PlayerOnTheBus, SignalsChangesAndPublishesTheCoverAsAFile) {
    Monitor monitor;
    ASSERT_TRUE(monitor.listens());
    playerctl({u"play"_s});
    EXPECT_TRUE(monitor.waitForText("'PlaybackStatus': <'Playing'>")) << monitor.heard.constData();
    ASSERT_TRUE(monitor.waitForText("'mpris:artUrl': <'file://")) << monitor.heard.constData();
    const QString cover = QUrl(QString::fromUtf8(playerctl({u"metadata"_s, u"mpris:artUrl"_s}))).toLocalFile();
    EXPECT_TRUE(cover.startsWith(user.folder.filePath(u".cache/"_s))) << qPrintable(cover);
    EXPECT_EQ(QImage(cover).pixelColor(5, 5), QColor(Qt::darkCyan));
    playerctl({u"position"_s, u"30"_s});
    EXPECT_TRUE(monitor.waitForText("Player.Seeked (int64 30")) << monitor.heard.constData();
    // During playback no position is sent: the desktop advances it itself.
    ASSERT_TRUE(waitFor([] { return playerctl({u"position"_s}).toDouble() > 31; }));
    monitor.heard.clear();
    ASSERT_TRUE(waitFor([] { return playerctl({u"position"_s}).toDouble() > 33; }));
    playerctl({u"pause"_s});
    ASSERT_TRUE(monitor.waitForText("'PlaybackStatus': <'Paused'>"));
    EXPECT_EQ(monitor.heard.count("PropertiesChanged"), 1) << monitor.heard.constData();
    playerctl({u"next"_s});
    EXPECT_TRUE(monitor.waitForText("'xesam:title': <'Second'>"));
    EXPECT_TRUE(waitFor([&] { return !QFile::exists(cover); })) << "no pile of covers";
    program.end();
    EXPECT_TRUE(monitor.waitForText("does not have an owner")) << monitor.heard.constData();
    EXPECT_FALSE(QFile::exists(user.folder.filePath(u".cache/com.korvane.Sonaphex/cover"_s)));
}

TEST_F(PlayerOnTheBus, ARunningRecordingDoesNotAppear) {
    playerctl({u"play"_s});
    ASSERT_TRUE(statusBecomes("Playing"));
    ASSERT_TRUE(DesktopProgram::control(u"start-stop"_s));
    ASSERT_TRUE(waitFor([] { return DesktopProgram::state() == u"recording"_s; }));
    EXPECT_TRUE(statusBecomes("Stopped"));
    EXPECT_TRUE(property("Metadata").contains("'xesam:title': <'First'>")) << "what played, not what is recorded";
    EXPECT_EQ(property("CanPlay"), "(<false>,)");
    playerctl({u"play"_s});
    EXPECT_EQ(playerctl({u"status"_s}), "Stopped");
    EXPECT_EQ(DesktopProgram::state(), u"recording"_s);
}

TEST_F(PlayerOnTheBus, HasTheAnnouncedInterfaces) {
    const QByteArray said =
        runTool(u"gdbus"_s, {u"introspect"_s, u"--session"_s, u"--dest"_s, u"org.mpris.MediaPlayer2.sonaphex"_s,
                             u"--object-path"_s, u"/org/mpris/MediaPlayer2"_s})
            .output;
    for (const char* part :
         {"interface org.mpris.MediaPlayer2 {", "interface org.mpris.MediaPlayer2.Player {", "Identity = 'Sonaphex'",
          "DesktopEntry = 'com.korvane.Sonaphex'", "HasTrackList = false", "SetPosition(in  o TrackId,", "Rate = 1.0",
          "MinimumRate = 1.0", "MaximumRate = 1.0", "CanControl = true", "readwrite d Volume"})
        EXPECT_TRUE(said.contains(part)) << part << '\n' << said.constData();
}
