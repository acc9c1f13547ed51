// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/SplitCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Control/RecordingParts.h"
#include "Source/Control/SilenceFinder.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

constexpr int ShortestSilence = 50;   ///< milliseconds: a part is at least as long, see EncodedAudio::copy()
constexpr double LowestLevel = -120;  ///< decibels
constexpr double ShareOfSearch = 0.6; ///< of the progress bar

struct Task {
    QString source;
    QString folder;
    SilenceFinder::Rule rule;
    bool dryRun = false;
    bool json = false;
};

QString seconds(double value) {
    return QString::number(value, 'f', 3);
}

void printJson(const QJsonObject& object) {
    print(QString::fromUtf8(QJsonDocument(object).toJson().trimmed()));
}

/// Lists the cuts without writing anything.
int list(const SilenceFinder::Found& found, const std::vector<std::int64_t>& cuts, bool json) {
    const double longest = double(found.longest) / found.sampleRate;
    QJsonArray times;
    QStringList lines;
    for (const std::int64_t cut : cuts) {
        times.append(double(cut) / found.sampleRate);
        lines.append(seconds(double(cut) / found.sampleRate));
    }
    lines.append(QCoreApplication::translate("CommandLine", "longest silence found: %1 s").arg(seconds(longest)));
    if (json)
        printJson({{u"cuts"_s, times}, {u"longestSilence"_s, longest}});
    else
        print(lines.join(u'\n'));
    return Done;
}

int split(const Task& task) {
    const Interrupt interrupt;
    ProgressBar bar(QFileInfo(task.source).fileName());
    const auto found = SilenceFinder::find(task.source, task.rule, [&](double share) {
        bar.show(share * ShareOfSearch);
        return !Interrupt::requested();
    });
    if (!found)
        return fail(found.error().text);
    const auto cuts = SilenceFinder::cuts(*found);
    if (task.dryRun)
        return list(*found, cuts, task.json);
    if (cuts.empty())
        return fail(
            QCoreApplication::translate("CommandLine", "%1: no silence of %2 s; the longest one has %3 s")
                .arg(task.source, seconds(task.rule.seconds), seconds(double(found->longest) / found->sampleRate)));

    const auto folder =
        Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".split"_s);
    if (!folder)
        return fail(folder.error().text);
    g_strTmpPath = folder->path();
    const auto parts = RecordingParts::split(
        task.source, cuts, RecordingParts::partPaths(task.source, task.folder, cuts.size() + 1), [&](double share) {
            bar.show(ShareOfSearch + share * (1 - ShareOfSearch));
            return !Interrupt::requested();
        });
    if (!parts)
        return fail(parts.error().text);
    QString problem;
    QJsonArray described;
    QStringList paths;
    for (const auto& part : *parts) {
        if (const QString unlisted = addRecording(part.path, part.tags, part.seconds); problem.isEmpty())
            problem = unlisted;
        described.append(QJsonObject{{u"path"_s, part.path}, {u"seconds"_s, part.seconds}});
        paths.append(part.path);
    }
    if (task.json)
        printJson({{u"parts"_s, described}});
    else
        print(paths.join(u'\n'));
    return problem.isEmpty() ? Done : fail(problem);
}

int run(const QStringList& given) {
    Arguments arguments(given, splitCommand);
    Task task;
    task.rule.seconds = arguments.whole(u"silence"_s, 0) / 1000.0;
    if (!arguments.problem().isEmpty())
        return wrongUsage(splitCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(splitCommand, QCoreApplication::translate("CommandLine", "split takes one file"));
    if (arguments.whole(u"silence"_s, 0) < ShortestSilence)
        return wrongUsage(splitCommand, QCoreApplication::translate(
                                            "CommandLine", "split needs --silence with at least %1 milliseconds")
                                            .arg(ShortestSilence));
    if (arguments.isSet(u"level"_s)) {
        bool isNumber = false;
        task.rule.level = arguments.value(u"level"_s).toDouble(&isNumber);
        if (!isNumber || !(task.rule.level >= LowestLevel && task.rule.level < 0))
            return wrongUsage(splitCommand, QCoreApplication::translate("CommandLine",
                                                                        "--level takes decibels from -120 to below 0"));
    }
    task.source = QFileInfo(arguments.positional().constFirst()).absoluteFilePath();
    if (!QFileInfo(task.source).isFile())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such file").arg(task.source));
    task.folder = arguments.isSet(u"folder"_s) ? QFileInfo(arguments.value(u"folder"_s)).absoluteFilePath()
                                               : QFileInfo(task.source).path();
    if (!QFileInfo(task.folder).isDir())
        return fail(QCoreApplication::translate("CommandLine", "%1: there is no such folder").arg(task.folder));
    task.dryRun = arguments.isSet(u"dry-run"_s);
    task.json = arguments.isSet(u"json"_s);
    return split(task);
}

} // namespace

const Command splitCommand{
    "split",
    "FILE",
    QT_TRANSLATE_NOOP("CommandLine", "cut a recording into several at its silences, without encoding it again"),
    {{"silence", "MS",
      QT_TRANSLATE_NOOP("CommandLine", "Cut in the middle of each silence of at least MS milliseconds, 50 or more.")},
     {"level", "DB",
      QT_TRANSLATE_NOOP("CommandLine", "A silence lies below DB decibels of full scale, from -120 to below 0."), "-60"},
     {"folder", "DIR", QT_TRANSLATE_NOOP("CommandLine", "Put the parts into DIR."),
      QT_TRANSLATE_NOOP("CommandLine", "the folder of the recording")},
     {"dry-run", "", QT_TRANSLATE_NOOP("CommandLine", "Only list the cuts and the longest silence; write nothing.")},
     kJsonOption},
    {{"split a.m4a --silence 800",
      QT_TRANSLATE_NOOP("CommandLine", "Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.")},
     {"split a.m4a --silence 800 --level -50 --dry-run",
      QT_TRANSLATE_NOOP("CommandLine", "See where the cuts would be.")}},
    run};

} // namespace CommandLine
