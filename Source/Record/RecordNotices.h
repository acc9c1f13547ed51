// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordNotice.h"

#include <QList>
#include <QObject>

/// The notices that the user has not dismissed yet, newest last. Each event has one notice, which is updated. Main
/// thread.
class RecordNotices : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] const QList<RecordNotice>& list() const { return list_; }
    /// The sentences of list().
    [[nodiscard]] QStringList sentences() const;

    /// Adds a notice as the newest one and removes an earlier one about the same event or with the same text. Does
    /// nothing when the newest notice is equal. A notice without an event gets one of its own.
    void show(RecordNotice notice);
    /// Calls show() only when the list has a notice about this event: a dismissed notice does not return.
    void update(const RecordNotice& notice);
    /// Removes the notice about an event that is over.
    void withdraw(const QString& event);
    /// Removes the notices of the previous recording, except those that outlive it.
    void beginRecording();
    /// The user dismissed all notices, or the one about @p event. The next start does not show their files again.
    void dismiss();
    void dismiss(const QString& event);
    /// Returns the sentences and empties the list. The files in them still count as unseen, because nobody may have
    /// read the terminal.
    [[nodiscard]] QStringList take();

Q_SIGNALS:
    void changed();

private:
    QList<RecordNotice> list_;
};
