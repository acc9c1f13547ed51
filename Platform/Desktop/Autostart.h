// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace Platform {

/// Whether the desktop starts the program at login, with the argument --hidden. Main thread.
class Autostart {
public:
    /// Called once, on the main thread: why it could not be changed, for people; empty when it was.
    using Done = std::function<void(const QString& problem)>;

    virtual ~Autostart() = default;
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// A desktop portal answers later; @p done is dropped when this object goes first.
    virtual void setEnabled(bool enabled, Done done) = 0;

    /// By a file in the user's autostart folder.
    /// @param program absolute path of the program
    [[nodiscard]] static std::unique_ptr<Autostart> createWithFile(const QString& desktopEntry, const QString& program);
    /// By the desktop's background portal on the session bus: from inside a sandbox no file reaches the folder. The
    /// portal tells nobody what it was asked before, so the answer is kept in the user defaults.
    [[nodiscard]] static std::unique_ptr<Autostart> createWithPortal(const QString& program);
    /// The way of this system for the program that runs.
    [[nodiscard]] static std::unique_ptr<Autostart> create(const QString& desktopEntry);
};

} // namespace Platform
