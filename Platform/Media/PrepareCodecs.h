// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Platform {

/// Loads the libraries that encode and decode sound, which otherwise happens when the first file is opened. It takes
/// some tens of milliseconds. Any thread; a window calls it on a worker once it is painted, so that the first recording
/// begins at once.
void prepareCodecs();

} // namespace Platform
