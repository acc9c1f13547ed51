// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DRNotificationCenter.h"
#include "Platform/Foundation/Result.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Platform {

enum DRDeviceMediaState { DRDeviceMediaStateNone, DRDeviceMediaStateInTransition, DRDeviceMediaStateMediaPresent };

/// The state of a drive at one moment.
struct DRDeviceStatus {
    bool isBusy = false; ///< it burns, erases, or examines its disc
    DRDeviceMediaState mediaState = DRDeviceMediaStateNone;
    float maximumWriteSpeed = 0;      ///< kilobytes (1000 bytes) per second with the current disc; 0: unknown
    std::int64_t mediaBlocksFree = 0; ///< free blocks on the disc
    QString mediaKind;                ///< "CD-R", "CD-RW"; empty without a disc
    /// Why the drive cannot be used ("another program uses the drive"); empty when it can.
    QString problem;
};

/// A drive that writes discs. All queries are answered from the last known state; none waits for the drive. Main
/// thread.
class DRDevice : public DRObject {
public:
    /// Maker and model, for display.
    [[nodiscard]] virtual QString displayName() const = 0;
    [[nodiscard]] virtual DRDeviceStatus status() const = 0;
    [[nodiscard]] virtual bool mediaIsBlank() const = 0;
    [[nodiscard]] virtual bool mediaIsErasable() const = 0;
    /// The device's name under /dev ("sr0") while a disc is in it, else empty.
    [[nodiscard]] virtual QString bsdName() const = 0;
    /// The drive's path ("/dev/sr0"), with or without a disc; empty for the drive that writes images.
    [[nodiscard]] virtual QString path() const = 0;
    /// Starts to eject the disc. @return false when the drive is busy, cannot eject, or holds no disc
    virtual bool ejectMedia() = 0;
};

struct DRTrackProperties {
    std::uint32_t preGapLength = 150; ///< sectors of silence before the track; 75 per second
};

/// One track to be written. Main thread; a burn reads it on its own thread and expects that it does not change
/// meanwhile.
class DRTrack : public DRObject {
public:
    [[nodiscard]] virtual DRTrackProperties properties() const = 0;
    virtual void setProperties(const DRTrackProperties& properties) = 0;
    /// The source file.
    [[nodiscard]] virtual QString path() const = 0;
    /// Length in sectors, without the pre-gap: 2352 bytes per sector for audio, 2048 for an image file.
    [[nodiscard]] virtual std::int64_t sectors() const = 0;
    /// From the file's tags; empty where it has none.
    [[nodiscard]] virtual QString title() const { return {}; }
    [[nodiscard]] virtual QString artist() const { return {}; }
};

/// The tracks of a disc, in order.
using DRLayout = std::vector<std::shared_ptr<DRTrack>>;

enum DRStatusState {
    DRStatusStateNone, ///< not started
    DRStatusStatePreparing,
    DRStatusStateTrackWrite,
    DRStatusStateSessionClose,
    DRStatusStateErasing,
    DRStatusStateDone,
    DRStatusStateFailed ///< also after an abort
};

struct DRStatus {
    DRStatusState state = DRStatusStateNone;
    double percentComplete = 0; ///< from 0 to 1; -1 while unknown
    QString reason;             ///< why it failed; empty otherwise
};

enum DRBurnCompletionAction { DRBurnCompletionActionEject, DRBurnCompletionActionMount };
enum DRBurnStrategy { DRBurnStrategyAutomatic, DRBurnStrategyDVDDAO };
enum DRUDFVersion { DRUDFVersion102, DRUDFVersion150 };

struct DRBurnProperties {
    DRBurnCompletionAction completionAction = DRBurnCompletionActionEject;
    DRBurnStrategy strategy = DRBurnStrategyAutomatic;
    bool verifyDisc = true;                         ///< read an image file back and compare; audio is never verified
    DRUDFVersion udfWriteVersion = DRUDFVersion102; ///< for file systems that are created; an image file keeps its own
};

/// Writes one layout to the disc in one drive, on a thread of its own. Main thread. A running burn keeps itself alive
/// until it has ended; releasing the last reference does not stop it.
class DRBurn : public DRObject {
public:
    /// Kilobytes (1000 bytes) per second; 0: as fast as the drive can.
    virtual void setRequestedBurnSpeed(float speed) = 0;
    [[nodiscard]] virtual DRBurnProperties properties() const = 0;
    virtual void setProperties(const DRBurnProperties& properties) = 0;
    /// Starts to write and returns. From then on DRBurnStatusChangedNotification comes on the main thread, at least
    /// four times a second while sectors are written; the last one has DRStatusStateDone or DRStatusStateFailed. A
    /// missing layout, one without tracks, and one that does not fit on the disc fail before anything is written.
    virtual void writeLayout(const std::optional<DRLayout>& layout) = 0;
    [[nodiscard]] virtual DRStatus status() const = 0;
    /// Ends the burn as soon as the drive allows it. The disc is then unusable; an incomplete image is removed. Returns
    /// at once; DRStatusStateFailed follows.
    virtual void abort() = 0;
    /// The user was asked for the target and cancelled: nothing was started, and no notification follows.
    [[nodiscard]] virtual bool wasDeclined() const { return false; }
};

enum DREraseType { DREraseTypeQuick, DREraseTypeComplete };

/// Erases the disc in one drive, on a thread of its own. Main thread. Keeps itself alive while it runs.
class DRErase : public DRObject {
public:
    virtual void setEraseType(DREraseType type) = 0;
    /// Starts and returns. DREraseStatusChangedNotification comes as it does for a burn.
    virtual void start() = 0;
    [[nodiscard]] virtual DRStatus status() const = 0;
};

/// The interface to all disc writing. Main thread; the objects are shared with the callers.
class DiscRecording {
public:
    virtual ~DiscRecording() = default;
    /// The drives, in a stable order while none is added or removed; the drive that writes an image is last.
    [[nodiscard]] virtual std::vector<std::shared_ptr<DRDevice>> devices() = 0;
    /// Opens and measures the file: 44,100 Hz, 16 bit, stereo, in whole sectors. Never null; the text of an error
    /// names the file.
    virtual Result<std::shared_ptr<DRTrack>> trackForAudioFile(const QString& path) = 0;
    /// One data track with the content of an image file.
    virtual Result<DRLayout> layoutForImageFile(const QString& path) = 0;
    /// @return null when no burn can be made with this drive
    [[nodiscard]] virtual std::shared_ptr<DRBurn> burnWithDevice(const std::shared_ptr<DRDevice>& device) = 0;
    /// @return null when no erase can be made with this drive
    [[nodiscard]] virtual std::shared_ptr<DRErase> eraseWithDevice(const std::shared_ptr<DRDevice>& device) = 0;
    [[nodiscard]] virtual DRNotificationCenter& currentRunLoopCenter() = 0;
    /// Where the image drive writes its next image (the path of the cue sheet or of the data file; both stand side by
    /// side). While this is empty, each burn asks with a save panel at its start.
    virtual void setImagePath(const QString& path) = 0;
};

} // namespace Platform
