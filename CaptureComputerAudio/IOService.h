// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Audio/IORegistry.h"

#include <QString>
#include <QVariant>

#include <vector>

/// One entry of the registry. Retains its entry while it lives, and so does each copy. Main thread.
class IOService {
public:
    explicit IOService(Platform::IORegistry::Object serviceID);
    ~IOService();
    IOService(const IOService& other);
    IOService& operator=(const IOService& other);

    [[nodiscard]] Platform::IORegistry::Object object() const { return serviceID_; }
    /// The entry's path in the tree of services; null when the entry is gone.
    [[nodiscard]] QString path() const;
    /// An invalid value when the entry has no such property.
    [[nodiscard]] QVariant getProperty(const QString& key) const;
    OSStatus setProperty(const QVariant& value, const QString& forKey);

    /// All entries of a class, in the order of the registry.
    [[nodiscard]] static std::vector<IOService> getServicesByClassName(const QString& className);

private:
    Platform::IORegistry::Object serviceID_;
};
