// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/EntryIndex.h"

#include "Platform/Foundation/Dictionary.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QThreadPool>

#include <memory>
#include <utility>

namespace {

// Indexing this many entries takes a millisecond.
constexpr qsizetype atOnce = 1000;

} // namespace

void EntryIndex::forget() {
    coming_ = {};
    places_ = {};
    isKnown_ = false;
}

void EntryIndex::prepare(const QVariantList& entries) {
    forget();
    isPrepared_ = true;
    if (entries.size() <= atOnce)
        return;
    auto work = std::make_shared<std::packaged_task<Places()>>([entries] { return placesOf(entries); });
    coming_ = work->get_future();
    QThreadPool::globalInstance()->start([work] { (*work)(); });
}

qsizetype EntryIndex::lastIndexOf(const QString& key, const QVariantList& entries) {
    const Places& fromEnd = places(entries);
    const auto found = fromEnd.constFind(key);
    return found == fromEnd.cend() ? -1 : entries.size() - *found;
}

bool EntryIndex::isWhole(const QVariantList& entries) {
    return places(entries).size() == entries.size();
}

void EntryIndex::prepended(const QString& key, const QVariantList& entries) {
    if (isKnown_)
        places_.insert(key, entries.size());
}

EntryIndex::Places& EntryIndex::places(const QVariantList& entries) {
    if (!std::exchange(isKnown_, true))
        places_ = coming_.valid() ? coming_.get() : placesOf(entries);
    return places_;
}

EntryIndex::Places EntryIndex::placesOf(const QVariantList& entries) {
    Places result;
    result.reserve(entries.size());
    for (qsizetype i = 0; i < entries.size(); ++i)
        if (const QVariant key = AudioRecordEntry::keyOf(entries[i]); key.isValid())
            result.insert(Platform::stringForm(key), entries.size() - i);
    return result;
}
