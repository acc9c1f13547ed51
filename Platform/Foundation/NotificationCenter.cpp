// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/NotificationCenter.h"

#include <algorithm>
#include <vector>

namespace Platform {

struct NotificationCenter::State {
    struct Entry {
        QString name;
        Handler handler;
        bool live = true;
    };
    std::vector<std::shared_ptr<Entry>> entries;
};

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

NotificationCenter::NotificationCenter() : state_(std::make_shared<State>()) {
}
NotificationCenter::~NotificationCenter() = default;

std::unique_ptr<NotificationCenter::Observation> NotificationCenter::addObserver(const QString& name, Handler handler) {
    struct Unhook final : Observation {
        std::weak_ptr<State> state;
        std::shared_ptr<State::Entry> entry;
        ~Unhook() override {
            entry->live = false;
            if (const auto alive = state.lock())
                std::erase(alive->entries, entry);
        }
    };
    auto unhook = std::make_unique<Unhook>();
    unhook->state = state_;
    unhook->entry = std::make_shared<State::Entry>(State::Entry{name, std::move(handler), true});
    state_->entries.push_back(unhook->entry);
    return unhook;
}

void NotificationCenter::post(const QString& name, const Dictionary& userInfo) {
    const auto entries = state_->entries; // observers may be added or removed during the post
    for (const auto& entry : entries)
        if (entry->live && entry->name == name)
            entry->handler(name, userInfo);
}

} // namespace Platform
