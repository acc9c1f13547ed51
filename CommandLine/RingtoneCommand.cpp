// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/RingtoneCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Platform/Media/BasicID3Change.h"
#include "Platform/Media/ExtAudioFile.h"
#include "RingtoneMaker/RingtoneFile.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/Settings.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "Source/Record/RecordingNames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// The library's entry of the file; empty when it has none.
Dictionary entryOf(const QString& path) {
    const QString real = QFileInfo(path).canonicalFilePath();
    const MediaLibrary& library = MediaLibrary::shareLibrary();
    for (const QVariantList* entries : {&library.records(), &library.ringtones()})
        for (const QVariant& object : *entries) {
            const Dictionary entry = object.toMap();
            const QFileInfo file(entry.value(AudioRecordEntry::SavePath).toString());
            // The disk is queried only when the names match.
            if (file.filePath() == path ||
                (file.fileName() == QFileInfo(real).fileName() && file.canonicalFilePath() == real))
                return entry;
        }
    return {};
}

/// Tags for a file that is not in the library: from the file itself, its name, and today's date.
Dictionary tagsOf(const QString& path) {
    const auto tags = Platform::BasicID3Change::read(path).valueOr({});
    const auto orElse = [](const QString& text, const QString& otherwise) { return text.isEmpty() ? otherwise : text; };
    return {{AudioRecordEntry::Title, orElse(tags.title, QFileInfo(path).completeBaseName())},
            {AudioRecordEntry::Artist, orElse(tags.artist, u"NO Artist"_s)},
            {AudioRecordEntry::Album, orElse(tags.album, u"NO Album"_s)},
            {AudioRecordEntry::Year, tags.year},
            {AudioRecordEntry::Genre, tags.genre},
            {AudioRecordEntry::AddDate, Platform::services().clock->now().toString(u"yyyy/MM/dd"_s)}};
}

/// @return the error; empty on success
QString tellLibrary(const QString& path, const Dictionary& tags) {
    std::optional<bool> stored;
    if (const auto answer = askWindow(MediaLibraryRequests::addRingtoneRequest(path, tags))) {
        stored = MediaLibraryRequests::addingOf(*answer);
        if (!stored)
            return QCoreApplication::translate(
                       "CommandLine",
                       "%1 is made, but the running program does not know this request: it is another version")
                .arg(path);
    } else {
        stored = MediaLibraryRequests::addRingtone(path, tags);
    }
    return *stored
               ? QString()
               : QCoreApplication::translate("CommandLine", "%1 is made, but the library could not be saved").arg(path);
}

int make(RingtoneFile::Task task, bool json) {
    const auto info = Platform::services().mediaFiles->info(task.source);
    if (!info)
        return fail(info.error().text);
    if (double(task.to) > info->seconds + 0.001)
        return fail(QCoreApplication::translate("CommandLine", "%1: it ends at second %2, --to is %3")
                        .arg(task.source, QString::number(info->seconds), QString::number(double(task.to))));

    const auto temporary =
        Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".ringtone"_s);
    if (!temporary)
        return fail(temporary.error().text);
    task.temporaryFolder = temporary->path();
    task.target = RecordingNames::nextRingtoneMakerFilePath(Settings::value(Settings::ringtoneSavePath).toString());

    const Interrupt interrupt;
    RingtoneFile::Result result;
    {
        ProgressBar bar(QFileInfo(task.target).fileName());
        ConverterAudioControl converter;
        result = RingtoneFile::write(converter, task, [&bar](double share) {
            bar.show(share);
            return !Interrupt::requested();
        });
    }
    if (result.path.isEmpty())
        return fail(result.problem.isEmpty()
                        ? QCoreApplication::translate("CommandLine", "stopped before the end: no ringtone was made")
                        : result.problem);

    const float seconds = task.to - task.from;
    Dictionary recording = entryOf(task.source);
    if (recording.isEmpty())
        recording = tagsOf(task.source);
    const Dictionary tags = RingtoneFile::tags(recording, result.path, seconds);
    if (const QString problem = tellLibrary(result.path, tags); !problem.isEmpty())
        return fail(problem);
    if (!result.damage.isEmpty())
        fail(QCoreApplication::translate("CommandLine",
                                         "the source is damaged, the ringtone is silent where it could not be read: %1")
                 .arg(result.damage));
    if (json) {
        const QJsonObject document{{u"path"_s, result.path},
                                   {u"title"_s, Platform::stringForm(tags.value(AudioRecordEntry::Title))},
                                   {u"seconds"_s, double(seconds)}};
        print(QString::fromUtf8(QJsonDocument(document).toJson().trimmed()));
    } else {
        print(result.path);
    }
    return Done;
}

int run(const QStringList& given) {
    Arguments arguments(given, ringtoneCommand);
    RingtoneFile::Task task;
    task.from = float(arguments.seconds(u"from"_s, 0));
    task.to = float(arguments.seconds(u"to"_s, 0));
    task.fadeIn = float(arguments.seconds(u"fade-in"_s, RingtoneFile::kFadeSeconds));
    task.fadeOut = float(arguments.seconds(u"fade-out"_s, RingtoneFile::kFadeSeconds));
    if (!arguments.problem().isEmpty())
        return wrongUsage(ringtoneCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(ringtoneCommand, QCoreApplication::translate("CommandLine", "ringtone takes one file"));
    if (!arguments.isSet(u"from"_s) || !arguments.isSet(u"to"_s))
        return wrongUsage(ringtoneCommand,
                          QCoreApplication::translate("CommandLine", "ringtone needs --from and --to"));
    if (task.to <= task.from)
        return wrongUsage(ringtoneCommand, QCoreApplication::translate("CommandLine", "--to is not after --from"));
    task.source = QFileInfo(arguments.positional().constFirst()).absoluteFilePath();
    return make(task, arguments.isSet(u"json"_s));
}

} // namespace

const Command ringtoneCommand{
    "ringtone",
    "FILE",
    QT_TRANSLATE_NOOP("CommandLine", "make a ringtone from a range of a recording and add it to the library"),
    {{"from", "S", QT_TRANSLATE_NOOP("CommandLine", "Begin at second S of the recording.")},
     {"to", "S", QT_TRANSLATE_NOOP("CommandLine", "End at second S of the recording.")},
     {"fade-in", "S",
      QT_TRANSLATE_NOOP("CommandLine", "Fade in over S seconds; a fade shorter than one second is left out."), "5"},
     {"fade-out", "S",
      QT_TRANSLATE_NOOP("CommandLine", "Fade out over S seconds; a fade shorter than one second is left out."), "5"},
     kJsonOption},
    {{"ringtone a.m4a --from 10 --to 40", QT_TRANSLATE_NOOP("CommandLine", "Make a ringtone of this half minute.")}},
    run};

} // namespace CommandLine
