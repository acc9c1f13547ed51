// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/BalanceCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Control/BalanceSave.h"
#include "Source/Control/FileTags.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/ProcessRequests/ControlRequests.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// Whether the running window plays the file.
bool windowPlays(const QString& path) {
    const auto answer = askWindow("playing");
    QByteArray rest;
    if (!answer || !ControlRequests::isOk(*answer, rest))
        return false;
    const QString played = QJsonDocument::fromJson(rest)[u"path"_s].toString();
    return !played.isEmpty() && QFileInfo(played).canonicalFilePath() == QFileInfo(path).canonicalFilePath();
}

/// The tracks that the library's entry names, else those beside the file.
RecordingTracks::Tracks tracksOf(const QString& mix) {
    const Dictionary entry = entryOf(mix);
    return RecordingTracks::isKeptFor(entry) ? RecordingTracks::found(entry) : RecordingTracks::besideFile(mix);
}

int balance(const QString& mix, const BalanceSettings& settings, const QString& to, bool json) {
    if (!QFileInfo(mix).isFile())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such file").arg(mix));
    BalanceSave::Task task{.tracks = tracksOf(mix), .settings = settings, .file = {}, .lowersToFit = true};
    if (!task.tracks.isWhole())
        return fail(QCoreApplication::translate("CommandLine", "%1: no tracks were kept of this recording").arg(mix));
    task.file.source = mix;
    task.file.replace = to.isEmpty();
    task.file.exportPath = AudioTrimSave::exportPath(to.isEmpty() ? mix : QFileInfo(to).absoluteFilePath());
    task.file.entry = FileTags::texts(mix);
    const QFileInfo target(task.file.exportPath);
    if (!task.file.replace && (target.exists() || target.isSymLink()))
        return fail(QCoreApplication::translate("CommandLine", "%1: This path exists, please change the path or name.")
                        .arg(task.file.exportPath));
    if (!QFileInfo(target.path()).isDir())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such folder").arg(target.path()));
    if (task.file.replace && windowPlays(mix))
        return fail(QCoreApplication::translate("CommandLine", "%1: the file is being played").arg(mix));

    const auto folder =
        Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".balance"_s);
    if (!folder)
        return fail(folder.error().text);
    g_strTmpPath = folder->path();
    const Interrupt interrupt;
    BalanceSave::Result result;
    {
        ProgressBar bar(target.fileName());
        result = BalanceSave::run(task, [&bar](double share) {
            bar.show(share);
            return !Interrupt::requested();
        });
    }
    if (!result.file.done)
        return fail(u"%1: %2"_s.arg(mix, result.file.problem));
    if (result.tooLoud > 0) {
        const QString lowered =
            QCoreApplication::translate("CommandLine", "both gains were lowered by %1 dB, so that nothing is clipped")
                .arg(QString::number(result.tooLoud, 'f', 2));
        std::fprintf(stderr, "sonaphex: %s\n", qUtf8Printable(lowered));
    }
    QString problem;
    if (task.file.replace)
        problem = tellLibrary(mix, {{AudioRecordEntry::Length, result.seconds}},
                              QCoreApplication::translate("CommandLine", "the new mix is saved"));
    if (!problem.isEmpty())
        return fail(problem);
    result.file.note->end();
    if (json)
        print(QString::fromUtf8(QJsonDocument(QJsonObject{{u"path"_s, task.file.exportPath},
                                                          {u"inputGain"_s, result.settings.inputGain},
                                                          {u"computerGain"_s, result.settings.computerGain},
                                                          {u"delay"_s, result.settings.delayMs},
                                                          {u"seconds"_s, result.seconds}})
                                    .toJson()
                                    .trimmed()));
    return Done;
}

int run(const QStringList& given) {
    const Arguments arguments(given, balanceCommand);
    QString problem = arguments.problem();
    const auto number = [&](const QString& option) {
        bool isNumber = true;
        const double value = arguments.isSet(option) ? arguments.value(option).toDouble(&isNumber) : 0;
        if (!isNumber && problem.isEmpty())
            problem = QCoreApplication::translate("CommandLine", "--%1: %2 is not a number")
                          .arg(option, arguments.value(option));
        return isNumber ? value : 0;
    };
    const BalanceSettings settings{number(u"input-gain"_s), number(u"computer-gain"_s), number(u"delay"_s)};
    if (problem.isEmpty() && arguments.positional().size() != 1)
        problem = QCoreApplication::translate("CommandLine", "balance takes one file");
    if (problem.isEmpty() && !settings.isSane())
        problem = QCoreApplication::translate("CommandLine",
                                              "gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds");
    if (problem.isEmpty() && arguments.isSet(u"to"_s) && arguments.value(u"to"_s).isEmpty())
        problem = QCoreApplication::translate("CommandLine", "--to names no file");
    if (!problem.isEmpty())
        return wrongUsage(balanceCommand, problem);
    EditNote::recover(MediaLibraryRequests::retag);
    return balance(QFileInfo(arguments.positional().constFirst()).absoluteFilePath(), settings,
                   arguments.value(u"to"_s), arguments.isSet(u"json"_s));
}

} // namespace

const Command balanceCommand{
    "balance",
    "FILE",
    QT_TRANSLATE_NOOP("CommandLine", "mix the kept tracks of a recording anew, in its place or into a new file"),
    {{"input-gain", "DB",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Make the input louder by DB decibels, or softer when it is negative; -60 is silence."),
      "0"},
     {"computer-gain", "DB",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence."),
      "0"},
     {"delay", "MS",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000."),
      "0"},
     {"to", "DST",
      QT_TRANSLATE_NOOP("CommandLine", "Write a new file and leave the recording as it is. An existing file is kept."),
      QT_TRANSLATE_NOOP("CommandLine", "the recording is replaced")},
     kJsonOption},
    {{"balance Track3.m4a --input-gain 6 --computer-gain -4",
      QT_TRANSLATE_NOOP("CommandLine", "Make the microphone louder against what the computer played.")},
     {"balance Track3.m4a --delay 120 --to b.m4a",
      QT_TRANSLATE_NOOP("CommandLine", "Move computer audio 120 milliseconds later, in a new file.")}},
    run};

} // namespace CommandLine
