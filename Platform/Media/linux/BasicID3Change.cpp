// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/linux/InPlaceSave.h"
#include "Platform/Media/linux/Mpeg4Atoms.h"
#include "Platform/Media/linux/Mpeg4Tags.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QtEndian>

#include <taglib/mp4coverart.h>
#include <taglib/mp4file.h>
#include <taglib/mp4tag.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

using Media::Mpeg4Atom;
using Media::Mpeg4Atoms;
using Media::PatchedFile;

Q_LOGGING_CATEGORY(log, "sonaphex.media")

constexpr const char* titleItem = "\251nam";
constexpr const char* artistItem = "\251ART";
constexpr const char* albumItem = "\251alb";
constexpr const char* yearItem = "\251day";
constexpr const char* genreItem = "\251gen";

// Where the pieces of a day of audio are.
constexpr qint64 largestTable = qint64(64) << 20;

QByteArray bigEndian(quint32 number) {
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// The items of the tag list by name, as they stand in the file.
QList<QPair<QByteArray, QByteArray>> rawItems(const PatchedFile& content, const Mpeg4Atoms& atoms) {
    QList<QPair<QByteArray, QByteArray>> items;
    if (const Mpeg4Atom* list = atoms.tagList())
        for (const Mpeg4Atom& item : list->children)
            items.append({item.name, content.read(item.offset, item.length)});
    return items;
}

/// Corrects where the index says that the audio is, after @p delta bytes came in at @p from.
void moveOffsets(PatchedFile& content, const std::vector<Mpeg4Atom>& atoms, qint64 from, qint64 delta) {
    for (const Mpeg4Atom& atom : atoms) {
        moveOffsets(content, atom.children, from, delta);
        QByteArray body = content.read(atom.offset, atom.length > largestTable ? 0 : atom.length);
        bool changed = false;
        const auto move = [&]<typename Number>(qsizetype at, Number) {
            const auto offset = qFromBigEndian<Number>(body.constData() + at);
            if (static_cast<qint64>(offset) >= from) {
                qToBigEndian(static_cast<Number>(offset + static_cast<Number>(delta)), body.data() + at);
                changed = true;
            }
        };
        if (atom.name == "stco")
            for (qsizetype at = 16; at + 4 <= body.size(); at += 4)
                move(at, quint32());
        else if (atom.name == "co64")
            for (qsizetype at = 16; at + 8 <= body.size(); at += 8)
                move(at, quint64());
        else if (atom.name == "tfhd" && body.size() >= 24 && (body[11] & 1)) // it names its base
            move(16, quint64());
        if (changed)
            content.overwrite(atom.offset, body);
    }
}

/// Writes that a box is longer by @p more bytes.
void grow(PatchedFile& content, const Mpeg4Atom& atom, qint64 more) {
    constexpr quint32 sizeIsBehindTheName = 1;
    QByteArray size(8, '\0');
    if (content.read(atom.offset, 4) == bigEndian(sizeIsBehindTheName)) {
        qToBigEndian(static_cast<quint64>(atom.length + more), size.data());
        content.overwrite(atom.offset + 8, size);
    } else {
        content.overwrite(atom.offset, bigEndian(static_cast<quint32>(atom.length + more)));
    }
}

QByteArray box(const char* name, const QByteArray& body) {
    return bigEndian(static_cast<quint32>(8 + body.size())) + QByteArray(name, 4) + body;
}

/// Gives an index without any tags an empty list of them, with room for texts, at its end. TagLib would put it in
/// front: then the tables of the audio behind it, large in an hour, are written anew whenever the tags need more room.
void addTagList(PatchedFile& content, const Mpeg4Atoms& atoms) {
    constexpr int room = 1024;
    const Mpeg4Atom& moov = *atoms.find("moov");
    if (moov.child("udta") || moov.children.empty())
        return;
    const QByteArray version(4, '\0');
    const QByteArray handler = version + QByteArray(4, '\0') + "mdirappl" + QByteArray(9, '\0');
    const QByteArray list = box(
        "udta", box("meta", version + box("hdlr", handler) + box("ilst", {}) + box("free", QByteArray(room, '\0'))));
    const qint64 end = moov.children.back().offset + moov.children.back().length;
    moveOffsets(content, atoms.top, end, list.size());
    grow(content, moov, list.size());
    content.replace(end, 0, list);
}

/// Puts whole items at the end of the tag list.
bool appendItems(PatchedFile& content, const QByteArray& items, QString& why) {
    const auto atoms = Media::readMpeg4Atoms(content, why);
    const Mpeg4Atom* const list = atoms ? atoms->tagList() : nullptr;
    if (!list)
        return false;
    const Mpeg4Atom& moov = *atoms->find("moov");
    const Mpeg4Atom& udta = *moov.child("udta");
    const Mpeg4Atom& meta = *udta.child("meta");

    // The padding behind the list gives way where it is large enough.
    const qint64 listEnd = list->offset + list->length;
    for (const Mpeg4Atom& free : meta.children)
        if (free.name == "free" && free.offset == listEnd && free.length >= items.size() + 8) {
            content.overwrite(listEnd, items + bigEndian(static_cast<quint32>(free.length - items.size())) + "free");
            grow(content, *list, items.size());
            return true;
        }
    moveOffsets(content, atoms->top, listEnd, items.size());
    for (const Mpeg4Atom* atom : {list, &meta, &udta, &moov})
        grow(content, *atom, items.size());
    content.replace(listEnd, 0, items);
    return true;
}

void setText(TagLib::MP4::Tag& tag, const char* item, QString text) {
    text.remove(QChar(u'\0'));
    if (text.isEmpty())
        tag.removeItem(item);
    else
        tag.setItem(item, TagLib::StringList(TagLib::String(text.toUtf8().constData(), TagLib::String::UTF8)));
}

QString text(const TagLib::String& string) {
    return QString::fromStdString(string.to8Bit(true));
}

} // namespace

bool Media::editTags(PatchedFile& content, const std::vector<const char*>& changed,
                     const std::function<void(TagLib::MP4::Tag&)>& edit, QString& why) {
    const auto before = Media::readMpeg4Atoms(content, why);
    if (!before)
        return false;
    if (!before->complete) {
        why = u"the file is cut off"_s;
        return false;
    }
    const auto itemsBefore = rawItems(content, *before);
    const qint64 sizeBefore = content.size();
    addTagList(content, *before);
    {
        TagLib::MP4::File file(&content, false);
        if (!file.isValid() || !file.tag()) {
            why = u"not an MPEG-4 file"_s;
            return false;
        }
        edit(*file.tag());
        if (!file.save()) {
            why = u"its tags cannot be written"_s;
            return false;
        }
    }

    const auto isChanged = [&](const QByteArray& name) {
        return std::any_of(changed.begin(), changed.end(), [&](const char* one) { return name == one; });
    };
    auto after = Media::readMpeg4Atoms(content, why);
    if (!after)
        return false;
    const auto itemsAfter = rawItems(content, *after);
    QByteArray lost;
    for (const auto& [name, bytes] : itemsBefore) {
        const auto hasName = [&name = name](const auto& item) { return item.first == name; };
        if (!isChanged(name) && std::none_of(itemsAfter.begin(), itemsAfter.end(), hasName))
            lost += bytes;
    }
    if (!lost.isEmpty()) {
        if (!appendItems(content, lost, why))
            return false;
        after = Media::readMpeg4Atoms(content, why);
        if (!after)
            return false;
    }

    // The audio moved, and this table of where fragments begin is a mere help for seeking: players do without.
    if (content.size() != sizeBefore)
        if (const Mpeg4Atom* table = after->find("mfra"); table && table->offset > after->find("moov")->offset)
            content.overwrite(table->offset + 4, "free");
    return true;
}

QString BasicID3Change::writeTexts(const QString& path, const Tags& tags) {
    QString why;
    const auto edit = [&](PatchedFile& content, QString& reason) {
        return Media::editTags(
            content, {titleItem, artistItem, albumItem, yearItem, genreItem, "gnre"},
            [&](TagLib::MP4::Tag& tag) {
                setText(tag, titleItem, tags.title);
                setText(tag, artistItem, tags.artist);
                setText(tag, albumItem, tags.album);
                setText(tag, yearItem, tags.year == 0 ? QString() : QString::number(tags.year));
                setText(tag, genreItem, tags.genre);
            },
            reason);
    };
    return Media::saveInPlace(path, edit, why) ? QString() : u"cannot write the tags of %1: %2"_s.arg(path, why);
}

bool BasicID3Change::setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                            const QString& album, int year, const QString& genre) {
    const QString problem = writeTexts(path, {name, artist, album, genre, year, {}});
    if (!problem.isEmpty())
        qCWarning(log, "%s", qUtf8Printable(problem));
    return problem.isEmpty();
}

std::optional<BasicID3Change::Tags> BasicID3Change::read(const QString& path, QString* whyNot) {
    restoreInterruptedSave(path);
    const auto refuse = [&](const QString& why) {
        if (whyNot)
            *whyNot = u"cannot read the tags of %1: %2"_s.arg(path, why);
        return std::nullopt;
    };
    QFile file(path);
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return refuse(u"not a file"_s);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return refuse(file.errorString());
    PatchedFile content(file.handle(), file.size());
    QString why;
    if (!Media::readMpeg4Atoms(content, why))
        return refuse(why);
    const TagLib::MP4::File mpeg4(&content, false);
    const TagLib::MP4::Tag* const tag = mpeg4.tag();
    if (!mpeg4.isValid() || !tag)
        return refuse(u"not an MPEG-4 file"_s);

    Tags tags{text(tag->title()), text(tag->artist()), text(tag->album()), text(tag->genre()), 0, {}};
    if (const TagLib::MP4::Item year = tag->item(yearItem); year.isValid())
        tags.year = intValue(text(year.toStringList().toString()));
    if (const TagLib::MP4::Item artwork = tag->item(Media::artworkItem); artwork.isValid()) {
        const TagLib::MP4::CoverArtList covers = artwork.toCoverArtList();
        if (!covers.isEmpty())
            tags.artwork =
                QByteArray(covers.front().data().data(), static_cast<qsizetype>(covers.front().data().size()));
    }
    return tags;
}

bool BasicID3Change::restoreInterruptedSave(const QString& path) {
    return Media::restoreInterruptedSave(path);
}

} // namespace Platform
