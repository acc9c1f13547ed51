// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include <gtest/gtest.h>

/// A sound card of the private session: the hardware object behind nodes, which name it with "device.id". It has
/// properties and nothing to play.
class TestCard {
public:
    explicit TestCard(std::map<std::string, std::string> properties);
    ~TestCard();

    [[nodiscard]] testing::AssertionResult start();
    /// The server's number of the card.
    [[nodiscard]] std::uint32_t id() const;

private:
    struct Connection;
    std::map<std::string, std::string> properties_;
    std::unique_ptr<Connection> connection_;
};
