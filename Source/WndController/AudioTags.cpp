// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTags.h"

#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/ToolControl.h"
#include "Source/Model/AudioRecordEntry.h"

namespace AudioTags {

QString audioTagKeyTranslate(const QString& identifier) {
    static const QHash<QString, QString> keys{
        {QStringLiteral("title"), AudioRecordEntry::Title}, {QStringLiteral("artist"), AudioRecordEntry::Artist},
        {QStringLiteral("album"), AudioRecordEntry::Album}, {QStringLiteral("date"), AudioRecordEntry::AddDate},
        {QStringLiteral("time"), AudioRecordEntry::Length}, {QStringLiteral("path"), AudioRecordEntry::SavePath},
    };
    return keys.value(identifier, identifier);
}

QVariant audioTag(const Dictionary& entry, const QString& objectForKey) {
    const QString key = audioTagKeyTranslate(objectForKey);
    const QVariant value = entry.value(key);
    if (key == AudioRecordEntry::Length)
        return ToolControl::getTimeString(Platform::longLongValue(value));
    return value;
}

QString audioLibraryNodeTimeString(const QString& path) {
    const auto seconds = static_cast<qint64>(CustomSound(path).duration());
    return QString::asprintf("%02lld:%02lld:%02lld", static_cast<long long>(seconds / 3600),
                             static_cast<long long>(seconds / 60 % 60), static_cast<long long>(seconds % 60));
}

} // namespace AudioTags
