// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <cstdint>
#include <memory>

namespace Platform {

/// Presents the program to the desktop as a media player: media keys, panels and phones control it and show what it
/// plays. Main thread. Does nothing on a desktop without a session bus.
class MediaPlayer {
public:
    enum class Status { Stopped, Paused, Playing };

    struct Track {
        std::uint64_t number = 0; ///< unique for each sound that is loaded; 0 means no track
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

    /// Commands that the desktop sends. Called on the main thread. A command that the state does not allow does
    /// nothing.
    class Commands {
    public:
        virtual ~Commands() = default;
        virtual void play() = 0;
        virtual void pause() = 0;
        virtual void stop() = 0;
        virtual void next() = 0;
        virtual void previous() = 0;
        /// Position in the current track in seconds; 0 without a track.
        [[nodiscard]] virtual double position() const = 0;
        virtual void setPosition(double seconds) = 0;
        virtual void setVolume(double volume) = 0;
        /// Shows the window.
        virtual void raise() = 0;
        virtual void quit() = 0;
    };

    virtual ~MediaPlayer() = default;
    /// Not owned. Set it to null before the object is destroyed.
    virtual void setCommands(Commands* commands) = 0;
    /// Tells the desktop the properties that differ from the last state.
    virtual void setState(const State& state) = 0;
    /// Tells the desktop that the position jumped. During normal playback the desktop advances the position itself.
    virtual void positionJumped(double seconds) = 0;

    /// Creates a player named @p name on the session bus. If the name is taken, the process id is appended to it.
    /// @param desktopEntry name of the program's desktop file without its ending
    [[nodiscard]] static std::unique_ptr<MediaPlayer> create(const QString& name, const QString& desktopEntry);
};

} // namespace Platform
