// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/ValueTransformers.h"

#include "Platform/Foundation/Dictionary.h"

#include <QFileInfo>
#include <QStringList>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

QVariant ValueTransformer::reverseTransformedValue(const QVariant& /*value*/) const {
    return {};
}

const ValueTransformer* ValueTransformer::valueTransformerForName(const QString& name) {
    static const AudioWaveTime2TimeStringTransformer waveTime;
    static const Time2PlayTimeStringTransformer playTime;
    static const FilePath2NameTransformer fileName;
    static const IntegerDiv10Transformer tenth;
    static const CustomValueTransformer same;
    if (name == u"AudioWaveTime2TimeStringTransformer"_s)
        return &waveTime;
    if (name == u"Time2PlayTimeStringTransformer"_s)
        return &playTime;
    if (name == u"FilePath2NameTransformer"_s)
        return &fileName;
    if (name == u"IntegerDiv10Transformer"_s)
        return &tenth;
    if (name == u"CustomValueTransformer"_s)
        return &same;
    return nullptr;
}

QMetaType CustomValueTransformer::transformedValueClass() const {
    return QMetaType::fromType<QVariant>();
}

QVariant CustomValueTransformer::transformedValue(const QVariant& value) const {
    return value;
}

QMetaType AudioWaveTime2TimeStringTransformer::transformedValueClass() const {
    return QMetaType::fromType<double>();
}

QVariant AudioWaveTime2TimeStringTransformer::transformedValue(const QVariant& value) const {
    const auto number = static_cast<float>(Platform::doubleValue(value));
    // A time outside the range of an integer (from a damaged file) is shown as empty.
    const bool fits = std::isfinite(number) && std::fabs(number) < float(std::numeric_limits<int>::max());
    const int seconds = fits ? static_cast<int>(number) : 0;
    return QString::asprintf("%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

int AudioWaveTime2TimeStringTransformer::stringToSecond(const QString& string) {
    const auto parts = string.split(u':');
    if (parts.size() != 3)
        return 0;
    qint64 total = 0;
    for (const auto& part : parts)
        total = total * 60 + Platform::intValue(part);
    return static_cast<int>(
        std::clamp<qint64>(total, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

QVariant AudioWaveTime2TimeStringTransformer::reverseTransformedValue(const QVariant& value) const {
    return stringToSecond(Platform::stringForm(value));
}

QMetaType FilePath2NameTransformer::transformedValueClass() const {
    return QMetaType::fromType<QString>();
}

QVariant FilePath2NameTransformer::transformedValue(const QVariant& value) const {
    return QFileInfo(value.toString()).completeBaseName();
}

QMetaType IntegerDiv10Transformer::transformedValueClass() const {
    return QMetaType::fromType<double>();
}

QVariant IntegerDiv10Transformer::transformedValue(const QVariant& value) const {
    return Platform::intValue(value) / 10;
}
