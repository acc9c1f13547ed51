// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QRect>
#include <QStringList>

#include <optional>

/// What a screen reader sees of this process: read over the accessibility bus by a second process (see
/// tests/reader/ScreenReaderMain.cpp). XvfbSession::startAccessibility() comes first. The event loop runs meanwhile.
namespace AccessibleTree {

struct Value {
    double minimum = 0;
    double now = 0;
    double maximum = 0;
};

struct Node {
    int depth = 0;
    QString role;
    QString name;
    QString description;
    QStringList states;
    std::optional<Value> value;
    QRect place; ///< in its window

    [[nodiscard]] bool has(const QString& state) const { return states.contains(state); }
};

/// All objects of this process, each before its children; empty when it cannot be read.
[[nodiscard]] QList<Node> read();
/// The tree as an indented text.
[[nodiscard]] QString text(const QList<Node>& tree);
/// The first visible node with this name, if any.
[[nodiscard]] std::optional<Node> find(const QList<Node>& tree, const QString& name);
/// Changes the value of the object with this name, or performs its first action. @return whether the reader could
[[nodiscard]] bool setValue(const QString& name, double number);
[[nodiscard]] bool press(const QString& name);

/// Listens to the events of this process while it lives.
class Listener {
public:
    Listener();
    ~Listener();
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// Whether it is connected.
    [[nodiscard]] bool isListening() const { return listening_; }
    /// Whether, before a deadline, a notification with this text appeared.
    [[nodiscard]] bool heardAnnouncement(const QString& text);
    /// All events so far, one a line.
    [[nodiscard]] QStringList heard();

private:
    QProcess process_;
    bool listening_ = false;
    QStringList lines_;
};

} // namespace AccessibleTree
