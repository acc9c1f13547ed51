// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program among others on a desktop: launched twice, covered by other windows, shown in a status bar, and ended
// with the session.
#include "tests/Program/DesktopProgram.h"
#include "tests/support/AudioCheck.h"
#include "tests/support/SessionManager.h"
#include "tests/support/StatusNotifierBar.h"
#include "tests/support/XvfbSession.h"

#include <QApplication>
#include <QPushButton>
#include <QWindow>

#include <csignal>
#include <gtest/gtest.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

/// Messages that programs send to the desktop through the root window.
class RootMessages {
public:
    RootMessages() {
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &events);
        xcb_flush(connection_);
    }
    ~RootMessages() { xcb_disconnect(connection_); }
    RootMessages(const RootMessages&) = delete;
    RootMessages& operator=(const RootMessages&) = delete;

    /// Reads the new messages: the text of launches, and for each request to become active its source and time.
    void read() {
        while (auto* event = xcb_poll_for_event(connection_)) {
            const auto& message = *reinterpret_cast<const xcb_client_message_event_t*>(event);
            if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE) {
                const QByteArray name = nameOf(message.type);
                if (name.startsWith("_NET_STARTUP_INFO"))
                    launches += QByteArray(reinterpret_cast<const char*>(message.data.data8), 20);
                if (name == "_NET_ACTIVE_WINDOW")
                    wishes.append({message.data.data32[0], message.data.data32[1]});
            }
            free(event);
        }
    }
    QByteArray launches;
    QList<std::pair<quint32, quint32>> wishes;

private:
    QByteArray nameOf(xcb_atom_t atom) {
        auto* reply = xcb_get_atom_name_reply(connection_, xcb_get_atom_name(connection_, atom), nullptr);
        const QByteArray name =
            reply ? QByteArray(xcb_get_atom_name_name(reply), xcb_get_atom_name_name_length(reply)) : QByteArray();
        free(reply);
        return name;
    }
    xcb_connection_t* connection_ = xcb_connect(nullptr, nullptr);
};

class ProgramOnADesktop : public testing::Test {
protected:
    static XvfbSession& desktop() { return *XvfbSession::current(); }
    [[nodiscard]] bool libraryKnowsTheRecording() const {
        QFile defaults(user.folder.filePath(u".config/com.korvane.Sonaphex.plist"_s));
        return defaults.open(QIODevice::ReadOnly) && defaults.readAll().contains("Track0.m4a");
    }
    void expectAWholeRecording() const {
        ASSERT_TRUE(QFile::exists(user.recording(0)));
        EXPECT_GT(AudioCheck::framesByFfprobe(user.recording(0)), 5 * 44100) << "what the filter keeps";
        EXPECT_EQ(AudioCheck::decodedByFaad(user.recording(0)).size(), 2U) << "a plain file, closed";
        EXPECT_TRUE(libraryKnowsTheRecording());
    }

    Home user;
    DesktopProgram program;
};

/// The session that the desktop's programs belong to.
class ProgramInASession : public ProgramOnADesktop {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.start());
        ASSERT_TRUE(waitFor([this] { return manager.settledPrograms() == 1; }));
    }
    void TearDown() override { program.end(); } // while the session still exists
    SessionManager manager{user.folder.filePath(u"session"_s)};
};

} // namespace

TEST_F(ProgramOnADesktop, ASignalFinishesTheRecording) {
    ASSERT_TRUE(program.start());
    ASSERT_TRUE(program.recordForAWhile());
    ASSERT_EQ(::kill(static_cast<pid_t>(program.process().processId()), SIGTERM), 0);
    ASSERT_TRUE(program.endsWell());
    expectAWholeRecording();
}

TEST_F(ProgramOnADesktop, KeepsTheRecordingWhenTheDisplayIsLost) {
    QProcess display;
    display.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-nolisten"_s, u"tcp"_s});
    ASSERT_TRUE(waitFor([&] { return display.canReadLine(); }, 30000));
    const EnvironmentScope elsewhere{"DISPLAY", ":" + display.readLine().trimmed()};
    ASSERT_TRUE(program.start());
    ASSERT_TRUE(program.recordForAWhile());
    display.kill();
    ASSERT_TRUE(display.waitForFinished());
    ASSERT_TRUE(waitFor([this] { return program.process().state() == QProcess::NotRunning; }, 60000));
    const QString kept = user.folder.filePath(u".local/share/com.korvane.Sonaphex/Unfinished/BuiltInA0.m4a"_s);
    EXPECT_GT(AudioCheck::framesByFfprobe(kept), 5 * 44100);
}

TEST_F(ProgramInASession, ALogoutFinishesTheRecordingBeforeItContinues) {
    ASSERT_TRUE(program.recordForAWhile());
    manager.askToSaveForTheEnd();
    ASSERT_TRUE(waitFor([this] { return manager.allSaved(); }, 60000));
    expectAWholeRecording(); // from here on the session may end the program in any way
    EXPECT_EQ(program.process().state(), QProcess::Running) << "it has not been asked to end yet";
    manager.tellToDie();
    EXPECT_TRUE(program.endsWell());
}

TEST_F(ProgramInASession, ACancelledLogoutLeavesTheProgramRunning) {
    manager.askToSaveForTheEnd();
    ASSERT_TRUE(waitFor([this] { return manager.allSaved(); }, 60000));
    manager.cancelTheEnd();
    ASSERT_TRUE(program.recordForAWhile());
    manager.askToSaveForTheEnd();
    ASSERT_TRUE(waitFor([this] { return manager.allSaved(); }, 60000));
    expectAWholeRecording();
}

TEST_F(ProgramInASession, AnImmediateSessionEndFinishesTheRecording) {
    ASSERT_TRUE(program.recordForAWhile());
    manager.tellToDie();
    ASSERT_TRUE(program.endsWell()) << "no window stands in the way of the session's end";
    expectAWholeRecording();
}

TEST_F(ProgramOnADesktop, ASecondLaunchBringsTheCoveredWindowToTheFront) {
    ASSERT_TRUE(program.start());
    QList<quint32> ours;
    ASSERT_TRUE(waitFor([&] {
        ours = desktop().windowsOfRoot("_NET_ACTIVE_WINDOW");
        return ours.size() == 1 && ours.front() != 0;
    })) << "it is alone, and active";
    QPushButton cover(u"another program"_s);
    cover.setWindowTitle(u"cover"_s);
    cover.resize(1200, 900);
    cover.show();
    const auto active = [&] { return desktop().windowsOfRoot("_NET_ACTIVE_WINDOW"); };
    const auto top = [&] {
        const QList<quint32> stacked = desktop().windowsOfRoot("_NET_CLIENT_LIST_STACKING");
        return stacked.isEmpty() ? 0 : stacked.back();
    };
    const QList<quint32> covers{static_cast<quint32>(cover.winId())};
    // On a busy machine the window manager may activate the program's window late, after the cover.
    ASSERT_TRUE(waitFor([&] {
        return waitFor([&] { return active() == covers && top() == covers.front(); }, 2000) ||
               !desktop().xdotool({u"windowactivate"_s, QString::number(covers.front())});
    }));
    ASSERT_TRUE(active() == covers && top() == covers.front());
    ASSERT_TRUE(waitFor([&] { return cover.windowHandle()->isExposed(); }));
    for (const bool minimised : {false, true}) {
        if (minimised) {
            ASSERT_TRUE(desktop().xdotool({u"windowminimize"_s, u"--sync"_s, QString::number(ours.front())}));
            ASSERT_TRUE(desktop().xdotool({u"windowactivate"_s, QString::number(covers.front())}));
            ASSERT_TRUE(waitFor([&] { return active() == covers && top() == covers.front(); }));
        }
        // The user works in the other window: a window manager lets no program take the focus on its own.
        int clicks = 0;
        const auto counted = QObject::connect(&cover, &QPushButton::clicked, [&] { ++clicks; });
        ASSERT_TRUE(desktop().xdotool({u"mousemove"_s, u"640"_s, u"500"_s, u"click"_s, u"1"_s}));
        ASSERT_TRUE(waitFor([&] { return clicks == 1; }));
        QObject::disconnect(counted);
        const auto second = program.launchAgain();
        EXPECT_EQ(second.status, 0) << second.errors.toStdString();
        EXPECT_TRUE(waitFor([&] { return active() == ours; })) << (minimised ? "minimised" : "covered");
        EXPECT_TRUE(waitFor([&] { return top() == ours.front(); })) << (minimised ? "minimised" : "covered");
    }
    EXPECT_EQ(program.process().state(), QProcess::Running);
}

TEST_F(ProgramOnADesktop, AFileIsOpenedInTheTrimWindowAtTheLaunchAndByASecondLaunch) {
    const QString file = user.folder.filePath(u"a song.wav"_s);
    ASSERT_EQ(runTool(u"sox"_s, {u"-n"_s, file, u"synth"_s, u"3"_s, u"sine"_s, u"440"_s}).status, 0);
    const auto trimWindows = [] {
        return desktop().xdotool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Trim"_s});
    };
    ASSERT_TRUE(program.start({file}));
    EXPECT_TRUE(waitFor(trimWindows, 20000)) << "at the launch";
    // The modal window gets the keyboard once the window manager has made it active.
    const auto isActive = [] {
        const QString trim = desktop().xdotoolOutput({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Trim"_s});
        return desktop().windowsOfRoot("_NET_ACTIVE_WINDOW") == QList<quint32>{trim.toUInt()};
    };
    ASSERT_TRUE(waitFor(isActive, 20000));
    ASSERT_TRUE(desktop().xdotool({u"key"_s, u"Escape"_s}));
    ASSERT_TRUE(waitFor([&] { return !trimWindows(); }, 20000));
    const auto second = runTool(QStringLiteral(SONAPHEX_PROGRAM), {file}, 20000);
    EXPECT_EQ(second.status, 0) << second.errors.toStdString();
    EXPECT_TRUE(waitFor(trimWindows, 20000)) << "by a second launch, which does not wait for its end";
    const auto library = runTool(QStringLiteral(SONAPHEX_PROGRAM), {u"library"_s});
    EXPECT_FALSE(library.output.contains("a song")) << "a file that is opened is not added to the library";
}

TEST_F(ProgramOnADesktop, ASecondLaunchPassesItsLauncherTokenOn) {
    ASSERT_TRUE(program.start());
    RootMessages messages;
    {
        const EnvironmentScope token("DESKTOP_STARTUP_ID", "panel/sonaphex/1-\"2\"_TIME123456");
        EXPECT_EQ(program.launchAgain().status, 0);
    }
    EXPECT_TRUE(waitFor([&] {
        messages.read();
        return messages.wishes.contains(std::pair<quint32, quint32>(2, 123456));
    })) << "on behalf of the user, at the time of the click";
    EXPECT_TRUE(waitFor([&] {
        messages.read();
        return messages.launches.startsWith("remove: ID=\"panel/sonaphex/1-\\\"2\\\"_TIME123456\"" +
                                            QByteArray(1, '\0'));
    })) << messages.launches.toStdString();
}

TEST_F(ProgramOnADesktop, EveryStatusBarThatAppearsLaterGetsTheItem) {
    ASSERT_TRUE(program.start());
    const QStringList others{u"Show Sonaphex"_s, u"Quit"_s};
    const auto hasOne = [](const StatusNotifierBar& bar) { return bar.items().size() == 1; };
    {
        StatusNotifierBar bar(false);
        ASSERT_TRUE(waitFor([&] { return bar.wasAsked(); }));
        bar.showItems();
        ASSERT_TRUE(waitFor([&] { return hasOne(bar); }));
        const QString item = bar.items().front();
        EXPECT_EQ(bar.property(item, u"Title"_s).toString(), u"Sonaphex"_s);
        EXPECT_EQ(bar.menu(item),
                  (QStringList{u"Start Record"_s, u"(Pause Record)"_s, u"(Cut to Another Recording)"_s} + others));
        ASSERT_TRUE(bar.choose(item, u"Start Record"_s));
        ASSERT_TRUE(waitFor([&] { return program.state() == u"recording"_s; }));
        EXPECT_TRUE(waitFor([&] {
            return bar.menu(item) ==
                   QStringList{u"Stop Record"_s, u"Pause Record"_s, u"Cut to Another Recording"_s} + others;
        }));
    }
    StatusNotifierBar restarted;
    ASSERT_TRUE(waitFor([&] { return hasOne(restarted); })) << "the panel came back";
    ASSERT_TRUE(restarted.choose(restarted.items().front(), u"Stop Record"_s));
    EXPECT_TRUE(waitFor([&] { return program.state() == u"idle"_s; }));
}
