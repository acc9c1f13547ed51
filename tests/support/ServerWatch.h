// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

/// The sound server's events about its nodes and the links between them, in order, received through a separate
/// connection. Queries from any thread.
class ServerWatch {
public:
    ServerWatch();
    ~ServerWatch();
    ServerWatch(const ServerWatch&) = delete;
    ServerWatch& operator=(const ServerWatch&) = delete;

    /// Waits until all existing objects are known.
    [[nodiscard]] testing::AssertionResult start();
    /// "creating", "suspended", "idle", "running" or "error"; empty when no node has this node.name.
    [[nodiscard]] std::string stateOf(const std::string& node) const;
    /// The nodes whose ports are now linked to inputs of this one.
    [[nodiscard]] std::set<std::string> feedersOf(const std::string& node) const;
    /// How often this node's last link to an input port was removed, so that it had none.
    [[nodiscard]] int timesCutOff(const std::string& node) const;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};
