// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/HotKey/HotKeyRegister.h"

#include "Platform/Desktop/FocusProbe.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"

using Platform::NotificationCenter;

namespace {

// Receives every press of every combination of this process; the signature in the notification identifies the register.
void HotKeyRegisterHandler(Platform::HotKeys::Id id) {
    NotificationCenter::defaultCenter().post(
        HotKeyRegister::HotKeyRegisterNotification,
        {{HotKeyRegister::HotKeyRegisterSignatureKey, static_cast<int>(id.signature)}});
}

void postRefusal(Platform::HotKeys::Handle handle) {
    NotificationCenter::defaultCenter().post(
        HotKeyRegister::HotKeyRegisterRefusedNotification,
        {{HotKeyRegister::HotKeyRegisterHandleKey, static_cast<qulonglong>(handle)}});
}

void postTrigger(Platform::HotKeys::Handle handle, const QString& trigger) {
    NotificationCenter::defaultCenter().post(
        HotKeyRegister::HotKeyRegisterTriggerNotification,
        {{HotKeyRegister::HotKeyRegisterHandleKey, static_cast<qulonglong>(handle)},
         {HotKeyRegister::HotKeyRegisterTriggerKey, trigger}});
}

Platform::HotKeys* hotKeys() {
    return Platform::services().hotKeys;
}

} // namespace

HotKeyRegister::HotKeyRegister()
    : observation_(NotificationCenter::defaultCenter().addObserver(
          HotKeyRegisterNotification,
          [this](const QString&, const Dictionary& userInfo) { hotKeyRegisterNotification(userInfo); })),
      refusedObservation_(NotificationCenter::defaultCenter().addObserver(
          HotKeyRegisterRefusedNotification,
          [this](const QString&, const Dictionary& userInfo) { hotKeyRefused(userInfo); })),
      triggerObservation_(NotificationCenter::defaultCenter().addObserver(
          HotKeyRegisterTriggerNotification,
          [this](const QString&, const Dictionary& userInfo) { hotKeyTrigger(userInfo); })) {
}

HotKeyRegister::~HotKeyRegister() {
    observation_.reset();
    refusedObservation_.reset();
    triggerObservation_.reset();
    unregisterHotKey();
}

void HotKeyRegister::registerHotKey(std::uint16_t keyCode, std::uint32_t modifier) {
    unregisterHotKey();
    if (!hotKeys())
        return;
    hotKeys()->setHandler(HotKeyRegisterHandler);
    hotKeys()->setRefusedHandler(postRefusal);
    hotKeys()->setTriggerHandler(postTrigger);
    hotKeyHandle_ = hotKeys()->registerHotKey(keyCode, carbonKeyModifiers(modifier), {signature_, 1});
}

void HotKeyRegister::unregisterHotKey() {
    if (hotKeyHandle_ == 0)
        return;
    if (hotKeys())
        hotKeys()->unregisterHotKey(hotKeyHandle_);
    hotKeyHandle_ = 0;
}

void HotKeyRegister::hotKeyRefused(const Dictionary& userInfo) {
    if (hotKeyHandle_ == 0 || userInfo.value(HotKeyRegisterHandleKey).toULongLong() != hotKeyHandle_)
        return;
    hotKeyHandle_ = 0;
    if (refused_)
        refused_();
}

void HotKeyRegister::hotKeyTrigger(const Dictionary& userInfo) {
    if (hotKeyHandle_ != 0 && userInfo.value(HotKeyRegisterHandleKey).toULongLong() == hotKeyHandle_ && triggerChanged_)
        triggerChanged_(userInfo.value(HotKeyRegisterTriggerKey).toString());
}

bool HotKeyRegister::isEditKeybordShortcutControl() const {
    const auto* probe = Platform::services().focusProbe;
    return probe && probe->isEditKeybordShortcutControl();
}

void HotKeyRegister::hotKeyRegisterNotification(const Dictionary& userInfo) {
    const int pressed = Platform::intValue(userInfo.value(HotKeyRegisterSignatureKey));
    if (static_cast<std::uint32_t>(pressed) != signature_)
        return;
    if (isEditKeybordShortcutControl() || !operation_)
        return;
    // Not inside the event handler: the operation may open a modal window.
    Platform::MainQueue::post(operation_);
}

std::uint32_t HotKeyRegister::carbonKeyModifiers(std::uint32_t flags) {
    std::uint32_t carbon = 0;
    carbon |= (flags & 0x20000U) ? 512U : 0U;  // Shift
    carbon |= (flags & 0x100000U) ? 256U : 0U; // Command
    carbon |= (flags & 0x80000U) ? 2048U : 0U; // Option
    carbon |= (flags & 0x40000U) ? 4096U : 0U; // Control
    return carbon;
}
