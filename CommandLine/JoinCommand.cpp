// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/JoinCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/LibraryChange.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/TemporaryFolder.h"
#include "Source/Control/AudioTrimSave.h"
#include "Source/Control/RecordingParts.h"
#include "Source/Preferences/PreferenceStore.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

int join(const QStringList& sources, const QString& path, bool json) {
    const auto folder = Platform::TemporaryFolder::create(Platform::services().bundle->bundleIdentifier() + u".join"_s);
    if (!folder)
        return fail(folder.error().text);
    g_strTmpPath = folder->path();
    const Interrupt interrupt;
    bool encoded = false;
    const auto joined = [&] {
        ProgressBar bar(QFileInfo(path).fileName());
        return RecordingParts::join(
            sources, path,
            [&bar](double share) {
                bar.show(share);
                return !Interrupt::requested();
            },
            &encoded);
    }();
    if (!joined)
        return fail(joined.error().text);
    if (json)
        print(QString::fromUtf8(
            QJsonDocument(QJsonObject{{u"path"_s, path}, {u"seconds"_s, joined->seconds}, {u"encoded"_s, encoded}})
                .toJson()
                .trimmed()));
    else
        print(path);
    const QString problem = addRecording(path, joined->tags, joined->seconds);
    return problem.isEmpty() ? Done : fail(problem);
}

int run(const QStringList& given) {
    const Arguments arguments(given, joinCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(joinCommand, arguments.problem());
    if (arguments.positional().size() < 2)
        return wrongUsage(joinCommand, QCoreApplication::translate("CommandLine", "join takes two files or more"));
    if (arguments.value(u"to"_s).isEmpty())
        return wrongUsage(joinCommand,
                          QCoreApplication::translate("CommandLine", "join needs --to with the file to write"));
    QStringList sources;
    for (const QString& source : arguments.positional()) {
        sources.append(QFileInfo(source).absoluteFilePath());
        if (!QFileInfo(source).isFile())
            return fail(QCoreApplication::translate("CommandLine", "%1: there is no such file").arg(source));
    }
    const QString path = AudioTrimSave::exportPath(QFileInfo(arguments.value(u"to"_s)).absoluteFilePath());
    if (!QFileInfo(QFileInfo(path).path()).isDir())
        return fail(
            QCoreApplication::translate("CommandLine", "%1: there is no such folder").arg(QFileInfo(path).path()));
    return join(sources, path, arguments.isSet(u"json"_s));
}

} // namespace

const Command joinCommand{
    "join",
    "FILE...",
    QT_TRANSLATE_NOOP("CommandLine", "make one recording of several, in the given order"),
    {{"to", "DST", QT_TRANSLATE_NOOP("CommandLine", "The recording to write. An existing file is kept.")}, kJsonOption},
    {{"join \"a 1.m4a\" \"a 2.m4a\" --to b.m4a",
      QT_TRANSLATE_NOOP(
          "CommandLine",
          "Join two parts of one recording without encoding them again. Other files are decoded and encoded.")}},
    run};

} // namespace CommandLine
