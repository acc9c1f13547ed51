// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/IORegistry.h"

#include <map>
#include <memory>

namespace Platform {

class DeviceRegistry;

/// The sound server's devices as services. A handle is the device's number, which is never reused, so retaining does
/// nothing. Main thread.
class PipeWireIORegistry final : public IORegistry {
public:
    PipeWireIORegistry();
    ~PipeWireIORegistry() override;

    std::vector<Object> servicesOfClass(const QString& className) override;
    void retain(Object object) override;
    void release(Object object) override;
    QString path(Object object) override;
    /// A property of the node, else the driver's metadata of the node, else the value that this process set. Numbers
    /// and booleans are returned as texts.
    QVariant property(Object object, const QString& key) override;
    /// Written to the server's metadata of the node, as text.
    OSStatus setProperty(Object object, const QString& key, const QVariant& value) override;

private:
    std::shared_ptr<DeviceRegistry> registry_;
    std::map<Object, QVariantMap> set_;
};

} // namespace Platform
