// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/LinuxDiscRecording.h"

#include "Platform/Disc/AudioTrack.h"
#include "Platform/Disc/linux/TrackSource.h"

#include <algorithm>

namespace Platform {

LinuxDiscRecording::LinuxDiscRecording(MediaFiles& files, MakeSource makeSource)
    : files_(files), makeSource_(std::move(makeSource)), center_(std::make_shared<DRNotificationCenter>()),
      imageDrive_(std::make_shared<ImageDrive>()) {
}

LinuxDiscRecording::~LinuxDiscRecording() = default;

void LinuxDiscRecording::refresh(bool tell) {
    const std::vector<FoundDrive> found = source_->drives();
    std::vector<std::shared_ptr<OpticalDrive>> drives;
    for (const FoundDrive& each : found) {
        const auto known = std::find_if(drives_.begin(), drives_.end(), [&](const auto& drive) {
            return drive->path() == each.path && drive->displayName() == each.name;
        });
        drives.push_back(known != drives_.end() ? *known
                                                : std::make_shared<OpticalDrive>(center_, *source_, *library_));
    }
    const bool isOther = drives != drives_;
    drives_ = std::move(drives);
    const auto now = drives_;
    for (std::size_t i = 0; i < now.size(); ++i)
        now[i]->update(found[i]);
    if (isOther && tell)
        center_->deliver({DRDeviceListChangedNotification, nullptr});
}

std::vector<std::shared_ptr<DRDevice>> LinuxDiscRecording::devices() {
    if (!source_) {
        library_ = std::make_unique<BurnLibrary>();
        source_ = makeSource_([this] { refresh(true); });
        refresh(false);
    }
    std::vector<std::shared_ptr<DRDevice>> all(drives_.begin(), drives_.end());
    all.push_back(imageDrive_);
    return all;
}

Result<std::shared_ptr<DRTrack>> LinuxDiscRecording::trackForAudioFile(const QString& path) {
    auto track = AudioTrack::open(files_, path);
    if (!track)
        return track.error();
    return *std::move(track);
}

Result<DRLayout> LinuxDiscRecording::layoutForImageFile(const QString& path) {
    auto track = ImageFileTrack::open(path);
    if (!track)
        return track.error();
    return DRLayout{*std::move(track)};
}

std::shared_ptr<DRBurn> LinuxDiscRecording::burnWithDevice(const std::shared_ptr<DRDevice>& device) {
    if (device == imageDrive_)
        return std::make_shared<ImageBurn>(center_, jobs_, imagePath_);
    if (const auto drive = std::dynamic_pointer_cast<OpticalDrive>(device))
        return std::make_shared<OpticalBurn>(center_, *library_, drive->target());
    return nullptr;
}

std::shared_ptr<DRErase> LinuxDiscRecording::eraseWithDevice(const std::shared_ptr<DRDevice>& device) {
    if (const auto drive = std::dynamic_pointer_cast<OpticalDrive>(device))
        return std::make_shared<OpticalErase>(center_, *library_, drive->target());
    return nullptr;
}

} // namespace Platform
