// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A file of its own: subcommands pass their token on, and the command line is linked without Qt Gui, which the code
// that moves windows needs.
#include "Platform/Desktop/Activation.h"

namespace Platform::Activation {

QByteArray launchToken() {
    const QByteArray wayland = qgetenv("XDG_ACTIVATION_TOKEN");
    return wayland.isEmpty() || qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? qgetenv("DESKTOP_STARTUP_ID")
                                                                               : wayland;
}

} // namespace Platform::Activation
