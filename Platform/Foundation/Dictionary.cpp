// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Dictionary.h"

#include <QMetaType>
#include <cmath>
#include <limits>

namespace Platform {
namespace {

bool isText(const QVariant& object) {
    return object.typeId() == QMetaType::QString || object.typeId() == QMetaType::QByteArray;
}

qint64 truncated(double value) {
    if (std::isnan(value))
        return 0;
    if (value >= 9.2233720368547758e18)
        return std::numeric_limits<qint64>::max();
    if (value <= -9.2233720368547758e18)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(value);
}

qint64 leadingInteger(const QString& text) {
    qsizetype at = 0;
    while (at < text.size() && text[at].isSpace())
        ++at;
    bool negative = false;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        negative = text[at++] == u'-';
    qint64 value = 0;
    for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9'; ++at) {
        const qint64 digit = text[at].unicode() - u'0';
        if (value > (std::numeric_limits<qint64>::max() - digit) / 10)
            return negative ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

} // namespace

bool isNumber(const QVariant& object) {
    switch (object.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

qint64 longLongValue(const QVariant& object) {
    if (isText(object))
        return leadingInteger(object.toString());
    switch (object.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return truncated(object.toDouble());
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
        return object.toLongLong();
    default:
        return 0;
    }
}

int intValue(const QVariant& object) {
    const qint64 value = longLongValue(object);
    if (value > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (value < std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

bool boolValue(const QVariant& object) {
    if (isText(object)) {
        const QString text = object.toString();
        qsizetype at = 0;
        while (at < text.size() && text[at].isSpace())
            ++at;
        if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
            ++at;
        while (at < text.size() && text[at] == u'0')
            ++at;
        if (at == text.size())
            return false;
        const QChar first = text[at];
        return (first >= u'1' && first <= u'9') || first == u'Y' || first == u'y' || first == u'T' || first == u't';
    }
    if (object.typeId() == QMetaType::Double || object.typeId() == QMetaType::Float)
        return object.toDouble() != 0.0;
    return longLongValue(object) != 0;
}

double doubleValue(const QVariant& object) {
    if (!isText(object))
        return object.canConvert<double>() ? object.toDouble() : 0.0;
    const QByteArray text = object.toString().trimmed().toUtf8();
    // The longest prefix that is a number in the C locale.
    for (qsizetype length = std::min<qsizetype>(text.size(), 64); length > 0; --length) {
        bool good = false;
        const double value = text.left(length).toDouble(&good);
        if (good)
            return value;
    }
    return 0.0;
}

QString stringForm(const QVariant& object) {
    if (!object.isValid())
        return QStringLiteral("(null)");
    return object.toString();
}

} // namespace Platform
