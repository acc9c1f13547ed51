// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace Platform {

/// What was found out about the disc in a drive.
struct MediaFacts {
    bool isPresent = false;
    bool isBlank = false;
    bool isErasable = false;
    std::int64_t blocksFree = 0;
    float maximumWriteSpeed = 0; ///< kilobytes (1000 bytes) per second
    QString kind;                ///< "CD-R"
    QString problem;             ///< why the drive could not be examined; empty otherwise
};

} // namespace Platform
