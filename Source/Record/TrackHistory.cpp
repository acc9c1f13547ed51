// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/TrackHistory.h"

#include <QMap>

#include <algorithm>
#include <cmath>
#include <utility>

using Platform::PlayerTrack;

namespace {

/// A program that goes on to another track hands over a block of sound in which the change may lie anywhere. While
/// cycles wait, the sound server works in blocks of 512 frames (InputUnit::setDelay()). Measured with PipeWire 0.3.65:
/// a frame's capture time is one block later than the time at which the program handed over the block, because the
/// driver's device is in between.
constexpr double HalfBlock = 512.0 / 48000 / 2;
/// A player that goes on to another track, but still shows the title of the one before, corrects it within this time.
constexpr std::uint64_t LongestNaming = 5'000'000'000;
/// A player that names a track before it begins does so at most this much before the end of the current one.
constexpr double LongestAnnouncement = 5;

std::uint64_t nanoseconds(double seconds) {
    return std::uint64_t(std::llround(seconds * 1e9));
}

bool bothDiffer(const QString& one, const QString& other) {
    return !one.isEmpty() && !other.isEmpty() && one != other;
}

} // namespace

/// One stay on one track.
struct TrackHistory::Track {
    QString player;
    PlayerTrack said; ///< what the player says about it by now
    std::uint64_t since = 0;
    bool hasOldTitle = false; ///< the title is that of the track before: the player is not yet done with naming it
    PartTitle::Cover cover;
};

struct TrackHistory::Player {
    QString key;
    QStringList names;
    int rank = 0; ///< negative: its program is not recorded; 1: its program plays on the sound server
    double latency = 0;
    // As announced.
    TrackPtr announced;
    double secondsBefore = 0; ///< length of the track before that one
    bool isAnnouncedPlaying = false;
    // As the recording hears it.
    TrackPtr current;
    bool isPlaying = false;
    bool isGone = false;
    std::vector<std::pair<TrackPtr, double>> heard; ///< seconds of each track in the part

    [[nodiscard]] bool isHeard() const { return isPlaying && current && rank >= 0; }
    [[nodiscard]] double seconds() const {
        double sum = 0;
        for (const auto& [track, seconds] : heard)
            sum += seconds;
        return sum;
    }
    [[nodiscard]] double secondsOf(const QUrl& cover) const {
        double sum = 0;
        for (const auto& [track, seconds] : heard)
            if (track->said.cover == cover)
                sum += seconds;
        return sum;
    }
    /// Covers that were not named for @p most seconds by now need no memory. The current one stays.
    void forgetCovers(double most) {
        for (auto& [track, seconds] : heard)
            if (track->said.cover != current->said.cover && secondsOf(track->said.cover) < most)
                track->cover = {};
    }
    /// The capture time of the sound that the program hands over at @p time, in the middle of a block.
    [[nodiscard]] std::uint64_t heardAt(std::uint64_t time) const { return time + nanoseconds(latency + HalfBlock); }
};

struct TrackHistory::Event {
    enum class What { Track, Status, Gone };
    std::uint64_t time = 0;      ///< capture time at which it is heard
    std::uint64_t announced = 0; ///< arrival of the message
    QString player;
    What what = What::Track;
    TrackPtr track{};
    bool isPlaying = false;
};

TrackHistory::TrackHistory(CoverReader readCover) : readCover_(std::move(readCover)) {
}

TrackHistory::~TrackHistory() = default;

void TrackHistory::clear() {
    const std::scoped_lock lock(mutex_);
    recorded_ = {};
    playing_.clear();
    players_.clear();
    events_.clear();
    leader_.clear();
    leading_.reset();
    recordedTrack_.reset();
    heardSeconds_ = 0;
}

void TrackHistory::setPrograms(const Platform::ProgramChoice& recorded,
                               const std::vector<Platform::PlayingProgram>& playing) {
    const std::scoped_lock lock(mutex_);
    recorded_ = recorded;
    playing_ = playing;
    for (Player& player : players_)
        rank(player);
}

/// Finds the player's program among those that play, by its names.
void TrackHistory::rank(Player& player) const {
    using Mode = Platform::ProgramChoice::Mode;
    const auto isNamed = [&player](const QString& part) {
        return std::ranges::any_of(player.names,
                                   [&](const QString& name) { return name.compare(part, Qt::CaseInsensitive) == 0; });
    };
    const auto isChosen = [this](const QString& name) {
        const Platform::ProgramIdentity program{.name = name.toStdString()};
        return std::ranges::any_of(recorded_.programs,
                                   [&program](const std::string& chosen) { return program.is(chosen); });
    };
    bool isKnown = false;
    bool plays = false;
    bool isInChoice = std::ranges::any_of(player.names, isChosen);
    player.latency = 0;
    for (const auto& program : playing_) {
        if (!isNamed(program.id) && !isNamed(program.name) && std::ranges::none_of(program.parts, isNamed))
            continue;
        isKnown = true;
        plays = plays || program.isPlaying;
        player.latency = std::max(player.latency, program.latency);
        isInChoice = isInChoice || isChosen(program.id) || isChosen(program.name) ||
                     std::ranges::any_of(program.parts, isChosen);
    }
    switch (recorded_.mode) {
    case Mode::Everything:
        player.rank = plays ? 1 : 0;
        break;
    case Mode::Only:
        // A player whose program is not found on the sound server may have other names there.
        player.rank = isInChoice ? 1 : isKnown ? -1 : 0;
        break;
    case Mode::AllBut:
        player.rank = isInChoice ? -1 : plays ? 1 : 0;
        break;
    }
}

TrackHistory::Player* TrackHistory::find(const QString& key) {
    const auto found = std::ranges::find(players_, key, &Player::key);
    return found == players_.end() ? nullptr : &*found;
}

const TrackHistory::Player* TrackHistory::find(const QString& key) const {
    const auto found = std::ranges::find(players_, key, &Player::key);
    return found == players_.end() ? nullptr : &*found;
}

void TrackHistory::add(Event event) {
    const auto after = std::ranges::upper_bound(events_, event.time, {}, &Event::time);
    events_.insert(after, std::move(event));
}

/// Whether two stays are on the same track: a player that was stopped, or started again, may go on with it.
bool TrackHistory::isSame(const Track& one, const Track& other) {
    if (&one == &other)
        return true;
    const PlayerTrack& a = one.said;
    const PlayerTrack& b = other.said;
    if (one.player == other.player)
        return a.id == b.id && a.title == b.title && a.source == b.source;
    return !a.title.isEmpty() && a.title == b.title && a.artist == b.artist && a.album == b.album;
}

/// Whether a player that says @p now still plays the known track: it may send its name again, complete it later, or
/// seek in it.
bool TrackHistory::isStill(const Track& known, const PlayerTrack& now, std::uint64_t time) {
    const PlayerTrack& said = known.said;
    if (bothDiffer(said.id, now.id) || bothDiffer(said.source, now.source))
        return false;
    if (bothDiffer(said.artist, now.artist) && bothDiffer(said.album, now.album) && !known.hasOldTitle)
        return false;
    return !bothDiffer(said.title, now.title) || (known.hasOldTitle && time - known.since < LongestNaming);
}

TrackHistory::TrackPtr TrackHistory::trackOf(Player& player, const PlayerTrack& now, std::uint64_t time) {
    if (now == PlayerTrack())
        return nullptr;
    const TrackPtr known = player.announced;
    TrackPtr track = known;
    if (!known || !isStill(*known, now, time)) {
        track = std::make_shared<Track>();
        track->player = player.key;
        track->since = time;
        track->hasOldTitle = known && !now.title.isEmpty() && now.title == known->said.title;
        player.secondsBefore = known ? known->said.seconds : 0;
    } else if (bothDiffer(known->said.title, now.title)) {
        track->hasOldTitle = false;
    }
    PlayerTrack said = now;
    // A later message may lack what an earlier one has said about the same track.
    if (track == known) {
        for (QString PlayerTrack::*text :
             {&PlayerTrack::id, &PlayerTrack::title, &PlayerTrack::artist, &PlayerTrack::album, &PlayerTrack::source})
            if ((said.*text).isEmpty())
                said.*text = known->said.*text;
        if (said.cover.isEmpty())
            said.cover = known->said.cover;
        if (said.seconds == 0)
            said.seconds = known->said.seconds;
    }
    if (!said.cover.isEmpty() && readCover_) {
        const bool isAlbumCover = known && known->said.cover == said.cover && known->cover.valid();
        if (!isAlbumCover)
            track->cover = readCover_(said.cover);
        else if (track != known)
            track->cover = known->cover;
    }
    track->said = std::move(said);
    return track;
}

void TrackHistory::playerChanged(const Platform::WatchedPlayer& player, std::uint64_t time) {
    const std::scoped_lock lock(mutex_);
    Player* known = find(player.key);
    if (!known) {
        players_.push_back({});
        known = &players_.back();
        known->key = player.key;
    }
    if (known->names != player.names) {
        known->names = player.names;
        rank(*known);
    }
    const std::uint64_t heardAt = known->heardAt(time);
    // The track first: a player that leaves a pause with another track does not play the old one.
    if (auto track = trackOf(*known, player.track, time); track != known->announced) {
        known->announced = track;
        add({.time = heardAt, .announced = time, .player = player.key, .what = Event::What::Track, .track = track});
    }
    if (player.isPlaying != known->isAnnouncedPlaying) {
        known->isAnnouncedPlaying = player.isPlaying;
        add({.time = heardAt,
             .announced = time,
             .player = player.key,
             .what = Event::What::Status,
             .isPlaying = player.isPlaying});
    }
}

void TrackHistory::playerGone(const QString& key, std::uint64_t time) {
    const std::scoped_lock lock(mutex_);
    if (const Player* player = find(key))
        add({.time = player->heardAt(time), .announced = time, .player = key, .what = Event::What::Gone});
}

void TrackHistory::playerPosition(const QString& key, double seconds, std::uint64_t time) {
    const std::scoped_lock lock(mutex_);
    const Player* player = find(key);
    if (!player)
        return;
    const auto found = std::ranges::find_if(events_, [player](const Event& event) {
        return event.what == Event::What::Track && event.track && event.track == player->announced &&
               event.player == player->key;
    });
    if (found == events_.end())
        return; // it has taken effect
    Event event = *found;
    const double waited = double(time - std::min(time, event.announced)) * 1e-9;
    const double late = seconds - waited;
    const double left = player->secondsBefore - seconds;
    if (late > 0 && late * 1e9 <= double(MostLate))
        event.time -= std::min(event.time, nanoseconds(late)); // the track had begun before the message
    else if (seconds > 0 && left > 0 && left <= LongestAnnouncement)
        event.time += nanoseconds(waited + left); // the track before is still playing
    else
        return;
    events_.erase(found);
    add(std::move(event));
}

void TrackHistory::apply(const Event& event) {
    Player* player = find(event.player);
    if (!player)
        return;
    switch (event.what) {
    case Event::What::Track:
        player->current = event.track;
        break;
    case Event::What::Status:
        player->isPlaying = event.isPlaying;
        break;
    case Event::What::Gone:
        player->isPlaying = false;
        player->isGone = true;
        break;
    }
}

/// Chooses the player whose tracks are heard. It stays the same while it plays, unless a better one begins.
void TrackHistory::lead() {
    const Player* best = find(leader_);
    if (best && !best->isHeard())
        best = nullptr;
    for (const Player& player : players_)
        if (player.isHeard() && (!best || player.rank > best->rank))
            best = &player;
    if (!best)
        return; // what was heard last counts until something else is heard
    leader_ = best->key;
    leading_ = best->current;
}

bool TrackHistory::isPartLongEnough() const {
    return heardSeconds_ >= ShortestPart;
}

std::optional<std::uint64_t> TrackHistory::follow(const Cycle& cycle) {
    const std::scoped_lock lock(mutex_);
    const std::uint64_t length = cycle.end - std::min(cycle.begin, cycle.end);
    if (cycle.isRecorded && cycle.isAudible) {
        const double seconds = double(length) * 1e-9;
        heardSeconds_ += seconds;
        for (Player& player : players_) {
            if (!player.isPlaying || !player.current)
                continue;
            auto& heard = player.heard;
            if (heard.empty() || heard.back().first != player.current) {
                player.forgetCovers(heardSeconds_ / 2);
                heard.emplace_back(player.current, 0);
            }
            heard.back().second += seconds;
        }
    }
    TrackPtr before = recordedTrack_;
    std::optional<std::uint64_t> changed;
    while (!events_.empty() && events_.front().time <= cycle.end + length) {
        const Event event = std::move(events_.front());
        events_.erase(events_.begin());
        apply(event);
        lead();
        if (!leading_ || (before && isSame(*leading_, *before)))
            continue;
        if (before)
            changed = event.time;
        before = leading_;
    }
    lead(); // a program may have begun to play
    const bool begins = !cycle.isRecorded && heardSeconds_ == 0;
    if (cycle.isRecorded || begins)
        recordedTrack_ = leading_;
    return cycle.isRecorded && isPartLongEnough() ? changed : std::nullopt;
}

bool TrackHistory::changedSinceLastCycle() const {
    const std::scoped_lock lock(mutex_);
    return leading_ && recordedTrack_ && !isSame(*leading_, *recordedTrack_) && isPartLongEnough();
}

void TrackHistory::beginPart() {
    const std::scoped_lock lock(mutex_);
    for (Player& player : players_)
        player.heard.clear();
    std::erase_if(players_, [](const Player& player) { return player.isGone; });
    heardSeconds_ = 0;
    recordedTrack_ = leading_;
}

PartTitle TrackHistory::title() const {
    const std::scoped_lock lock(mutex_);
    const Player* best = nullptr;
    for (const Player& player : players_) {
        const double seconds = player.seconds();
        if (player.rank < 0 || seconds <= heardSeconds_ / 2)
            continue;
        if (!best || std::pair(player.rank, seconds) > std::pair(best->rank, best->seconds()))
            best = &player;
    }
    if (!best)
        return {};
    const auto most = [&](auto text) {
        QMap<QString, double> shares;
        for (const auto& [track, seconds] : best->heard)
            shares[text(*track)] += seconds;
        for (auto share = shares.cbegin(); share != shares.cend(); ++share)
            if (share.value() > heardSeconds_ / 2)
                return share.key();
        return QString();
    };
    PartTitle title;
    title.title = most([](const Track& track) { return track.said.title; });
    title.artist = most([](const Track& track) { return track.said.artist; });
    title.album = most([](const Track& track) { return track.said.album; });
    const QString place = most([](const Track& track) { return track.said.cover.toString(QUrl::FullyEncoded); });
    for (const auto& [track, seconds] : best->heard)
        if (!place.isEmpty() && track->cover.valid() && track->said.cover.toString(QUrl::FullyEncoded) == place) {
            title.coverPlace = track->said.cover;
            title.cover = track->cover;
        }
    return title;
}
