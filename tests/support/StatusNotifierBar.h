// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

/// A panel with a status bar, as programs find it on the session bus: there while the object lives. It asks the items
/// for their menus like a panel does. For items of other processes: it waits for their answers.
class StatusNotifierBar : public QDBusVirtualObject {
public:
    /// @param withHost whether the items are shown at once; some panels keep the list before they draw.
    explicit StatusNotifierBar(bool withHost = true);
    ~StatusNotifierBar() override;

    void showItems();
    /// Whether a program looked at whether the items are shown.
    [[nodiscard]] bool wasAsked() const { return asked_; }
    /// The items that registered with this bar, by the name of their process on the bus.
    [[nodiscard]] QStringList items() const { return items_; }
    /// Titles of an item's menu as of now, without separators; those that are disabled in brackets.
    [[nodiscard]] QStringList menu(const QString& item);
    /// Chooses from the menu.
    [[nodiscard]] bool choose(const QString& item, const QString& title);
    /// One of the item's properties; invalid when it has none of that name.
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
