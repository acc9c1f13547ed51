// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace Platform {

/// Lets the desktop start the program at login with the argument --hidden. Main thread.
class Autostart {
public:
    /// Called once on the main thread. @p problem says why the change failed; empty on success.
    using Done = std::function<void(const QString& problem)>;

    virtual ~Autostart() = default;
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// A desktop portal answers later. @p done is not called when this object is destroyed before the answer.
    virtual void setEnabled(bool enabled, Done done) = 0;

    /// Uses a file in the user's autostart folder.
    /// @param program absolute path of the program
    [[nodiscard]] static std::unique_ptr<Autostart> createWithFile(const QString& desktopEntry, const QString& program);
    /// Uses the background portal of the session bus: a sandboxed program cannot write to the autostart folder. The
    /// portal has no query, so the last answer is stored in the user defaults.
    [[nodiscard]] static std::unique_ptr<Autostart> createWithPortal(const QString& program);
    /// Chooses between the two ways for the running program.
    [[nodiscard]] static std::unique_ptr<Autostart> create(const QString& desktopEntry);
};

} // namespace Platform
