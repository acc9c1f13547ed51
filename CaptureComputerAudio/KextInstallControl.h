// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Installs and removes the capture driver for the whole system. Main thread. Blocks its caller until the
/// administrator's part is done, while a local event loop keeps windows alive.
namespace KextInstallControl {

/// Whether the driver's bundle lies in the system's folder.
[[nodiscard]] bool isExist();
/// True when no bundle is left; without one at once, and nobody is asked for a password.
[[nodiscard]] bool uninstall();
/// Puts the bundle of the program's resources in the place of what is installed, and loads its driver. Asks for one
/// password. Whatever fails, a driver that was installed is installed still, and runs again if it ran.
[[nodiscard]] bool install();
/// Why the last of them failed, in one line; empty when it did not.
[[nodiscard]] QString lastError();
/// Whether an installation or removal is under way; a second one is refused.
[[nodiscard]] bool isBusy();

/// Loads the installed driver when its device is missing, as at every launch before the devices are listed. Waits at
/// most a second for the device; one that comes later is announced as any other. True when the device is there.
bool loadIfInstalled();

/// "ComputerAudioCapture.kext", with the folder it is installed into.
[[nodiscard]] QString installedBundlePath();
/// "ComputerAudioCapture.kext" among the program's resources.
[[nodiscard]] QString resourceBundlePath();

/// Puts another folder in the place of the system's for as long as it lives, for tests.
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
