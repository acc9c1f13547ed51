// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <cstdint>
#include <memory>

namespace Platform {

/// The program as a player of the desktop: media keys, panels and phones steer it and show what it plays. Main thread.
/// Nothing happens where the desktop has no such service.
class MediaPlayer {
public:
    enum class Status { Stopped, Paused, Playing };

    struct Track {
        std::uint64_t number = 0; ///< one of its own for each sound that is taken up; 0: there is no track
        QString title;
        QString artist;
        QString album;
        QUrl file;
        QUrl cover; ///< empty when the file has none
        double seconds = 0;
        bool operator==(const Track&) const = default;
    };

    struct State {
        Status status = Status::Stopped;
        Track track;
        double volume = 1; ///< linear, 1 is unchanged
        bool canPlay = false;
        bool canPause = false;
        bool canSeek = false;
        bool canGoNext = false;
        bool canGoPrevious = false;
        bool canQuit = true;
        bool operator==(const State&) const = default;
    };

    /// What the desktop may ask of the player. Called on the main thread; a call that the state rules out does nothing.
    class Commands {
    public:
        virtual ~Commands() = default;
        virtual void play() = 0;
        virtual void pause() = 0;
        virtual void stop() = 0;
        virtual void next() = 0;
        virtual void previous() = 0;
        /// Seconds of the track at hand; 0 without one.
        [[nodiscard]] virtual double position() const = 0;
        virtual void setPosition(double seconds) = 0;
        virtual void setVolume(double volume) = 0;
        /// Shows the window.
        virtual void raise() = 0;
        virtual void quit() = 0;
    };

    virtual ~MediaPlayer() = default;
    /// Not owned; null before it goes.
    virtual void setCommands(Commands* commands) = 0;
    /// Tells the desktop what differs from the state of before.
    virtual void setState(const State& state) = 0;
    /// The position has jumped; while a track plays on, the desktop counts for itself.
    virtual void positionJumped(double seconds) = 0;

    /// A player named @p name on the session bus. A second one of that name on the same bus is told apart by its
    /// process.
    /// @param desktopEntry name of the program's desktop file without its ending
    [[nodiscard]] static std::unique_ptr<MediaPlayer> create(const QString& name, const QString& desktopEntry);
};

} // namespace Platform
