// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program under a real Wayland compositor: sway, without a screen. Launchers and other windows are programs of
// others.
#include "tests/Program/DesktopProgram.h"
#include "tests/Program/StartingBus.h"
#include "tests/support/StatusNotifierBar.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// sway refuses to run as root, so it runs as nobody there. It gives the focus only to a window that comes with a token
/// of its own making.
class Sway {
public:
    Sway() {
        QFile config(folder_.filePath(u"config"_s));
        if (!config.open(QIODevice::WriteOnly))
            return;
        config.write("focus_on_window_activation focus\nxwayland disable\n");
        config.close();
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
            environment.remove(name);
        environment.insert(u"XDG_RUNTIME_DIR"_s, folder_.path());
        environment.insert(u"HOME"_s, folder_.path());
        environment.insert(u"WLR_BACKENDS"_s, u"headless"_s);
        environment.insert(u"WLR_LIBINPUT_NO_DEVICES"_s, u"1"_s);
        environment.insert(u"WLR_RENDERER"_s, u"pixman"_s);
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(folder_.filePath(u"log"_s));
        QStringList command{u"sway"_s, u"-c"_s, config.fileName()};
        if (geteuid() == 0) {
            const QByteArray path = QFile::encodeName(folder_.path());
            if (::chown(path.constData(), 65534, 65534) != 0 || ::chmod(path.constData(), 0755) != 0)
                return;
            command = QStringList{u"setpriv"_s, u"--reuid"_s, u"65534"_s, u"--regid"_s, u"65534"_s,
                                  u"--clear-groups"_s} +
                      command;
        }
        process_.start(command.takeFirst(), command);
        if (!waitFor([this] { return !sockets(u"wayland-*"_s).isEmpty() && !sockets(u"sway-ipc.*"_s).isEmpty(); }))
            return;
        display_.emplace("WAYLAND_DISPLAY", QFile::encodeName(folder_.filePath(sockets(u"wayland-*"_s).first())));
        ipc_ = folder_.filePath(sockets(u"sway-ipc.*"_s).first());
    }
    ~Sway() {
        process_.terminate();
        if (!process_.waitForFinished(10000)) {
            process_.kill();
            process_.waitForFinished();
        }
    }
    Sway(const Sway&) = delete;
    Sway& operator=(const Sway&) = delete;

    [[nodiscard]] bool runs() const { return display_.has_value(); }
    /// The application whose window has the focus; empty when there is none.
    [[nodiscard]] QString focused() const {
        const auto said = runTool(u"swaymsg"_s, {u"-s"_s, ipc_, u"-t"_s, u"get_tree"_s});
        return focusedIn(QJsonDocument::fromJson(said.output).object());
    }

private:
    [[nodiscard]] QStringList sockets(const QString& pattern) const {
        QStringList found = QDir(folder_.path()).entryList({pattern}, QDir::System | QDir::Files | QDir::Hidden);
        found.removeIf([](const QString& name) { return name.endsWith(u".lock"); });
        return found;
    }
    static QString focusedIn(const QJsonObject& node) {
        if (node.value(u"focused"_s).toBool())
            return node.value(u"app_id"_s).toString();
        for (const QString& kind : {u"nodes"_s, u"floating_nodes"_s})
            for (const QJsonValue& child : node.value(kind).toArray())
                if (const QString found = focusedIn(child.toObject()); !found.isEmpty())
                    return found;
        return {};
    }

    QTemporaryDir folder_;
    QProcess process_;
    std::optional<EnvironmentScope> display_;
    QString ipc_;
};

class ProgramUnderWayland : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.runs());
        ASSERT_TRUE(sway.runs());
        QDir().mkpath(user.folder.filePath(u".local/share/applications"_s));
        ASSERT_TRUE(QFile::copy(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/com.korvane.Sonaphex.desktop"),
                                user.folder.filePath(u".local/share/applications/com.korvane.Sonaphex.desktop"_s)));
    }
    void TearDown() override {
        other.kill();
        other.waitForFinished();
    }
    static ToolResult launch() { return runTool(u"gtk-launch"_s, {u"com.korvane.Sonaphex"_s}, 60000); }
    [[nodiscard]] bool startOther() {
        other.start(u"foot"_s, {u"--config=/dev/null"_s, u"sleep"_s, u"1000"_s});
        return waitFor([this] { return sway.focused() == u"foot"; });
    }

    Home user;
    EnvironmentScope path{"PATH", QByteArray(SONAPHEX_BIN_DIR ":") + qgetenv("PATH")};
    EnvironmentScope platform{"QT_QPA_PLATFORM", "wayland"};
    EnvironmentScope gtk{"GDK_BACKEND", "wayland"};
    Sway sway;
    StartingBus bus{user.folder};
    QProcess other;
    DesktopProgram program;
};

const auto ours = u"com.korvane.Sonaphex"_s;

} // namespace

TEST_F(ProgramUnderWayland, ALaunchersTokenBringsTheWindowToTheFront) {
    ASSERT_TRUE(program.start());
    ASSERT_TRUE(waitFor([this] { return sway.focused() == ours; })) << sway.focused().toStdString();
    ASSERT_TRUE(startOther());
    EXPECT_EQ(DesktopProgram::launchAgain().status, 0);
    {
        const EnvironmentScope token("XDG_ACTIVATION_TOKEN", "of nobody's making");
        EXPECT_EQ(DesktopProgram::launchAgain().status, 0);
    }
    EXPECT_EQ(sway.focused(), u"foot"_s) << "without a token of the compositor's no program comes in front";
    const auto launched = launch();
    ASSERT_EQ(launched.status, 0) << launched.errors.constData();
    EXPECT_TRUE(waitFor([this] { return sway.focused() == ours; }));
}

TEST_F(ProgramUnderWayland, TheStatusBarHasTheItemWhenItComesLateAndWhenItComesBack) {
    ASSERT_TRUE(program.start());
    {
        StatusNotifierBar bar;
        ASSERT_TRUE(waitFor([&] { return bar.items().size() == 1; }));
        ASSERT_TRUE(bar.choose(bar.items().front(), u"Start Record"_s));
        ASSERT_TRUE(waitFor([] { return DesktopProgram::state() == u"recording"_s; }));
    }
    StatusNotifierBar restarted;
    ASSERT_TRUE(waitFor([&] { return restarted.items().size() == 1; }));
    ASSERT_TRUE(restarted.choose(restarted.items().front(), u"Stop Record"_s));
    EXPECT_TRUE(waitFor([] { return DesktopProgram::state() == u"idle"_s; }));
}
