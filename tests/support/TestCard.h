// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// A sound card of the private session: the hardware object behind nodes, which name it with "device.id". It has
/// properties, nothing to play, and as an option one route with a volume, which it obeys as real cards do.
class TestCard {
public:
    /// The active way to one of the card's devices, whose nodes say "card.profile.device".
    struct Route {
        int index = 0;
        int device = 0;
        std::vector<float> volumes{}; ///< linear; empty is a route without a volume
        bool muted = false;
    };

    explicit TestCard(std::map<std::string, std::string> properties, std::optional<Route> route = {});
    ~TestCard();

    [[nodiscard]] testing::AssertionResult start();
    /// The server's number of the card.
    [[nodiscard]] std::uint32_t id() const;
    /// The route as the last one who set something left it. Any thread.
    [[nodiscard]] Route route() const;
    /// Somebody turns the knob of the card.
    void turn(std::vector<float> volumes);

private:
    struct Connection;
    std::map<std::string, std::string> properties_;
    std::optional<Route> route_;
    std::unique_ptr<Connection> connection_;
};
