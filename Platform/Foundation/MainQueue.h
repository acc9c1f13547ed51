// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>

namespace Platform::MainQueue {

/// Runs @p work later on the main thread, in the order of the posts, also inside modal loops. Any thread but the audio
/// thread (it allocates).
void post(std::function<void()> work);

/// Like post(), but @p work is dropped when @p context is destroyed before it runs. @p context lives on the main
/// thread.
void post(QObject* context, std::function<void()> work);

} // namespace Platform::MainQueue
