// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>

#include <atomic>
#include <utility>

namespace Platform::MainQueue {

namespace {

std::atomic<unsigned> handedOver{0};

/// Work on its way through Qt's queue. The queue keeps the order of the two threads by a futex inside Qt, which no tool
/// that watches for races sees; the counter says the same in the language's own words. It is written when the work has
/// been moved to the place in the queue from which it is called, and read before it is touched there; and once more
/// between the call and the end of the work, which comes on the posting thread when that lets go last.
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

} // namespace Platform::MainQueue
