// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QVariantList>

#include <future>

/// Where the entry with a key stands in a long list, so that one more entry need not read a hundred thousand of them.
/// The places are counted from the list's end: an entry that comes on top moves none of them. Main thread.
class EntryIndex {
public:
    /// The list is another one now. The index is made when it is asked for the next time.
    void forget();
    /// Makes the index of the list on a worker, so that the next question finds it ready.
    void prepare(const QVariantList& entries);
    /// Whether prepare() was called once: the owner then calls it again after each forget().
    [[nodiscard]] bool isPrepared() const { return isPrepared_; }

    /// The last entry with that key in @p entries, the list of this index; -1 when there is none.
    [[nodiscard]] qsizetype lastIndexOf(const QString& key, const QVariantList& entries);
    /// Whether each entry of the list has a key of its own.
    [[nodiscard]] bool isWhole(const QVariantList& entries);
    /// An entry with a key that the list did not have came on top: @p entries is the list with it.
    void prepended(const QString& key, const QVariantList& entries);

private:
    using Places = QHash<QString, qsizetype>;
    static Places placesOf(const QVariantList& entries);
    Places& places(const QVariantList& entries);

    Places places_;
    bool isKnown_ = false;
    bool isPrepared_ = false;
    std::future<Places> coming_;
};
