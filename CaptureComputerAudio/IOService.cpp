// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CaptureComputerAudio/IOService.h"

#include "Platform/Foundation/Services.h"

#include <utility>

namespace {

Platform::IORegistry* registry() {
    return Platform::services().ioRegistry;
}

constexpr OSStatus kNoRegistry = -1;

} // namespace

IOService::IOService(Platform::IORegistry::Object serviceID) : serviceID_(serviceID) {
    if (registry())
        registry()->retain(serviceID_);
}

IOService::~IOService() {
    if (registry())
        registry()->release(serviceID_);
}

IOService::IOService(const IOService& other) : IOService(other.serviceID_) {
}

IOService& IOService::operator=(const IOService& other) {
    IOService copy(other);
    std::swap(serviceID_, copy.serviceID_);
    return *this;
}

QString IOService::path() const {
    return registry() ? registry()->path(serviceID_) : QString();
}

QVariant IOService::getProperty(const QString& key) const {
    return registry() ? registry()->property(serviceID_, key) : QVariant();
}

OSStatus IOService::setProperty(const QVariant& value, const QString& forKey) {
    return registry() ? registry()->setProperty(serviceID_, forKey, value) : kNoRegistry;
}

std::vector<IOService> IOService::getServicesByClassName(const QString& className) {
    std::vector<IOService> services;
    if (!registry())
        return services;
    for (const auto object : registry()->servicesOfClass(className)) {
        services.emplace_back(object);
        registry()->release(object); // releases the list's reference; the service has its own
    }
    return services;
}
