// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/ConvertCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/PartFile.h"
#include "CommandLine/ProgressBar.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/ConverterAudioControl.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {

std::optional<int> outputType(const QString& name) {
    if (name == u"wav")
        return 0;
    if (name == u"m4a" || name == u"m4r")
        return 1;
    if (name == u"caf")
        return 2;
    return {};
}

struct Task {
    QString source;
    QString target;
    int type = 1;
    bool overwrite = false;
    bool fading = false;
    double from = 0;
    double to = 0; ///< 0 means the end
    double fadeIn = 0;
    double fadeOut = 0;
    double length = 0; ///< 0 means the length of the range
};

/// The message for a failed copy.
QString failure(const ConverterAudioControl& converter, const QString& source) {
    if (Interrupt::requested())
        return QCoreApplication::translate("CommandLine", "stopped before the end: nothing was written");
    const auto error = converter.sourceError();
    return error ? error.text : QCoreApplication::translate("CommandLine", "%1 cannot be converted").arg(source);
}

/// Output errors name the hidden file that is being written; the message must name the target.
int failOutput(Platform::Error error, const PartFile& part, const QString& target) {
    return fail(error.text.replace(part.path(), target));
}

int convert(const Task& task) {
    PartFile part(task.target, task.overwrite);
    if (const auto problem = part.problem(); !problem.isEmpty())
        return fail(problem);

    auto to = task.to;
    auto length = task.length;
    if (task.fading || task.from > 0) {
        const auto info = Platform::services().mediaFiles->info(task.source);
        if (!info)
            return fail(info.error().text);
        if (task.from >= info->seconds)
            return fail(QCoreApplication::translate("CommandLine",
                                                    "%1: it ends at second %2, there is nothing from second %3 on")
                            .arg(task.source, QString::number(info->seconds), QString::number(task.from)));
        if (task.fading && to <= 0)
            to = info->seconds;
        if (task.fading && length <= 0)
            length = to - task.from;
    }

    const Interrupt interrupt;
    ConverterAudioControl converter;
    if (!converter.createOutPutFile(part.path(), task.type))
        return failOutput(converter.exportError(), part, task.target);
    bool copied = false;
    {
        ProgressBar bar(QFileInfo(task.target).fileName());
        converter.setProgress([&bar](double share) {
            bar.show(share);
            return !Interrupt::requested();
        });
        copied = task.fading ? converter.startFadeInFadeOutConverterSource(task.source, float(task.from), float(to),
                                                                           float(task.fadeIn), float(task.fadeOut),
                                                                           float(length))
                             : converter.startConverterSource(task.source, float(task.from), float(to));
    }
    converter.closeExportFile();
    if (!copied)
        return fail(failure(converter, task.source));
    if (const auto error = converter.exportError())
        return failOutput(error, part, task.target);
    if (const auto problem = part.commit(); !problem.isEmpty())
        return fail(problem);
    if (const auto damage = converter.sourceError())
        fail(QCoreApplication::translate("CommandLine", "the source is damaged, what could be read was converted: %1")
                 .arg(damage.text));
    return Done;
}

int run(const QStringList& given) {
    Arguments arguments(given, convertCommand);
    Task task;
    task.from = arguments.seconds(u"from"_s, 0);
    task.to = arguments.seconds(u"to"_s, 0);
    task.fadeIn = arguments.seconds(u"fade-in"_s, 0);
    task.fadeOut = arguments.seconds(u"fade-out"_s, 0);
    task.length = arguments.seconds(u"length"_s, 0);
    task.overwrite = arguments.isSet(u"overwrite"_s);
    for (const auto& option : {u"fade-in"_s, u"fade-out"_s, u"length"_s})
        task.fading |= arguments.isSet(option);
    if (!arguments.problem().isEmpty())
        return wrongUsage(convertCommand, arguments.problem());
    if (arguments.positional().size() != 2)
        return wrongUsage(convertCommand,
                          QCoreApplication::translate("CommandLine", "convert takes a source and a target"));
    task.source = arguments.positional().at(0);
    task.target = arguments.positional().at(1);
    const auto typeName =
        arguments.isSet(u"type"_s) ? arguments.value(u"type"_s) : QFileInfo(task.target).suffix().toLower();
    const auto type = outputType(typeName);
    if (!type)
        return wrongUsage(convertCommand, QCoreApplication::translate("CommandLine", "--type is wav, m4a or caf"));
    task.type = *type;
    // The engine treats a range shorter than this as "to the end".
    if (arguments.isSet(u"to"_s) && task.to < 0.1)
        return wrongUsage(convertCommand,
                          QCoreApplication::translate("CommandLine", "--to is a tenth of a second or more"));
    if (arguments.isSet(u"to"_s) && task.to <= task.from)
        return wrongUsage(convertCommand, QCoreApplication::translate("CommandLine", "--to is before --from"));
    return convert(task);
}

} // namespace

const Command convertCommand{
    "convert",
    "SRC DST",
    QT_TRANSLATE_NOOP("CommandLine", "copy a range of an audio file into a new file"),
    {{"type", "wav|m4a|caf", QT_TRANSLATE_NOOP("CommandLine", "The type of the new file."),
      QT_TRANSLATE_NOOP("CommandLine", "from the ending of DST")},
     {"from", "S", QT_TRANSLATE_NOOP("CommandLine", "Begin at second S of the source."), "0"},
     {"to", "S", QT_TRANSLATE_NOOP("CommandLine", "End at second S of the source."),
      QT_TRANSLATE_NOOP("CommandLine", "its end")},
     {"fade-in", "S",
      QT_TRANSLATE_NOOP("CommandLine", "Fade in over S seconds; a fade shorter than one second is left out."), "0"},
     {"fade-out", "S",
      QT_TRANSLATE_NOOP("CommandLine", "Fade out over S seconds; a fade shorter than one second is left out."), "0"},
     {"length", "S", QT_TRANSLATE_NOOP("CommandLine", "Repeat the range until the new file is S seconds long."),
      QT_TRANSLATE_NOOP("CommandLine", "the length of the range")},
     {"overwrite", "", QT_TRANSLATE_NOOP("CommandLine", "Replace DST when it exists.")}},
    {{"convert a.m4a b.wav --from 10 --to 20.5",
      QT_TRANSLATE_NOOP("CommandLine", "Copy ten and a half seconds into a WAVE file.")},
     {"convert a.m4a b.m4a --from 10 --to 20 --fade-in 1 --fade-out 2 --length 30",
      QT_TRANSLATE_NOOP("CommandLine", "Repeat ten seconds for half a minute, with fades.")}},
    run};

} // namespace CommandLine
