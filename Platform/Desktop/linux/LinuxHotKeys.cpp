// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/LinuxHotKeys.h"

namespace Platform {
namespace {

class NoHotKeys : public HotKeys {
public:
    Way way() const override { return Way::None; }
    void setHandler(Handler) override {}
    Handle registerHotKey(std::uint16_t, std::uint32_t, Id) override { return 0; }
    void unregisterHotKey(Handle) override {}
};

} // namespace

std::unique_ptr<HotKeys> createHotKeys() {
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland")
        return createPortalHotKeys();
    if (auto grabs = createXcbHotKeys())
        return grabs;
    return std::make_unique<NoHotKeys>();
}

} // namespace Platform
