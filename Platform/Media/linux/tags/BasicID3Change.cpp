// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/linux/tags/InPlaceSave.h"
#include "Platform/Media/linux/tags/Mpeg4TagList.h"
#include "Platform/Media/linux/tags/Mpeg4Tags.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>

#include <QLoggingCategory>

#include <taglib/mp4coverart.h>
#include <taglib/mp4file.h>
#include <taglib/mp4tag.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

using Media::PatchedFile;

Q_LOGGING_CATEGORY(log, "sonaphex.media")

constexpr const char* titleItem = "\251nam";
constexpr const char* artistItem = "\251ART";
constexpr const char* albumItem = "\251alb";
constexpr const char* yearItem = "\251day";
constexpr const char* genreItem = "\251gen";
constexpr const char* numberedGenreItem = "gnre"; // read when there is no other

/// A file in memory with nothing in it but tags. TagLib reads and writes items only there: what it does not know stays
/// as it is in the file, and how a file is made of boxes is none of its business.
class TagsInMemory {
public:
    explicit TagsInMemory(const QByteArray& items) { content_.replace(0, 0, Media::fileOfTags(items)); }

    /// The items after an edit; nothing when TagLib refuses.
    std::optional<QByteArray> edited(const std::function<void(TagLib::MP4::Tag&)>& edit) {
        {
            TagLib::MP4::File file(&content_, false);
            if (!file.isValid() || !file.tag())
                return std::nullopt;
            edit(*file.tag());
            if (!file.save())
                return std::nullopt;
        }
        QString why;
        const auto atoms = Media::readMpeg4Atoms(content_, why);
        if (!atoms)
            return std::nullopt;
        QByteArray items;
        for (const Media::TagItem& item : Media::tagItems(content_, *atoms))
            items += item.bytes;
        return items;
    }

    [[nodiscard]] PatchedFile& content() { return content_; }

private:
    PatchedFile content_{-1, 0};
};

void setText(TagLib::MP4::Tag& tag, const char* item, QString text) {
    text.remove(QChar(u'\0'));
    if (!text.isEmpty())
        tag.setItem(item, TagLib::StringList(TagLib::String(text.toUtf8().constData(), TagLib::String::UTF8)));
}

QString text(const TagLib::String& string) {
    return QString::fromStdString(string.to8Bit(true));
}

} // namespace

bool Media::editTags(PatchedFile& content, const std::vector<const char*>& changed,
                     const std::function<void(TagLib::MP4::Tag&)>& edit, QString& why) {
    const auto atoms = Media::readMpeg4Atoms(content, why);
    if (!atoms)
        return false;
    if (!atoms->complete) {
        why = u"the file is cut off"_s;
        return false;
    }
    QByteArray items;
    for (const Media::TagItem& item : Media::tagItems(content, *atoms))
        if (std::none_of(changed.begin(), changed.end(), [&](const char* one) { return item.name == one; }))
            items += item.bytes;
    const auto fresh = TagsInMemory({}).edited(edit);
    if (!fresh) {
        why = u"its tags cannot be written"_s;
        return false;
    }
    return Media::replaceTagItems(content, *atoms, items + *fresh, why);
}

QString BasicID3Change::writeTexts(const QString& path, const Texts& texts) {
    std::vector<const char*> changed;
    std::vector<std::pair<const char*, QString>> values;
    const auto take = [&](const char* item, const std::optional<QString>& value) {
        if (!value)
            return;
        changed.push_back(item);
        values.emplace_back(item, *value);
    };
    take(titleItem, texts.title);
    take(artistItem, texts.artist);
    take(albumItem, texts.album);
    if (texts.year)
        take(yearItem, *texts.year == 0 ? QString() : QString::number(*texts.year));
    take(genreItem, texts.genre);
    if (texts.genre)
        changed.push_back(numberedGenreItem);

    QString why;
    const auto edit = [&](PatchedFile& content, QString& reason) {
        return Media::editTags(
            content, changed,
            [&](TagLib::MP4::Tag& tag) {
                for (const auto& [item, value] : values)
                    setText(tag, item, value);
            },
            reason);
    };
    return Media::saveInPlace(path, edit, why) ? QString() : u"cannot write the tags of %1: %2"_s.arg(path, why);
}

bool BasicID3Change::setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                            const QString& album, int year, const QString& genre) {
    const QString problem = writeTexts(path, {name, artist, album, genre, year});
    if (!problem.isEmpty())
        qCWarning(log, "%s", qUtf8Printable(problem));
    return problem.isEmpty();
}

std::optional<BasicID3Change::Tags> BasicID3Change::read(const QString& path, QString* whyNot) {
    const auto refuse = [&](const QString& why) {
        if (whyNot)
            *whyNot = u"cannot read the tags of %1: %2"_s.arg(path, why);
        return std::nullopt;
    };
    Descriptor file;
    struct stat status {};
    QString why;
    if (!Media::openForReading(path, file, why))
        return refuse(why);
    if (::fstat(file.get(), &status) != 0)
        return refuse(qt_error_string(errno));
    const PatchedFile content(file.get(), status.st_size);
    static const std::array<QByteArray, 7> ours{titleItem, artistItem,        albumItem,         yearItem,
                                                genreItem, numberedGenreItem, Media::artworkItem};
    const auto atoms = Media::readMpeg4Atoms(content, why);
    if (!atoms)
        return refuse(why);
    QByteArray items;
    for (const Media::TagItem& item : Media::tagItems(content, *atoms))
        if (std::find(ours.begin(), ours.end(), item.name) != ours.end())
            items += item.bytes;
    if (content.failed())
        return refuse(u"it cannot be read"_s);
    TagsInMemory inMemory(items);
    const TagLib::MP4::File mpeg4(&inMemory.content(), false);
    const TagLib::MP4::Tag* const tag = mpeg4.tag();
    if (!mpeg4.isValid() || !tag)
        return refuse(u"its tags cannot be read"_s);

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
