// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Platform {

/// Everything a disc notification can be about: a drive, a burn, an erase.
class DRObject {
public:
    DRObject() = default;
    virtual ~DRObject() = default;
    DRObject(const DRObject&) = delete;
    DRObject& operator=(const DRObject&) = delete;
};

/// The status of a drive changed. Object: the DRDevice.
inline const QString DRDeviceStatusChangedNotification = QStringLiteral("DRDeviceStatusChangedNotification");
/// A drive came or went: DiscRecording::devices() answers another list. No object.
inline const QString DRDeviceListChangedNotification = QStringLiteral("DRDeviceListChangedNotification");
/// A burn made progress or ended. Object: the DRBurn.
inline const QString DRBurnStatusChangedNotification = QStringLiteral("DRBurnStatusChangedNotification");
/// An erase made progress or ended. Object: the DRErase.
inline const QString DREraseStatusChangedNotification = QStringLiteral("DREraseStatusChangedNotification");

struct DRNotification {
    QString name;
    std::shared_ptr<DRObject> object;
};

/// Delivers disc notifications on the main thread. An observer is known by its address; observing the same name and
/// object twice counts once.
class DRNotificationCenter {
public:
    using Handler = std::function<void(const DRNotification&)>;

    DRNotificationCenter();
    ~DRNotificationCenter();
    DRNotificationCenter(const DRNotificationCenter&) = delete;
    DRNotificationCenter& operator=(const DRNotificationCenter&) = delete;

    /// @p object: nothing else's notifications are delivered; null means those of every object. Keeps no reference to
    /// it. Main thread.
    void addObserver(const void* observer, const QString& name, const std::shared_ptr<DRObject>& object,
                     Handler handler);
    /// Ends what was begun with the same three; does nothing when there is no such observation. Main thread.
    void removeObserver(const void* observer, const QString& name, const std::shared_ptr<DRObject>& object);
    /// Ends all observations of @p observer. To be called before it is destroyed. Main thread.
    void removeObserver(const void* observer);
    /// How many observations there are. Main thread.
    [[nodiscard]] std::size_t observations() const;

    /// Calls the observers at once. Observers that are removed meanwhile are not called. Main thread.
    void deliver(const DRNotification& notification);
    /// deliver() later on the main thread, in the order of the posts. Any thread. What is under way when the centre is
    /// destroyed is dropped.
    void post(const QString& name, std::shared_ptr<DRObject> object);

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace Platform
