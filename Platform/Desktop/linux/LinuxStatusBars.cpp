// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/StatusBars.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstdlib>
#include <cstring>

#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto notifierWatcher = u"org.kde.StatusNotifierWatcher"_s;
const auto watcherPath = u"/StatusNotifierWatcher"_s;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

// A bar on the session bus announces itself by its bus name, one on the X server by owning a selection.
class LinuxStatusBars : public StatusBars {
    Q_OBJECT
public:
    LinuxStatusBars() {
        lookAtTheBus();
        if (QGuiApplication::platformName() == u"xcb")
            lookAtTheServer();
    }
    ~LinuxStatusBars() override { leaveTheServer(); }

private Q_SLOTS:
    void found() {
        if (seen_)
            return;
        seen_ = true;
        names_.reset();
        // Queued: this must not run inside the server's own notifier.
        QMetaObject::invokeMethod(
            this,
            [this] {
                leaveTheServer();
                Q_EMIT appeared();
            },
            Qt::QueuedConnection);
    }

private:
    void lookAtTheBus() {
        auto bus = QDBusConnection::sessionBus();
        if (!bus.isConnected())
            return;
        names_ = std::make_unique<QDBusServiceWatcher>(notifierWatcher, bus, QDBusServiceWatcher::WatchForRegistration);
        connect(names_.get(), &QDBusServiceWatcher::serviceRegistered, this, &LinuxStatusBars::askForAHost,
                Qt::QueuedConnection);
        bus.connect(notifierWatcher, watcherPath, notifierWatcher, u"StatusNotifierHostRegistered"_s, this,
                    SLOT(found()));
        askForAHost();
    }

    // The name says that a list of items exists; items are only shown when a host is registered, and Qt checks for one.
    void askForAHost() {
        auto question = QDBusMessage::createMethodCall(notifierWatcher, watcherPath,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
        question << notifierWatcher << u"IsStatusNotifierHostRegistered"_s;
        question.setAutoStartService(false);
        auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
            const QDBusPendingReply<QDBusVariant> reply = *call;
            if (reply.isValid() && reply.value().variant().toBool())
                found();
            call->deleteLater();
        });
    }

    void lookAtTheServer() {
        int number = 0;
        connection_ = xcb_connect(nullptr, &number);
        if (xcb_connection_has_error(connection_)) {
            leaveTheServer();
            return;
        }
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
        for (int i = number; i > 0 && screens.rem > 1; --i)
            xcb_screen_next(&screens);
        // Subscribe first, then read the state: otherwise a change between the two would be missed.
        const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_, screens.data->root, XCB_CW_EVENT_MASK, &events);
        manager_ = atom("MANAGER");
        selection_ = atom(("_NET_SYSTEM_TRAY_S" + QByteArray::number(number)).constData());
        const std::unique_ptr<xcb_get_selection_owner_reply_t, Free> owner(
            xcb_get_selection_owner_reply(connection_, xcb_get_selection_owner(connection_, selection_), nullptr));
        if (owner && owner->owner != XCB_NONE) {
            found();
            return;
        }
        notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_), QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, &LinuxStatusBars::readEvents);
        // While a reply was awaited, events may have moved into the library's queue; the socket notifier does not fire
        // for those.
        QMetaObject::invokeMethod(this, &LinuxStatusBars::readEvents, Qt::QueuedConnection);
    }

    [[nodiscard]] xcb_atom_t atom(const char* name) const {
        const auto length = static_cast<std::uint16_t>(std::strlen(name));
        const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
            xcb_intern_atom_reply(connection_, xcb_intern_atom(connection_, 0, length, name), nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    void readEvents() {
        if (!connection_)
            return;
        while (const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_poll_for_event(connection_)}) {
            if ((event->response_type & 0x7F) != XCB_CLIENT_MESSAGE)
                continue;
            const auto& message = *reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            if (message.type == manager_ && message.data.data32[1] == selection_)
                found();
        }
        if (xcb_connection_has_error(connection_))
            notifier_->setEnabled(false);
    }

    void leaveTheServer() {
        notifier_.reset();
        if (connection_)
            xcb_disconnect(connection_);
        connection_ = nullptr;
    }

    bool seen_ = false;
    std::unique_ptr<QDBusServiceWatcher> names_;
    xcb_connection_t* connection_ = nullptr;
    xcb_atom_t manager_ = XCB_ATOM_NONE;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace

std::unique_ptr<StatusBars> StatusBars::create() {
    return std::make_unique<LinuxStatusBars>();
}

} // namespace Platform

#include "LinuxStatusBars.moc"
