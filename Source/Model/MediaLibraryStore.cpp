// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Model/MediaLibraryStore.h"

#include "Source/Model/AudioRecordEntry.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace MediaLibraryStore {
namespace {

const QString ringtonesName = u"ringtones"_s;
const QString recordsName = u"records"_s;

QString keyTextOf(const QVariant& entry) {
    return AudioRecordEntry::keyOf(entry).toString();
}

QHash<QString, QVariant> byKey(const QVariantList& entries) {
    QHash<QString, QVariant> result;
    result.reserve(entries.size());
    for (const QVariant& entry : entries)
        result.insert(keyTextOf(entry), entry);
    return result;
}

/// Merges the changes of one entry; when both sides changed a value, ours wins.
Dictionary mergeValues(const Dictionary& base, const Dictionary& theirs, const Dictionary& ours) {
    const auto isUntouched = [&](const QString& name) { return ours.value(name) == base.value(name); };
    Dictionary result;
    for (auto it = ours.cbegin(); it != ours.cend(); ++it)
        if (!isUntouched(it.key()))
            result.insert(it.key(), *it);
    for (auto it = theirs.cbegin(); it != theirs.cend(); ++it)
        if (isUntouched(it.key()))
            result.insert(it.key(), *it);
    return result;
}

QVariantList mergeEntries(const QVariantList& base, const QVariantList& theirs, const QVariantList& ours) {
    if (theirs == base)
        return ours;
    const auto inBase = byKey(base);
    const auto inTheirs = byKey(theirs);
    const auto inOurs = byKey(ours);

    QVariantList added; // added by the other process
    for (const QVariant& entry : theirs) {
        const QString key = keyTextOf(entry);
        const bool known =
            key.isEmpty() ? base.contains(entry) || ours.contains(entry) : inBase.contains(key) || inOurs.contains(key);
        if (!known)
            added.append(entry);
    }

    QVariantList result;
    result.reserve(ours.size() + added.size());
    bool atTop = true; // new entries are first: ours, then theirs, then those that both knew
    for (const QVariant& entry : ours) {
        const QString key = keyTextOf(entry);
        const auto before = inBase.constFind(key);
        if (atTop && before != inBase.cend()) {
            result.append(added);
            atTop = false;
        }
        const auto now = key.isEmpty() ? inTheirs.cend() : inTheirs.constFind(key);
        const bool untouched = !key.isEmpty() && before != inBase.cend() && *before == entry;
        if (now != inTheirs.cend())
            result.append(untouched ? *now : mergeValues(inBase.value(key).toMap(), now->toMap(), entry.toMap()));
        else if (!untouched)
            result.append(entry);
    }
    if (atTop)
        result.append(added);
    return result;
}

} // namespace

QVariantList entries(const QVariant& stored, const QString& name, bool& damaged) {
    if (!stored.isValid())
        return {};
    if (stored.typeId() != QMetaType::QVariantMap) {
        damaged = true;
        return {};
    }
    const QVariant array = stored.toMap().value(name);
    if (!array.isValid())
        return {};
    if (array.typeId() != QMetaType::QVariantList) {
        damaged = true;
        return {};
    }
    QVariantList list = array.toList();
    const auto isNoEntry = [](const QVariant& entry) { return entry.typeId() != QMetaType::QVariantMap; };
    if (std::any_of(list.cbegin(), list.cend(), isNoEntry)) {
        damaged = true;
        list.removeIf(isNoEntry);
    }
    return list;
}

QVariant value(const QVariantList& records, const QVariantList& ringtones) {
    return Dictionary{{ringtonesName, ringtones}, {recordsName, records}};
}

QVariant merge(const QVariant& base, const QVariant& theirs, const QVariant& ours) {
    if (!ours.isValid() || !theirs.isValid())
        return ours;
    const auto joined = [&](const QString& name) {
        bool damaged = !theirs.toMap().contains(name);
        bool isOld = false;
        const QVariantList known = entries(base, name, isOld);
        QVariantList others = entries(theirs, name, damaged);
        // This program never stores another shape: entries missing from it were lost, not removed.
        if (damaged) {
            const auto there = byKey(others);
            for (const QVariant& entry : known)
                if (!there.contains(keyTextOf(entry)))
                    others.append(entry);
        }
        return mergeEntries(known, others, entries(ours, name, isOld));
    };
    return value(joined(recordsName), joined(ringtonesName));
}

} // namespace MediaLibraryStore
