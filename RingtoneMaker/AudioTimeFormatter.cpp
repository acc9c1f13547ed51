// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioTimeFormatter.h"

#include "Platform/Foundation/Dictionary.h"

#include <QStringList>

#include <algorithm>

namespace {
constexpr int kParts = 3;
constexpr int kHighest = 59;
} // namespace

QString AudioTimeFormatter::stringForObjectValue(const QVariant& object) {
    return object.typeId() == QMetaType::QString ? object.toString() : QString();
}

bool AudioTimeFormatter::getObjectValue(QString& object, const QString& string, QString* /*errorDescription*/) {
    const auto parts = string.split(u':');
    QStringList normal;
    for (int i = 0; i < kParts; ++i) {
        auto value = Platform::intValue(parts.value(i));
        if (value < 0 || value > kHighest)
            value = kHighest;
        normal.append(QString::asprintf("%02d", value));
    }
    object = normal.join(u':');
    return true;
}

bool AudioTimeFormatter::isIntStr(const QString& string) {
    return std::ranges::all_of(string, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool AudioTimeFormatter::isPartialStringValid(const QString& partialString, QString* /*newEditingString*/,
                                              QString* /*errorDescription*/) {
    const auto parts = partialString.split(u':');
    return parts.size() == kParts && std::ranges::all_of(parts, [](const QString& part) {
               return part.size() <= 2 && isIntStr(part) && Platform::intValue(part) <= kHighest;
           });
}
