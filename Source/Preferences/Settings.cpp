// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Preferences/Settings.h"

#include <QDir>

namespace Settings {

QVariant Setting::defaultObject() const {
    switch (type) {
    case Type::Number:
        break;
    case Type::Folder:
        return PreferenceStore::defaultMusicFolder();
    case Type::Dictionary:
        return ::Dictionary();
    }
    return byDefault;
}

QVariant Setting::usable(const QVariant& stored) const {
    const bool isText = stored.typeId() == QMetaType::QString;
    bool fits = false;
    switch (type) {
    case Type::Number:
        fits = isText || stored.typeId() == QMetaType::Bool || Platform::isNumber(stored);
        break;
    case Type::Folder:
        // A relative path would depend on where the program was started.
        fits = isText && QDir::isAbsolutePath(stored.toString());
        break;
    case Type::Dictionary:
        fits = stored.typeId() == QMetaType::QVariantMap;
        break;
    }
    return fits ? stored : defaultObject();
}

QVariant value(const Setting& setting) {
    return setting.usable(PreferenceStore::preferenceValueForKey(setting.key, {}));
}

void setValue(const QVariant& object, const Setting& setting) {
    PreferenceStore::setPreferenceValue(object, setting.key);
}

std::int32_t storedSplitTimeMS() {
    return Platform::boolValue(value(split)) ? Platform::intValue(value(splitTimeMS)) : -1;
}

} // namespace Settings
