// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/ProcessRequests/ControlRequests.h"

#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/ProcessRequests/MediaLibraryRequests.h"
#include "Source/Record/RecordStateController.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Ok = "ok";

/// The reason is English on the way between the processes; the one that shows it translates it.
QByteArray failed(const QByteArray& why) {
    return "failed " + why;
}

QByteArray compact(const QJsonDocument& document) {
    return document.toJson(QJsonDocument::Compact);
}

} // namespace

ControlRequests::ControlRequests(RecordStateController& controller, MediaLibrary* library)
    : controller_(controller), library_(library) {
}

Platform::RunningProgram::Reply ControlRequests::answer(const QByteArray& request) {
    const QByteArray line = request.trimmed();
    const auto blank = line.indexOf(' ');
    const QByteArray command = blank < 0 ? line : line.left(blank);
    const QByteArray rest = blank < 0 ? QByteArray() : line.mid(blank + 1);
    if (command == "start-stop") {
        if (!controller_.isStateAudioCanStartRecord())
            return failed(controller_.canRecord()
                              ? QT_TRANSLATE_NOOP("ControlRequests", "the program is ending")
                              : QT_TRANSLATE_NOOP("ControlRequests", "there is no source to record"));
        return {Ok, [&controller = controller_] { controller.startAndStopRecord(); }};
    }
    if (command == "pause-resume" || command == "split") {
        if (!controller_.isStateAudioRecord())
            return failed(QT_TRANSLATE_NOOP("ControlRequests", "nothing is being recorded"));
        const auto act =
            command == "split" ? &RecordStateController::splitTheRecord : &RecordStateController::pauseAndResumeRecord;
        return {Ok, [&controller = controller_, act] { (controller.*act)(); }};
    }
    if (command == "status")
        return Ok + ' ' + compact(QJsonDocument(QJsonObject::fromVariantMap(status())));
    if (command == "library-add")
        return addToLibrary(rest);
    if (const auto answered = MediaLibraryRequests::answer(line))
        return *answered;
    return failed(QT_TRANSLATE_NOOP("ControlRequests", "unknown request"));
}

Dictionary ControlRequests::status() const {
    const int state = controller_.recordState_();
    QString word = u"idle"_s;
    if (state == 1)
        word = u"recording"_s;
    else if (state == 2)
        word = u"paused"_s;
    else if (controller_.isStateAudioRecord() && controller_.isWaittingForSound())
        word = u"armed"_s;
    return {{u"state"_s, word},
            {u"seconds"_s, double(controller_.fRecordTime())},
            {u"queue"_s, controller_.jobsInQueue()},
            {u"lostFrames"_s, qulonglong(controller_.lostFrames())},
            {u"notices"_s, controller_.notices()}};
}

QByteArray ControlRequests::addToLibrary(const QByteArray& json) const {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QString path = object.value(u"path").toString();
    if (!QFileInfo(path).isAbsolute())
        return failed(QT_TRANSLATE_NOOP("ControlRequests", "there is no path"));
    Dictionary entry = object.value(u"tags").toObject().toVariantMap();
    // JSON has only one number type.
    entry.insert(AudioRecordEntry::Year, entry.value(AudioRecordEntry::Year).toInt());
    if (entry.value(AudioRecordEntry::NodeDataKey).toString().isEmpty())
        entry.remove(AudioRecordEntry::NodeDataKey);
    MediaLibrary& library = library_ ? *library_ : MediaLibrary::shareLibrary();
    library.takeUpMediaLibraryList(); // entries that other processes stored without asking this one
    library.addRecordFile(MediaLibrary::entryForFile(path, entry));
    return Ok;
}

QByteArray ControlRequests::libraryAdd(const QString& path, const Dictionary& tags) {
    const QJsonObject object{{u"path"_s, path}, {u"tags"_s, QJsonObject::fromVariantMap(tags)}};
    return "library-add " + compact(QJsonDocument(object));
}

bool ControlRequests::isOk(const QByteArray& answer, QByteArray& rest) {
    const bool ok = answer == Ok || answer.startsWith(Ok + ' ');
    const auto blank = answer.indexOf(' ');
    rest = blank < 0 ? QByteArray() : answer.mid(blank + 1).trimmed();
    return ok;
}
