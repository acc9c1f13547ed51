// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/WaveformCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/PartFile.h"
#include "CommandLine/ProgressBar.h"
#include "RingtoneMaker/AudioExtractWave.h"
#include "RingtoneMaker/WaveImage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {

namespace {

/// The fewest digits that give the same float when they are read back.
QString exact(float value) {
    return QString::number(double(value), 'g', 9);
}

QString drawTo(const QString& target, bool overwrite, const QList<float>& values) {
    PartFile part(target, overwrite);
    if (const auto problem = part.problem(); !problem.isEmpty())
        return problem;
    const auto picture = WaveImage::drawOnStrip(values);
    if (picture.isNull())
        return QCoreApplication::translate("CommandLine", "%1: %n values are too few for a picture", nullptr,
                                           int(values.size()))
            .arg(target);
    QImageWriter writer(part.path(), "png");
    if (!writer.write(picture))
        return u"%1: %2"_s.arg(target, writer.errorString());
    return part.commit();
}

int run(const QStringList& given) {
    Arguments arguments(given, waveformCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(waveformCommand, arguments.problem());
    if (arguments.positional().size() != 1)
        return wrongUsage(waveformCommand, QCoreApplication::translate("CommandLine", "waveform takes one file"));
    const auto source = arguments.positional().constFirst();

    const Interrupt interrupt;
    AudioExtractWave wave;
    if (!wave.openFile(source))
        return fail(wave.error().text);
    QList<float> values;
    {
        ProgressBar bar(QFileInfo(source).fileName());
        wave.setProgress([&bar](double share) {
            bar.show(share);
            return !Interrupt::requested();
        });
        values = wave.extractSamplePoint();
    }
    if (Interrupt::requested())
        return fail(QCoreApplication::translate("CommandLine", "stopped before the end"));
    if (const auto damage = wave.error())
        fail(QCoreApplication::translate("CommandLine", "the file is damaged, what could be read is shown: %1")
                 .arg(damage.text));

    if (arguments.isSet(u"png"_s))
        if (const auto problem = drawTo(arguments.value(u"png"_s), arguments.isSet(u"overwrite"_s), values);
            !problem.isEmpty())
            return fail(problem);
    if (arguments.isSet(u"json"_s)) {
        QJsonArray list;
        for (const auto value : values)
            list.append(double(value));
        print(QString::fromUtf8(QJsonDocument({{u"path"_s, QFileInfo(source).absoluteFilePath()},
                                               {u"valuesPerSecond"_s, WaveImage::kPointsPerSecond},
                                               {u"values"_s, list}})
                                    .toJson(QJsonDocument::Compact)));
    } else if (!arguments.isSet(u"png"_s)) {
        QStringList lines;
        for (const auto value : values)
            lines.append(exact(value));
        if (!lines.isEmpty())
            print(lines.join(u'\n'));
    }
    return Done;
}

} // namespace

const Command waveformCommand{
    "waveform",
    "SRC",
    QT_TRANSLATE_NOOP("CommandLine", "print ten values of a file's outline for each second"),
    {{"png", "FILE", QT_TRANSLATE_NOOP("CommandLine", "Draw the outline into a PNG file instead of printing it.")},
     {"overwrite", "", QT_TRANSLATE_NOOP("CommandLine", "Replace FILE when it exists.")},
     kJsonOption},
    {{"waveform a.m4a --png outline.png", QT_TRANSLATE_NOOP("CommandLine", "Draw the outline of a recording.")}},
    run};

} // namespace CommandLine
