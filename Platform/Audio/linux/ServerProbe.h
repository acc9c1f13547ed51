// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/PrivateSession.h"

#include <QByteArray>

namespace Platform::PipeWire {

/// See PrivateSession::lookForServer().
[[nodiscard]] PrivateSession::Server lookForServer(int deadlineMs, const std::function<bool()>& goOn = {});

/// Opens its own connection and waits until the server answered; with @p sink also until there is a default output;
/// with a @p source name also until that node has a port. False when @p deadlineMs passes first.
[[nodiscard]] bool serverIsThere(int deadlineMs, bool sink = false, const QByteArray& source = {});

} // namespace Platform::PipeWire
