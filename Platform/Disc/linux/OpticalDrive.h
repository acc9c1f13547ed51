// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/BurnLibrary.h"
#include "Platform/Disc/linux/DriveSource.h"
#include "Platform/Disc/linux/MediaFacts.h"
#include "Platform/Disc/linux/OpticalBurn.h"

namespace Platform {

/// A drive of the system. Answers from the last known state; a new disc is examined on the library's thread.
class OpticalDrive final : public DRDevice, public std::enable_shared_from_this<OpticalDrive> {
public:
    /// @p source and @p library outlive the drive's work.
    OpticalDrive(std::weak_ptr<DRNotificationCenter> center, DriveSource& source, BurnLibrary& library)
        : center_(std::move(center)), source_(source), library_(library) {}

    [[nodiscard]] QString displayName() const override { return found_.name; }
    [[nodiscard]] DRDeviceStatus status() const override;
    [[nodiscard]] bool mediaIsBlank() const override;
    [[nodiscard]] bool mediaIsErasable() const override;
    [[nodiscard]] QString bsdName() const override;
    [[nodiscard]] QString path() const override { return found_.path; }
    bool ejectMedia() override;

    /// Takes the system's current data about the drive. Notifies the observers of changes.
    void update(const FoundDrive& found);
    /// Used for a burn or an erase with this drive.
    [[nodiscard]] OpticalTarget target();

private:
    void look();
    void setBusy(bool busy);
    void notifyObservers();
    [[nodiscard]] QString whyNotOpened() const;

    std::weak_ptr<DRNotificationCenter> center_;
    DriveSource& source_;
    BurnLibrary& library_;
    FoundDrive found_;
    DRDeviceMediaState mediaState_ = DRDeviceMediaStateNone;
    MediaFacts facts_;
    bool wasFound_ = false;
    bool isBusy_ = false; ///< a burn or an erase uses it
    bool isLooking_ = false;
    bool lookAgain_ = false; ///< the disc changed while it was being examined
};

} // namespace Platform
