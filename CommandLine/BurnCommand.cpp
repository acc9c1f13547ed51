// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine/BurnCommand.h"

#include "CommandLine/Arguments.h"
#include "CommandLine/Interrupt.h"
#include "CommandLine/ProgressBar.h"
#include "CommandLine/SettledDrives.h"
#include "Platform/Foundation/NotificationCenter.h"
#include "Platform/Foundation/Services.h"
#include "Source/CDBurn/BurnControl.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>

using namespace Qt::StringLiterals;
using Platform::NotificationCenter;

namespace CommandLine {
namespace {

struct Task {
    QStringList files;
    QString drive; ///< a name, or a path like /dev/sr0; empty: the first drive
    QString image; ///< empty: burn a real disc
    bool eject = false;
    bool json = false;
};

using Drives = std::vector<std::shared_ptr<Platform::DRDevice>>;

/// The index of the requested drive. @return -1 with the reason in @p why when there is none
int chosen(const Drives& drives, const Task& task, QString& why) {
    const auto isImage = [](const auto& drive) { return drive->path().isEmpty(); };
    const auto found = std::ranges::find_if(drives, [&](const auto& drive) {
        if (!task.image.isEmpty())
            return isImage(drive);
        if (task.drive.isEmpty())
            return !isImage(drive);
        return drive->displayName() == task.drive || (!isImage(drive) && drive->path() == task.drive);
    });
    if (found != drives.end())
        return int(found - drives.begin());
    why =
        task.drive.isEmpty()
            ? QCoreApplication::translate("CommandLine",
                                          "there is no drive that writes discs (--image FILE writes a disc image)")
            : QCoreApplication::translate("CommandLine", "%1: there is no such drive (\"sonaphex drives\" lists them)")
                  .arg(task.drive);
    return -1;
}

/// Why this drive cannot burn now; empty when it can.
QString discProblem(const Platform::DRDevice& drive) {
    const Platform::DRDeviceStatus status = drive.status();
    if (!status.problem.isEmpty())
        return u"%1: %2"_s.arg(drive.displayName(), status.problem);
    if (status.isBusy)
        return QCoreApplication::translate("CommandLine", "%1: the drive is busy").arg(drive.displayName());
    if (status.mediaState != Platform::DRDeviceMediaStateMediaPresent)
        return QCoreApplication::translate("CommandLine", "%1: there is no disc in the drive").arg(drive.displayName());
    if (!drive.mediaIsBlank())
        return (drive.mediaIsErasable()
                    ? QCoreApplication::translate("CommandLine",
                                                  "%1: the disc is not blank: erase it, or put another one in")
                    : QCoreApplication::translate("CommandLine", "%1: the disc is not blank: put another one in"))
            .arg(drive.displayName());
    return {};
}

void printJson(const Platform::DRDevice& drive, const Task& task, const Platform::DRLayout& layout) {
    QJsonArray tracks;
    qint64 at = 0;
    for (const auto& track : layout) {
        const qint64 gap = track->properties().preGapLength;
        tracks.append(QJsonObject{{u"path"_s, track->path()},
                                  {u"preGap"_s, gap},
                                  {u"start"_s, at + gap},
                                  {u"sectors"_s, qint64(track->sectors())},
                                  {u"seconds"_s, double(track->sectors()) / 75}});
        at += gap + track->sectors();
    }
    const QJsonObject all{{u"drive"_s, drive.displayName()},
                          {u"image"_s, task.image.isEmpty() ? QJsonValue() : QJsonValue(task.image)},
                          {u"tracks"_s, tracks},
                          {u"sectors"_s, at}};
    print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Indented).trimmed()));
}

/// Runs the event loop until the burn has ended. @return whether it succeeded
bool waitForTheEnd(BurnControl& control) {
    enum class End { NotYet, Done, Failed } end = End::NotYet;
    double share = -1;
    auto& center = NotificationCenter::defaultCenter();
    const auto progress =
        center.addObserver(BurnControlBurnProgressNotification, [&](const QString&, const Dictionary& info) {
            share = Platform::doubleValue(info.value(kBurnProgressKey));
        });
    const auto finished = center.addObserver(BurnControlBurnDidFininshNotification,
                                             [&](const QString&, const Dictionary&) { end = End::Done; });
    const auto failed = center.addObserver(BurnControlBurnDidFailedNotification,
                                           [&](const QString&, const Dictionary&) { end = End::Failed; });
    ProgressBar bar(QCoreApplication::translate("CommandLine", "burning"));
    bool stopping = false;
    const auto burn = control.burn();
    while (end == End::NotYet && burn) {
        turnTheEventLoop();
        bar.show(std::max(0.0, share));
        if (!Interrupt::requested())
            continue;
        // After this the engine posts nothing until the drive has stopped.
        if (!stopping)
            control.stopBurn();
        stopping = true;
        const auto state = burn->status().state;
        if (state == Platform::DRStatusStateFailed || state == Platform::DRStatusStateDone)
            end = state == Platform::DRStatusStateDone ? End::Done : End::Failed;
    }
    return end == End::Done;
}

int burn(const Task& task) {
    // The engine's log is meant for the window; here the progress bar and one line report everything.
    QLoggingCategory::setFilterRules(u"sonaphex.burn.info=false\nsonaphex.burn.warning=false"_s);
    auto& recording = *Platform::services().discRecording;
    const Interrupt interrupt;
    recording.setImagePath(task.image);
    // The image drive does not need the state of the other drives.
    const Drives drives = task.image.isEmpty() ? settledDrives() : recording.devices();
    QString why;
    const int index = chosen(drives, task, why);
    if (index < 0)
        return fail(why);
    const Platform::DRDevice& drive = *drives[std::size_t(index)];
    if (const QString problem = discProblem(drive); !problem.isEmpty())
        return fail(problem);

    BurnControl control;
    control.setUseCDRom(std::uint32_t(index));
    QList<Dictionary> entries;
    for (const QString& file : task.files)
        entries.append({{TrackEntry::FilePath, QFileInfo(file).absoluteFilePath()},
                        {TrackEntry::FileName, QFileInfo(file).fileName()},
                        {TrackEntry::ChooseTheAudio, true}});
    control.burnMusicToCD(entries, task.eject);
    if (!control.burn())
        return fail(QCoreApplication::translate("CommandLine", "%1: no burn can be made with this drive")
                        .arg(drive.displayName()));
    if (!waitForTheEnd(control)) {
        const QString reason = control.failureReason();
        if (control.layout().empty())
            return fail(QCoreApplication::translate("CommandLine", "%1; nothing was burned").arg(reason));
        return fail(reason.isEmpty() ? QCoreApplication::translate("CommandLine", "the burn failed") : reason);
    }
    if (task.json)
        printJson(drive, task, control.layout());
    return Done;
}

int run(const QStringList& given) {
    Arguments arguments(given, burnCommand);
    if (!arguments.problem().isEmpty())
        return wrongUsage(burnCommand, arguments.problem());
    const Task task{arguments.positional(), arguments.value(u"drive"_s), arguments.value(u"image"_s),
                    arguments.isSet(u"eject"_s), arguments.isSet(u"json"_s)};
    if (task.files.isEmpty())
        return wrongUsage(burnCommand,
                          QCoreApplication::translate("CommandLine", "burn takes the files that become tracks"));
    if (arguments.isSet(u"image"_s) && task.image.isEmpty())
        return wrongUsage(burnCommand, QCoreApplication::translate("CommandLine", "--image takes the name of a file"));
    if (!task.image.isEmpty() && !task.drive.isEmpty())
        return wrongUsage(burnCommand,
                          QCoreApplication::translate("CommandLine", "--image and --drive exclude each other"));
    return burn(task);
}

} // namespace

const Command burnCommand{
    "burn",
    "FILE...",
    QT_TRANSLATE_NOOP("CommandLine", "burn sound files as an audio CD, one track each, or write a disc image"),
    {{"drive", "NAME",
      QT_TRANSLATE_NOOP("CommandLine", "The drive, by its name or its path (\"sonaphex drives\" lists them)."),
      QT_TRANSLATE_NOOP("CommandLine", "the first drive")},
     {"image", "FILE",
      QT_TRANSLATE_NOOP("CommandLine",
                        "Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.")},
     {"eject", "", QT_TRANSLATE_NOOP("CommandLine", "Eject the disc when it is done.")},
     kJsonOption},
    {{"burn one.m4a two.m4a --eject", QT_TRANSLATE_NOOP("CommandLine", "Burn two tracks and eject the disc.")},
     {"burn *.m4a --image concert", QT_TRANSLATE_NOOP("CommandLine", "Write concert.cue and concert.bin.")}},
    run};

} // namespace CommandLine
