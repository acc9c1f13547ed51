// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/linux/MediaFacts.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stop_token>

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
/// Closes the library when it is initialised. The same thread.
void finish();

/// The library's oldest message about a failure, empty when there is none. Drops all older messages and those of lower
/// severity.
[[nodiscard]] QString message();

/// A drive that this process holds exclusively while the object lives. The thread of BurnLibrary.
class HeldDrive {
public:
    /// @p path: "/dev/sr0". @p load: close the tray first.
    HeldDrive(const QString& path, bool load);
    /// Releases the drive, with its disc inside or ejected.
    ~HeldDrive();
    HeldDrive(const HeldDrive&) = delete;
    HeldDrive& operator=(const HeldDrive&) = delete;

    /// Null when the drive could not be grabbed.
    [[nodiscard]] burn::burn_drive* get() const { return drive_; }
    /// The state of the disc, once the drive is ready (waits at most half a minute).
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
inline constexpr int kProfileFile = 0xffff; ///< libburn's own number for a file that is used like a drive

/// Free blocks on the disc.
[[nodiscard]] std::int64_t freeBlocks(burn::burn_drive* drive, int profile);

/// Examines the disc. The thread of BurnLibrary.
[[nodiscard]] MediaFacts lookAt(const QString& path, const std::stop_token& stop);
/// Ejects the disc. @return the error; empty on success
[[nodiscard]] QString eject(const QString& path);

} // namespace Platform::LibBurn
