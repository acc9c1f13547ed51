// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace Platform {

/// A program that has a stream for playing on the sound server.
struct PlayingProgram {
    QString id;             ///< the same after a restart: ProgramIdentity::id()
    QString name;           ///< for people
    QString iconName;       ///< of the icon theme; may be empty
    QStringList parts{};    ///< the other texts by which it can be chosen, see ProgramIdentity::is()
    bool isPlaying = false; ///< false while all its streams are paused
    /// Seconds of sound that its streams hold between the program and the output; 0 when that is not known. Of several
    /// streams the longest.
    double latency = 0;

    friend bool operator==(const PlayingProgram&, const PlayingProgram&) = default;
};

} // namespace Platform
