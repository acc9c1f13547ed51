// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QVariantList>

#include <future>

/// Finds the entry with a key in a long list, so that adding an entry does not read a hundred thousand others.
/// Positions are counted from the end of the list, so an entry inserted at the top does not change them. Main thread.
class EntryIndex {
public:
    /// The list has changed. The index is rebuilt when it is next used.
    void forget();
    /// Builds the index of the list on a worker, so that it is ready for the next lookup.
    void prepare(const QVariantList& entries);
    /// Whether prepare() was called: the owner then calls it again after each forget().
    [[nodiscard]] bool isPrepared() const { return isPrepared_; }

    /// The index of the last entry with that key in @p entries, the list of this index; -1 when there is none.
    [[nodiscard]] qsizetype lastIndexOf(const QString& key, const QVariantList& entries);
    /// Whether each entry of the list has a unique key.
    [[nodiscard]] bool isWhole(const QVariantList& entries);
    /// An entry with a new key was inserted at the top; @p entries is the list that includes it.
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
