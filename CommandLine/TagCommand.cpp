// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/TagCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/LibraryChange.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/PlainText.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/BasicID3Change.h"
#include "Source/Control/EditNote.h"
#include "Source/Control/RecordingRename.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <optional>

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
    print(u"title:   "_s + Platform::onOneLine(tags.title));
    print(u"artist:  "_s + Platform::onOneLine(tags.artist));
    print(u"album:   "_s + Platform::onOneLine(tags.album));
    print(u"year:    "_s + (tags.year == 0 ? QString() : QString::number(tags.year)));
    print(u"genre:   "_s + Platform::onOneLine(tags.genre));
    print(u"artwork: "_s +
          (tags.artwork.isEmpty() ? u"none"_s : u"%1, %2 bytes"_s.arg(kindOf(tags.artwork)).arg(tags.artwork.size())));
}

/// A helper program reads the image, so that this one needs none of the desktop's libraries. @return the error; empty
/// on success
QString setArtwork(const QString& path, const QString& image) {
    QProcess tool;
    tool.start(Platform::services().bundle->pathForTool(u"SetArtWork"_s), {path, image, path});
    if (!tool.waitForFinished(-1))
        return u"%1: %2"_s.arg(tool.program(), tool.errorString());
    if (tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0)
        return {};
    const QString errors = QString::fromLocal8Bit(tool.readAllStandardError()).trimmed();
    const QString problem = errors.section(u": "_s, 1);
    return problem.isEmpty() ? u"the artwork of %1 could not be written"_s.arg(path) : problem;
}

int run(const QStringList& given) {
    const Arguments arguments(given, tagCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(tagCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(tagCommand, u"tag takes one file"_s);
    QString path = arguments.positional().constFirst();
    bool isYear = true;
    const QString yearText = arguments.value(u"year"_s);
    const int year = yearText.isEmpty() ? 0 : yearText.toInt(&isYear);
    if (!isYear)
        return wrongUsage(tagCommand, u"--year: %1 is not a number"_s.arg(yearText));

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
        if (const QString problem = setArtwork(path, arguments.value(u"artwork"_s)); !problem.isEmpty())
            return fail(problem);
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
            if (path != before)
                changed.insert(AudioRecordEntry::SavePath, path);
        }
        if (!changed.isEmpty())
            if (const QString problem = tellLibrary(before, changed, u"the file is changed"_s); !problem.isEmpty())
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
    "print or write the tags and the cover of an MPEG-4 audio file",
    {{"title", "T", "Write this title. An empty text removes the tag; the same holds for the other texts."},
     {"artist", "A", "Write this artist."},
     {"album", "B", "Write this album."},
     {"year", "Y", "Write this year; 0 removes the tag."},
     {"genre", "G", "Write this genre."},
     {"artwork", "IMAGE", "Take the cover from this picture file."},
     {"rename", "", "Rename the file after its title, unless the name is taken or not possible."},
     kJsonOption},
    {{"tag a.m4a", "Print the tags."},
     {"tag a.m4a --title \"Morning\" --artwork cover.jpg", "Write a title and a cover."},
     {"tag a.m4a --title \"Morning\" --rename", "Write a title and name the file Morning.m4a."}},
    run};

} // namespace CommandLine
