// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/BurnJobs.h"
#include "Platform/Disc/CDFormat.h"

#include <QCoreApplication>

#include <atomic>

namespace Platform {

/// A drive that always exists and always holds a blank disc of 80 minutes. A burn writes two files: the sectors (.bin)
/// and their table of contents (.cue).
class ImageDrive final : public DRDevice {
public:
    [[nodiscard]] static QString deviceName() { return QStringLiteral("disc-image"); }

    [[nodiscard]] QString displayName() const override { return QStringLiteral("Disc Image (CUE/BIN)"); }
    [[nodiscard]] DRDeviceStatus status() const override {
        DRDeviceStatus status;
        status.mediaState = DRDeviceMediaStateMediaPresent;
        status.mediaBlocksFree = CDFormat::kSectorsOf80Minutes;
        status.mediaKind = QStringLiteral(QT_TRANSLATE_NOOP("CommandLine", "disc image"));
        return status;
    }
    [[nodiscard]] bool mediaIsBlank() const override { return true; }
    [[nodiscard]] bool mediaIsErasable() const override { return false; }
    [[nodiscard]] QString bsdName() const override { return deviceName(); }
    [[nodiscard]] QString path() const override { return {}; }
    bool ejectMedia() override { return false; }
};

/// Writes a layout as a disc image. Both files appear complete under their names, or not at all; existing files are
/// never replaced.
class ImageBurn final : public DRBurn, public std::enable_shared_from_this<ImageBurn> {
public:
    /// @p path: the image's path; when empty, the user is asked. @p jobs outlives the burn's thread.
    ImageBurn(std::weak_ptr<DRNotificationCenter> center, BurnJobs& jobs, QString path)
        : status_(std::move(center), DRBurnStatusChangedNotification), jobs_(jobs), path_(std::move(path)) {}

    void setRequestedBurnSpeed(float) override {} // an image has no speed
    [[nodiscard]] DRBurnProperties properties() const override { return properties_; }
    void setProperties(const DRBurnProperties& properties) override { properties_ = properties; }
    void writeLayout(const std::optional<DRLayout>& layout) override;
    [[nodiscard]] DRStatus status() const override { return status_.shown(); }
    void abort() override { aborted_ = true; }
    [[nodiscard]] bool wasDeclined() const override { return declined_; }

private:
    class Writing;
    [[nodiscard]] bool askForPath();
    void fail(const QString& reason);

    ReportedStatus status_;
    BurnJobs& jobs_;
    QString path_;
    DRBurnProperties properties_;
    bool declined_ = false;
    std::atomic<bool> aborted_{false};
};

/// The two files of an image, from the path of either file or from their common name without an extension.
struct ImagePaths {
    explicit ImagePaths(const QString& named);
    QString cue;
    QString bin;
    /// Why no image can be written there; empty when it can.
    [[nodiscard]] QString problem() const;
};

/// A number of sectors as "1 h 02 min 03 s".
[[nodiscard]] QString playingTime(std::int64_t sectors);
/// Why these tracks cannot be burned to a disc with this many free sectors; empty when they can. @p leadingGap: sectors
/// of the first pre-gap that lie before the disc's first free sector.
[[nodiscard]] QString layoutProblem(const std::optional<DRLayout>& layout, std::int64_t freeSectors,
                                    std::int64_t leadingGap);

} // namespace Platform
