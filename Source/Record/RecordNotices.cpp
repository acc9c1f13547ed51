// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordNotices.h"

#include "Source/Record/UnfinishedRecordings.h"

#include <QLoggingCategory>

#include <algorithm>

namespace {

/// The display has no room for more, and the newest must stay visible.
constexpr qsizetype MostNotices = 20;

Q_LOGGING_CATEGORY(noticeLog, "sonaphex.record")

} // namespace

QStringList RecordNotices::sentences() const {
    QStringList all;
    for (const RecordNotice& notice : list_)
        all.append(notice.sentence());
    return all;
}

void RecordNotices::show(RecordNotice notice) {
    if (notice.event.isEmpty())
        notice.event = notice.sentence(); // it can be dismissed without the others
    const auto same = [&](const RecordNotice& other) {
        return other.sentence() == notice.sentence() || other.event == notice.event;
    };
    if (!list_.isEmpty() && list_.last() == notice)
        return;
    qCWarning(noticeLog, "%s", qUtf8Printable(notice.sentence()));
    list_.removeIf(same);
    list_.append(notice);
    if (list_.size() > MostNotices)
        list_.removeFirst();
    Q_EMIT changed();
}

void RecordNotices::update(const RecordNotice& notice) {
    if (std::ranges::any_of(list_, [&](const RecordNotice& other) { return other.event == notice.event; }))
        show(notice);
}

void RecordNotices::withdraw(const QString& event) {
    if (list_.removeIf([&](const RecordNotice& notice) { return notice.event == event; }) > 0)
        Q_EMIT changed();
}

void RecordNotices::beginRecording() {
    if (list_.removeIf([](const RecordNotice& notice) { return !notice.outlivesRecording && notice.kept.isEmpty(); }) >
        0)
        Q_EMIT changed();
}

void RecordNotices::dismiss() {
    if (list_.isEmpty())
        return;
    for (const RecordNotice& notice : list_)
        UnfinishedRecordings::markSeen(notice.kept);
    list_.clear();
    Q_EMIT changed();
}

void RecordNotices::dismiss(const QString& event) {
    for (const RecordNotice& notice : list_)
        if (notice.event == event)
            UnfinishedRecordings::markSeen(notice.kept);
    withdraw(event);
}

QStringList RecordNotices::take() {
    const QStringList all = sentences();
    list_.clear();
    if (!all.isEmpty())
        Q_EMIT changed();
    return all;
}
