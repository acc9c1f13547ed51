// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Media/linux/play/PipeWireSounds.h"

#include "Platform/Media/ExtAudioFile.h"
#include "Platform/Media/linux/play/SoundPlayer.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace Platform {

namespace {

Q_LOGGING_CATEGORY(soundLog, "sonaphex.sound")

/// How often to check for the end of playback.
constexpr int kLookEveryMs = 20;

class PipeWireSound final : public Sound {
public:
    PipeWireSound(MediaFiles& files, const QString& path) : path_(path) {
        auto opened = files.openReader(path);
        const Error error = opened.error();
        reader_ = std::move(opened).valueOr(nullptr);
        if (reader_ && !open())
            reader_.reset();
        setUp(error);
    }
    PipeWireSound(std::unique_ptr<ExtAudioFileReader> reader, const QString& name, double ahead)
        : path_(name), ahead_(ahead), reader_(std::move(reader)) {
        if (reader_ && !open())
            reader_.reset();
        setUp({});
    }
    ~PipeWireSound() override { closePlayer(); }

    double duration() const override { return reader_ ? double(length_) / format_.mSampleRate : 0; }
    double currentTime() const override {
        if (!reader_)
            return 0;
        return double(player_ ? player_->position() : position_) / format_.mSampleRate;
    }
    void setCurrentTime(double seconds) override {
        if (!reader_ || !std::isfinite(seconds))
            return;
        const auto last = double(length_) / format_.mSampleRate;
        position_ = std::min<std::int64_t>(std::llround(std::clamp(seconds, 0.0, last) * format_.mSampleRate), length_);
        if (player_)
            player_->seek(position_);
    }
    float volume() const override { return volume_; }
    void setVolume(float volume) override {
        if (!std::isfinite(volume))
            return;
        volume_ = std::clamp(volume, 0.0F, 1.0F);
        if (player_)
            player_->setVolume(volume_);
    }
    double volumeDelay() const override {
        return player_ && reader_ ? double(player_->volumeDelay()) / format_.mSampleRate : 0;
    }
    bool isPlaying() const override { return player_ && !player_->ended() && !player_->lost(); }
    bool play() override {
        if (!reader_ || isPlaying())
            return false;
        closePlayer();
        if (position_ >= length_)
            position_ = 0;
        player_ = std::make_unique<SoundPlayer>(*reader_, format_, ahead_);
        player_->setVolume(volume_);
        QString why;
        if (!player_->start(position_, why)) {
            player_.reset();
            lastError_ = why;
            return false;
        }
        lastError_.clear();
        paused_ = false;
        timer_.start();
        return true;
    }
    bool pause() override { return setPaused(true); }
    bool resume() override { return setPaused(false); }
    bool stop() override {
        if (!player_)
            return false;
        end();
        return true;
    }
    QString path() const override { return path_; }
    QString lastError() const override { return lastError_; }

private:
    void setUp(const Error& error) {
        if (!reader_)
            lastError_ = error ? error.text : QCoreApplication::translate("Media", "%1 cannot be played").arg(path_);
        timer_.setInterval(kLookEveryMs);
        connect(&timer_, &QTimer::timeout, this, &PipeWireSound::look);
    }
    bool open() {
        const auto source = reader_->fileDataFormat();
        if (!(source.mSampleRate >= 1) || source.mChannelsPerFrame == 0)
            return false;
        format_ = planarFloatFormat(source.mSampleRate, std::min(source.mChannelsPerFrame, 2U));
        length_ = reader_->fileLengthFrames();
        return reader_->setClientDataFormat(format_) == noErr;
    }
    bool setPaused(bool paused) {
        if (!isPlaying() || paused_ == paused)
            return false;
        paused_ = paused;
        player_->setPaused(paused);
        return true;
    }
    void look() {
        if (!player_ || isPlaying())
            return;
        if (player_->lost())
            lastError_ = QCoreApplication::translate("Media", "the sound server went away");
        end();
    }
    void end() {
        closePlayer();
        position_ = 0;
        Q_EMIT finished();
    }
    void closePlayer() {
        timer_.stop();
        if (player_ && player_->lateFrames() > 0)
            qCWarning(soundLog, "%llu frames were decoded too late",
                      static_cast<unsigned long long>(player_->lateFrames()));
        player_.reset();
    }

    QString path_;
    QString lastError_;
    double ahead_ = SoundPlayer::kSecondsAhead;
    std::unique_ptr<ExtAudioFileReader> reader_;
    AudioStreamBasicDescription format_;
    std::int64_t length_ = 0;
    std::int64_t position_ = 0; ///< where the next play() starts
    float volume_ = 1;
    bool paused_ = false;
    QTimer timer_;
    std::unique_ptr<SoundPlayer> player_;
};

class PipeWireSounds final : public Sounds {
public:
    explicit PipeWireSounds(MediaFiles& files) : files_(files) {}
    std::unique_ptr<Sound> open(const QString& path) override { return std::make_unique<PipeWireSound>(files_, path); }
    std::unique_ptr<Sound> openReader(std::unique_ptr<ExtAudioFileReader> reader, const QString& name,
                                      double ahead) override {
        return std::make_unique<PipeWireSound>(std::move(reader), name, ahead);
    }

private:
    MediaFiles& files_;
};

} // namespace

std::unique_ptr<Sounds> createSounds(MediaFiles& files) {
    return std::make_unique<PipeWireSounds>(files);
}

} // namespace Platform
