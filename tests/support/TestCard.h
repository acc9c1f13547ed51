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

/// A sound card of the private session: the hardware object behind nodes, which refer to it with "device.id". It has
/// properties, plays nothing, and can have one route with a volume, which can be set as on real cards.
class TestCard {
public:
    /// The active route of one of the card's devices, whose nodes say "card.profile.device".
    struct Route {
        int index = 0;
        int device = 0;
        std::vector<float> volumes{}; ///< linear; empty means a route without a volume
        bool muted = false;
    };

    explicit TestCard(std::map<std::string, std::string> properties, std::optional<Route> route = {});
    ~TestCard();

    [[nodiscard]] testing::AssertionResult start();
    /// The server's number of the card.
    [[nodiscard]] std::uint32_t id() const;
    /// The route as it was last set. Any thread.
    [[nodiscard]] Route route() const;
    /// Simulates a turn of the card's volume knob.
    void turn(std::vector<float> volumes);

private:
    struct Connection;
    std::map<std::string, std::string> properties_;
    std::optional<Route> route_;
    std::unique_ptr<Connection> connection_;
};
