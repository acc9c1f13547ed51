// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>

#include <atomic>
#include <utility>

namespace Platform::MainQueue {

namespace {

std::atomic<unsigned> handedOver{0};

/// A posted function on its way through Qt's event queue. ThreadSanitizer cannot see the futex inside Qt that orders
/// the two threads; this release/acquire counter makes the hand-over visible to it. The counter is written when the
/// function was moved into the event and read before the function is used there; and again between the call and the
/// destruction, which happens on the posting thread when it releases the event last.
class Handed {
public:
    explicit Handed(std::function<void()> work) : work_(std::move(work)) {}
    Handed(Handed&& other) noexcept : work_(std::move(other.work_)) { give(); }
    ~Handed() { take(); }
    Handed(const Handed&) = delete;
    Handed& operator=(const Handed&) = delete;

    void operator()() const {
        take();
        work_();
        give();
    }

private:
    static void give() { handedOver.fetch_add(1, std::memory_order_release); }
    static void take() { (void)handedOver.load(std::memory_order_acquire); }

    std::function<void()> work_;
};

} // namespace

void post(std::function<void()> work) {
    if (auto* application = QCoreApplication::instance())
        post(application, std::move(work));
}

void post(QObject* context, std::function<void()> work) {
    QMetaObject::invokeMethod(context, Handed(std::move(work)), Qt::QueuedConnection);
}

void WhileAlive::Handle::post(std::function<void()> work) const {
    MainQueue::post([alive = alive_, work = std::move(work)] {
        if (!alive.expired())
            work();
    });
}

} // namespace Platform::MainQueue
