// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The notices of the record state controller: devices that disappear, lost audio, silent sources, disks that fill up.
#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Source/Record/ExportNote.h"
#include "Source/Record/RecordStateControllerPrivate.h"
#include "Source/Record/UnfinishedRecordings.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Ticks of the display's clock between two queries of the disks: 5 s. A full disk is queried at each tick.
constexpr int TicksBetweenLooks = 10;
/// Remaining minutes at which the notice about a nearly full disk appears, also again after it was dismissed.
constexpr std::array Stages{60, 30, 15, 10, 5, 2, 1};
/// Below this, the display shows how long the recording can continue.
constexpr double ShownRoom = 10 * 3600;
/// The recording continues on a full disk when this many more bytes are free: an hour of one source.
constexpr qint64 EnoughBytes = 64'000'000;

/// Seconds of digital silence after which a source is named.
constexpr double LongSilence = 10;

const QString DiskEvent = u"disk"_s;

/// Seconds as text: in thousandths below one second, else in tenths.
QString secondsText(double seconds) {
    return Platform::Translations::decimal(seconds, 'f', seconds < 1 ? 3 : 1);
}

double secondsSince(std::uint64_t hostTime) {
    return double(Platform::services().clock->hostTime() - hostTime) * 1e-9;
}

} // namespace

QStringList RecordStateController::notices() const {
    return d->notices_.sentences();
}

const QList<RecordNotice>& RecordStateController::noticeList() const {
    return d->notices_.list();
}

void RecordStateController::dismissNotices() {
    d->notices_.dismiss();
}

void RecordStateController::dismissNotice(const QString& event) {
    d->notices_.dismiss(event);
}

QStringList RecordStateController::takeNotices() {
    return d->notices_.take();
}

void RecordStateController::tellUnfinishedRecordings() {
    if (const auto notice = UnfinishedRecordings::notice())
        d->notices_.show(*notice);
}

void RecordStateController::finishInterruptedRecordings() {
    for (auto& job : ExportNote::interrupted())
        d->queue->append(std::move(job));
}

bool RecordStateController::isGrowing() const {
    return d->grows();
}

QString RecordStateController::writeProblem() const {
    return d->writeError().text;
}

Platform::Error RecordStateController::Private::writeError() const {
    for (const RecordSource& source : sources)
        if (source.writes())
            if (auto error = source.engine->writeError())
                return error;
    return {};
}

/// A recording without any file counts as growing: its start has already reported that nothing is written.
bool RecordStateController::Private::grows() const {
    bool isBroken = false;
    for (const RecordSource& source : sources) {
        if (!source.writes())
            continue;
        if (!source.engine->writeError())
            return true;
        isBroken = true;
    }
    return !isBroken;
}

/// Drops the notice about an incomplete file when the notice about the full disk is already shown.
void RecordStateController::Private::queueNotice(const RecordNotice& message) {
    const auto isSameEvent = [&](const RecordNotice& other) { return other.event == message.event; };
    if (message.event == RecordQueue::UnwrittenEvent && std::ranges::any_of(notices_.list(), isSameEvent))
        return;
    notice(message);
}

/// Always posted: callers may hold the mutex, and receivers of noticesChanged() read the state, which locks it.
void RecordStateController::Private::notice(RecordNotice notice) {
    alive.post([this, number = recordingNumber_.load(), notice = std::move(notice)] {
        if (number == recordingNumber_ || notice.outlivesRecording || !notice.kept.isEmpty())
            notices_.show(notice);
    });
}

void RecordStateController::Private::withdrawNotice(const QString& event) {
    alive.post([this, event] { notices_.withdraw(event); });
}

void RecordStateController::Private::deviceEvent(Platform::InputUnit::Event event, RecordSource& source) {
    using Event = Platform::InputUnit::Event;
    const bool isLoss = event == Event::DeviceLost || event == Event::ServerLost;
    // Without this the display would show the level of the last cycle until the next one arrives.
    if (isLoss || event == Event::NothingComes)
        (&source == &builtIn ? builtInLevelValue_ : computerLevelValue_) = 0;
    if (!isLoss && event != Event::DeviceReturned && event != Event::ServerReturned)
        return;
    bool records = false;
    bool waits = false;
    {
        const std::scoped_lock lock(mutex);
        records = source.engine->recordStatus() != 0;
        waits = !records && state == RecordState::Armed && source.takesPart();
        source.away = isLoss;
        if (isLoss && records)
            source.wasAway = true;
    }
    if (!isLoss && &source == &computer)
        keepPrograms();
    if (!records && !waits)
        return;
    RecordNotice message;
    message.event = u"away "_s + source.label;
    if (isLoss) {
        if (source.awaySince == 0)
            source.awaySince = Platform::services().clock->hostTime();
        const QString what =
            event == Event::DeviceLost ? source.label : QCoreApplication::translate("Record", "The sound server");
        message.text =
            waits ? QCoreApplication::translate("Record",
                                                "%1 went away. The wait for the first sound continues when it is back.")
                        .arg(what)
                  : QCoreApplication::translate(
                        "Record", "%1 went away. The recording so far is kept and continues when it is back.")
                        .arg(what);
    } else {
        if (source.awaySince != 0)
            source.awaySeconds += secondsSince(source.awaySince);
        source.awaySince = 0;
        message.text =
            waits ? QCoreApplication::translate("Record", "%1 is back. The wait for the first sound goes on.")
                        .arg(source.label)
                  : QCoreApplication::translate("Record", "%1 s are missing: %2 was away. The recording goes on.")
                        .arg(secondsText(source.awaySeconds), source.labelInSentence);
    }
    notice(message);
}

void RecordStateController::Private::showLosses() {
    RecordLosses lost;
    {
        const std::scoped_lock lock(mutex);
        lost = engineLosses();
        lost += lostBefore_;
    }
    if (lost.busyFrames != lostShown_ && lost.busyFrames > 0)
        notice({.text =
                    QCoreApplication::translate("Record",
                                                "%1 s are missing (%2 frames): the computer was too busy to take them.")
                        .arg(secondsText(lost.busySeconds), Platform::Translations::number(qint64(lost.busyFrames))),
                .event = u"lost"_s});
    lostShown_ = lost.busyFrames;
    showWriteProblem();
}

void RecordStateController::Private::showWriteProblem() {
    const auto problem = writeError();
    if (problem && !writeProblemShown_) {
        const bool isFull = problem.kind == Platform::Error::Kind::DiskFull;
        if (isFull) {
            fullSince_ = Platform::services().clock->hostTime();
            fullBytes_ = -1;
            notices_.withdraw(DiskEvent);
            notice(
                {.text = QCoreApplication::translate(
                     "Record", "The disk is full. Nothing more is recorded until there is room; what was recorded is "
                               "kept."),
                 .help = RecordNotice::Help::FreeSpace,
                 .target = g_strTmpPath,
                 .event = RecordQueue::UnwrittenEvent});
        } else {
            notice({.text = QCoreApplication::translate("Record",
                                                        "%1. Nothing more is recorded; what was recorded is kept.")
                                .arg(problem.text),
                    .event = RecordQueue::UnwrittenEvent});
        }
    }
    writeProblemShown_ = bool(problem);
    if (!problem)
        fullSince_ = 0;
}

/// A silent recording is often noticed too late. So a source that delivers only digital silence is named until it
/// delivers a sound, and after a stop until the next start.
void RecordStateController::Private::showSilences() {
    for (RecordSource& source : sources) {
        if (!source.writes())
            continue;
        const bool isSilent = isSilentTooLong(source);
        if (isSilent && !source.silenceShown)
            notice(silenceNotice(source));
        else if (!isSilent && source.silenceShown)
            withdrawNotice(u"silent "_s + source.label);
        source.silenceShown = isSilent;
    }
}

bool RecordStateController::Private::isSilentTooLong(const RecordSource& source) const {
    const std::uint64_t since = source.silentSince;
    if (since == 0 || source.awaySince != 0 || secondsSince(since) < LongSilence)
        return false;
    if (&source == &builtIn)
        return true;
    if (!q->waitingForPrograms().isEmpty())
        return false; // the display says what is waited for
    // Silence is expected between the parts of a recording that is cut at silences, and beside an input device once
    // the computer was heard.
    return builtIn.takesPart() ? !source.sounded : g_SplitTimeMS < 0;
}

RecordNotice RecordStateController::Private::silenceNotice(const RecordSource& source) const {
    const QString seconds = Platform::Translations::number(LongSilence);
    RecordNotice message;
    message.event = u"silent "_s + source.label;
    if (&source == &computer && programs_.mode != RecordPrograms::Mode::Everything) {
        message.text = QCoreApplication::translate("RecordStateController",
                                                   "Computer audio (%1) has been silent for %2 s: nothing plays.")
                           .arg(programs_.title(), seconds);
    } else if (&source == &computer) {
        AudioObjectID output = 0;
        QString name;
        auto& hardware = *Platform::services().audioHardware;
        if (hardware.getDefaultOutputDevice(output) == noErr)
            (void)hardware.getDeviceName(output, name);
        message.text =
            name.isEmpty()
                ? QCoreApplication::translate("Record", "Computer audio has been silent for %1 s: nothing plays.")
                      .arg(seconds)
                : QCoreApplication::translate(
                      "Record",
                      "Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.")
                      .arg(seconds, name);
    } else if (BuildInAudioRecord::isMuted(devices->boundDevice())) {
        message.text =
            QCoreApplication::translate("Record", "The input device is muted: only silence has been recorded for %1 s.")
                .arg(seconds);
        message.help = RecordNotice::Help::Unmute;
    } else {
        message.text =
            QCoreApplication::translate(
                "Record",
                "The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: "
                "another one can be chosen when the recording is stopped.")
                .arg(seconds);
    }
    return message;
}

/// Queries the free space now and then; see TicksBetweenLooks.
void RecordStateController::Private::lookForRoom() {
    if (!isActive()) {
        ticksToRoom_ = 0;
        return;
    }
    if (fullSince_ == 0 && --ticksToRoom_ > 0)
        return;
    ticksToRoom_ = TicksBetweenLooks;
    room_.look({.temporaryFolder = g_strTmpPath,
                .recordFolder = recordFolder(),
                .sources = builtIn.takesPart() && computer.takesPart() ? 2 : 1,
                .seconds = double(fRecordTime_),
                .keepsTracks = Platform::boolValue(preferences->value(Settings::keepTracks))});
}

void RecordStateController::Private::followRoom(const RecordRoom::Room& room) {
    if (!isActive())
        return;
    if (fullSince_ != 0) {
        if (fullBytes_ < 0)
            fullBytes_ = room.bytes;
        else if (room.bytes >= fullBytes_ + EnoughBytes && q->recordState_() == 1)
            continueAfterFullDisk();
        return;
    }
    roomSeconds_ = room.seconds;
    int stage = 0; // number of reached stages
    for (const int minutes : Stages)
        stage += room.seconds < minutes * 60 ? 1 : 0;
    if (stage == 0) {
        roomStage_ = 0;
        notices_.withdraw(DiskEvent);
        return;
    }
    const RecordNotice message{
        .text = QCoreApplication::translate("Record", "The disk is nearly full: there is room for %1 of recording.")
                    .arg(RecordRoom::words(room.seconds)),
        .help = RecordNotice::Help::FreeSpace,
        .target = room.folder,
        .event = DiskEvent,
        .stage = stage};
    if (stage > roomStage_)
        notices_.show(message);
    else
        notices_.update(message);
    roomStage_ = stage;
}

QString RecordStateController::roomLeft() const {
    const bool isShown = d->isActive() && d->fullSince_ == 0 && d->roomSeconds_ >= 0 && d->roomSeconds_ < ShownRoom;
    return isShown ? RecordRoom::sentence(d->roomSeconds_) : QString();
}

/// There is space again: continues in a new file, because nothing is appended to a file after a write error.
void RecordStateController::Private::continueAfterFullDisk() {
    const double missing = secondsSince(fullSince_);
    cut(Cut::ByHand);
    if (writeError()) {
        fullBytes_ = -1; // the space was not sufficient
        return;
    }
    fullSince_ = 0;
    writeProblemShown_ = false;
    roomStage_ = 0;
    notice({.text = QCoreApplication::translate(
                        "Record", "%1 s are missing: the disk was full. The recording went on in another file.")
                        .arg(secondsText(missing)),
            .event = RecordQueue::UnwrittenEvent});
}
