// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Linear fades over a range that may be repeated. All times in seconds.
struct Fades {
    double rangeBegin;
    double rangeEnd;
    double fadeIn; ///< a fade shorter than 0.99 s is off
    double fadeOut;
    double length; ///< of the output

    /// The gain, 0 to 1, of the block that begins at @p source in the file and at @p written in the output.
    [[nodiscard]] double gainAt(double source, double written) const;
};
