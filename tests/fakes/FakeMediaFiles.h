// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Media/ExtAudioFile.h"

#include <map>
#include <vector>

#include <QMap>

/// Writers that keep what they are given in memory, in the client format. A file of the same name is really made, so
/// that names count as taken; it holds nothing.
class FakeMediaFiles : public Platform::MediaFiles {
public:
    /// One file that was created, for as long as the test looks at it.
    struct File {
        QString path;
        std::uint64_t inode = 0; ///< of the real file, which keeps it when it is moved
        std::uint32_t type = 0;
        std::uint32_t flags = 0;
        AudioStreamBasicDescription format;
        AudioStreamBasicDescription clientFormat;
        std::vector<std::int32_t> channelMap;
        std::vector<std::vector<float>> samples; ///< one vector a client channel
        std::int64_t framesAccepted = 0;
        bool primed = false;
        bool disposed = false;
        bool keepSamples = true; ///< off: a cycle costs no memory
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
    /// Oldest first.
    std::vector<std::shared_ptr<File>> files;
    /// Whether info() also knows the files that were created, by their frames, wherever they were moved to.
    bool knowsItsFiles = false;
    /// What info() answers of a path; other paths are unknown.
    QMap<QString, Platform::AudioFileInfo> infos;

    [[nodiscard]] File& last() { return *files.back(); }

    std::unique_ptr<Platform::ExtAudioFileWriter> createWriter(const QString& path, std::uint32_t fileType,
                                                               const AudioStreamBasicDescription& format,
                                                               std::uint32_t flags,
                                                               Platform::MediaError& error) override;
    std::unique_ptr<Platform::ExtAudioFileReader> openReader(const QString& path, Platform::MediaError& error) override;
    bool info(const QString& path, Platform::AudioFileInfo& info, Platform::MediaError& error) override;
    std::unique_ptr<Platform::Movie> openMovie(const QString& path, Platform::MediaError& error) override;
    OSStatus completeFormat(AudioStreamBasicDescription&) override {
        ++completions;
        return noErr;
    }
    mutable int completions = 0;
};
