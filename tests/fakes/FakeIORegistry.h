// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/IORegistry.h"

#include <map>

/// A registry whose entries the test defines. Counts retained objects, so that a test finds those that were not
/// released.
class FakeIORegistry : public Platform::IORegistry {
public:
    struct Entry {
        QString className;
        QString path;
        QVariantMap properties;
        int holds = 0;
    };
    std::map<Object, Entry> entries;
    /// Called after a property was set.
    std::function<void(Object, const QString& key, const QVariant& value)> onSet;

    Object add(const QString& className, const QString& path) {
        const auto object = Object(entries.size() + 100);
        entries[object] = {className, path, {}, 0};
        return object;
    }
    [[nodiscard]] int holds() const {
        int sum = 0;
        for (const auto& [object, entry] : entries)
            sum += entry.holds;
        return sum;
    }

    std::vector<Object> servicesOfClass(const QString& className) override {
        std::vector<Object> found;
        for (auto& [object, entry] : entries)
            if (entry.className == className) {
                ++entry.holds;
                found.push_back(object);
            }
        return found;
    }
    void retain(Object object) override {
        if (entries.contains(object))
            ++entries[object].holds;
    }
    void release(Object object) override {
        if (entries.contains(object))
            --entries[object].holds;
    }
    QString path(Object object) override { return entries.contains(object) ? entries[object].path : QString(); }
    QVariant property(Object object, const QString& key) override {
        return entries.contains(object) ? entries[object].properties.value(key) : QVariant();
    }
    OSStatus setProperty(Object object, const QString& key, const QVariant& value) override {
        if (!entries.contains(object))
            return -1;
        entries[object].properties[key] = value;
        if (onSet)
            onSet(object, key, value);
        return noErr;
    }
};
