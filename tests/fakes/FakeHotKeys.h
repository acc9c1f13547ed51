// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/HotKeys.h"

#include <map>
#include <set>
#include <utility>

/// Hot keys without a keyboard: the test says which combinations others hold, and presses combinations.
class FakeHotKeys : public Platform::HotKeys {
public:
    struct Registration {
        std::uint16_t keyCode;
        std::uint32_t carbonModifiers;
        Id id;
    };

    Way way() const override { return currentWay; }
    void setHandler(Handler handler) override { handler_ = std::move(handler); }
    void setRefusedHandler(RefusedHandler handler) override { refused_ = std::move(handler); }
    void setTriggerHandler(TriggerHandler handler) override { trigger_ = std::move(handler); }
    void setWayChangedHandler(std::function<void()> handler) override { wayChanged_ = std::move(handler); }
    Handle registerHotKey(std::uint16_t keyCode, std::uint32_t carbonModifiers, Id id) override {
        if (currentWay == Way::None || heldByOthers.contains({keyCode, carbonModifiers}))
            return 0;
        for (const auto& [handle, taken] : registrations)
            if (taken.keyCode == keyCode && taken.carbonModifiers == carbonModifiers)
                return 0;
        registrations[++last_] = {keyCode, carbonModifiers, id};
        return last_;
    }
    void unregisterHotKey(Handle handle) override { registrations.erase(handle); }

    /// Simulates a press of the combination; false when it is not registered.
    bool press(std::uint16_t keyCode, std::uint32_t carbonModifiers) {
        for (const auto& [handle, taken] : registrations) {
            if (taken.keyCode == keyCode && taken.carbonModifiers == carbonModifiers) {
                handler_(taken.id);
                return true;
            }
        }
        return false;
    }
    /// Simulates a desktop that refuses a combination it had accepted before.
    void refuse(std::uint16_t keyCode, std::uint32_t carbonModifiers) {
        for (const auto& [handle, taken] : registrations) {
            if (taken.keyCode != keyCode || taken.carbonModifiers != carbonModifiers)
                continue;
            const Handle refused = handle;
            registrations.erase(refused);
            refused_(refused);
            return;
        }
    }
    /// The user gives other keys to a combination in the desktop's settings.
    void rebind(std::uint16_t keyCode, const QString& trigger) {
        for (const auto& [handle, taken] : registrations)
            if (taken.keyCode == keyCode) {
                trigger_(handle, trigger);
                return;
            }
    }
    void changeWay(Way way) {
        currentWay = way;
        if (wayChanged_)
            wayChanged_();
    }

    Way currentWay = Way::X11Grab;
    std::set<std::pair<std::uint16_t, std::uint32_t>> heldByOthers;
    std::map<Handle, Registration> registrations;

private:
    Handler handler_;
    RefusedHandler refused_;
    TriggerHandler trigger_;
    std::function<void()> wayChanged_;
    Handle last_ = 0;
};
