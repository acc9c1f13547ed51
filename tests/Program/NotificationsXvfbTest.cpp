// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Notifications about recordings that end in the background, shown by dunst, an independent notification server.
#include "tests/Program/DesktopProgram.h"
#include "tests/support/XvfbSession.h"

#include <QPushButton>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// dunst on the display of the test. Its notifications do not expire.
class Dunst {
public:
    explicit Dunst(const QTemporaryDir& folder) {
        QFile config(folder.filePath(u"dunstrc"_s));
        if (!config.open(QIODevice::WriteOnly))
            return;
        config.write("[global]\nfont = Monospace 10\nhistory_length = 20\n[urgency_low]\ntimeout = 0\n"
                     "[urgency_normal]\ntimeout = 0\n[urgency_critical]\ntimeout = 0\n");
        config.close();
        process_.start(u"dunst"_s, {u"-config"_s, config.fileName()});
    }
    ~Dunst() {
        process_.kill();
        process_.waitForFinished();
    }
    Dunst(const Dunst&) = delete;
    Dunst& operator=(const Dunst&) = delete;

    static ToolResult control(const QStringList& arguments) { return runTool(u"dunstctl"_s, arguments, 20000); }
    [[nodiscard]] static bool isThere() {
        return waitFor([] { return control({u"is-paused"_s}).output.trimmed() == "false"; });
    }
    [[nodiscard]] static int displayed() { return control({u"count"_s, u"displayed"_s}).output.trimmed().toInt(); }
    /// The closed notifications, newest first.
    [[nodiscard]] static QByteArray history() { return control({u"history"_s}).output; }

private:
    QProcess process_;
};

class ProgramInTheBackground : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(program.start());
        cover.resize(1200, 900);
        cover.show();
        ASSERT_TRUE(waitFor([this] { return isActive(cover); }));
    }
    static QList<quint32> active() { return XvfbSession::current()->windowsOfRoot("_NET_ACTIVE_WINDOW"); }
    static bool isActive(QWidget& window) { return active() == QList<quint32>{static_cast<quint32>(window.winId())}; }
    static bool record() {
        return DesktopProgram::recordForAWhile() && DesktopProgram::control(u"start-stop"_s) &&
               waitFor([] { return DesktopProgram::state() == u"idle"_s; });
    }

    Home user;
    DesktopProgram program;
    QPushButton cover{u"another program"_s};
};

} // namespace

TEST_F(ProgramInTheBackground, TellsOfItsRecordingsInOneNotificationAndComesWhenItIsClicked) {
    const Dunst dunst(user.folder);
    ASSERT_TRUE(Dunst::isThere());
    ASSERT_TRUE(record());
    ASSERT_TRUE(waitFor([] { return Dunst::displayed() == 1; }, 60000));
    ASSERT_TRUE(DesktopProgram::recordForAWhile());
    ASSERT_TRUE(DesktopProgram::control(u"split"_s));
    ASSERT_TRUE(waitFor([this] { return QFile::exists(user.recording(1)); }, 60000));
    ASSERT_TRUE(waitFor([] { return DesktopProgram::status().value(u"queue"_s).toInt() == 0; }, 60000));
    EXPECT_EQ(Dunst::displayed(), 1) << "updated, not another one";
    EXPECT_TRUE(isActive(cover)) << "nothing comes in front by itself";
    ASSERT_EQ(Dunst::control({u"action"_s}).status, 0);
    EXPECT_TRUE(waitFor([this] { return !active().isEmpty() && active().front() != 0 && !isActive(cover); }));
    EXPECT_TRUE(waitFor([] { return Dunst::displayed() == 0; })) << "the user has seen it";
    const QByteArray history = Dunst::history();
    EXPECT_TRUE(history.contains("Recording cut; the next one runs")) << history.constData();
    EXPECT_TRUE(history.contains("Track1 (00:00:")) << history.constData();
    ASSERT_TRUE(DesktopProgram::control(u"start-stop"_s));
    EXPECT_TRUE(waitFor([] { return DesktopProgram::state() == u"idle"_s; }));
    EXPECT_EQ(Dunst::displayed(), 0) << "the window is in front";
}

TEST_F(ProgramInTheBackground, RecordsWithoutANotificationServer) {
    ASSERT_TRUE(record());
    EXPECT_TRUE(waitFor([this] { return QFile::exists(user.recording(0)); }, 60000));
    EXPECT_EQ(program.process().state(), QProcess::Running);
}
