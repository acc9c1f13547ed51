// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The running driver: a process that creates the device "Korvane System Audio". It outlives this program and ends with
/// the sound server. Main thread.
namespace CaptureDriver {

inline constexpr int kPatienceMs = 5000;

/// The driver's program inside a bundle.
[[nodiscard]] QString programIn(const QString& bundlePath);
/// Whether the sound server has the driver's engine.
[[nodiscard]] bool isLoaded();
/// Whether the driver of a bundle can run on this machine: its program starts, reads its configuration and reaches the
/// sound server. It creates no device during this check. @p why holds the reason otherwise.
[[nodiscard]] bool canRun(const QString& bundlePath, QString& why);
/// Starts the driver of a bundle and waits until its engine exists, at most @p patienceMs, running the event loop. True
/// when it exists, also when it did before. @p why holds the reason otherwise.
bool load(const QString& bundlePath, QString& why, int patienceMs = kPatienceMs);
/// Ends every running driver of this sound server and waits until they are gone. True when none is left.
bool unload(int patienceMs = kPatienceMs);

} // namespace CaptureDriver
