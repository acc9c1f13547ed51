// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Preferences/PreferenceStore.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"

std::atomic<std::int32_t> g_SplitTimeMS{-1};
QString g_strTmpPath;

namespace PreferenceStore {

QVariant preferenceValueForKey(const QString& key, const QVariant& defaultObject) {
    const QVariant stored = Platform::services().userDefaults->objectForKey(key);
    return stored.isValid() ? stored : defaultObject;
}

void setPreferenceValue(const QVariant& object, const QString& key) {
    Platform::services().userDefaults->setObject(key, object);
}

QString defaultMusicFolder() {
    return Platform::Folders::home() + QStringLiteral("/Music/%1").arg(Platform::services().bundle->bundleIdentifier());
}

} // namespace PreferenceStore
