// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"

#include <functional>
#include <memory>

namespace Platform {

/// Named notifications, each with a dictionary, delivered at once on the poster's thread to every observer in the order
/// in which the observers were added. Main thread only.
class NotificationCenter {
public:
    using Handler = std::function<void(const QString& name, const Dictionary& userInfo)>;

    /// Ends the observation when it is destroyed. May outlive the centre.
    class Observation {
    public:
        virtual ~Observation() = default;
    };

    /// The centre of the process.
    static NotificationCenter& defaultCenter();

    NotificationCenter();
    ~NotificationCenter();
    [[nodiscard]] std::unique_ptr<Observation> addObserver(const QString& name, Handler handler);
    /// An observer that is added or removed during a post is not called by that post.
    void post(const QString& name, const Dictionary& userInfo = {});

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace Platform
