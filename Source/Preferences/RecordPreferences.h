// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Preferences/PreferenceStore.h"

#include <mutex>

/// The settings as a recording reads them: those of the preference store. Any thread.
class RecordPreferences {
public:
    virtual ~RecordPreferences() = default;
    [[nodiscard]] virtual QVariant value(const QString& key, const QVariant& defaultObject) const {
        return PreferenceStore::preferenceValueForKey(key, defaultObject);
    }
    virtual void setValue(const QVariant& object, const QString& key) {
        PreferenceStore::setPreferenceValue(object, key);
    }
};

/// Settings of one run that override the stored ones. The stored settings are not changed.
class OverriddenPreferences final : public RecordPreferences {
public:
    [[nodiscard]] QVariant value(const QString& key, const QVariant& defaultObject) const override {
        {
            const std::scoped_lock lock(mutex_);
            if (const auto found = overrides_.constFind(key); found != overrides_.constEnd())
                return found.value();
        }
        return RecordPreferences::value(key, defaultObject);
    }
    void setValue(const QVariant& object, const QString& key) override {
        const std::scoped_lock lock(mutex_);
        overrides_.insert(key, object);
    }

private:
    mutable std::mutex mutex_;
    Dictionary overrides_;
};

/// The rule that drops recordings which are too short. Read again for each recording.
struct RecordFilter {
    bool on = false;
    int seconds = 0;

    [[nodiscard]] static RecordFilter read(const RecordPreferences& preferences) {
        const QVariant filter = preferences.value(PreferenceStore::PreferenceFilterKey, 1);
        const QVariant time = preferences.value(PreferenceStore::PreferenceFilterTimeKey, QStringLiteral("5"));
        return {filter.isValid() && Platform::boolValue(filter), Platform::intValue(time)};
    }
    [[nodiscard]] bool drops(float length) const { return on && length < static_cast<float>(seconds); }
};
