// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/PartTitle.h"

/// The cover that a media player named, on its way into a recording.
namespace PartCover {

/// Writes the cover of @p title into a finished recording. Does nothing without a cover. A cover that cannot be read,
/// or is no picture, is told in the log, and the recording keeps none. Waits for the worker that reads it; on a worker.
void write(const QString& recording, const PartTitle& title);

} // namespace PartCover
