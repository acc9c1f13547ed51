// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/XvfbSession.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <vector>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

XvfbSession* session = nullptr;

// Returns a whole line from the file descriptor, or nothing after the deadline.
QByteArray readLine(int descriptor, int deadlineMs) {
    QByteArray line;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < deadlineMs) {
        pollfd waiting{descriptor, POLLIN, 0};
        if (poll(&waiting, 1, 100) <= 0)
            continue;
        char letter = 0;
        if (read(descriptor, &letter, 1) != 1)
            break;
        if (letter == '\n')
            return line;
        line += letter;
    }
    return {};
}

// Whether the X server has this property on its root window, or an owner of the selection of that name.
bool rootHas(const QByteArray& display, const char* name, bool selection) {
    xcb_connection_t* connection = xcb_connect(display.constData(), nullptr);
    bool found = false;
    if (!xcb_connection_has_error(connection)) {
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        auto* atom = xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, qstrlen(name), name), nullptr);
        if (atom && selection) {
            auto* owner =
                xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr);
            found = owner && owner->owner != XCB_NONE;
            free(owner);
        } else if (atom) {
            auto* property = xcb_get_property_reply(
                connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr);
            found = property && xcb_get_property_value_length(property) > 0;
            free(property);
        }
        free(atom);
    }
    xcb_disconnect(connection);
    return found;
}

// A window manager that has just started may lose requests before it listens: only a window that it really shows proves
// that it works.
bool windowsAreShown(const QByteArray& display) {
    xcb_connection_t* connection = xcb_connect(display.constData(), nullptr);
    bool shown = false;
    if (!xcb_connection_has_error(connection)) {
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 50, 50, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_map_window(connection, window);
        for (int i = 0; i < 20 && !shown; ++i) {
            auto* attributes =
                xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr);
            shown = attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
            free(attributes);
            QThread::msleep(10);
        }
    }
    xcb_disconnect(connection);
    return shown;
}

bool eventually(const std::function<bool()>& condition, int deadlineMs = 20000) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > deadlineMs)
            return false;
        QThread::msleep(10);
    }
    return true;
}

void end(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(10000)) {
        process.kill();
        process.waitForFinished();
    }
}

} // namespace

struct XvfbSession::Private {
    QTemporaryDir folder;
    QByteArray display;
    QString problem;
    std::vector<std::unique_ptr<QProcess>> processes; // in starting order

    QProcess* start(const QString& program, const QStringList& arguments) {
        auto process = std::make_unique<QProcess>();
        process->setStandardErrorFile(folder.filePath(program.section(u'/', -1) + u".log"_s));
        // When a test crashes, these processes end with it.
        process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        process->start(program, arguments);
        if (!process->waitForStarted(10000)) {
            problem = program + u" does not start: "_s + process->errorString();
            return nullptr;
        }
        processes.push_back(std::move(process));
        return processes.back().get();
    }

    bool startServer() {
        int ends[2] = {-1, -1};
        if (pipe(ends) != 0)
            return false;
        auto* server = start(u"Xvfb"_s, {u"-displayfd"_s, QString::number(ends[1]), u"-screen"_s, u"0"_s,
                                         u"1280x1000x24"_s, u"-nolisten"_s, u"tcp"_s, u"-noreset"_s,
                                         // No auto-repeat, so that a slow machine, which releases a key late, does not
                                         // repeat it.
                                         u"-r"_s});
        close(ends[1]);
        if (server)
            display = ":" + readLine(ends[0], 30000);
        close(ends[0]);
        if (server && display == ":")
            problem = u"Xvfb names no display"_s;
        return problem.isEmpty();
    }

    bool startBus() {
        const QString config = folder.filePath(u"bus.conf"_s);
        QFile file(config);
        if (!file.open(QIODevice::WriteOnly))
            return false;
        // No service folders: no service of the machine's own desktop is started.
        file.write("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                   "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\"><busconfig><type>session</type>"
                   "<listen>unix:dir=" +
                   QFile::encodeName(folder.path()) +
                   "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                   "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        file.close();
        auto* bus = start(u"dbus-daemon"_s, {u"--config-file="_s + config, u"--nofork"_s, u"--print-address"_s});
        if (!bus)
            return false;
        QElapsedTimer timer;
        timer.start();
        while (!bus->canReadLine() && timer.elapsed() < 20000)
            bus->waitForReadyRead(200);
        const QByteArray address = bus->readLine().trimmed();
        if (address.isEmpty())
            problem = u"dbus-daemon names no address"_s;
        // The same bus also serves as the system bus. libdbus reads both addresses at the first connection, which Qt
        // 6.8 makes before a test begins: a test could not change the address any more.
        for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
            qputenv(name, address);
        return problem.isEmpty();
    }

    bool startWindowManager() {
        if (!start(u"openbox"_s, {u"--sm-disable"_s}))
            return false;
        if (!eventually([this] { return rootHas(display, "_NET_SUPPORTING_WM_CHECK", false); }) ||
            !eventually([this] { return windowsAreShown(display); }))
            problem = u"openbox does not take the screen"_s;
        return problem.isEmpty();
    }
};

XvfbSession::XvfbSession() : d(std::make_unique<Private>()) {
    session = this;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(d->folder.path()));
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");
    if (!d->startServer())
        return;
    qputenv("DISPLAY", d->display);
    if (d->startBus())
        d->startWindowManager();
}

XvfbSession::~XvfbSession() {
    for (auto process = d->processes.rbegin(); process != d->processes.rend(); ++process)
        end(**process);
    session = nullptr;
}

XvfbSession* XvfbSession::current() {
    return session;
}

QString XvfbSession::problem() const {
    return d->problem;
}

QString XvfbSession::display() const {
    return QString::fromLatin1(d->display);
}

bool XvfbSession::startTray() {
    // A distribution has one or the other.
    const bool started = QStandardPaths::findExecutable(u"trayer"_s).isEmpty()
                             ? d->start(u"stalonetray"_s, {u"--geometry"_s, u"4x1-0-0"_s})
                             : d->start(u"trayer"_s, {u"--edge"_s, u"bottom"_s, u"--widthtype"_s, u"request"_s});
    return started && eventually([this] { return rootHas(d->display, "_NET_SYSTEM_TRAY_S0", true); });
}

bool XvfbSession::startAccessibility() {
    if (QAccessible::isActive())
        return true;
    // Qt reads this when the bus appears: no screen reader has asked for it yet.
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
    for (const QString& folder : {u"/usr/libexec/"_s, u"/usr/lib/at-spi2-core/"_s})
        if (QFile::exists(folder + u"at-spi-bus-launcher"_s))
            return d->start(folder + u"at-spi-bus-launcher"_s, {u"--launch-immediately"_s}) && eventually([] {
                       QCoreApplication::processEvents();
                       return QAccessible::isActive();
                   });
    d->problem = u"at-spi2-core is not installed"_s;
    return false;
}

void XvfbSession::stopTray() {
    const auto tray = std::ranges::find_if(d->processes, [](const auto& each) {
        return each->program() == u"trayer" || each->program() == u"stalonetray";
    });
    if (tray == d->processes.end())
        return;
    end(**tray);
    d->processes.erase(tray);
    (void)eventually([this] { return !rootHas(d->display, "_NET_SYSTEM_TRAY_S0", true); });
}

QList<quint32> XvfbSession::windowsOfRoot(const QByteArray& property) const {
    xcb_connection_t* connection = xcb_connect(d->display.constData(), nullptr);
    QList<quint32> windows;
    if (!xcb_connection_has_error(connection)) {
        const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        const auto length = static_cast<std::uint16_t>(property.size());
        auto* atom =
            xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, length, property.constData()), nullptr);
        auto* value = !atom ? nullptr
                            : xcb_get_property_reply(
                                  connection,
                                  xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1000), nullptr);
        if (value) {
            const auto* first = static_cast<const quint32*>(xcb_get_property_value(value));
            windows = QList<quint32>(first, first + xcb_get_property_value_length(value) / 4);
        }
        free(value);
        free(atom);
    }
    xcb_disconnect(connection);
    return windows;
}

bool XvfbSession::xdotool(const QStringList& arguments) const {
    QProcess process;
    process.start(u"xdotool"_s, arguments);
    return process.waitForFinished(20000) && process.exitCode() == 0;
}

QString XvfbSession::xdotoolOutput(const QStringList& arguments) const {
    QProcess process;
    process.start(u"xdotool"_s, arguments);
    process.waitForFinished(20000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}
