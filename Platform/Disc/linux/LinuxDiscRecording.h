// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/DriveSource.h"
#include "Platform/Disc/linux/ImageDrive.h"
#include "Platform/Disc/linux/OpticalDrive.h"

#include <functional>

namespace Platform {

class MediaFiles;

/// The system's drives, searched when they are first asked for, and the drive that writes images.
class LinuxDiscRecording final : public DiscRecording {
public:
    using MakeSource = std::function<std::unique_ptr<DriveSource>(std::function<void()> changed)>;

    /// @p files opens the sources and outlives this object.
    explicit LinuxDiscRecording(MediaFiles& files, MakeSource makeSource = createDriveSource);
    /// Aborts running jobs and waits for them.
    ~LinuxDiscRecording() override;

    std::vector<std::shared_ptr<DRDevice>> devices() override;
    Result<std::shared_ptr<DRTrack>> trackForAudioFile(const QString& path) override;
    Result<DRLayout> layoutForImageFile(const QString& path) override;
    std::shared_ptr<DRBurn> burnWithDevice(const std::shared_ptr<DRDevice>& device) override;
    std::shared_ptr<DRErase> eraseWithDevice(const std::shared_ptr<DRDevice>& device) override;
    DRNotificationCenter& currentRunLoopCenter() override { return *center_; }
    void setImagePath(const QString& path) override { imagePath_ = path; }

private:
    void refresh(bool tell);

    MediaFiles& files_;
    MakeSource makeSource_;
    std::shared_ptr<DRNotificationCenter> center_;
    std::shared_ptr<ImageDrive> imageDrive_;
    QString imagePath_;
    std::vector<std::shared_ptr<OpticalDrive>> drives_;
    std::unique_ptr<DriveSource> source_;  // null until the drives are first asked for
    std::unique_ptr<BurnLibrary> library_; // null until the drives are first asked for
    BurnJobs jobs_;
};

} // namespace Platform
