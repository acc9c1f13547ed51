// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <memory>

namespace Platform {

/// What a media player says about its current track. Every text may be empty; none is longer than LongestText, and none
/// has control characters.
struct PlayerTrack {
    static constexpr qsizetype LongestText = 500;

    QString id; ///< the player's own name for the track; some players use one for all tracks
    QString title;
    QString artist; ///< several are joined: "One, Two"
    QString album;
    QString source;     ///< where the player reads the track; only compared, never opened
    QUrl cover;         ///< see readPlayerCover()
    double seconds = 0; ///< 0 when the player does not say it

    friend bool operator==(const PlayerTrack&, const PlayerTrack&) = default;
};

/// A media player (MPRIS) on the session bus.
struct WatchedPlayer {
    QString key;         ///< the same while the player runs, unique among all that ever ran in this session
    QStringList names{}; ///< of the program: "org.gnome.Music", "Music", "music"; not empty
    bool isPlaying = false;
    PlayerTrack track{};

    friend bool operator==(const WatchedPlayer&, const WatchedPlayer&) = default;
};

/// Follows the media players of the session as they come, change and go, without asking them regularly. The players of
/// this process are left out.
class PlayerWatch {
public:
    /// All functions are called on the watch's own thread. Times are in nanoseconds of the steady clock, as are capture
    /// times, and say when the message arrived.
    class Listener {
    public:
        virtual ~Listener() = default;
        /// A player was found, or something of it has changed.
        virtual void playerChanged(const WatchedPlayer& player, std::uint64_t time) = 0;
        virtual void playerGone(const QString& key, std::uint64_t time) = 0;
        /// Where in its track the player is; follows each change of a track, unless the player does not say it.
        virtual void playerPosition(const QString& key, double seconds, std::uint64_t time) = 0;
    };
    using Factory = std::function<std::unique_ptr<PlayerWatch>(Listener&)>;

    /// When it returns, the listener is not called any more. It does not wait for a player.
    virtual ~PlayerWatch() = default;

    /// Connects to the session bus. Null where there is none. The listener must outlive the watch.
    [[nodiscard]] static std::unique_ptr<PlayerWatch> create(Listener& listener);
};

} // namespace Platform
