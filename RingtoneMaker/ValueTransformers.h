// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

/// Turns a value of a model into what a window shows, and back where that makes sense. Without state.
class ValueTransformer {
public:
    virtual ~ValueTransformer() = default;
    /// The class that transformedValue() is declared to give.
    [[nodiscard]] virtual QMetaType transformedValueClass() const = 0;
    [[nodiscard]] virtual QVariant transformedValue(const QVariant& value) const = 0;
    /// An invalid value where there is no way back.
    [[nodiscard]] virtual QVariant reverseTransformedValue(const QVariant& value) const;

    /// The transformer whose class has this name; null when there is none. Lives as long as the program.
    [[nodiscard]] static const ValueTransformer* valueTransformerForName(const QString& name);
};

/// Gives every value back as it is.
class CustomValueTransformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};

/// Seconds to "hh:mm:ss" and back; the hours grow without limit.
class AudioWaveTime2TimeStringTransformer : public ValueTransformer {
public:
    /// A number: what the way back gives.
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
    [[nodiscard]] QVariant reverseTransformedValue(const QVariant& value) const override;
    /// 0 unless there are exactly three parts.
    [[nodiscard]] static int stringToSecond(const QString& string);
};

/// The same mapping under a second name, for play times.
class Time2PlayTimeStringTransformer : public AudioWaveTime2TimeStringTransformer {};

/// A path to the file's name without folder and extension.
class FilePath2NameTransformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};

/// A whole number divided by ten, cut off towards zero.
class IntegerDiv10Transformer : public ValueTransformer {
public:
    [[nodiscard]] QMetaType transformedValueClass() const override;
    [[nodiscard]] QVariant transformedValue(const QVariant& value) const override;
};
