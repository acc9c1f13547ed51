// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

/// What the sound server says of its nodes and of the links between them, in the order in which it happened, seen
/// through a connection of its own. Any thread may ask.
class ServerWatch {
public:
    ServerWatch();
    ~ServerWatch();
    ServerWatch(const ServerWatch&) = delete;
    ServerWatch& operator=(const ServerWatch&) = delete;

    /// Waits until all that is there is known.
    [[nodiscard]] testing::AssertionResult start();
    /// "creating", "suspended", "idle", "running" or "error"; empty for a node (node.name) that there is not.
    [[nodiscard]] std::string stateOf(const std::string& node) const;
    /// The nodes whose ports are linked to inputs of this one now.
    [[nodiscard]] std::set<std::string> feedersOf(const std::string& node) const;
    /// How often the last link to an input port of this node went while no other one was there.
    [[nodiscard]] int timesCutOff(const std::string& node) const;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};
