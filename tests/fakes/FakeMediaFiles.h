// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <map>
#include <vector>

#include <QMap>

/// Writers that keep their frames in memory, in the client format. An empty file of the same name is created, so that
/// the name counts as taken.
class FakeMediaFiles : public Platform::MediaFiles {
public:
    /// One created file, for as long as the test refers to it.
    struct File {
        QString path;
        std::uint64_t inode = 0; ///< of the real file; it stays the same when the file is moved
        std::uint32_t type = 0;
        std::uint32_t flags = 0;
        AudioStreamBasicDescription format;
        AudioStreamBasicDescription clientFormat;
        std::vector<std::int32_t> channelMap;
        std::vector<std::vector<float>> samples; ///< one vector per client channel
        std::int64_t framesAccepted = 0;
        bool primed = false;
        bool disposed = false;
        bool keepSamples = true; ///< false: a cycle uses no memory
        const File* predecessor = nullptr;
        OSStatus clientFormatStatus = noErr;
        OSStatus channelMapStatus = noErr;
        OSStatus primeStatus = noErr;
        OSStatus writeStatus = noErr;
        OSStatus disposeStatus = noErr;
        bool hasConverter = true;
    };

    bool createFails = false;
    bool keepSamples = true;
    /// Applied to the next files as they are created.
    OSStatus clientFormatStatus = noErr;
    OSStatus channelMapStatus = noErr;
    OSStatus primeStatus = noErr;
    bool hasConverter = true;
    /// All created files, oldest first.
    std::vector<std::shared_ptr<File>> files;
    /// Whether info() also describes the created files by their frames, wherever they were moved to.
    bool knowsItsFiles = false;
    /// What info() returns for a path; other paths are unknown.
    QMap<QString, Platform::AudioFileInfo> infos;

    [[nodiscard]] File& last() { return *files.back(); }

    Platform::Result<std::unique_ptr<Platform::ExtAudioFileWriter>>
    createWriter(const QString& path, std::uint32_t fileType, const AudioStreamBasicDescription& format,
                 std::uint32_t flags) override;
    Platform::Result<std::unique_ptr<Platform::ExtAudioFileReader>> openReader(const QString& path) override;
    Platform::Result<Platform::AudioFileInfo> info(const QString& path) override;
    Platform::Result<std::unique_ptr<Platform::Movie>> openMovie(const QString& path) override;
    OSStatus completeFormat(AudioStreamBasicDescription&) override {
        ++completions;
        return noErr;
    }
    mutable int completions = 0;
};
