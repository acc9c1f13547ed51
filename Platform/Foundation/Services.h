// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace Platform {

class AudioHardware;
class IORegistry;
class MediaFiles;
class Sounds;
class UserDefaults;
class Workspace;
class Alerts;
class Panels;
class Clock;
class HotKeys;
class AdminShell;
class Bundle;
class ColorScheme;
class FocusProbe;
class DiscRecording;
class DiskArbitration;
class SleepInhibitor;

/// The process's set of system services: the one global. main() installs the Linux set; a test installs its doubles
/// with a ServicesScope. The members are not owned. Set them up before any thread that uses them starts.
struct Services {
    AudioHardware* audioHardware = nullptr;
    IORegistry* ioRegistry = nullptr;
    MediaFiles* mediaFiles = nullptr;
    Sounds* sounds = nullptr;
    UserDefaults* userDefaults = nullptr;
    Workspace* workspace = nullptr;
    Alerts* alerts = nullptr;
    Panels* panels = nullptr;
    Clock* clock = nullptr;
    HotKeys* hotKeys = nullptr;
    AdminShell* adminShell = nullptr;
    Bundle* bundle = nullptr;
    ColorScheme* colorScheme = nullptr;
    FocusProbe* focusProbe = nullptr;
    DiscRecording* discRecording = nullptr;
    DiskArbitration* diskArbitration = nullptr;
    SleepInhibitor* sleepInhibitor = nullptr;
};

[[nodiscard]] Services& services();

/// Restores the previous services when it is destroyed.
class ServicesScope {
public:
    ServicesScope() : saved_(services()) {}
    ~ServicesScope() { services() = saved_; }
    ServicesScope(const ServicesScope&) = delete;
    ServicesScope& operator=(const ServicesScope&) = delete;

private:
    Services saved_;
};

} // namespace Platform
