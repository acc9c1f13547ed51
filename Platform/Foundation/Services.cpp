// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Services.h"

namespace Platform {

Services& services() {
    static Services set;
    return set;
}

} // namespace Platform
