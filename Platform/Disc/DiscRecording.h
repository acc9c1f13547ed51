// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DRNotificationCenter.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace Platform {

enum DRDeviceMediaState { DRDeviceMediaStateNone, DRDeviceMediaStateInTransition, DRDeviceMediaStateMediaPresent };

/// What is known of a drive at one moment.
struct DRDeviceStatus {
    bool isBusy = false; ///< it burns, erases or is being looked at
    DRDeviceMediaState mediaState = DRDeviceMediaStateNone;
    float maximumWriteSpeed = 0;      ///< kilobytes (1000) a second with the disc that is in; 0: not known
    std::int64_t mediaBlocksFree = 0; ///< blocks that can still be written to the disc
    QString mediaKind;                ///< "CD-R", "CD-RW"; empty without a disc
    /// Why the drive cannot be used, in words ("another program uses the drive"); empty when nothing is wrong.
    QString problem;
};

/// A drive that writes discs. Cheap to ask: everything is answered from what was last seen, nothing waits for the
/// drive. Main thread.
class DRDevice : public DRObject {
public:
    /// Maker and model, as people know it.
    [[nodiscard]] virtual QString displayName() const = 0;
    [[nodiscard]] virtual DRDeviceStatus status() const = 0;
    [[nodiscard]] virtual bool mediaIsBlank() const = 0;
    [[nodiscard]] virtual bool mediaIsErasable() const = 0;
    /// The device's name under /dev ("sr0") while a disc is in it, else empty.
    [[nodiscard]] virtual QString bsdName() const = 0;
    /// Where the drive is ("/dev/sr0"), with or without a disc; empty for the drive that writes images.
    [[nodiscard]] virtual QString path() const = 0;
    /// Starts to put the disc out. @return false when the drive is busy, cannot, or holds none
    virtual bool ejectMedia() = 0;
};

struct DRTrackProperties {
    std::uint32_t preGapLength = 150; ///< sectors of silence before the track; 75 are a second
};

/// One track to be written. Main thread; a burn reads it on its own thread and expects no changes meanwhile.
class DRTrack : public DRObject {
public:
    [[nodiscard]] virtual DRTrackProperties properties() const = 0;
    virtual void setProperties(const DRTrackProperties& properties) = 0;
    /// The file that it is made from.
    [[nodiscard]] virtual QString path() const = 0;
    /// Length in sectors, without the pre-gap: 2352 bytes each for audio, 2048 for an image file.
    [[nodiscard]] virtual std::int64_t sectors() const = 0;
    /// The file's own tags; empty where it has none.
    [[nodiscard]] virtual QString title() const { return {}; }
    [[nodiscard]] virtual QString artist() const { return {}; }
};

/// The tracks of a disc, in their order.
using DRLayout = std::vector<std::shared_ptr<DRTrack>>;

enum DRStatusState {
    DRStatusStateNone, ///< not started
    DRStatusStatePreparing,
    DRStatusStateTrackWrite,
    DRStatusStateSessionClose,
    DRStatusStateErasing,
    DRStatusStateDone,
    DRStatusStateFailed ///< also when it was aborted
};

struct DRStatus {
    DRStatusState state = DRStatusStateNone;
    double percentComplete = 0; ///< a share from 0 to 1; -1 while it is not known
    QString reason;             ///< why it failed: what, and why; empty otherwise
};

enum DRBurnCompletionAction { DRBurnCompletionActionEject, DRBurnCompletionActionMount };
enum DRBurnStrategy { DRBurnStrategyAutomatic, DRBurnStrategyDVDDAO };
enum DRUDFVersion { DRUDFVersion102, DRUDFVersion150 };

struct DRBurnProperties {
    DRBurnCompletionAction completionAction = DRBurnCompletionActionEject;
    DRBurnStrategy strategy = DRBurnStrategyAutomatic;
    bool verifyDisc = true;                         ///< read an image file back and compare; audio is never read back
    DRUDFVersion udfWriteVersion = DRUDFVersion102; ///< for file systems that are made; an image file keeps its own
};

/// Writes one layout to the disc in one drive, on a thread of its own. Main thread. A burn that runs keeps itself
/// alive until it has ended; destroying the last reference neither ends nor disturbs it.
class DRBurn : public DRObject {
public:
    /// Kilobytes (1000) a second; 0: as fast as the drive can.
    virtual void setRequestedBurnSpeed(float speed) = 0;
    [[nodiscard]] virtual DRBurnProperties properties() const = 0;
    virtual void setProperties(const DRBurnProperties& properties) = 0;
    /// Starts to write and returns. From then on DRBurnStatusChangedNotification comes on the main thread, at least
    /// four times a second while sectors are written, the last time with DRStatusStateDone or DRStatusStateFailed.
    /// No layout, one without tracks, and one that has no room on the disc fail before anything is written.
    virtual void writeLayout(const std::optional<DRLayout>& layout) = 0;
    [[nodiscard]] virtual DRStatus status() const = 0;
    /// Ends the burn as soon as the drive lets it; the disc is spoilt, an image that was begun is removed. Returns at
    /// once; DRStatusStateFailed follows.
    virtual void abort() = 0;
    /// The user was asked where to write and gave no answer: nothing was started, nothing will be told.
    [[nodiscard]] virtual bool wasDeclined() const { return false; }
};

enum DREraseType { DREraseTypeQuick, DREraseTypeComplete };

/// Erases the disc in one drive, on a thread of its own. Main thread. Keeps itself alive while it runs.
class DRErase : public DRObject {
public:
    virtual void setEraseType(DREraseType type) = 0;
    /// Starts and returns. DREraseStatusChangedNotification comes as with a burn.
    virtual void start() = 0;
    [[nodiscard]] virtual DRStatus status() const = 0;
};

/// The door to everything that writes discs. Main thread; the objects are shared with whoever asks.
class DiscRecording {
public:
    virtual ~DiscRecording() = default;
    /// The drives, in an order that stays while none comes or goes; last the one that writes an image.
    [[nodiscard]] virtual std::vector<std::shared_ptr<DRDevice>> devices() = 0;
    /// Opens the file and measures it: 44,100 Hz, 16 bit, stereo, in whole sectors.
    /// @return null when it cannot be read; @p why then names the file and says why
    [[nodiscard]] virtual std::shared_ptr<DRTrack> trackForAudioFile(const QString& path, QString& why) = 0;
    /// One data track with the content of an image file. @return nothing when it cannot be read
    [[nodiscard]] virtual std::optional<DRLayout> layoutForImageFile(const QString& path, QString& why) = 0;
    /// @return null when no burn can be made with this drive
    [[nodiscard]] virtual std::shared_ptr<DRBurn> burnWithDevice(const std::shared_ptr<DRDevice>& device) = 0;
    /// @return null when no erase can be made with this drive
    [[nodiscard]] virtual std::shared_ptr<DRErase> eraseWithDevice(const std::shared_ptr<DRDevice>& device) = 0;
    [[nodiscard]] virtual DRNotificationCenter& currentRunLoopCenter() = 0;
    /// Where the image drive writes its next image (the cue sheet or the data file; the other one stands beside it).
    /// While this is empty, it asks with a save panel at the start of each burn.
    virtual void setImagePath(const QString& path) = 0;
};

} // namespace Platform
