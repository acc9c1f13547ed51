// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>
#include <string>

/// Sets an environment variable and restores its old value at the end of the scope.
class EnvironmentScope {
public:
    EnvironmentScope(const char* name, const QByteArray& value) : name_(name) {
        if (qEnvironmentVariableIsSet(name))
            before_ = qgetenv(name);
        qputenv(name, value);
    }
    /// Unsets the variable.
    explicit EnvironmentScope(const char* name) : EnvironmentScope(name, QByteArray()) { qunsetenv(name); }
    ~EnvironmentScope() {
        if (before_)
            qputenv(name_.c_str(), *before_);
        else
            qunsetenv(name_.c_str());
    }
    EnvironmentScope(const EnvironmentScope&) = delete;
    EnvironmentScope& operator=(const EnvironmentScope&) = delete;

private:
    std::string name_;
    std::optional<QByteArray> before_;
};
