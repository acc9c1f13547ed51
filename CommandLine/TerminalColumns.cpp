// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/TerminalColumns.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cwchar>

namespace TerminalColumns {
namespace {

/// The pieces of @p word between which a line may be broken: the whole word where all characters are narrow, so that
/// options and paths stay in one piece.
QStringList piecesOf(const QString& word) {
    if (of(word) == word.size())
        return {word};
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
    qsizetype begin = 0;
    while (finder.toNextBoundary() > 0) {
        pieces << word.sliced(begin, finder.position() - begin);
        begin = finder.position();
    }
    return pieces;
}

} // namespace

qsizetype of(const QString& text) {
    qsizetype columns = 0;
    for (const char32_t character : text.toUcs4()) {
        // -1: not printable, or not known in this locale
        const int width = wcwidth(wchar_t(character));
        columns += width < 0 ? 1 : width;
    }
    return columns;
}

QString padded(const QString& text, qsizetype columns) {
    return text + QString(std::max<qsizetype>(0, columns - of(text)), u' ');
}

QString wrapped(const QString& first, const QStringList& words, qsizetype indent, qsizetype length) {
    QString text = first;
    qsizetype column = of(first);
    for (const QString& word : words) {
        bool begins = true;
        for (const QString& piece : piecesOf(word)) {
            const qsizetype gap = begins ? 1 : 0;
            begins = false;
            const qsizetype width = of(piece);
            if (column + gap + width > length) {
                text += u'\n' + QString(indent, u' ');
                column = indent;
            } else {
                text += QString(gap, u' ');
                column += gap;
            }
            text += piece;
            column += width;
        }
    }
    return text;
}

} // namespace TerminalColumns
