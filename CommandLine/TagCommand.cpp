// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/TagCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/TerminalColumns.h"
#include "Platform/Foundation/PlainText.h"
#include "Platform/Foundation/Translations.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Control/ArtworkTool.h"
#include "Source/Control/EditNote.h"
#include "Source/Control/RecordingRename.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using Platform::BasicID3Change;

namespace CommandLine {
namespace {

QString kindOf(const QByteArray& artwork) {
    if (artwork.startsWith("\xff\xd8\xff"))
        return u"image/jpeg"_s;
    if (artwork.startsWith("\x89PNG"))
        return u"image/png"_s;
    return u"application/octet-stream"_s;
}

void show(const QString& path, const BasicID3Change::Tags& tags, bool json) {
    if (json) {
        const QJsonObject artwork{{u"type"_s, kindOf(tags.artwork)}, {u"bytes"_s, tags.artwork.size()}};
        const QJsonObject document{{u"path"_s, path},
                                   {u"title"_s, tags.title},
                                   {u"artist"_s, tags.artist},
                                   {u"album"_s, tags.album},
                                   {u"year"_s, tags.year},
                                   {u"genre"_s, tags.genre},
                                   {u"artwork"_s, tags.artwork.isEmpty() ? QJsonValue() : QJsonValue(artwork)}};
        print(QString::fromUtf8(QJsonDocument(document).toJson().trimmed()));
        return;
    }
    const QString cover = tags.artwork.isEmpty()
                              ? QCoreApplication::translate("CommandLine", "none", "cover")
                              : QCoreApplication::translate("CommandLine", "%1, %2 bytes")
                                    .arg(kindOf(tags.artwork), Platform::Translations::number(tags.artwork.size()));
    const std::pair<QString, QString> lines[] = {
        {QCoreApplication::translate("CommandLine", "title:"), Platform::onOneLine(tags.title)},
        {QCoreApplication::translate("CommandLine", "artist:"), Platform::onOneLine(tags.artist)},
        {QCoreApplication::translate("CommandLine", "album:"), Platform::onOneLine(tags.album)},
        {QCoreApplication::translate("CommandLine", "year:"), tags.year == 0 ? QString() : QString::number(tags.year)},
        {QCoreApplication::translate("CommandLine", "genre:"), Platform::onOneLine(tags.genre)},
        {QCoreApplication::translate("CommandLine", "artwork:"), cover}};
    qsizetype width = 0;
    for (const auto& [name, value] : lines)
        width = std::max(width, TerminalColumns::of(name));
    for (const auto& [name, value] : lines)
        print(TerminalColumns::padded(name, width + 1) + value);
}

int run(const QStringList& given) {
    const Arguments arguments(given, tagCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(tagCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(tagCommand, QCoreApplication::translate("CommandLine", "tag takes one file"));
    QString path = arguments.positional().constFirst();
    bool isYear = true;
    const QString yearText = arguments.value(u"year"_s);
    const int year = yearText.isEmpty() ? 0 : yearText.toInt(&isYear);
    if (!isYear)
        return wrongUsage(tagCommand,
                          QCoreApplication::translate("CommandLine", "--year: %1 is not a number").arg(yearText));

    auto tags = BasicID3Change::read(path);
    if (!tags)
        return fail(tags.error().text);
    BasicID3Change::Texts texts;
    Dictionary changed; // with the library's keys
    const auto take = [&](const QString& option, std::optional<QString>& text, const QString& key) {
        if (!arguments.isSet(option))
            return;
        text = arguments.value(option);
        changed.insert(key, *text);
    };
    take(u"title"_s, texts.title, AudioRecordEntry::Title);
    take(u"artist"_s, texts.artist, AudioRecordEntry::Artist);
    take(u"album"_s, texts.album, AudioRecordEntry::Album);
    take(u"genre"_s, texts.genre, AudioRecordEntry::Genre);
    if (arguments.isSet(u"year"_s)) {
        texts.year = year;
        changed.insert(AudioRecordEntry::Year, year);
    }

    const bool hasArtwork = arguments.isSet(u"artwork"_s);
    if (hasArtwork)
        if (const auto written = ArtworkTool::write(path, arguments.value(u"artwork"_s)); !written)
            return fail(written.error().text);
    const bool rename = arguments.isSet(u"rename"_s);
    QString kept; // why the file was not renamed
    if (!changed.isEmpty() || rename) {
        path = QFileInfo(path).absoluteFilePath();
        EditNote::recover(MediaLibraryRequests::retag);
        const QString title = texts.title.value_or(tags->title);
        auto note = EditNote::begin(path, rename ? RecordingRename::pathForTitle(path, title) : path, {});
        if (!note)
            return fail(note.error().text);
        if (!changed.isEmpty())
            if (const auto written = BasicID3Change::writeTexts(path, texts); !written) {
                note->end();
                return fail(written.error().text);
            }
        const QString before = path;
        if (rename) {
            const auto renamed = RecordingRename::rename(path, title);
            path = renamed.path;
            kept = renamed.notice;
            if (path != before) {
                changed.insert(AudioRecordEntry::SavePath, path);
                if (const Dictionary entry = entryOf(before); RecordingTracks::isKeptFor(entry))
                    RecordingTracks::insertInto(
                        changed, RecordingTracks::stored(RecordingRename::renameTracks(entry, before, path)));
            }
        }
        if (!changed.isEmpty())
            if (const QString problem =
                    tellLibrary(before, changed, QCoreApplication::translate("CommandLine", "the file is changed"));
                !problem.isEmpty())
                return fail(problem);
        note->end();
    }

    const bool json = arguments.isSet(u"json"_s);
    const bool quiet = (!changed.isEmpty() || hasArtwork || rename) && !json;
    if (!quiet) {
        tags = BasicID3Change::read(path);
        if (!tags)
            return fail(tags.error().text);
        show(path, *tags, json);
    }
    return kept.isEmpty() ? Done : fail(kept);
}

} // namespace

const Command tagCommand{
    "tag",
    "FILE",
    QT_TRANSLATE_NOOP("CommandLine", "print or write the tags and the cover of an MPEG-4 audio file"),
    {{"title", "T",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Write this title. An empty text removes the tag; the same holds for the other texts.")},
     {"artist", "A", QT_TRANSLATE_NOOP("CommandLine", "Write this artist.")},
     {"album", "B", QT_TRANSLATE_NOOP("CommandLine", "Write this album.")},
     {"year", "Y", QT_TRANSLATE_NOOP("CommandLine", "Write this year; 0 removes the tag.")},
     {"genre", "G", QT_TRANSLATE_NOOP("CommandLine", "Write this genre.")},
     {"artwork", "IMAGE", QT_TRANSLATE_NOOP("CommandLine", "Take the cover from this picture file.")},
     {"rename", "",
      QT_TRANSLATE_NOOP("CommandLine", "Rename the file after its title, unless the name is taken or not possible.")},
     kJsonOption},
    {{"tag a.m4a", QT_TRANSLATE_NOOP("CommandLine", "Print the tags.")},
     {"tag a.m4a --title \"Morning\" --artwork cover.jpg",
      QT_TRANSLATE_NOOP("CommandLine", "Write a title and a cover.")},
     {"tag a.m4a --title \"Morning\" --rename",
      QT_TRANSLATE_NOOP("CommandLine", "Write a title and name the file Morning.m4a.")}},
    run};

} // namespace CommandLine
