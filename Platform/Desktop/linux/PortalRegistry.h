// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Platform {

/// Tells the desktop portal which program this process is. Portals since 1.20 grant global shortcuts only to known
/// programs, and a program that was not started by the desktop is unknown. Call it before any other portal call on the
/// session bus. Asynchronous; older portals ignore it.
/// @param desktopEntry name of the program's desktop file without its ending
void introduceToPortal(const QString& desktopEntry);

} // namespace Platform
