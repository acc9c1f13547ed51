// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QString>

namespace Platform {

/// System-wide key combinations. Main thread only.
class HotKeys {
public:
    using Handle = std::uint64_t; ///< 0 is none
    struct Id {
        std::uint32_t signature = 0;
        std::uint32_t id = 0;
    };
    /// Called on the main thread once per press of a registered combination; auto-repeat does not call it again.
    using Handler = std::function<void(Id)>;

    /// How combinations are grabbed on this desktop.
    enum class Way { None, X11Grab, Portal };

    virtual ~HotKeys() = default;
    [[nodiscard]] virtual Way way() const = 0;
    /// Called when way() changed: a desktop portal answers some time after the start.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): an override keeps the handler
    virtual void setWayChangedHandler(std::function<void()> /*handler*/) {}
    /// Describes a combination's action. A desktop may show this text when it asks the user for consent.
    virtual void describe(Id /*id*/, const QString& /*text*/) {}
    virtual void setHandler(Handler handler) = 0;
    /// Called on the main thread when a combination that registerHotKey() accepted is refused later: a desktop portal
    /// answers asynchronously and may ask the user first. The handle is no longer valid then.
    using RefusedHandler = std::function<void(Handle)>;
    // NOLINTNEXTLINE(performance-unnecessary-value-param): an override keeps the handler
    virtual void setRefusedHandler(RefusedHandler /*handler*/) {}
    /// Called on the main thread when the desktop tells which keys lead to a registered combination, in its own words:
    /// the user may have chosen other keys in the desktop's settings. Empty: no keys at the moment.
    using TriggerHandler = std::function<void(Handle, const QString& trigger)>;
    // NOLINTNEXTLINE(performance-unnecessary-value-param): an override keeps the handler
    virtual void setTriggerHandler(TriggerHandler /*handler*/) {}
    /// Grabs a combination for the program.
    /// @param keyCode ANSI virtual key code of the physical key
    /// @param carbonModifiers 256 Command, 512 Shift, 2048 Option, 4096 Control
    /// @return 0 when the system, another client or another registration of this process holds it, or when way() is
    /// None.
    [[nodiscard]] virtual Handle registerHotKey(std::uint16_t keyCode, std::uint32_t carbonModifiers, Id id) = 0;
    virtual void unregisterHotKey(Handle handle) = 0;
};

} // namespace Platform
