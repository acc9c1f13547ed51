// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/AudioTypes.h"

#include <memory>
#include <vector>

#include <QString>
#include <QVariant>

namespace Platform {

/// The sound server's objects as services of a registry with paths. Main thread.
class IORegistry {
public:
    using Object = std::uint32_t; ///< a retained handle; 0 is none

    virtual ~IORegistry() = default;
    /// All services of a class in the registry's order, each retained for the caller. "IOAudioEngine" is every audio
    /// device node; the capture engine's class is the node property korvane.engine.class.
    [[nodiscard]] virtual std::vector<Object> servicesOfClass(const QString& className) = 0;
    virtual void retain(Object object) = 0;
    virtual void release(Object object) = 0;
    /// "IOService:/<bus>/<device>/<node>@<hash>"; empty when the object is gone.
    [[nodiscard]] virtual QString path(Object object) = 0;
    [[nodiscard]] virtual QVariant property(Object object, const QString& key) = 0;
    virtual OSStatus setProperty(Object object, const QString& key, const QVariant& value) = 0;
};

/// The Linux side, on the process's connection to the sound server.
[[nodiscard]] std::unique_ptr<IORegistry> createIORegistry();

} // namespace Platform
