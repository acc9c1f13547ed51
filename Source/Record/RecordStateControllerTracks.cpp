// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The record state controller and the tracks that media players name.
#include "Source/Record/RecordStateControllerPrivate.h"

#include <chrono>

namespace {

/// How long frames wait before they are written in a recording that is cut at its tracks: as long as a player may be
/// late, and its message needs on a busy machine.
constexpr std::chrono::milliseconds TracksDelay{300};
static_assert(TracksDelay > std::chrono::nanoseconds(TrackHistory::MostLate));

} // namespace

void RecordStateController::setPlayers(Platform::PlayerWatch::Factory players) {
    d->tracks.setPlayers(std::move(players));
}

/// When a recording has begun. Tracks belong to what the computer plays: an input device alone has none.
void RecordStateController::Private::beginTracks() {
    const auto wishes = computer.takesPart() ? RecordTracks::Wishes::read(*preferences) : RecordTracks::Wishes();
    tracks.begin(wishes, programs_.choice());
    delayCycles();
}

void RecordStateController::Private::endTracks() {
    tracks.end();
    delayCycles();
}

/// Both sources wait: they are cut at one time.
void RecordStateController::Private::delayCycles() {
    for (RecordSource& source : sources)
        source.engine->setDelay(tracks.cuts() ? TracksDelay : std::chrono::milliseconds(0));
}

/// Called once per cycle on the I/O thread of computer audio.
void RecordStateController::Private::followTracks(float level, std::uint64_t now) {
    if (!tracks.isOn())
        return;
    const auto time = tracks.history().follow({.begin = now,
                                               .end = computer.engine->nextHostTime(),
                                               .isRecorded = computer.engine->recordStatus() == 1,
                                               .isAudible = level >= SilenceSplitter::AudibleLevel});
    if (time && tracks.cuts())
        cut(Cut::AtTrack, *time);
}

/// The first frame after a pause belongs to another track than the last one before it: a new part begins.
bool RecordStateController::Private::resumeWithNewTrack() {
    if (!tracks.cuts() || !tracks.history().changedSinceLastCycle())
        return false;
    cut(Cut::ByHand);
    return true;
}
