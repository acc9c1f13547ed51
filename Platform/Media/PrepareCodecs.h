// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Platform {

/// Loads the libraries that encode and decode sound. Without this call they are loaded when the first file is opened,
/// which delays that file by some tens of milliseconds. Any thread. The window calls it on a worker after its first
/// paint, so that the first recording begins at once.
void prepareCodecs();

} // namespace Platform
