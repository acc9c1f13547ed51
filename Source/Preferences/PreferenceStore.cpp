// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Preferences/PreferenceStore.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"

#include <QDir>

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

QString folderOf(const QVariant& stored) {
    const QString path = stored.typeId() == QMetaType::QString ? stored.toString() : QString();
    return QDir::isAbsolutePath(path) ? path : defaultMusicFolder();
}

std::int32_t storedSplitTimeMS() {
    if (!Platform::boolValue(preferenceValueForKey(PreferenceSplitKey, 0)))
        return -1;
    return Platform::intValue(preferenceValueForKey(PreferenceSplitTimeMSKey, QStringLiteral("300")));
}

} // namespace PreferenceStore
