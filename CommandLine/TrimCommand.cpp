// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/TrimCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Control/AudioTrimSave.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Control/FileTags.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/ProcessRequests/ControlRequests.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

constexpr double kRounding = 0.001; ///< seconds: tolerance for a length that was copied from printed output

/// Whether the running window plays the file.
bool isPlayed(const QString& path) {
    const auto answer = askWindow("playing");
    QByteArray rest;
    if (!answer || !ControlRequests::isOk(*answer, rest))
        return false;
    const QString played = QJsonDocument::fromJson(rest)[u"path"_s].toString();
    return !played.isEmpty() && QFileInfo(played).canonicalFilePath() == QFileInfo(path).canonicalFilePath();
}

int trim(const QString& source, double from, double to, const QString& saveAs, bool json) {
    if (!QFileInfo(source).isFile())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such file").arg(source));
    const auto info = Platform::services().mediaFiles->info(source);
    if (!info)
        return fail(info.error().text);
    if (from >= info->seconds)
        return fail(
            QCoreApplication::translate("CommandLine", "%1: it ends at second %2, there is nothing from second %3 on")
                .arg(source, QString::number(info->seconds), QString::number(from)));
    if (to > info->seconds + kRounding)
        return fail(QCoreApplication::translate("CommandLine", "%1: it ends at second %2, --to is %3")
                        .arg(source, QString::number(info->seconds), QString::number(to)));
    if (to <= 0 || to > info->seconds)
        to = info->seconds;

    AudioTrimSave::Task task;
    task.source = source;
    task.replace = saveAs.isEmpty();
    task.exportPath = AudioTrimSave::exportPath(task.replace ? source : QFileInfo(saveAs).absoluteFilePath());
    task.from = float(from);
    task.to = float(to);
    task.entry = FileTags::texts(source);
    if (!task.replace && (QFileInfo::exists(task.exportPath) || QFileInfo(task.exportPath).isSymLink()))
        return fail(QCoreApplication::translate("CommandLine", "%1: This path exists, please change the path or name.")
                        .arg(task.exportPath));
    if (const QString into = QFileInfo(task.exportPath).path(); !QFileInfo(into).isDir())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such folder").arg(into));
    if (task.replace && isPlayed(source))
        return fail(QCoreApplication::translate("CommandLine", "%1: the file is being played").arg(source));

    const auto folder = Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".trim"_s);
    if (!folder)
        return fail(folder.error().text);
    g_strTmpPath = folder->path();
    const Interrupt interrupt;
    ConverterAudioControl converter;
    AudioTrimSave::Result result;
    {
        ProgressBar bar(QFileInfo(task.exportPath).fileName());
        result = AudioTrimSave::run(converter, task, [&bar](double share) {
            bar.show(share);
            return !Interrupt::requested();
        });
    }
    if (!result.done)
        return fail(u"%1: %2"_s.arg(source, result.problem));
    const double seconds = double(task.to) - double(task.from);
    QString problem;
    if (task.replace)
        problem = tellLibrary(source, {{AudioRecordEntry::Length, seconds}},
                              QCoreApplication::translate("CommandLine", "the file is trimmed"));
    if (!problem.isEmpty())
        return fail(problem);
    result.note->end();
    if (json)
        print(QString::fromUtf8(QJsonDocument(QJsonObject{{u"path"_s, task.exportPath},
                                                          {u"from"_s, double(task.from)},
                                                          {u"to"_s, double(task.to)},
                                                          {u"seconds"_s, seconds}})
                                    .toJson()
                                    .trimmed()));
    return Done;
}

int run(const QStringList& given) {
    Arguments arguments(given, trimCommand);
    const double from = arguments.seconds(u"from"_s, 0);
    const double to = arguments.seconds(u"to"_s, 0);
    if (!arguments.problem().isEmpty())
        return wrongUsage(trimCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(trimCommand, QCoreApplication::translate("CommandLine", "trim takes one file"));
    if (!arguments.isSet(u"from"_s) && !arguments.isSet(u"to"_s))
        return wrongUsage(trimCommand, QCoreApplication::translate("CommandLine", "trim takes --from, --to or both"));
    if (arguments.isSet(u"to"_s) && to - from < AudioTrimSave::kShortestRange)
        return wrongUsage(trimCommand, QCoreApplication::translate(
                                           "CommandLine", "--to must be at least a tenth of a second after --from"));
    if (arguments.isSet(u"save-as"_s) && arguments.value(u"save-as"_s).isEmpty())
        return wrongUsage(trimCommand, QCoreApplication::translate("CommandLine", "--save-as names no file"));
    EditNote::recover(MediaLibraryRequests::retag);
    return trim(QFileInfo(arguments.positional().constFirst()).absoluteFilePath(), from, to,
                arguments.value(u"save-as"_s), arguments.isSet(u"json"_s));
}

} // namespace

const Command trimCommand{
    "trim",
    "FILE",
    QT_TRANSLATE_NOOP("CommandLine", "cut a recording down to a range, in its place or into a new file"),
    {{"from", "S", QT_TRANSLATE_NOOP("CommandLine", "Begin at second S of the recording."), "0"},
     {"to", "S", QT_TRANSLATE_NOOP("CommandLine", "End at second S of the recording."),
      QT_TRANSLATE_NOOP("CommandLine", "its end")},
     {"save-as", "DST",
      QT_TRANSLATE_NOOP("CommandLine", "Write a new file and leave the recording as it is. An existing file is kept."),
      QT_TRANSLATE_NOOP("CommandLine", "the recording is replaced")},
     kJsonOption},
    {{"trim a.m4a --from 2.5 --to 60",
      QT_TRANSLATE_NOOP("CommandLine", "Cut off the first two and a half seconds and all after a minute.")},
     {"trim a.m4a --from 10 --to 20 --save-as b.m4a",
      QT_TRANSLATE_NOOP("CommandLine", "Copy ten seconds into a new recording.")}},
    run};

} // namespace CommandLine
