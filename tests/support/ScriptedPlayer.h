// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QStringList>
#include <QVariantMap>

#include <atomic>
#include <chrono>
#include <functional>
#include <vector>

/// A media player (MPRIS) on a bus, which the test drives. It answers while the test's event loop runs.
class ScriptedPlayer : public QDBusVirtualObject {
public:
    /// @param name what follows "org.mpris.MediaPlayer2."
    ScriptedPlayer(const QString& busAddress, const QString& name)
        : ScriptedPlayer(QDBusConnection::connectToBus(busAddress, connectionName()), name) {}
    ScriptedPlayer(QDBusConnection bus, const QString& name)
        : bus_(std::move(bus)), service_(QStringLiteral("org.mpris.MediaPlayer2.") + name) {
        registered_ = bus_.registerVirtualObject(path(), this) && bus_.registerService(service_);
    }
    ~ScriptedPlayer() override {
        bus_.unregisterService(service_);
        bus_.unregisterObject(path());
        const QString name = bus_.name();
        bus_ = QDBusConnection(QString());
        if (name.startsWith(QStringLiteral("scripted-")))
            QDBusConnection::disconnectFromBus(name);
    }

    [[nodiscard]] bool isRegistered() const { return registered_; }
    /// A second name of the same player.
    bool alsoAs(const QString& name) { return bus_.registerService(QStringLiteral("org.mpris.MediaPlayer2.") + name); }
    static QVariantMap track(const QString& id, const QString& title, const QString& artist = {},
                             const QString& album = {}, double seconds = 0, const QString& cover = {}) {
        QVariantMap data{{QStringLiteral("mpris:trackid"), QVariant::fromValue(QDBusObjectPath(id))}};
        if (!title.isEmpty())
            data.insert(QStringLiteral("xesam:title"), title);
        if (!artist.isEmpty())
            data.insert(QStringLiteral("xesam:artist"), QStringList{artist});
        if (!album.isEmpty())
            data.insert(QStringLiteral("xesam:album"), album);
        if (seconds > 0)
            data.insert(QStringLiteral("mpris:length"), qlonglong(seconds * 1e6));
        if (!cover.isEmpty())
            data.insert(QStringLiteral("mpris:artUrl"), cover);
        return data;
    }
    /// Changes properties of the player and tells those who listen.
    void set(const QVariantMap& changed) {
        for (auto each = changed.cbegin(); each != changed.cend(); ++each)
            properties.insert(each.key(), each.value());
        auto signal = QDBusMessage::createSignal(path(), propertiesInterface(), QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.mpris.MediaPlayer2.Player") << changed << QStringList();
        sentAt.push_back(std::chrono::system_clock::now());
        bus_.send(signal);
    }
    void setTrack(const QVariantMap& metadata) { set({{QStringLiteral("Metadata"), metadata}}); }
    void setStatus(const QString& status) { set({{QStringLiteral("PlaybackStatus"), status}}); }
    /// Says that properties have changed, but not to what.
    void invalidate(const QStringList& names) {
        auto signal = QDBusMessage::createSignal(path(), propertiesInterface(), QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.mpris.MediaPlayer2.Player") << QVariantMap() << names;
        bus_.send(signal);
    }

    QVariantMap properties{{QStringLiteral("PlaybackStatus"), QStringLiteral("Stopped")}};
    QVariantMap rootProperties{{QStringLiteral("Identity"), QStringLiteral("Scripted Player")},
                               {QStringLiteral("DesktopEntry"), QStringLiteral("scripted")}};
    std::function<double()> position; ///< seconds; without one it knows no position
    int questions = 0;                ///< that it was asked
    /// When each signal of set() was sent.
    std::vector<std::chrono::system_clock::time_point> sentAt;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.interface() != propertiesInterface())
            return false;
        ++questions;
        const QVariantList arguments = message.arguments();
        const bool isRoot = arguments.value(0).toString() == u"org.mpris.MediaPlayer2";
        if (message.member() == u"GetAll")
            return connection.send(message.createReply(isRoot ? rootProperties : properties));
        if (message.member() == u"Get" && arguments.value(1).toString() == u"Position" && position)
            return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(qlonglong(position() * 1e6)))));
        return connection.send(message.createErrorReply(QDBusError::UnknownProperty, QStringLiteral("unknown")));
    }

private:
    static QString path() { return QStringLiteral("/org/mpris/MediaPlayer2"); }
    static QString propertiesInterface() { return QStringLiteral("org.freedesktop.DBus.Properties"); }
    static QString connectionName() {
        static std::atomic<int> connections{0};
        return QStringLiteral("scripted-%1").arg(++connections);
    }

    QDBusConnection bus_;
    QString service_;
    bool registered_ = false;
};
