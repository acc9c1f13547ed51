// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

/// A panel with a status bar on the session bus, present while the object lives. It asks the items for their menus as
/// panels do. Only for items of other processes, because it waits for their answers.
class StatusNotifierBar : public QDBusVirtualObject {
public:
    /// @param withHost whether the items are shown at once; some panels register the watcher before they show items.
    explicit StatusNotifierBar(bool withHost = true);
    ~StatusNotifierBar() override;

    void showItems();
    /// Whether a program asked if items are shown.
    [[nodiscard]] bool wasAsked() const { return asked_; }
    /// The registered items, by the bus name of their process.
    [[nodiscard]] QStringList items() const { return items_; }
    /// The current titles of an item's menu, without separators; disabled ones in brackets.
    [[nodiscard]] QStringList menu(const QString& item);
    /// Activates an item of the menu.
    [[nodiscard]] bool choose(const QString& item, const QString& title);
    /// One of the item's properties; invalid when it does not exist.
    [[nodiscard]] QVariant property(const QString& item, const QString& name);

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;
    QString introspect(const QString& path) const override;

private:
    struct Entry {
        int id = 0;
        QString title;
        bool enabled = true;
    };
    [[nodiscard]] QList<Entry> entries(const QString& item);

    bool hasHost_;
    bool asked_ = false;
    QDBusConnection bus_;
    QStringList items_;
};
