// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/DRNotificationCenter.h"

#include "Platform/Foundation/MainQueue.h"

#include <algorithm>
#include <utility>

namespace Platform {

struct DRNotificationCenter::State {
    struct Entry {
        const void* observer;
        QString name;
        std::weak_ptr<DRObject> object;
        bool everyObject;
        Handler handler;
        bool live = true;

        [[nodiscard]] bool isFor(const QString& wanted, const std::shared_ptr<DRObject>& from) const {
            return name == wanted && (everyObject || (from && object.lock() == from));
        }
    };
    std::vector<std::shared_ptr<Entry>> entries;

    void removeIf(const std::function<bool(const Entry&)>& matches) {
        std::erase_if(entries, [&](const std::shared_ptr<Entry>& entry) {
            if (!matches(*entry))
                return false;
            entry->live = false; // a running delivery uses a copy of the list
            return true;
        });
    }
};

DRNotificationCenter::DRNotificationCenter() : state_(std::make_shared<State>()) {
}

DRNotificationCenter::~DRNotificationCenter() = default;

void DRNotificationCenter::addObserver(const void* observer, const QString& name,
                                       const std::shared_ptr<DRObject>& object, Handler handler) {
    removeObserver(observer, name, object);
    state_->entries.push_back(std::make_shared<State::Entry>(
        State::Entry{observer, name, object, object == nullptr, std::move(handler), true}));
}

void DRNotificationCenter::removeObserver(const void* observer, const QString& name,
                                          const std::shared_ptr<DRObject>& object) {
    state_->removeIf([&](const State::Entry& entry) {
        return entry.observer == observer && entry.name == name &&
               (object ? !entry.everyObject && entry.object.lock() == object : entry.everyObject);
    });
}

void DRNotificationCenter::removeObserver(const void* observer) {
    state_->removeIf([&](const State::Entry& entry) { return entry.observer == observer; });
}

std::size_t DRNotificationCenter::observations() const {
    return state_->entries.size();
}

void DRNotificationCenter::deliver(const DRNotification& notification) {
    const auto entries = state_->entries; // observers may be added or removed during delivery
    for (const auto& entry : entries)
        if (entry->live && entry->isFor(notification.name, notification.object))
            entry->handler(notification);
}

void DRNotificationCenter::post(const QString& name, std::shared_ptr<DRObject> object) {
    alive_.post([this, notification = DRNotification{name, std::move(object)}] { deliver(notification); });
}

} // namespace Platform
