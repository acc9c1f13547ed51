// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace Platform::MainQueue {

/// Runs @p work later on the main thread, in the order of the posts, also inside modal loops. Any thread but the audio
/// thread (it allocates).
void post(std::function<void()> work);

/// Like post(), but @p work is dropped when @p context is destroyed before it runs. @p context lives on the main
/// thread.
void post(QObject* context, std::function<void()> work);

/// Posts for one object, which need not be a QObject: work that has not run when the object is destroyed is dropped. A
/// member of that object, which lives on the main thread.
class WhileAlive {
public:
    /// The same for a thread that may outlive the object.
    class Handle {
    public:
        /// As MainQueue::post(). Any thread.
        void post(std::function<void()> work) const;

    private:
        friend class WhileAlive;
        explicit Handle(const std::shared_ptr<const bool>& alive) : alive_(alive) {}
        std::weak_ptr<const bool> alive_;
    };

    WhileAlive() = default;
    WhileAlive(const WhileAlive&) = delete;
    WhileAlive& operator=(const WhileAlive&) = delete;
    /// As MainQueue::post(). Any thread.
    void post(std::function<void()> work) const { handle().post(std::move(work)); }
    [[nodiscard]] Handle handle() const { return Handle(alive_); }

private:
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace Platform::MainQueue
