// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/BasicID3Change.h"

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Media/linux/mpeg4/Mpeg4Layout.h"
#include "Platform/Media/linux/tags/Mpeg4TagList.h"
#include "Platform/Media/linux/tags/Mpeg4Tags.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <QCoreApplication>
#include <QLoggingCategory>

#include <taglib/mp4coverart.h>
#include <taglib/mp4file.h>
#include <taglib/mp4tag.h>
#include <taglib/tbytevectorstream.h>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

Q_LOGGING_CATEGORY(tagsLog, "sonaphex.media")

constexpr const char* titleItem = "\251nam";
constexpr const char* artistItem = "\251ART";
constexpr const char* albumItem = "\251alb";
constexpr const char* yearItem = "\251day";
constexpr const char* genreItem = "\251gen";
constexpr const char* numberedGenreItem = "gnre"; // used when the text genre is missing

/// An in-memory file that contains only tags. TagLib reads and writes items only there: items that it does not know
/// stay unchanged in the real file, and this folder writes the boxes around them.
class TagsInMemory {
public:
    explicit TagsInMemory(const QByteArray& items)
        : stream_(bytesOf(Media::fileOfTags(items))), file_(&stream_, false) {}

    /// Null when TagLib rejects the file.
    [[nodiscard]] TagLib::MP4::Tag* tag() const { return file_.isValid() ? file_.tag() : nullptr; }

    /// The items after a change; nothing when TagLib fails.
    std::optional<QByteArray> saved() {
        QString why;
        if (!file_.save())
            return std::nullopt;
        const QByteArrayView content(stream_.data()->data(), qsizetype(stream_.data()->size()));
        const MemoryBytes bytes(content);
        const auto layout = readLayout(bytes, why);
        if (!layout)
            return std::nullopt;
        QByteArray items;
        for (const Media::TagItem& item : Media::tagItems(bytes, layout->moov()))
            items += item.bytes;
        return items;
    }

private:
    static TagLib::ByteVector bytesOf(const QByteArray& bytes) {
        return {bytes.constData(), static_cast<unsigned int>(bytes.size())};
    }

    TagLib::ByteVectorStream stream_;
    TagLib::MP4::File file_;
};

std::uint32_t typeOf(const char* item) {
    return std::uint32_t(bigEndian(item, 4));
}

void setText(TagLib::MP4::Tag& tag, const char* item, QString text) {
    text.remove(QChar(u'\0'));
    if (!text.isEmpty())
        tag.setItem(item, TagLib::StringList(TagLib::String(text.toUtf8().constData(), TagLib::String::UTF8)));
}

QString text(const TagLib::String& string) {
    return QString::fromStdString(string.to8Bit(true));
}

} // namespace

Media::TagsEdit Media::editOfTags(const std::vector<const char*>& changed,
                                  const std::function<void(TagLib::MP4::Tag&)>& edit) {
    return [changed, edit](const std::vector<TagItem>& items, QString& why) -> std::optional<QByteArray> {
        QByteArray kept;
        for (const TagItem& item : items)
            if (std::ranges::none_of(changed, [&](const char* one) { return item.type == typeOf(one); }))
                kept += item.bytes;
        TagsInMemory fresh({});
        if (fresh.tag())
            edit(*fresh.tag());
        const auto added = fresh.tag() ? fresh.saved() : std::nullopt;
        if (!added) {
            why = QCoreApplication::translate("Media", "its tags cannot be written");
            return std::nullopt;
        }
        return kept + *added;
    };
}

Result<> BasicID3Change::writeTexts(const QString& path, const Texts& texts) {
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
    const auto edit = Media::editOfTags(changed, [&values](TagLib::MP4::Tag& tag) {
        for (const auto& [item, value] : values)
            setText(tag, item, value);
    });
    if (!Media::saveInPlace(path, edit, why))
        return Error{Error::Kind::Other,
                     QCoreApplication::translate("Media", "cannot write the tags of %1: %2").arg(path, why)};
    return {};
}

bool BasicID3Change::setMpeg4ID3Information(const QString& path, const QString& name, const QString& artist,
                                            const QString& album, int year, const QString& genre) {
    const auto written = writeTexts(path, {name, artist, album, genre, year});
    if (!written)
        qCWarning(tagsLog, "%s", qUtf8Printable(written.error().forLog()));
    return bool(written);
}

Result<BasicID3Change::Tags> BasicID3Change::read(const QString& path) {
    const auto refuse = [&](const QString& why) {
        return Error{Error::Kind::Damaged,
                     QCoreApplication::translate("Media", "cannot read the tags of %1: %2").arg(path, why)};
    };
    Descriptor file;
    QString why;
    if (!Media::openForReading(path, file, why))
        return refuse(why);
    const FileBytes content(file.get());
    const auto layout = readLayout(content, why);
    if (!layout)
        return refuse(why);
    static constexpr std::array shown{titleItem, artistItem,        albumItem,         yearItem,
                                      genreItem, numberedGenreItem, Media::artworkItem};
    QByteArray items;
    for (const Media::TagItem& item : Media::tagItems(content, layout->moov()))
        if (std::ranges::any_of(shown, [&](const char* one) { return item.type == typeOf(one); }))
            items += item.bytes;
    const TagsInMemory inMemory(items);
    const TagLib::MP4::Tag* const tag = inMemory.tag();
    if (!tag)
        return refuse(QCoreApplication::translate("Media", "its tags cannot be read"));

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

} // namespace Platform
