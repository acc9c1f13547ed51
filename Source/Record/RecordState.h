// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The state of the user's recording. Armed waits for the first sound of computer audio; Finishing turns the last raw
/// files into recordings while the program ends.
enum class RecordState { Idle, Armed, Recording, Paused, Finishing };
