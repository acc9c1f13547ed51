// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <memory>

namespace Platform {

/// A block device by its path. Main thread.
class DADisk {
public:
    virtual ~DADisk() = default;
    /// Whether the system knows a medium in it: false for a drive without a disc.
    [[nodiscard]] virtual bool hasDescription() const = 0;
};

class DASession {
public:
    virtual ~DASession() = default;
    /// @p path is like "/dev/sr0". @return null when there is no such device
    [[nodiscard]] virtual std::unique_ptr<DADisk> createDiskFromBSDName(const QByteArray& path) = 0;
};

/// The mount check: tells whether a device has a medium that the system knows. Each step can fail. Main thread.
class DiskArbitration {
public:
    virtual ~DiskArbitration() = default;
    /// @return null when the system's device database cannot be reached
    [[nodiscard]] virtual std::unique_ptr<DASession> createSession() = 0;
};

} // namespace Platform
