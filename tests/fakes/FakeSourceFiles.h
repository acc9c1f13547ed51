// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/fakes/FakeMediaFiles.h"

#include <algorithm>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

/// A FakeMediaFiles that can also be read: each source is a function of channel and frame, at the client rate.
class FakeSourceFiles : public FakeMediaFiles {
public:
    using Signal = std::function<float(int channel, std::int64_t frame)>;

    struct Source {
        Signal signal;
        std::int64_t frames = 0;
        OSStatus clientFormatStatus = noErr;
        int failingRead = -1; ///< number of the read that returns an error with its frames
        std::vector<std::int64_t> seeks;
        std::vector<std::uint32_t> asked;
        AudioBufferList firstList{}; ///< as passed to the first read
        std::uint32_t bytesOfBuffers[2] = {};
        AudioStreamBasicDescription clientFormat;
        double rate = 44100;
        bool sparse = false; ///< whether sparseSamples() works
        int sparseCalls = 0;
    };

    /// A file of two channels. Creates an empty file on the disk, so that it exists.
    Source& addSource(const QString& path, double seconds, Signal signal) {
        EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
        auto& source = sources[path];
        source.signal = std::move(signal);
        source.frames = std::int64_t(std::llround(seconds * 44100));
        return source;
    }
    /// A path in a folder that lives as long as this object.
    [[nodiscard]] QString at(const QString& name) const { return folder_.filePath(name); }
    std::map<QString, Source> sources;

    Platform::Result<std::unique_ptr<Platform::ExtAudioFileWriter>>
    createWriter(const QString& path, std::uint32_t fileType, const AudioStreamBasicDescription& format,
                 std::uint32_t flags) override {
        if (fileType == 0)
            return Platform::Error{Platform::Error::Kind::UnknownFormat, QStringLiteral("no such container")};
        return FakeMediaFiles::createWriter(path, fileType, format, flags);
    }

    Platform::Result<std::unique_ptr<Platform::ExtAudioFileReader>> openReader(const QString& path) override {
        const auto found = sources.find(path);
        if (found == sources.end())
            return Platform::Error{Platform::Error::Kind::UnknownFormat, path};
        return std::make_unique<Reader>(found->second);
    }

    Platform::Result<Platform::AudioFileInfo> info(const QString& path) override {
        const auto found = sources.find(path);
        if (found == sources.end())
            return FakeMediaFiles::info(path);
        Platform::AudioFileInfo info;
        info.frameCount = found->second.frames;
        info.seconds = double(info.frameCount) / 44100;
        return info;
    }

private:
    class Reader final : public Platform::ExtAudioFileReader {
    public:
        explicit Reader(Source& source) : source_(source) {}
        AudioStreamBasicDescription fileDataFormat() const override {
            AudioStreamBasicDescription format;
            format.mSampleRate = source_.rate;
            format.mChannelsPerFrame = 2;
            return format;
        }
        std::int64_t fileLengthFrames() const override { return source_.frames; }
        OSStatus setClientDataFormat(const AudioStreamBasicDescription& format) override {
            source_.clientFormat = format;
            return source_.clientFormatStatus;
        }
        OSStatus seek(std::int64_t clientFrame) override {
            source_.seeks.push_back(clientFrame);
            position_ = clientFrame;
            return noErr;
        }
        OSStatus read(std::uint32_t& frames, AudioBufferList* data) override {
            if (source_.asked.empty()) {
                source_.firstList = *data;
                source_.bytesOfBuffers[0] = data->mBuffers[0].mDataByteSize;
                source_.bytesOfBuffers[1] = (&data->mBuffers[0] + 1)->mDataByteSize;
            }
            source_.asked.push_back(frames);
            frames = std::uint32_t(std::clamp<std::int64_t>(source_.frames - position_, 0, frames));
            for (int channel = 0; channel < int(data->mNumberBuffers); ++channel) {
                auto& buffer = *(&data->mBuffers[0] + channel);
                auto* out = static_cast<float*>(buffer.mData);
                for (std::uint32_t i = 0; i < frames; ++i)
                    out[i] = source_.signal(channel, position_ + i);
                buffer.mDataByteSize = frames * 4;
            }
            position_ += frames;
            return int(source_.asked.size()) - 1 == source_.failingRead ? -50 : noErr;
        }
        bool sparseSamples(std::span<const std::int64_t> frames, std::span<float> out) override {
            ++source_.sparseCalls;
            for (std::size_t i = 0; i < frames.size(); ++i)
                out[i] = source_.signal(0, frames[i]);
            return source_.sparse;
        }
        Platform::Error firstError() const override { return {}; }

    private:
        Source& source_;
        std::int64_t position_ = 0;
    };

    QTemporaryDir folder_;
};
