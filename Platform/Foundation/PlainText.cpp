// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/PlainText.h"

namespace Platform {

QString onOneLine(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    return text;
}

QString shellWord(QString word) {
    return u'\'' + word.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

} // namespace Platform
