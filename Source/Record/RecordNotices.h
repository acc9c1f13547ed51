// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordNotice.h"

#include <QList>
#include <QObject>

/// The notices that the user has not seen yet, newest last: one for each event, brought up to date. Main thread.
class RecordNotices : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] const QList<RecordNotice>& list() const { return list_; }
    /// As sentences.
    [[nodiscard]] QStringList sentences() const;

    /// Adds a notice as the newest one. It takes the place of an earlier one about the same event, or with the same
    /// text. One that says nothing new changes nothing.
    void show(const RecordNotice& notice);
    /// show() when there is a notice about this event; one that was dismissed stays so.
    void update(const RecordNotice& notice);
    /// What the notice was about is over.
    void withdraw(const QString& event);
    /// Notices of an earlier recording go, but for those that outlive it.
    void beginRecording();
    /// The user has seen all of them, or the one about @p event. Files that they name are not named at the next start.
    void dismiss();
    void dismiss(const QString& event);
    /// The list, which is empty then. What it names counts as unseen: a terminal may have had no reader.
    [[nodiscard]] QStringList take();

Q_SIGNALS:
    void changed();

private:
    QList<RecordNotice> list_;
};
