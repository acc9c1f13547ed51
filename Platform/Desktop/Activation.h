// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QWindow;

/// Brings windows in front of those of other programs when the user asked for it somewhere else: with a second launch,
/// a command, the status bar. Desktops keep programs from doing so on their own. Main thread.
namespace Platform::Activation {

/// What the desktop gave this process at its start so that it may come to the front; empty when it gave nothing.
/// To be taken before the QApplication is made, which uses it up.
[[nodiscard]] QByteArray launchToken();
/// The token of the process that asks, for the next window that comes to the front; empty when it had none.
void setToken(const QByteArray& token);
/// Puts a window that is shown on top and gives it the focus.
void bringToFront(QWindow& window);

} // namespace Platform::Activation
