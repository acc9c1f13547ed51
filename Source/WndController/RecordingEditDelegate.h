// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

/// Called by the windows that edit a recording. Main thread.
class RecordingEditDelegate {
public:
    virtual ~RecordingEditDelegate() = default;
    /// The recording's file is at @p path now; @p tags is its entry.
    virtual void updateFile(const QString& /*path*/, const Dictionary& /*tags*/) {}
    /// The user wants the recording removed from the library, and its file deleted.
    virtual void removeRecording(const Dictionary& /*entry*/) {}
    /// Selects the file in the library.
    virtual void showFile(const QString& /*path*/) {}
    /// Whether the file is being played outside the editing window.
    virtual bool isFilePlaying(const QString& /*path*/) { return false; }
};
