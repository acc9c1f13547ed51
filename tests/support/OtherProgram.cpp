// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/OtherProgram.h"

#include "tests/support/WaitFor.h"

#include <cstdlib>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;
template <typename T>
Reply<T> owned(T* reply) {
    return Reply<T>(reply, &std::free);
}

} // namespace

struct OtherProgram::Private {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_window_t window = 0;
    int presses = 0;
    xcb_timestamp_t lastPress = 0;
    xcb_timestamp_t lastChange = 0; ///< of a property
    bool repeats = false;

    xcb_window_t focus() const {
        const auto reply = owned(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
        return reply ? reply->focus : 0;
    }
    void readEvents() {
        // A round trip: everything that the server sent before it has arrived.
        focus();
        while (auto event = owned(xcb_poll_for_event(connection))) {
            if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
                ++presses;
                lastPress = reinterpret_cast<const xcb_key_press_event_t*>(event.get())->time;
            } else if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY) {
                lastChange = reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
            }
        }
    }
};

OtherProgram::OtherProgram() : d(std::make_unique<Private>()) {
}

OtherProgram::~OtherProgram() {
    if (d->repeats)
        letKeysRepeat(false);
    xcb_disconnect(d->connection);
}

bool OtherProgram::takeFocus() {
    if (d->window == 0) {
        d->window = xcb_generate_id(d->connection);
        const std::uint32_t events =
            XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(d->connection, XCB_COPY_FROM_PARENT, d->window, d->root, 10, 10, 200, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
        xcb_map_window(d->connection, d->window);
        xcb_flush(d->connection);
    }
    // The window manager gives the focus to new windows after a delay. A second request too soon would make it move the
    // focus back and forth.
    QElapsedTimer sinceAsked;
    return waitFor([this, &sinceAsked] {
        if (d->focus() == d->window)
            return true;
        if (sinceAsked.isValid() && sinceAsked.elapsed() < 300)
            return false;
        sinceAsked.start();
        const auto attributes = owned(xcb_get_window_attributes_reply(
            d->connection, xcb_get_window_attributes(d->connection, d->window), nullptr));
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            xcb_set_input_focus(d->connection, XCB_INPUT_FOCUS_PARENT, d->window, XCB_CURRENT_TIME);
        xcb_flush(d->connection);
        return false;
    });
}

int OtherProgram::presses() {
    d->readEvents();
    return std::exchange(d->presses, 0);
}

std::uint32_t OtherProgram::timeOfLastPress() const {
    return d->lastPress;
}

std::uint32_t OtherProgram::serverTime() {
    // Appends nothing to the title; the server reports that the property changed, and when.
    xcb_change_property(d->connection, XCB_PROP_MODE_APPEND, d->window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, "");
    d->readEvents();
    return d->lastChange;
}

void OtherProgram::letKeysRepeat(bool repeat) {
    const std::uint32_t mode = repeat ? XCB_AUTO_REPEAT_MODE_ON : XCB_AUTO_REPEAT_MODE_OFF;
    xcb_change_keyboard_control(d->connection, XCB_KB_AUTO_REPEAT_MODE, &mode);
    d->repeats = repeat;
    d->focus();
}

bool OtherProgram::grab(std::uint8_t xKeyCode, std::uint16_t modifiers) {
    const auto cookie =
        xcb_grab_key_checked(d->connection, 0, d->root, modifiers, xKeyCode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    return !owned(xcb_request_check(d->connection, cookie));
}

bool OtherProgram::moveModifier(int from, int to) {
    const auto mapping =
        owned(xcb_get_modifier_mapping_reply(d->connection, xcb_get_modifier_mapping(d->connection), nullptr));
    if (!mapping)
        return false;
    const int row = mapping->keycodes_per_modifier;
    const xcb_keycode_t* now = xcb_get_modifier_mapping_keycodes(mapping.get());
    std::vector<xcb_keycode_t> table(now, now + 8 * row);
    for (int i = 0; i < row; ++i) {
        table[std::size_t(to * row + i)] = table[std::size_t(from * row + i)];
        table[std::size_t(from * row + i)] = 0;
    }
    const auto answer = owned(xcb_set_modifier_mapping_reply(
        d->connection, xcb_set_modifier_mapping(d->connection, std::uint8_t(row), table.data()), nullptr));
    return answer && answer->status == XCB_MAPPING_STATUS_SUCCESS;
}
