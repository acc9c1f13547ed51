// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/UserDefaults.h"

#include <mutex>

/// Defaults that are kept in memory only. Any thread.
class FakeUserDefaults : public Platform::UserDefaults {
public:
    [[nodiscard]] QVariant objectForKey(const QString& key) const override {
        const std::lock_guard guard(mutex_);
        return values_.value(key);
    }
    void setObject(const QString& key, const QVariant& object) override {
        const std::lock_guard guard(mutex_);
        ++changes_;
        values_.insert(key, object);
    }
    void removeObject(const QString& key) override {
        const std::lock_guard guard(mutex_);
        ++changes_;
        values_.remove(key);
    }
    bool flush() override { return !flushFails; }
    bool flushFails = false;

    /// All stored values.
    [[nodiscard]] Dictionary values() const {
        const std::lock_guard guard(mutex_);
        return values_;
    }
    /// How often something was set or removed.
    [[nodiscard]] int changes() const {
        const std::lock_guard guard(mutex_);
        return changes_;
    }

private:
    mutable std::mutex mutex_;
    Dictionary values_;
    int changes_ = 0;
};
