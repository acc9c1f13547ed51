// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Apart from what moves windows: commands hand their token on, and the command line is linked without Qt Gui.
#include "Platform/Desktop/Activation.h"

namespace Platform::Activation {

QByteArray launchToken() {
    const QByteArray wayland = qgetenv("XDG_ACTIVATION_TOKEN");
    return wayland.isEmpty() || qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? qgetenv("DESKTOP_STARTUP_ID")
                                                                               : wayland;
}

} // namespace Platform::Activation
