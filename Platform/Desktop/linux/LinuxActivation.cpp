// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Activation.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>

namespace Platform::Activation {
namespace {

constexpr const char* waylandToken = "XDG_ACTIVATION_TOKEN";

QByteArray token;

/// A short connection to the X server, separate from Qt's connection.
class Visit {
public:
    Visit() : connection_(xcb_connect(nullptr, &screen_)) {}
    ~Visit() {
        // A round trip: when the reply arrives, the server has processed all earlier requests.
        std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
        xcb_disconnect(connection_);
    }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

    [[nodiscard]] bool works() const { return xcb_connection_has_error(connection_) == 0; }
    [[nodiscard]] xcb_connection_t* connection() const { return connection_; }
    [[nodiscard]] xcb_window_t root() const {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
        for (int i = screen_; i > 0 && screens.rem > 1; --i)
            xcb_screen_next(&screens);
        return screens.data->root;
    }
    [[nodiscard]] xcb_atom_t atom(const char* name) const {
        const auto length = static_cast<std::uint16_t>(std::strlen(name));
        auto* reply = xcb_intern_atom_reply(connection_, xcb_intern_atom(connection_, 0, length, name), nullptr);
        const xcb_atom_t found = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply);
        return found;
    }
    void tellRoot(const xcb_client_message_event_t& message, std::uint32_t mask) const {
        xcb_send_event(connection_, 0, root(), mask, reinterpret_cast<const char*>(&message));
    }

private:
    int screen_ = 0;
    xcb_connection_t* connection_;
};

/// The time of the click that started the process, in the server's milliseconds; 0 when the token does not contain it.
std::uint32_t timeOf(const QByteArray& id) {
    const qsizetype at = id.lastIndexOf("_TIME");
    return at < 0 ? 0 : id.mid(at + 5).toUInt();
}

/// Sends the request that a task bar sends. Window managers refuse a program's own request while the user works with
/// another program.
void activate(const Visit& server, xcb_window_t window, std::uint32_t time) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = server.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 2; // source indication: a pager, on behalf of the user
    message.data.data32[1] = time;
    server.tellRoot(message, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
}

/// Tells the launcher that startup is complete. This process shows no window, so the busy pointer would otherwise stay
/// for seconds.
void endLaunch(const Visit& server, const QByteArray& id) {
    const QByteArray text = "remove: ID=\"" + QByteArray(id).replace('\\', "\\\\").replace('"', "\\\"") + '"';
    const xcb_window_t sender = xcb_generate_id(server.connection());
    xcb_create_window(server.connection(), XCB_COPY_FROM_PARENT, sender, server.root(), -100, -100, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = server.atom("_NET_STARTUP_INFO_BEGIN");
    constexpr qsizetype piece = sizeof message.data;
    for (qsizetype at = 0; at <= text.size(); at += piece) { // the terminating zero is part of the message
        std::memset(message.data.data8, 0, piece);
        std::memcpy(message.data.data8, text.constData() + at,
                    static_cast<std::size_t>(std::min(piece, text.size() - at)));
        server.tellRoot(message, XCB_EVENT_MASK_PROPERTY_CHANGE);
        message.type = server.atom("_NET_STARTUP_INFO");
    }
}

} // namespace

void setToken(const QByteArray& of) {
    token = of;
}

void bringToFront(QWindow& window) {
    const QByteArray used = std::exchange(token, {});
    const QString platform = QGuiApplication::platformName();
    if (!used.isEmpty() && platform.startsWith(QStringLiteral("wayland")))
        qputenv(waylandToken, used); // where Qt looks for it, once
    window.raise();
    window.requestActivate();
    if (platform != QStringLiteral("xcb"))
        return;
    const Visit server;
    if (!server.works())
        return;
    activate(server, static_cast<xcb_window_t>(window.winId()), timeOf(used));
    if (!used.isEmpty())
        endLaunch(server, used);
}

} // namespace Platform::Activation
