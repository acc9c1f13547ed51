// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/DrivesCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/SettledDrives.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// "no disc", "a blank CD-R, 79 min 57 s", ...
QString inWords(const Platform::DRDevice& drive) {
    const Platform::DRDeviceStatus status = drive.status();
    if (!status.problem.isEmpty())
        return status.problem;
    if (status.isBusy)
        return QCoreApplication::translate("CommandLine", "busy");
    if (status.mediaState == Platform::DRDeviceMediaStateInTransition)
        return QCoreApplication::translate("CommandLine", "the drive is not ready yet");
    if (status.mediaState == Platform::DRDeviceMediaStateNone)
        return QCoreApplication::translate("CommandLine", "no disc");
    const QString kind = status.mediaKind.isEmpty()
                             ? QCoreApplication::translate("CommandLine", "disc", "of unknown kind")
                             : QCoreApplication::translate("CommandLine", status.mediaKind.toUtf8().constData());
    if (!drive.mediaIsBlank())
        return drive.mediaIsErasable()
                   ? QCoreApplication::translate("CommandLine", "%1, not blank, can be erased").arg(kind)
                   : QCoreApplication::translate("CommandLine", "%1, not blank").arg(kind);
    const auto seconds = status.mediaBlocksFree / 75;
    return QCoreApplication::translate("CommandLine", "%1, blank, %2 min %3 s of audio")
        .arg(kind, QString::number(seconds / 60), QString::number(seconds % 60));
}

QString stateOf(const Platform::DRDeviceStatus& status) {
    switch (status.mediaState) {
    case Platform::DRDeviceMediaStateMediaPresent:
        return u"present"_s;
    case Platform::DRDeviceMediaStateInTransition:
        return u"changing"_s;
    default:
        return u"none"_s;
    }
}

int run(const QStringList& given) {
    Arguments arguments(given, drivesCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(drivesCommand, arguments.problem());
    if (!arguments.positional().isEmpty())
        return wrongUsage(drivesCommand, QCoreApplication::translate("CommandLine", "drives takes no names"));
    QJsonArray list;
    for (const auto& drive : settledDrives()) {
        const Platform::DRDeviceStatus status = drive->status();
        if (!arguments.isSet(u"json"_s)) {
            const QString where = drive->path().isEmpty() ? QString() : u" (%1)"_s.arg(drive->path());
            print(u"%1%2\t%3"_s.arg(drive->displayName(), where, inWords(*drive)));
            continue;
        }
        list.append(QJsonObject{{u"name"_s, drive->displayName()},
                                {u"path"_s, drive->path().isEmpty() ? QJsonValue() : QJsonValue(drive->path())},
                                {u"disc"_s, stateOf(status)},
                                {u"kind"_s, status.mediaKind.isEmpty() ? QJsonValue() : QJsonValue(status.mediaKind)},
                                {u"isBlank"_s, drive->mediaIsBlank()},
                                {u"isErasable"_s, drive->mediaIsErasable()},
                                {u"isBusy"_s, status.isBusy},
                                {u"freeSectors"_s, qint64(status.mediaBlocksFree)},
                                {u"maximumWriteSpeed"_s, double(status.maximumWriteSpeed)},
                                {u"problem"_s, status.problem.isEmpty() ? QJsonValue() : QJsonValue(status.problem)}});
    }
    if (arguments.isSet(u"json"_s)) {
        const QJsonObject all{{u"drives"_s, list}};
        print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented).trimmed()));
    }
    return Done;
}

} // namespace

const Command drivesCommand{"drives",
                            "",
                            QT_TRANSLATE_NOOP("CommandLine", "list the drives that write discs, and what is in them"),
                            {kJsonOption},
                            {{"drives --json", QT_TRANSLATE_NOOP("CommandLine", "List the drives for a script.")}},
                            run};

} // namespace CommandLine
