// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QObject>
#include <QString>

namespace Platform {

class ExtAudioFileReader;

/// Plays one audio file through the sound server. Main thread. A paused sound still counts as playing.
class Sound : public QObject {
    Q_OBJECT
public:
    ~Sound() override = default;
    /// Exact length in seconds; 0 when the file cannot be played.
    [[nodiscard]] virtual double duration() const = 0;
    [[nodiscard]] virtual double currentTime() const = 0;
    virtual void setCurrentTime(double seconds) = 0;
    [[nodiscard]] virtual float volume() const = 0;
    virtual void setVolume(float volume) = 0;
    /// Delay, in seconds of the file after currentTime(), until a new volume takes effect.
    [[nodiscard]] virtual double volumeDelay() const { return 0; }
    [[nodiscard]] virtual bool isPlaying() const = 0;
    virtual bool play() = 0;
    virtual bool pause() = 0;
    virtual bool resume() = 0;
    virtual bool stop() = 0;
    [[nodiscard]] virtual QString path() const = 0;
    [[nodiscard]] virtual QString lastError() const = 0;

Q_SIGNALS:
    /// Playback ended: at the end of the file, by stop(), or because the sound server went away.
    void finished();
};

/// Makes sounds.
class Sounds {
public:
    virtual ~Sounds() = default;
    /// Never null; for an unreadable file the sound has length 0 and does not play.
    [[nodiscard]] virtual std::unique_ptr<Sound> open(const QString& path) = 0;
    /// Plays what @p reader gives instead of a file. Its format is float with one or two channels. @p ahead: seconds
    /// that are decoded in advance; when the reader's audio changes, the change is heard after about that time. @p name
    /// is the sound's path(). Never null.
    [[nodiscard]] virtual std::unique_ptr<Sound> openReader(std::unique_ptr<ExtAudioFileReader> reader,
                                                            const QString& name, double ahead) = 0;
};

} // namespace Platform
