// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/PlayingProgram.h"
#include "Platform/Audio/ProgramChoice.h"
#include "Platform/Desktop/PlayerWatch.h"
#include "Source/Record/PartTitle.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

/// What the media players named while a recording ran. It chooses the title of each part, and finds the capture times
/// at which one track ended and another began.
///
/// A message of a player arrives before the frames of its time are written, because frames wait in the capture ring. It
/// is put into a list, ordered by the capture time at which it is heard, and takes effect when the recording has
/// reached that time. Any thread: the players' messages come on the watch's thread, cycles on the I/O thread. Times are
/// in nanoseconds of the steady clock.
class TrackHistory final : public Platform::PlayerWatch::Listener {
public:
    /// A change of the track does not cut before the part has this much sound: a player that changes twice within a
    /// moment, or shortly after a silence has cut, would make parts that nobody wants.
    static constexpr double ShortestPart = 1;
    /// By how much the time of a change is corrected at most when the player says that it came late. At least this long
    /// the frames of a recording that is cut at its tracks must wait.
    static constexpr std::uint64_t MostLate = 250'000'000;

    /// Reads a cover, and is called for each track that names one, on the watch's thread: must not block.
    using CoverReader = std::function<PartTitle::Cover(const QUrl&)>;

    explicit TrackHistory(CoverReader readCover = {});
    ~TrackHistory() override;
    TrackHistory(const TrackHistory&) = delete;
    TrackHistory& operator=(const TrackHistory&) = delete;

    /// Forgets everything.
    void clear();
    /// Which programs are recorded, and which play. Players of programs that are not recorded name nothing.
    void setPrograms(const Platform::ProgramChoice& recorded, const std::vector<Platform::PlayingProgram>& playing);

    void playerChanged(const Platform::WatchedPlayer& player, std::uint64_t time) override;
    void playerGone(const QString& key, std::uint64_t time) override;
    void playerPosition(const QString& key, double seconds, std::uint64_t time) override;

    /// One cycle of computer audio.
    struct Cycle {
        std::uint64_t begin = 0; ///< capture time
        std::uint64_t end = 0;
        bool isRecorded = false; ///< false while it is armed or paused
        bool isAudible = false;
    };
    /// Adds a cycle to the part, and looks one cycle ahead. @return the time at which the next part shall begin, if
    /// that is before the end of the next cycle; it may lie before the end of this one when a message came late
    [[nodiscard]] std::optional<std::uint64_t> follow(const Cycle& cycle);
    /// Whether another track plays than at the last recorded cycle, and the part is long enough. For a recording that
    /// was paused meanwhile.
    [[nodiscard]] bool changedSinceLastCycle() const;

    /// A new part begins.
    void beginPart();
    /// The title of the part so far: each text, and the cover, is the one that was named for more than half of the time
    /// in which something was heard. Of several players one is chosen: one whose program plays on the sound server
    /// before others, then the one that played longest.
    [[nodiscard]] PartTitle title() const;

private:
    struct Track;
    struct Player;
    struct Event;
    using TrackPtr = std::shared_ptr<Track>;

    [[nodiscard]] static bool isSame(const Track& one, const Track& other);
    [[nodiscard]] static bool isStill(const Track& known, const Platform::PlayerTrack& now, std::uint64_t time);
    [[nodiscard]] TrackPtr trackOf(Player& player, const Platform::PlayerTrack& now, std::uint64_t time);
    [[nodiscard]] Player* find(const QString& key);
    [[nodiscard]] const Player* find(const QString& key) const;
    void add(Event event);
    void apply(const Event& event);
    void rank(Player& player) const;
    void lead();
    [[nodiscard]] bool isPartLongEnough() const;

    const CoverReader readCover_;
    mutable std::mutex mutex_;
    Platform::ProgramChoice recorded_;
    std::vector<Platform::PlayingProgram> playing_;
    std::vector<Player> players_; ///< also those that are gone, while they count for the part
    std::vector<Event> events_;   ///< that did not take effect yet, by their times
    QString leader_;              ///< key of the player whose changes cut
    TrackPtr leading_;            ///< the track that is heard, or was heard last
    TrackPtr recordedTrack_;      ///< the same at the last recorded cycle
    double heardSeconds_ = 0;     ///< of the part, with sound
};
