// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/KeyCodes.h"
#include "Platform/Desktop/linux/LinuxHotKeys.h"

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <cstdlib>
#include <map>

#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>

namespace Platform {
namespace {

constexpr xcb_keysym_t numLock = 0xff7f, superLeft = 0xffeb, superRight = 0xffec, altLeft = 0xffe9, altRight = 0xffea;
constexpr std::uint32_t carbonCommand = 256, carbonShift = 512, carbonOption = 2048, carbonControl = 4096;

struct FreeReply {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

// Uses a separate connection: grabs work whatever platform the windows use, and Qt's events are not touched.
class XcbHotKeys : public QObject, public HotKeys {
public:
    static std::unique_ptr<XcbHotKeys> connectToServer() {
        int screen = 0;
        xcb_connection_t* connection = xcb_connect(nullptr, &screen);
        if (xcb_connection_has_error(connection)) {
            xcb_disconnect(connection);
            return nullptr;
        }
        return std::unique_ptr<XcbHotKeys>(new XcbHotKeys(connection, screen));
    }

    ~XcbHotKeys() override {
        notifier_.reset();
        xcb_key_symbols_free(symbols_);
        xcb_disconnect(connection_); // releases all grabs
    }

    Way way() const override { return lost_ ? Way::None : Way::X11Grab; }
    void setHandler(Handler handler) override { handler_ = std::move(handler); }
    void setWayChangedHandler(std::function<void()> handler) override { wayChanged_ = std::move(handler); }

    Handle registerHotKey(std::uint16_t keyCode, std::uint32_t carbonModifiers, Id id) override {
        const auto physical = KeyCodes::physicalKey(keyCode);
        if (lost_ || !physical)
            return 0;
        // The server lets one client grab a combination twice; both actions would run.
        for (const auto& [handle, taken] : registrations_)
            if (taken.keyCode == keyCode && taken.carbonModifiers == carbonModifiers)
                return 0;
        Registration wanted{keyCode, carbonModifiers, id, static_cast<xcb_keycode_t>(*physical + 8)};
        const bool granted = grab(wanted);
        readLater();
        if (!granted)
            return 0;
        registrations_.emplace(++lastHandle_, wanted);
        return lastHandle_;
    }

    void unregisterHotKey(Handle handle) override {
        const auto found = registrations_.find(handle);
        if (found == registrations_.end())
            return;
        ungrab(found->second);
        xcb_flush(connection_);
        registrations_.erase(found);
    }

private:
    struct Registration {
        std::uint16_t keyCode;
        std::uint32_t carbonModifiers;
        Id id;
        xcb_keycode_t xKey;
    };

    XcbHotKeys(xcb_connection_t* connection, int screen) : connection_(connection) {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
        for (; screen > 0 && screens.rem > 1; --screen)
            xcb_screen_next(&screens);
        root_ = screens.data->root;
        symbols_ = xcb_key_symbols_alloc(connection);
        readModifiers();
        notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection), QSocketNotifier::Read);
        connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { readEvents(); });
    }

    // The keymap decides which modifier bits are Num Lock, Super and Alt.
    void readModifiers() {
        numLockMask_ = modifierOf({numLock}, XCB_MOD_MASK_2);
        commandMask_ = modifierOf({superLeft, superRight}, XCB_MOD_MASK_4);
        optionMask_ = modifierOf({altLeft, altRight}, XCB_MOD_MASK_1);
    }

    std::uint16_t modifierOf(std::initializer_list<xcb_keysym_t> keysyms, std::uint16_t otherwise) {
        const Reply<xcb_get_modifier_mapping_reply_t> mapping(
            xcb_get_modifier_mapping_reply(connection_, xcb_get_modifier_mapping(connection_), nullptr));
        if (!mapping)
            return otherwise;
        const xcb_keycode_t* table = xcb_get_modifier_mapping_keycodes(mapping.get());
        const int row = mapping->keycodes_per_modifier;
        for (const xcb_keysym_t keysym : keysyms) {
            const Reply<xcb_keycode_t> codes(xcb_key_symbols_get_keycode(symbols_, keysym));
            for (const xcb_keycode_t* code = codes.get(); code && *code != XCB_NO_SYMBOL; ++code)
                for (int i = 0; i < 8 * row; ++i)
                    if (table[i] == *code)
                        return static_cast<std::uint16_t>(1U << (i / row));
        }
        return otherwise;
    }

    std::uint16_t modifiers(const Registration& r) const {
        std::uint16_t mask = 0;
        mask |= r.carbonModifiers & carbonShift ? XCB_MOD_MASK_SHIFT : 0;
        mask |= r.carbonModifiers & carbonControl ? XCB_MOD_MASK_CONTROL : 0;
        mask |= r.carbonModifiers & carbonOption ? optionMask_ : 0;
        mask |= r.carbonModifiers & carbonCommand ? commandMask_ : 0;
        return mask;
    }

    // A grab matches the exact modifier state, including the locks.
    std::array<std::uint16_t, 4> lockVariants() const {
        return {std::uint16_t(0), numLockMask_, std::uint16_t(XCB_MOD_MASK_LOCK),
                static_cast<std::uint16_t>(numLockMask_ | XCB_MOD_MASK_LOCK)};
    }

    bool grab(const Registration& r) {
        std::array<xcb_void_cookie_t, 4> cookies{};
        const auto variants = lockVariants();
        for (std::size_t i = 0; i < variants.size(); ++i)
            cookies[i] = xcb_grab_key_checked(connection_, 0, root_, modifiers(r) | variants[i], r.xKey,
                                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        bool granted = true;
        for (const auto& cookie : cookies) {
            const Reply<xcb_generic_error_t> error(xcb_request_check(connection_, cookie));
            granted = granted && !error;
        }
        if (!granted || xcb_connection_has_error(connection_)) {
            ungrab(r);
            xcb_flush(connection_);
            return false;
        }
        return true;
    }

    void ungrab(const Registration& r) {
        for (const std::uint16_t locks : lockVariants())
            xcb_ungrab_key(connection_, r.xKey, root_, modifiers(r) | locks);
    }

    void regrabAll() {
        xcb_ungrab_key(connection_, XCB_GRAB_ANY, root_, XCB_MOD_MASK_ANY);
        readModifiers();
        for (const auto& [handle, registration] : registrations_)
            if (!grab(registration))
                qWarning("hot key %u: another program took the combination when the keymap changed",
                         unsigned(registration.keyCode));
        readLater();
    }

    // While a reply was awaited, events may have moved into the library's queue; the socket notifier does not fire for
    // those.
    void readLater() {
        QMetaObject::invokeMethod(
            this, [this] { readEvents(); }, Qt::QueuedConnection);
    }

    void readEvents() {
        bool keymapChanged = false;
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
            switch (event->response_type & 0x7F) {
            case XCB_KEY_PRESS:
                pressed(*reinterpret_cast<const xcb_key_press_event_t*>(event.get()));
                break;
            case XCB_KEY_RELEASE:
                released_ = {reinterpret_cast<const xcb_key_release_event_t*>(event.get())->detail,
                             reinterpret_cast<const xcb_key_release_event_t*>(event.get())->time, true};
                break;
            case XCB_MAPPING_NOTIFY: {
                auto* change = reinterpret_cast<xcb_mapping_notify_event_t*>(event.get());
                xcb_refresh_keyboard_mapping(symbols_, change);
                keymapChanged = keymapChanged || change->request != XCB_MAPPING_POINTER;
                break;
            }
            default:
                break;
            }
        }
        if (keymapChanged)
            regrabAll();
        if (xcb_connection_has_error(connection_) && !lost_) {
            lost_ = true;
            notifier_->setEnabled(false);
            if (wayChanged_)
                wayChanged_();
        }
    }

    void pressed(const xcb_key_press_event_t& event) {
        // The server reports auto-repeat as release and press with the same time.
        if (released_.valid && released_.key == event.detail && released_.time == event.time)
            return;
        const std::uint16_t relevant = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | optionMask_ | commandMask_;
        for (const auto& [handle, registration] : registrations_) {
            if (registration.xKey != event.detail || modifiers(registration) != (event.state & relevant))
                continue;
            if (const auto handler = handler_)
                handler(registration.id);
            return; // the handler may have changed the registrations
        }
    }

    struct Release {
        xcb_keycode_t key = 0;
        xcb_timestamp_t time = 0;
        bool valid = false;
    };

    xcb_connection_t* connection_;
    xcb_window_t root_ = 0;
    xcb_key_symbols_t* symbols_ = nullptr;
    std::uint16_t numLockMask_ = 0, commandMask_ = 0, optionMask_ = 0;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::map<Handle, Registration> registrations_;
    Handle lastHandle_ = 0;
    Release released_;
    Handler handler_;
    std::function<void()> wayChanged_;
    bool lost_ = false;
};

} // namespace

std::unique_ptr<HotKeys> createXcbHotKeys() {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return nullptr;
    return XcbHotKeys::connectToServer();
}

} // namespace Platform
