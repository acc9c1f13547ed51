// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// Tells the desktop portal which program this process is. Portals since 1.20 give global shortcuts only to programs
/// that they know, and a program that was not started by the desktop is unknown. To be called before anything else is
/// asked of the portal on the session bus; waits for nothing, and older portals do not listen.
/// @param desktopEntry name of the program's desktop file without its ending
void introduceToPortal(const QString& desktopEntry);

} // namespace Platform
