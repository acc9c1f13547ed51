// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Preferences/Settings.h"

#include <mutex>

/// The settings as a recording reads them: those of the preference store. Any thread.
class RecordPreferences {
public:
    virtual ~RecordPreferences() = default;
    /// A usable object, see Settings::Setting.
    [[nodiscard]] virtual QVariant value(const Settings::Setting& setting) const { return Settings::value(setting); }
    virtual void setValue(const QVariant& object, const Settings::Setting& setting) {
        Settings::setValue(object, setting);
    }
};

/// Settings of one run that override the stored ones. The stored settings are not changed.
class OverriddenPreferences final : public RecordPreferences {
public:
    [[nodiscard]] QVariant value(const Settings::Setting& setting) const override {
        {
            const std::scoped_lock lock(mutex_);
            if (const auto found = overrides_.constFind(setting.key); found != overrides_.constEnd())
                return setting.usable(found.value());
        }
        return RecordPreferences::value(setting);
    }
    void setValue(const QVariant& object, const Settings::Setting& setting) override {
        const std::scoped_lock lock(mutex_);
        overrides_.insert(setting.key, object);
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
        return {Platform::boolValue(preferences.value(Settings::filter)),
                Platform::intValue(preferences.value(Settings::filterTime))};
    }
    [[nodiscard]] bool drops(float length) const { return on && length < static_cast<float>(seconds); }
};
