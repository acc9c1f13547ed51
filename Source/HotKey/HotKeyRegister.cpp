// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/HotKey/HotKeyRegister.h"

std::uint32_t HotKeyRegister::carbonKeyModifiers(std::uint32_t flags) {
    std::uint32_t carbon = 0;
    carbon |= (flags & 0x20000U) ? 512U : 0U;  // Shift
    carbon |= (flags & 0x100000U) ? 256U : 0U; // Command
    carbon |= (flags & 0x80000U) ? 2048U : 0U; // Option
    carbon |= (flags & 0x40000U) ? 4096U : 0U; // Control
    return carbon;
}
