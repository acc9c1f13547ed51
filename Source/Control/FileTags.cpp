// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Control/FileTags.h"

#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>

using namespace Qt::StringLiterals;

namespace FileTags {

namespace {

/// As a file stores it: an unpaired surrogate becomes a replacement character.
QString kept(const QVariant& value) {
    return QString::fromUtf8(Platform::stringForm(value).toUtf8());
}

} // namespace

Dictionary texts(const QString& path) {
    using namespace AudioRecordEntry;
    const auto tags = Platform::BasicID3Change::read(path);
    if (!tags)
        return {{Title, QFileInfo(path).completeBaseName()}};
    return {
        {Title, tags->title}, {Artist, tags->artist}, {Album, tags->album}, {Year, tags->year}, {Genre, tags->genre}};
}
QByteArray artwork(const QString& path) {
    const auto tags = Platform::BasicID3Change::read(path);
    if (!tags || tags->artwork.isEmpty())
        return {};
    QFile fallback(Platform::services().bundle->pathForResource(u"AudioArtwork.png"_s));
    if (fallback.open(QIODevice::ReadOnly) && fallback.readAll() == tags->artwork)
        return {};
    return tags->artwork;
}

QString artworkFile(const QString& path) {
    static std::atomic<unsigned> counter = 0;
    const QByteArray picture = artwork(path);
    if (picture.isEmpty())
        return {};
    const QString copy = g_strTmpPath + u"/OwnArtwork%1.png"_s.arg(counter++);
    return Platform::FileManager::writeAtomically(copy, picture) ? copy : QString();
}

Platform::Result<bool> agree(const QString& path, const Dictionary& entry) {
    using namespace AudioRecordEntry;
    const auto tags = Platform::BasicID3Change::read(path);
    if (!tags)
        return tags.error();
    const auto text = [&](const QString& key) { return entry.contains(key) ? kept(entry.value(key)) : QString(); };
    return tags->title == text(Title) && tags->artist == text(Artist) && tags->album == text(Album) &&
           tags->genre == text(Genre) && tags->year == Platform::intValue(entry.value(Year));
}

} // namespace FileTags
