// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

/// Converts a model's value to what a window shows, and back where possible. Stateless.
class ValueTransformer {
public:
    virtual ~ValueTransformer() = default;
    /// The declared result type of transformedValue().
    [[nodiscard]] virtual QMetaType transformedValueClass() const = 0;
    [[nodiscard]] virtual QVariant transformedValue(const QVariant& value) const = 0;
    /// An invalid value when there is no reverse conversion.
    [[nodiscard]] virtual QVariant reverseTransformedValue(const QVariant& value) const;

    /// The transformer whose class has this name; null when there is none. Lives as long as the program.
    [[nodiscard]] static const ValueTransformer* valueTransformerForName(const QString& name);
};

/// Returns every value unchanged.
class CustomValueTransformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};

/// Seconds to "hh:mm:ss" and back; the hours have no limit.
class AudioWaveTime2TimeStringTransformer : public ValueTransformer {
public:
    /// A number: the result of the reverse conversion.
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
    [[nodiscard]] QVariant reverseTransformedValue(const QVariant& value) const override;
    /// 0 unless there are exactly three parts.
    [[nodiscard]] static int stringToSecond(const QString& string);
};

/// The same conversion under a second name, for play times.
class Time2PlayTimeStringTransformer : public AudioWaveTime2TimeStringTransformer {};

/// A path to the file's name without folder and extension.
class FilePath2NameTransformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};

/// A whole number divided by ten, truncated towards zero.
class IntegerDiv10Transformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};
