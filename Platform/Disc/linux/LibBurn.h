// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/BurnLibrary.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

#include <sys/time.h>
#include <sys/types.h>

#include <libburn/libburn.h>

namespace Platform::LibBurn {

template <auto Free>
struct FreeBy {
    template <typename T>
    void operator()(T* object) const noexcept {
        Free(object);
    }
};
using DiscPtr = std::unique_ptr<burn::burn_disc, FreeBy<burn::burn_disc_free>>;
using SessionPtr = std::unique_ptr<burn::burn_session, FreeBy<burn::burn_session_free>>;
using TrackPtr = std::unique_ptr<burn::burn_track, FreeBy<burn::burn_track_free>>;
using SourcePtr = std::unique_ptr<burn::burn_source, FreeBy<burn::burn_source_free>>;
using WriteOptionsPtr = std::unique_ptr<burn::burn_write_opts, FreeBy<burn::burn_write_opts_free>>;

/// False when the library cannot be initialised. The thread of BurnLibrary.
[[nodiscard]] bool initialise();

/// The library's oldest message that tells of a failure, empty when there is none; older and milder ones are dropped.
[[nodiscard]] QString message();

/// A drive that this process holds alone, from here to the end of the object. The thread of BurnLibrary.
class HeldDrive {
public:
    /// @p path: "/dev/sr0". @p load: close the tray first.
    HeldDrive(const QString& path, bool load);
    /// Gives the drive back, with its disc in or out.
    ~HeldDrive();
    HeldDrive(const HeldDrive&) = delete;
    HeldDrive& operator=(const HeldDrive&) = delete;

    /// Null when the drive could not be had.
    [[nodiscard]] burn::burn_drive* get() const { return drive_; }
    /// What is in the drive, after it has calmed down (at most half a minute).
    [[nodiscard]] burn::burn_disc_status discStatus(const std::stop_token& stop) const;
    /// The profile number of the disc ("CD-R" is 0x09); 0 without one. @p name receives its name.
    [[nodiscard]] int profile(QString* name = nullptr) const;
    void ejectAtTheEnd(bool eject) { eject_ = eject; }

private:
    burn::burn_drive_info* infos_ = nullptr;
    burn::burn_drive* drive_ = nullptr;
    bool eject_ = false;
};

inline constexpr int kProfileCDR = 0x09;
inline constexpr int kProfileCDRW = 0x0a;
inline constexpr int kProfileFile = 0xffff; ///< libburn's own: a file that is used like a drive

/// How many blocks can still be written to the disc.
[[nodiscard]] std::int64_t freeBlocks(burn::burn_drive* drive, int profile);

/// Looks at the disc. The thread of BurnLibrary.
[[nodiscard]] MediaFacts lookAt(const QString& path, const std::stop_token& stop);
/// Puts the disc out. @return what went wrong; empty when nothing did
[[nodiscard]] QString eject(const QString& path);

} // namespace Platform::LibBurn
