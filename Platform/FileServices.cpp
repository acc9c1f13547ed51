// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/FileServices.h"

#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"

namespace Platform {

namespace {

struct Installed {
    ServicesScope before; // destroyed last
    std::unique_ptr<Bundle> bundle = createBundle();
    std::unique_ptr<Clock> clock = createClock();
    std::unique_ptr<UserDefaults> userDefaults = createUserDefaults(bundle->bundleIdentifier());
};

} // namespace

std::shared_ptr<void> FileServices::install() {
    auto installed = std::make_shared<Installed>();
    Services& set = services();
    set.bundle = installed->bundle.get();
    set.clock = installed->clock.get();
    set.userDefaults = installed->userDefaults.get();
    return installed;
}

} // namespace Platform
