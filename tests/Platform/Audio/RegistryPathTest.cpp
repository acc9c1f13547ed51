// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/linux/RegistryPath.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace Platform;

TEST(RegistryPath, NamesBusDeviceAndNode) {
    EXPECT_EQ(RegistryPath::path("usb", "Headset", "alsa_output.usb-x"),
              "IOService:/USB/Headset/alsa_output.usb-x@" + RegistryPath::hash("alsa_output.usb-x"));
    EXPECT_EQ(RegistryPath::path("", "", "null"), "IOService:/VIRTUAL/none/null@" + RegistryPath::hash("null"));
    EXPECT_EQ(RegistryPath::hash("null").size(), 8U);
    EXPECT_NE(RegistryPath::hash("out"), RegistryPath::hash("out.second"));
}

TEST(RegistryPath, EscapesSeparatorsInNames) {
    for (const char* name : {"plain", "a/b", "a:b@c", "50%25", "%", "%zz", "line\nbreak", "\u00e9", "", "a%2Fb"}) {
        const auto path = RegistryPath::path("pci", "x/y:z", name);
        EXPECT_EQ(std::count(path.begin(), path.end(), '/'), 3) << path;
        EXPECT_EQ(std::count(path.begin(), path.end(), '@'), 1) << path;
        EXPECT_EQ(RegistryPath::nodeNameOf(path), name) << path;
    }
}

TEST(RegistryPath, FindsNoNodeInAMalformedPath) {
    EXPECT_EQ(RegistryPath::nodeNameOf(""), "");
    EXPECT_EQ(RegistryPath::nodeNameOf("kCaptureDriverPathKey"), "");
    EXPECT_EQ(RegistryPath::nodeNameOf("IOService:/PCI/a/node@00000000"), "");
    EXPECT_EQ(RegistryPath::nodeNameOf("IOService:/PCI/a/node"), "");
}
