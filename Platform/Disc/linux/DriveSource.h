// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"
#include "Platform/Disc/DiskArbitration.h"

#include <functional>
#include <memory>
#include <vector>

namespace Platform {

/// One drive that can write discs, from the system's device database.
struct FoundDrive {
    QString path;   ///< "/dev/sr0", or another address that libburn accepts
    QString device; ///< "sr0"
    QString name;   ///< maker and model
    DRDeviceMediaState media = DRDeviceMediaStateNone;
    bool mediaIsBlank = false;      ///< from the device database: used when the drive cannot be opened
    bool mediaIsRewritable = false; ///< from the device database, too
    int mediaChanges = 0;           ///< increases with each disc change that the system noticed
};

/// Finds and watches drives. Main thread, except openError().
class DriveSource {
public:
    virtual ~DriveSource() = default;
    [[nodiscard]] virtual std::vector<FoundDrive> drives() = 0;
    /// Why the drive cannot be opened for writing: an errno, or 0 when it can. Any thread.
    [[nodiscard]] virtual int openError(const QString& path) = 0;
    /// A quiet drive is not polled: polling can disturb a burn.
    virtual void setQuiet(const QString& path, bool quiet) = 0;
    /// Asks the desktop's disk service to examine the disc and to mount it when it holds files.
    virtual void mount(const QString& /*path*/) {}
};

/// Finds drives with udev. @p changed is called on the main thread when drives or discs may have changed: at kernel
/// events, and at a poll every two seconds for kernels that do not watch their drives.
[[nodiscard]] std::unique_ptr<DriveSource> createDriveSource(std::function<void()> changed);
/// Describes block devices with udev, and the drive that writes images.
[[nodiscard]] std::unique_ptr<DiskArbitration> createDiskArbitration();

} // namespace Platform
