// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/MainQueue.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Platform {

/// Base of the objects that disc notifications are about: a drive, a burn, an erase.
class DRObject {
public:
    DRObject() = default;
    virtual ~DRObject() = default;
    DRObject(const DRObject&) = delete;
    DRObject& operator=(const DRObject&) = delete;
};

/// The status of a drive changed. Object: the DRDevice.
inline const QString DRDeviceStatusChangedNotification = QStringLiteral("DRDeviceStatusChangedNotification");
/// A drive was added or removed: DiscRecording::devices() returns another list. No object.
inline const QString DRDeviceListChangedNotification = QStringLiteral("DRDeviceListChangedNotification");
/// A burn made progress or ended. Object: the DRBurn.
inline const QString DRBurnStatusChangedNotification = QStringLiteral("DRBurnStatusChangedNotification");
/// An erase made progress or ended. Object: the DRErase.
inline const QString DREraseStatusChangedNotification = QStringLiteral("DREraseStatusChangedNotification");

struct DRNotification {
    QString name;
    std::shared_ptr<DRObject> object;
};

/// Delivers disc notifications on the main thread. An observer is identified by its address; observing the same name
/// and object twice has no further effect.
class DRNotificationCenter {
public:
    using Handler = std::function<void(const DRNotification&)>;

    DRNotificationCenter();
    ~DRNotificationCenter();
    DRNotificationCenter(const DRNotificationCenter&) = delete;
    DRNotificationCenter& operator=(const DRNotificationCenter&) = delete;

    /// @p object limits the notifications to this object; null means every object. No reference to it is kept. Main
    /// thread.
    void addObserver(const void* observer, const QString& name, const std::shared_ptr<DRObject>& object,
                     Handler handler);
    /// Removes the observation with the same three arguments; does nothing when there is none. Main thread.
    void removeObserver(const void* observer, const QString& name, const std::shared_ptr<DRObject>& object);
    /// Removes all observations of @p observer. Must be called before it is destroyed. Main thread.
    void removeObserver(const void* observer);
    /// The number of observations. Main thread.
    [[nodiscard]] std::size_t observations() const;

    /// Calls the observers at once. Observers that are removed meanwhile are not called. Main thread.
    void deliver(const DRNotification& notification);
    /// Calls deliver() later on the main thread, in the order of the posts. Any thread. Notifications that are pending
    /// when the centre is destroyed are dropped.
    void post(const QString& name, std::shared_ptr<DRObject> object);

private:
    struct State;
    std::shared_ptr<State> state_;
    MainQueue::WhileAlive alive_;
};

} // namespace Platform
