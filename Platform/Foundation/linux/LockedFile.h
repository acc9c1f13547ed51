// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/FileLock.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <functional>

namespace Platform {

enum class LockKind { Shared, Exclusive };

/// Opens a file with @p open and takes the kernel's lock on it; the only function that locks files. When the file at @p
/// path is unlinked or replaced between the two steps, both are repeated: a lock on a file without a name protects
/// nothing. Waits for other holders at most @p patience.
/// @return an error of kind Busy when another process holds the lock; @p file is then open, but not locked. The same
/// holds when the file system does not support locks. Otherwise the error of the errno that @p open sets.
Result<> openLocked(const QString& path, const std::function<Descriptor()>& open, LockKind kind,
                    std::chrono::milliseconds patience, Descriptor& file);

} // namespace Platform
