// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/ProgramChoice.h"
#include "Platform/Desktop/PlayerWatch.h"
#include "Source/Preferences/RecordPreferences.h"
#include "Source/Record/PartTitle.h"
#include "Source/Record/TrackHistory.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>

/// What the media players are good for in a recording: titles of its parts, and cuts where they change the track. The
/// players are watched only while a recording that wants one of both runs. Main thread, unless said otherwise.
class RecordTracks {
public:
    struct Wishes {
        bool titles = false;
        bool cuts = false;

        [[nodiscard]] static Wishes read(const RecordPreferences& preferences);
        [[nodiscard]] bool any() const { return titles || cuts; }
    };

    RecordTracks();
    ~RecordTracks();
    RecordTracks(const RecordTracks&) = delete;
    RecordTracks& operator=(const RecordTracks&) = delete;

    /// What to watch the players with, instead of those of the session bus.
    void setPlayers(Platform::PlayerWatch::Factory players) { players_ = std::move(players); }

    /// A recording of these programs begins. Watches nothing without a wish.
    void begin(Wishes wishes, const Platform::ProgramChoice& recorded);
    /// The recording has ended. When it returns, no player is watched.
    void end();

    /// Whether players are followed. Any thread, as are the next ones.
    [[nodiscard]] bool isOn() const { return titles_ || cuts_; }
    [[nodiscard]] bool cuts() const { return cuts_; }
    [[nodiscard]] TrackHistory& history() { return history_; }
    /// The title of the part so far; empty unless titles are wished.
    [[nodiscard]] PartTitle title() const { return titles_ ? history_.title() : PartTitle(); }

private:
    [[nodiscard]] PartTitle::Cover readCover(const QUrl& place);

    Platform::PlayerWatch::Factory players_;
    std::atomic<bool> titles_{false};
    std::atomic<bool> cuts_{false};
    TrackHistory history_;
    QObject context_; ///< of the connection to the list of programs that play
    std::unique_ptr<Platform::PlayerWatch> watch_;
    QThreadPool covers_; ///< destroyed first: waits for the cover that is being read
};
