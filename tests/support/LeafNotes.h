// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Model/MediaLibrary.h"

#include <QObject>
#include <QStringList>

/// Records the changes of a library's leaves, one line per step: "-all-record 3" for a removed row, "~all-record" for
/// rows that changed their order, "+all-record 0.4" for five inserted rows, "=all-record 1" for a row with new values,
/// and "all-record" for a leaf that was loaded without a change.
class LeafNotes {
public:
    explicit LeafNotes(const MediaLibrary& library) {
        QObject::connect(&library, &MediaLibrary::leafChanged, &context_,
                         [this](const QString& key, const LeafChange& change) {
                             ++signalsSeen;
                             note(u'-', key, change.removed);
                             if (!change.moved.empty())
                                 lines += u'~' + key;
                             note(u'+', key, change.inserted);
                             note(u'=', key, change.replaced);
                             if (change.isEmpty())
                                 lines += key;
                         });
    }
    QStringList lines;
    int signalsSeen = 0;

private:
    void note(QChar sign, const QString& key, const std::vector<LeafChange::Rows>& ranges) {
        for (const auto& [first, last] : ranges)
            lines +=
                sign + key + u' ' + QString::number(first) + (last > first ? u'.' + QString::number(last) : QString());
    }
    QObject context_;
};
