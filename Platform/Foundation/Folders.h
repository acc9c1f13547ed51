// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"

#include <QString>

namespace Platform::Folders {

/// $HOME, else the home folder from the user database. Without a trailing slash.
[[nodiscard]] QString home();

/// The system's temporary folder of this user: $TMPDIR when it is set and private to the user, else
/// $XDG_CACHE_HOME/tmp. The latter is created with mode 0700; an error when it is a link or belongs to another user.
Result<QString> temporary();

/// $XDG_CONFIG_HOME, $XDG_CACHE_HOME, $XDG_DATA_HOME, $XDG_RUNTIME_DIR or their defaults below home().
[[nodiscard]] QString config();
[[nodiscard]] QString cache();
[[nodiscard]] QString data();
/// Falls back to a private folder below cache() when the variable is unset.
[[nodiscard]] QString runtime();

} // namespace Platform::Folders
