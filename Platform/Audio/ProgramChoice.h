// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Used by the driver's process, too: no Qt.
namespace Platform {

/// How the sound server describes the program behind a stream. Every part may be empty.
struct ProgramIdentity {
    std::string applicationId{}; ///< "org.mozilla.firefox": of the stream, its client, or its sandbox
    std::string binary{};        ///< "firefox": the file name of the executable
    std::string name{};          ///< "Firefox": for people
    std::string nodeName{};

    /// What identifies the program also after a restart: the application id, else the executable, else the name. A
    /// program that runs other programs (an interpreter) does not identify them, so then the name goes first.
    [[nodiscard]] std::string id() const;
    /// The name for people.
    [[nodiscard]] std::string title() const;
    /// Whether @p wanted is one of the parts. Upper and lower case of ASCII letters are equal.
    [[nodiscard]] bool is(std::string_view wanted) const;

    friend bool operator==(const ProgramIdentity&, const ProgramIdentity&) = default;
};

/// Which programs a recording of the computer's audio takes.
struct ProgramChoice {
    enum class Mode { Everything, Only, AllBut };

    Mode mode = Mode::Everything;
    std::vector<std::string> programs{}; ///< ids or other parts of a ProgramIdentity; ignored with Everything

    [[nodiscard]] bool takes(const ProgramIdentity& program) const;
    /// The choice as the driver's property: empty for Everything.
    [[nodiscard]] std::string encoded() const;
    /// A text that encoded() did not make gives a choice that takes no program: nobody shall be recorded by mistake.
    [[nodiscard]] static ProgramChoice decoded(std::string_view text);

    friend bool operator==(const ProgramChoice&, const ProgramChoice&) = default;
};

} // namespace Platform
