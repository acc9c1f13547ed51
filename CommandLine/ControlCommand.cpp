// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/ControlCommand.h"

#include "CommandLine/Arguments.h"
#include "Platform/Desktop/Activation.h"
#include "Platform/Foundation/Translations.h"
#include "Source/ProcessRequests/ControlRequests.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// A state of the JSON document, for people.
QString inWords(const QString& state) {
    if (state == u"idle"_s)
        return QCoreApplication::translate("CommandLine", "idle", "no recording");
    if (state == u"armed"_s)
        return QCoreApplication::translate("CommandLine", "armed", "waits for the first sound");
    if (state == u"recording"_s)
        return QCoreApplication::translate("CommandLine", "recording", "now");
    if (state == u"paused"_s)
        return QCoreApplication::translate("CommandLine", "paused");
    return state;
}

void showStatus(const QByteArray& json, bool asJson) {
    const auto document = QJsonDocument::fromJson(json);
    if (asJson) {
        print(QString::fromUtf8(document.toJson(QJsonDocument::Indented).trimmed()));
        return;
    }
    const QString state = document[u"state"].toString();
    const int queue = document[u"queue"].toInt();
    const int seconds = int(document[u"seconds"].toDouble());
    QString line = inWords(state);
    if (state == u"recording"_s || state == u"paused"_s)
        line += u" %1:%2"_s.arg(seconds / 60, 2, 10, QChar(u'0')).arg(seconds % 60, 2, 10, QChar(u'0'));
    if (queue > 0)
        line = QCoreApplication::translate("CommandLine", "%1, %2 being finished")
                   .arg(line, Platform::Translations::number(queue));
    print(line);
}

int run(const QStringList& given) {
    const Arguments parsed(given, controlCommand);
    if (!parsed.problem().isEmpty())
        return wrongUsage(controlCommand, parsed.problem());
    const QStringList arguments = parsed.positional();
    const bool json = parsed.isSet(u"json"_s);
    const QStringList known{u"start-stop"_s, u"pause-resume"_s, u"split"_s, u"show"_s, u"status"_s};
    if (arguments.size() != 1 || !known.contains(arguments.front()))
        return wrongUsage(
            controlCommand,
            arguments.isEmpty()
                ? QCoreApplication::translate("CommandLine", "control takes a command")
                : QCoreApplication::translate("CommandLine", "%1: no such command").arg(arguments.join(u' ')));
    const QString& command = arguments.front();

    QByteArray request = command.toUtf8();
    if (command == u"show"_s)
        request = (request + ' ' + Platform::Activation::launchToken()).trimmed();
    const auto answer = askWindow(request);
    if (!answer)
        return fail(QCoreApplication::translate("CommandLine", "the program is not running"));
    QByteArray rest;
    if (!ControlRequests::isOk(*answer, rest))
        return fail(u"%1: %2"_s.arg(command, QCoreApplication::translate("ControlRequests", rest.constData())));
    if (command == u"status"_s)
        showStatus(rest, json);
    else if (json)
        print(QString::fromUtf8(QJsonDocument(QJsonObject{{u"done"_s, command}}).toJson(QJsonDocument::Compact)));
    return Done;
}

} // namespace

const Command controlCommand{
    "control",
    "start-stop|pause-resume|split|show|status",
    QT_TRANSLATE_NOOP("CommandLine", "act on the running program"),
    {kJsonOption},
    {{"control start-stop", QT_TRANSLATE_NOOP("CommandLine", "Start a recording in the open window, or stop it.")},
     {"control status --json",
      QT_TRANSLATE_NOOP("CommandLine", "Print the state of the running program for a script.")}},
    run};

} // namespace CommandLine
