// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/TrackFeed.h"
#include "Platform/Disc/linux/LibBurn.h"

namespace Platform {

/// A libburn source that takes one track's @p bytes from the feed. The feed outlives the source. @return null when
/// there is no memory
[[nodiscard]] LibBurn::SourcePtr feedSource(TrackFeed& feed, std::int64_t bytes);

/// An image file that is written as the one track of a data disc.
class ImageFileTrack final : public DRTrack {
public:
    /// Never null; the text of an error names the file.
    static Result<std::shared_ptr<ImageFileTrack>> open(const QString& path);

    [[nodiscard]] DRTrackProperties properties() const override { return properties_; }
    void setProperties(const DRTrackProperties& properties) override { properties_ = properties; }
    [[nodiscard]] QString path() const override { return path_; }
    [[nodiscard]] std::int64_t sectors() const override { return (bytes_ + 2047) / 2048; }
    [[nodiscard]] std::int64_t bytes() const { return bytes_; }

private:
    QString path_;
    std::int64_t bytes_ = 0;
    DRTrackProperties properties_{.preGapLength = 0};
};

} // namespace Platform
