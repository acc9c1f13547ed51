// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/PathText.h"

#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

namespace {

constexpr QChar kLeftToRightIsolate(0x2066);
constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kEndOfIsolate(0x2069);

bool readsFromRight(QChar letter) {
    return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL;
}

} // namespace

QString pathText(const QString& text) {
    // In a window that reads from right to left, a leading "~/." would stand at the end.
    if (!text.contains(u'/') ||
        (!QGuiApplication::isRightToLeft() && std::none_of(text.begin(), text.end(), readsFromRight)))
        return text;
    QStringList parts = text.split(u'/');
    for (QString& part : parts)
        if (std::any_of(part.begin(), part.end(), readsFromRight))
            part = kFirstStrongIsolate + part + kEndOfIsolate;
    return kLeftToRightIsolate + parts.join(u'/') + kEndOfIsolate;
}
