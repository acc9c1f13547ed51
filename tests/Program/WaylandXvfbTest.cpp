// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program under a real Wayland compositor: sway, without a screen and without a keyboard. gtk-launch is the
// launcher.
#include "tests/Program/DesktopProgram.h"
#include "tests/Program/StartingBus.h"
#include "tests/support/StatusNotifierBar.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// sway refuses to run as root; then the user nobody runs it.
class Sway {
public:
    Sway() {
        QFile config(folder_.filePath(u"config"_s));
        if (!config.open(QIODevice::WriteOnly))
            return;
        config.write("xwayland disable\n");
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
            command =
                QStringList{u"setpriv"_s, u"--reuid"_s, u"65534"_s, u"--regid"_s, u"65534"_s, u"--clear-groups"_s} +
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
    /// Whether it shows a window of this application.
    [[nodiscard]] bool shows(const QString& application) const {
        return runTool(u"swaymsg"_s, {u"-s"_s, ipc_, u"-t"_s, u"get_tree"_s, u"-r"_s})
            .output.contains("\"app_id\": \"" + application.toUtf8() + '"');
    }

private:
    [[nodiscard]] QStringList sockets(const QString& pattern) const {
        QStringList found = QDir(folder_.path()).entryList({pattern}, QDir::System | QDir::Files | QDir::Hidden);
        found.removeIf([](const QString& name) { return name.endsWith(u".lock"); });
        return found;
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
    /// The messages between the program and the compositor.
    [[nodiscard]] QByteArray spoken() const {
        QFile file(user.folder.filePath(u"wayland.log"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] bool activates(const QByteArray& token) const {
        return waitFor([&] { return spoken().contains(".activate(\"" + token + "\", wl_surface"); });
    }
    [[nodiscard]] bool start() {
        const EnvironmentScope protocol("WAYLAND_DEBUG", "1");
        program.process().setProcessChannelMode(QProcess::SeparateChannels);
        program.process().setStandardErrorFile(user.folder.filePath(u"wayland.log"_s));
        return program.start() && waitFor([this] { return sway.shows(u"com.korvane.Sonaphex"_s); });
    }

    Home user;
    EnvironmentScope path{"PATH", QByteArray(SONAPHEX_BIN_DIR ":") + qgetenv("PATH")};
    EnvironmentScope platform{"QT_QPA_PLATFORM", "wayland"};
    EnvironmentScope gtk{"GDK_BACKEND", "wayland"};
    Sway sway;
    StartingBus bus{user.folder};
    DesktopProgram program;
};

} // namespace

TEST_F(ProgramUnderWayland, TheTokenOfALauncherBringsTheWindowToTheFront) {
    ASSERT_TRUE(start());
    {
        const EnvironmentScope token("XDG_ACTIVATION_TOKEN", "of-a-second-launch");
        EXPECT_EQ(DesktopProgram::launchAgain().status, 0);
    }
    EXPECT_TRUE(activates("of-a-second-launch"));
    ToolResult launched;
    {
        const EnvironmentScope protocol("WAYLAND_DEBUG", "1");
        launched = runTool(u"gtk-launch"_s, {u"com.korvane.Sonaphex"_s}, 60000);
    }
    ASSERT_EQ(launched.status, 0) << launched.errors.constData();
    const QByteArray given = "xdg_activation_token_v1"; // "@" or "#" and a number follow
    const auto done = launched.errors.indexOf(".done(\"", launched.errors.indexOf(given));
    ASSERT_GT(done, 0) << launched.errors.constData();
    const QByteArray token = launched.errors.mid(done + 7, launched.errors.indexOf('"', done + 7) - done - 7);
    EXPECT_FALSE(token.isEmpty());
    EXPECT_TRUE(activates(token)) << "the compositor's token, by way of the launcher and the bus: "
                                  << token.constData();
}

TEST_F(ProgramUnderWayland, TheStatusBarHasTheItemWhenItComesLateAndWhenItComesBack) {
    ASSERT_TRUE(start());
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
