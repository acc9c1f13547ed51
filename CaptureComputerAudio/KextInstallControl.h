// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Installs and removes the capture driver for the whole system. Main thread. Blocks its caller until the
/// administrator's part is done; a local event loop keeps the windows responsive.
namespace KextInstallControl {

/// Whether the driver's bundle is in the system's folder.
[[nodiscard]] bool isExist();
/// True when no bundle is left. When none is installed, it returns at once without a password prompt.
[[nodiscard]] bool uninstall();
/// Replaces the installed bundle with the one from the program's resources and starts its driver. Asks for one
/// password. On any failure a driver that was installed remains installed, and is started again if it was running.
[[nodiscard]] bool install();
/// Why the last install() or uninstall() failed, in one line; empty when it succeeded.
[[nodiscard]] QString lastError();
/// Whether an installation or removal is running; a second one is refused.
[[nodiscard]] bool isBusy();

/// Starts the installed driver when its device is missing, as at every launch before the devices are listed. Waits at
/// most a second for the device; one that appears later is announced like any other. True when the device exists.
bool loadIfInstalled();

/// The path of the installed "ComputerAudioCapture.kext".
[[nodiscard]] QString installedBundlePath();
/// The path of "ComputerAudioCapture.kext" among the program's resources.
[[nodiscard]] QString resourceBundlePath();

/// Replaces the system's folder with another one while it lives, for tests.
class ExtensionsFolderScope {
public:
    explicit ExtensionsFolderScope(const QString& folder);
    ~ExtensionsFolderScope();
    ExtensionsFolderScope(const ExtensionsFolderScope&) = delete;
    ExtensionsFolderScope& operator=(const ExtensionsFolderScope&) = delete;

private:
    QString before_;
};

} // namespace KextInstallControl
