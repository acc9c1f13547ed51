// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/BurnJobs.h"
#include "Platform/Disc/linux/BurnLibrary.h"

#include <atomic>
#include <functional>

namespace Platform {

/// What a burn or an erase needs from its drive. Copied to the thread of BurnLibrary.
struct OpticalTarget {
    QString path;
    QString name;
    float maximumWriteSpeed = 0;
    /// Why the drive cannot be opened; empty when it can. Any thread.
    std::function<QString()> whyNotOpened;
    /// Called on the main thread when the drive starts and stops being used.
    std::function<void(bool busy)> setBusy;
    /// Asks the desktop to mount the finished disc. Main thread.
    std::function<void()> mount;
};

/// Writes a layout to a real disc with libburn: audio tracks as one session of an audio CD, an image file as the one
/// track of a data disc.
class OpticalBurn final : public DRBurn, public std::enable_shared_from_this<OpticalBurn> {
public:
    /// @p library outlives the burn's work.
    OpticalBurn(std::weak_ptr<DRNotificationCenter> center, BurnLibrary& library, OpticalTarget target)
        : status_(std::move(center), DRBurnStatusChangedNotification), library_(library), target_(std::move(target)) {}

    void setRequestedBurnSpeed(float speed) override { speed_ = speed; }
    [[nodiscard]] DRBurnProperties properties() const override { return properties_; }
    void setProperties(const DRBurnProperties& properties) override { properties_ = properties; }
    void writeLayout(const std::optional<DRLayout>& layout) override;
    [[nodiscard]] DRStatus status() const override { return status_.shown(); }
    void abort() override { aborted_ = true; }

private:
    [[nodiscard]] QString run(const DRLayout& layout, const std::stop_token& stop);
    void report(DRStatusState state, double share, const QString& reason = {});

    ReportedStatus status_;
    BurnLibrary& library_;
    OpticalTarget target_;
    DRBurnProperties properties_;
    float speed_ = 0;
    std::atomic<bool> aborted_{false};
};

/// Erases a disc with libburn.
class OpticalErase final : public DRErase, public std::enable_shared_from_this<OpticalErase> {
public:
    OpticalErase(std::weak_ptr<DRNotificationCenter> center, BurnLibrary& library, OpticalTarget target)
        : status_(std::move(center), DREraseStatusChangedNotification), library_(library), target_(std::move(target)) {}

    void setEraseType(DREraseType type) override { type_ = type; }
    void start() override;
    [[nodiscard]] DRStatus status() const override { return status_.shown(); }

private:
    [[nodiscard]] QString run(const std::stop_token& stop);
    void report(DRStatusState state, double share, const QString& reason = {});

    ReportedStatus status_;
    BurnLibrary& library_;
    OpticalTarget target_;
    DREraseType type_ = DREraseTypeComplete;
};

} // namespace Platform
