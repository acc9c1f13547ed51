// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What was recorded when somebody ends the process with exit() in the middle of it: the libraries of the display and
/// of the session do so when the other side goes, and no event loop can finish the files then. They move to the place
/// for what could not be finished, because the next launch empties the temporary folder. Main thread.
namespace CutOffRecordings {

/// From now on an exit() keeps the raw files in g_strTmpPath. A recording that was finished has left none there.
void keepAtExit();

} // namespace CutOffRecordings
