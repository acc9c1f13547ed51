// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

namespace Platform {

/// The user's settings: one property list, read once, changed in memory, written later by a worker. Any thread. Another
/// process may change the file; a save overwrites only the keys that this process set.
class UserDefaults {
public:
    /// Merges two changes of one value. @p base is the value before this process changed it, @p theirs the value that
    /// another process stored meanwhile, @p ours the value that this process set; any of them may be invalid. A pure
    /// function; called on the worker. An invalid result removes the value.
    using Merge = QVariant (*)(const QVariant& base, const QVariant& theirs, const QVariant& ours);

    virtual ~UserDefaults() = default;
    /// The stored object, or an invalid QVariant when there is none. Texts are returned as QString, numbers as
    /// qlonglong, double or bool, data as QByteArray, dates as QDateTime, arrays as QVariantList, dictionaries as
    /// QVariantMap. An object that this process set is returned unchanged.
    [[nodiscard]] virtual QVariant objectForKey(const QString& key) const = 0;
    /// Stores a property-list object (texts, numbers, booleans, data, dates, arrays and dictionaries of them). The file
    /// is written shortly after; flush() waits for it.
    virtual void setObject(const QString& key, const QVariant& object) = 0;
    virtual void removeObject(const QString& key) = 0;
    /// Returns when everything set so far is on the disk (true) or could not be written (false).
    virtual bool flush() = 0;
    /// Sets a merge function for a value whose parts two processes may change separately. Without it the last value set
    /// wins as a whole.
    virtual void setMergeForKey(const QString& /*key*/, Merge /*merge*/) {}
    /// Makes objectForKey() return the values that other processes have stored under a key since it was read, merged
    /// with the changes of this process. Otherwise a key with a merge function keeps this process's view, even after a
    /// save. Waits for the disk. False when the file could not be read: then nothing changes.
    virtual bool takeUp(const QString& /*key*/) { return true; }
};

} // namespace Platform
