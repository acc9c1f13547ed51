// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QWindow;

/// Brings windows in front of those of other programs when the user asked for it from elsewhere: by a second launch, a
/// command, the status bar. Desktops do not let programs do this on their own. Main thread.
namespace Platform::Activation {

/// The token that the desktop gave this process at its start to allow it to come to the front; empty when there is
/// none. Call it before the QApplication is created, which consumes the token.
[[nodiscard]] QByteArray launchToken();
/// Sets the token of the requesting process for the next window that comes to the front; empty when it had none.
void setToken(const QByteArray& token);
/// Raises a visible window and gives it the focus.
void bringToFront(QWindow& window);

} // namespace Platform::Activation
