// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/fakes/FakeMediaFiles.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <mutex>
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

/// Recordings without audio: the writers of FakeMediaFiles, a length for every existing file, and movies and readers
/// that are sufficient for a mix.
class FakeRecordingFiles : public FakeMediaFiles {
public:
    struct Mix {
        QString first;
        QString second;
        std::vector<Platform::Movie::TrackTiming> timings;
        QString wave;
    };

    double seconds = 10; ///< the length of every file that exists
    QMap<QString, double> secondsOf;
    std::set<QString> unreadable; ///< movies that cannot be opened
    Platform::Error mixError;
    Platform::Error mixReadError;     ///< the read error of a mix
    Platform::Error readError;        ///< the error of a reader
    std::atomic<bool> holdMix{false}; ///< a mix waits while this is set
    std::atomic<int> mixesStarted{0};
    Platform::Error tracksError;
    std::atomic<bool> holdTracks{false}; ///< the writing of tracks waits while this is set
    std::atomic<int> tracksStarted{0};
    std::atomic<bool> holdInfo{false}; ///< measuring a file waits while this is set; for 30 s at most
    std::atomic<int> infosStarted{0};

    [[nodiscard]] std::vector<Mix> mixes() const {
        const std::scoped_lock lock(mutex_);
        return mixes_;
    }

    /// The tracks that were written, each pair as a mix without a WAVE.
    [[nodiscard]] std::vector<Mix> tracks() const {
        const std::scoped_lock lock(mutex_);
        return tracks_;
    }

    Platform::Result<Platform::AudioFileInfo> info(const QString& path) override {
        ++infosStarted;
        for (int i = 0; i < 30000 && holdInfo; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (!QFileInfo::exists(path))
            return Platform::Error{Platform::Error::Kind::NotFound, path};
        Platform::AudioFileInfo info;
        info.dataFormat.mSampleRate = 44100;
        info.seconds = secondsOf.value(path, seconds);
        info.frameCount = std::int64_t(info.seconds * 44100);
        return info;
    }

    Platform::Result<std::unique_ptr<Platform::Movie>> openMovie(const QString& path) override {
        if (unreadable.contains(path) || !QFileInfo::exists(path))
            return Platform::Error{Platform::Error::Kind::Damaged, QStringLiteral("the file is damaged")};
        return std::make_unique<FakeMovie>(*this, path);
    }

    Platform::Result<std::unique_ptr<Platform::ExtAudioFileReader>> openReader(const QString& path) override {
        if (!QFileInfo::exists(path))
            return Platform::Error{Platform::Error::Kind::NotFound, path};
        return std::make_unique<ShortReader>(readError);
    }

private:
    class FakeMovie final : public Platform::Movie {
    public:
        FakeMovie(FakeRecordingFiles& files, const QString& path) : files_(files), path_(path), timings_(1) {}
        double duration() const override { return files_.seconds; }
        int soundTracks() const override { return int(timings_.size()); }
        bool insertSoundTrackOf(const Movie& other) override {
            second_ = static_cast<const FakeMovie&>(other).path_;
            timings_.emplace_back();
            return true;
        }
        void setTiming(int track, TrackTiming timing) override { timings_.at(std::size_t(track)) = timing; }
        Platform::Result<> writeWave(const QString& path, const std::function<bool(double)>& progress) override {
            ++files_.mixesStarted;
            while (files_.holdMix)
                if (!progress(0.5))
                    return Platform::Error{Platform::Error::Kind::Other, QStringLiteral("stopped")};
            if (files_.mixError)
                return files_.mixError;
            EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
            const std::scoped_lock lock(files_.mutex_);
            files_.mixes_.push_back({path_, second_, timings_, path});
            return {};
        }
        Platform::Result<> writeTracks(const QStringList& paths, const AudioStreamBasicDescription&,
                                       const std::function<bool(double)>& progress) override {
            ++files_.tracksStarted;
            while (files_.holdTracks)
                if (!progress(0.5))
                    return Platform::Error{Platform::Error::Kind::Cancelled, QStringLiteral("stopped")};
            if (files_.tracksError)
                return files_.tracksError;
            for (const QString& path : paths)
                EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
            const std::scoped_lock lock(files_.mutex_);
            files_.tracks_.push_back({path_, second_, timings_, {}});
            return {};
        }
        Platform::Error readError() const override { return files_.mixReadError; }

    private:
        FakeRecordingFiles& files_;
        QString path_;
        QString second_;
        std::vector<TrackTiming> timings_;
    };

    /// A tenth of a second of silence.
    class ShortReader final : public Platform::ExtAudioFileReader {
    public:
        explicit ShortReader(Platform::Error error) : error_(std::move(error)) {}
        AudioStreamBasicDescription fileDataFormat() const override {
            AudioStreamBasicDescription format;
            format.mSampleRate = 44100;
            format.mChannelsPerFrame = 2;
            return format;
        }
        std::int64_t fileLengthFrames() const override { return 4410; }
        OSStatus setClientDataFormat(const AudioStreamBasicDescription&) override { return noErr; }
        OSStatus seek(std::int64_t clientFrame) override {
            position_ = clientFrame;
            return noErr;
        }
        OSStatus read(std::uint32_t& frames, AudioBufferList* data) override {
            frames = std::uint32_t(std::clamp<std::int64_t>(4410 - position_, 0, frames));
            for (std::uint32_t i = 0; i < data->mNumberBuffers; ++i) {
                auto& buffer = *(&data->mBuffers[0] + i);
                buffer.mDataByteSize = frames * 4;
                std::fill_n(static_cast<float*>(buffer.mData), frames, 0.0F);
            }
            position_ += frames;
            return noErr;
        }
        Platform::Error firstError() const override { return error_; }

    private:
        Platform::Error error_;
        std::int64_t position_ = 0;
    };

    mutable std::mutex mutex_;
    std::vector<Mix> mixes_;
    std::vector<Mix> tracks_;
};
