// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"
#include "Platform/Disc/SectorRenderer.h"

#include <mutex>

namespace Platform {

/// A track of an audio CD, made from an audio file of any format. The file stays open after it was measured, so that it
/// can be burned even when it is deleted meanwhile.
class AudioTrack final : public DRTrack {
public:
    /// Opens and measures the file. Never null; the text of an error names the file.
    static Result<std::shared_ptr<AudioTrack>> open(MediaFiles& files, const QString& path);

    [[nodiscard]] DRTrackProperties properties() const override { return properties_; }
    void setProperties(const DRTrackProperties& properties) override { properties_ = properties; }
    [[nodiscard]] QString path() const override { return path_; }
    [[nodiscard]] std::int64_t sectors() const override { return sectors_; }
    [[nodiscard]] QString title() const override { return title_; }
    [[nodiscard]] QString artist() const override { return artist_; }

    /// The file already has the disc's sample format: no dither is added.
    [[nodiscard]] bool isExact() const { return exact_; }
    /// Whether reading from any position gives the same samples as reading from the beginning.
    [[nodiscard]] bool canBeDivided() const { return divisible_; }
    /// A source of the track's sectors, positioned at its beginning. Any thread. An error when the file cannot be
    /// reopened, or has changed since it was measured.
    Result<std::unique_ptr<SectorRenderer>> renderer();

private:
    explicit AudioTrack(MediaFiles& files, QString path) : files_(files), path_(std::move(path)) {}
    Result<std::unique_ptr<ExtAudioFileReader>> openReader();

    MediaFiles& files_;
    QString path_;
    DRTrackProperties properties_;
    std::int64_t frames_ = 0;
    std::int64_t sectors_ = 0;
    QString title_;
    QString artist_;
    bool exact_ = false;
    bool divisible_ = false;

    std::mutex mutex_;
    std::unique_ptr<ExtAudioFileReader>
        opened_; // guarded by mutex_: the reader that measured the file; the first renderer takes it
};

} // namespace Platform
