// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/HotKeys.h"
#include "Platform/Foundation/NotificationCenter.h"

#include <functional>
#include <memory>

/// Owns one system-wide key combination and its operation. Main thread.
class HotKeyRegister {
public:
    /// The notification that every press posts, and the key of the signature in its dictionary.
    static inline const QString HotKeyRegisterNotification = QStringLiteral("HotKeyRegisterNotification");
    static inline const QString HotKeyRegisterSignatureKey = QStringLiteral("HotKeyRegisterSignatureKey");

    /// The notification about a combination that was refused after it had been accepted, and the key of its handle.
    static inline const QString HotKeyRegisterRefusedNotification = QStringLiteral("HotKeyRegisterRefusedNotification");
    static inline const QString HotKeyRegisterHandleKey = QStringLiteral("HotKeyRegisterHandleKey");

    /// Notification with the keys that the desktop reports for a combination: the handle and the description.
    static inline const QString HotKeyRegisterTriggerNotification = QStringLiteral("HotKeyRegisterTriggerNotification");
    static inline const QString HotKeyRegisterTriggerKey = QStringLiteral("HotKeyRegisterTriggerKey");

    HotKeyRegister();
    ~HotKeyRegister();
    HotKeyRegister(const HotKeyRegister&) = delete;
    HotKeyRegister& operator=(const HotKeyRegister&) = delete;

    void registerHotKey(std::uint16_t keyCode, std::uint32_t modifier);
    void unregisterHotKey();
    [[nodiscard]] bool hasRegisterHotKey() const { return hotKeyHandle_ != 0; }
    [[nodiscard]] static std::uint32_t carbonKeyModifiers(std::uint32_t flags);
    [[nodiscard]] bool isEditKeybordShortcutControl() const;
    void hotKeyRegisterNotification(const Dictionary& userInfo);

    [[nodiscard]] std::uint32_t signature() const { return signature_; }
    void setSignature(std::uint32_t signature) { signature_ = signature; }
    [[nodiscard]] const std::function<void()>& operation() const { return operation_; }
    void setOperation(std::function<void()> operation) { operation_ = std::move(operation); }

    /// Called when the combination is refused after registerHotKey() accepted it. Nothing is registered any more then.
    void setRefused(std::function<void()> refused) { refused_ = std::move(refused); }
    /// Called when the desktop reports the keys of this combination in its own words; empty when there are none.
    void setTriggerChanged(std::function<void(const QString&)> changed) { triggerChanged_ = std::move(changed); }

private:
    void hotKeyRefused(const Dictionary& userInfo);
    void hotKeyTrigger(const Dictionary& userInfo);

    Platform::HotKeys::Handle hotKeyHandle_ = 0;
    std::uint32_t signature_ = 0;
    std::function<void()> operation_;
    std::function<void()> refused_;
    std::function<void(const QString&)> triggerChanged_;
    std::unique_ptr<Platform::NotificationCenter::Observation> observation_;
    std::unique_ptr<Platform::NotificationCenter::Observation> refusedObservation_;
    std::unique_ptr<Platform::NotificationCenter::Observation> triggerObservation_;
};
