// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

namespace Platform {

/// The user's settings: one property list, read once, changed in memory, written behind by a worker. Callable from any
/// thread. Another process may change the file; only the keys that this process set are written over its values.
class UserDefaults {
public:
    /// Joins two changes of one value. @p base is what this process had before its change, @p theirs what another
    /// process has stored meanwhile, @p ours what this process set; any of them may be invalid. Pure; called on the
    /// worker. An invalid answer removes the value.
    using Merge = QVariant (*)(const QVariant& base, const QVariant& theirs, const QVariant& ours);

    virtual ~UserDefaults() = default;
    /// The stored object, or an invalid QVariant when there is none. Texts come back as QString, numbers as qlonglong,
    /// double or bool, data as QByteArray, dates as QDateTime, arrays as QVariantList, dictionaries as QVariantMap. An
    /// object that this process set comes back as it was given.
    [[nodiscard]] virtual QVariant objectForKey(const QString& key) const = 0;
    /// Stores a property-list object (texts, numbers, booleans, data, dates, arrays and dictionaries of them). The file
    /// follows soon after; flush() waits for it.
    virtual void setObject(const QString& key, const QVariant& object) = 0;
    virtual void removeObject(const QString& key) = 0;
    /// Returns when everything set so far is on the disk (true) or could not be written (false).
    virtual bool flush() = 0;
    /// Sets how a value with parts that two processes may change separately is joined. Without it the value that was
    /// set last wins as a whole.
    virtual void setMergeForKey(const QString& /*key*/, Merge /*merge*/) {}
    /// Lets objectForKey() see what other processes have stored under a key since it was read, joined with what this
    /// process set. Without it a value that is joined keeps the view of this process, even when it is saved. Waits for
    /// the disk. False when the file could not be read: then nothing changes.
    virtual bool takeUp(const QString& /*key*/) { return true; }
};

} // namespace Platform
