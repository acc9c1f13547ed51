// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/PlayerCover.h"
#include "Platform/Desktop/PlayerWatch.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <QObject>
#include <QThread>
#include <QVariantMap>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto watchedPrefix = u"org.mpris.MediaPlayer2."_s;
const auto watchedPath = u"/org/mpris/MediaPlayer2"_s;
const auto watchedRootInterface = u"org.mpris.MediaPlayer2"_s;
const auto watchedPlayerInterface = u"org.mpris.MediaPlayer2.Player"_s;
const auto watchedPropertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const auto busName = u"org.freedesktop.DBus"_s;

/// A session has a handful of players. More are not followed: any program may put as many on the bus as it likes.
constexpr std::size_t MostPlayers = 64;
/// Base64 is a third longer than its content.
constexpr qsizetype LongestAddress = LargestPlayerCover * 3 / 2;

std::uint64_t steadyNow() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::uint64_t(std::chrono::nanoseconds(now).count());
}

/// One line of a limited length.
QString bounded(QString text) {
    text.truncate(4 * PlayerTrack::LongestText); // replacing is slow in a text of any length
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    text = text.simplified();
    text.truncate(PlayerTrack::LongestText);
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
}

/// A dictionary inside a variant arrives undecoded. Anything else is empty.
QVariantMap dictionaryIn(const QVariant& value) {
    if (value.typeId() == QMetaType::QVariantMap)
        return value.toMap();
    if (value.typeId() != qMetaTypeId<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == "a{sv}"_L1 ? qdbus_cast<QVariantMap>(argument) : QVariantMap();
}

QString textIn(const QVariant& value) {
    if (value.typeId() == qMetaTypeId<QDBusObjectPath>())
        return bounded(value.value<QDBusObjectPath>().path());
    if (value.typeId() == QMetaType::QStringList)
        return bounded(value.toStringList().mid(0, 20).join(u", "_s));
    if (value.typeId() == QMetaType::QVariantList)
        return bounded(QVariant(value).toStringList().mid(0, 20).join(u", "_s));
    return value.typeId() == QMetaType::QString ? bounded(value.toString()) : QString();
}

double secondsIn(const QVariant& value) {
    bool isNumber = false;
    const double seconds = value.toDouble(&isNumber) / 1e6;
    return isNumber && std::isfinite(seconds) && seconds > 0 ? seconds : 0;
}

PlayerTrack trackIn(const QVariant& metadata) {
    const QVariantMap data = dictionaryIn(metadata);
    PlayerTrack track;
    track.id = textIn(data.value(u"mpris:trackid"_s));
    if (track.id.endsWith("/NoTrack"_L1))
        return {};
    track.title = textIn(data.value(u"xesam:title"_s));
    track.artist = textIn(data.value(u"xesam:artist"_s));
    track.album = textIn(data.value(u"xesam:album"_s));
    track.source = textIn(data.value(u"xesam:url"_s));
    track.seconds = secondsIn(data.value(u"mpris:length"_s));
    if (const QVariant cover = data.value(u"mpris:artUrl"_s);
        cover.typeId() == QMetaType::QString && cover.toString().size() <= LongestAddress)
        track.cover = QUrl(cover.toString());
    return track;
}

/// Receives the bus's messages on the watch's thread.
class MprisWatcher : public QObject {
    Q_OBJECT
public:
    explicit MprisWatcher(PlayerWatch::Listener& listener) : listener_(listener) {}

    void begin() {
        static std::atomic<int> watches{0};
        name_ = u"sonaphex-players-%1"_s.arg(++watches);
        bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name_);
        if (!bus_.isConnected())
            return;
        // MediaPlayer is there. The name of a connection that was lost may belong to another program by now.
        if (const auto session = QDBusConnection::sessionBus(); session.isConnected())
            own_ = session.baseService();
        bus_.connect(busName, u"/org/freedesktop/DBus"_s, busName, u"NameOwnerChanged"_s, this,
                     SLOT(ownerChanged(QString, QString, QString)));
        // The argument keeps the messages of other interfaces from waking this thread.
        bus_.connect({}, watchedPath, watchedPropertiesInterface, u"PropertiesChanged"_s, {watchedPlayerInterface},
                     u"sa{sv}as"_s, this, SLOT(propertiesChanged(QDBusMessage)));
        ask(busName, busName, u"ListNames"_s, {}, [this](const QDBusMessage& answer) {
            for (const QString& name : answer.arguments().value(0).toStringList())
                if (name.startsWith(watchedPrefix))
                    ask(busName, busName, u"GetNameOwner"_s, {name},
                        [this, name](const QDBusMessage& owner) { add(name, owner.arguments().value(0).toString()); });
        });
    }
    void end() {
        bus_ = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name_);
    }

public Q_SLOTS:
    void ownerChanged(const QString& name, const QString& oldOwner, const QString& newOwner) {
        if (!name.startsWith(watchedPrefix))
            return;
        const std::uint64_t now = steadyNow();
        if (const auto known = players_.find(oldOwner); known != players_.end()) {
            known->second.services.removeAll(name);
            if (known->second.services.isEmpty()) {
                const bool wasTold = known->second.told;
                players_.erase(known);
                if (wasTold)
                    listener_.playerGone(oldOwner, now);
            }
        }
        if (!newOwner.isEmpty())
            add(name, newOwner);
    }

    void propertiesChanged(const QDBusMessage& message) {
        const std::uint64_t now = steadyNow();
        const auto known = players_.find(message.service());
        if (known == players_.end())
            return;
        const QVariantList arguments = message.arguments();
        take(*known, dictionaryIn(arguments.value(1)), now);
        const QStringList outdated = arguments.value(2).toStringList();
        if (outdated.contains(u"Metadata"_s) || outdated.contains(u"PlaybackStatus"_s))
            askForAll(message.service());
    }

private:
    struct Known {
        QStringList services; ///< well-known names of this connection: some players have two
        WatchedPlayer player;
        bool described = false;
        bool told = false;
    };

    /// Sends a call. @p then gets the answer unless it is an error. Players may answer late or never.
    void ask(const QString& service, const QString& interface, const QString& method, const QVariantList& arguments,
             std::function<void(const QDBusMessage&)> then) {
        auto call = QDBusMessage::createMethodCall(
            service, service == busName ? u"/org/freedesktop/DBus"_s : watchedPath, interface, method);
        call.setArguments(arguments);
        call.setAutoStartService(false); // looking at players must not start one
        auto* waiting = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
        connect(waiting, &QDBusPendingCallWatcher::finished, this, [waiting, then = std::move(then)] {
            waiting->deleteLater();
            if (!waiting->isError())
                then(waiting->reply());
        });
    }

    void add(const QString& service, const QString& owner) {
        if (owner.isEmpty() || owner == own_ || (players_.size() >= MostPlayers && !players_.contains(owner)))
            return;
        Known& known = players_[owner];
        if (known.services.contains(service))
            return;
        known.services.append(service);
        // "org.mpris.MediaPlayer2.vlc.instance1234" is VLC.
        const QString program = bounded(service.mid(watchedPrefix.size()).section(u'.', 0, 0));
        if (!known.player.names.contains(program))
            known.player.names.append(program);
        known.player.key = owner;
        if (known.services.size() > 1)
            return;
        ask(owner, watchedPropertiesInterface, u"GetAll"_s, {watchedRootInterface},
            [this, owner](const QDBusMessage& answer) {
                const auto found = players_.find(owner);
                if (found == players_.end())
                    return;
                const QVariantMap values = dictionaryIn(answer.arguments().value(0));
                for (const QString& key : {u"DesktopEntry"_s, u"Identity"_s})
                    if (const QString name = textIn(values.value(key)); !name.isEmpty())
                        found->second.player.names.prepend(name);
                found->second.player.names.removeDuplicates();
                tell(*found, steadyNow());
            });
        askForAll(owner);
    }

    void askForAll(const QString& owner) {
        ask(owner, watchedPropertiesInterface, u"GetAll"_s, {watchedPlayerInterface},
            [this, owner](const QDBusMessage& answer) {
                if (const auto found = players_.find(owner); found != players_.end())
                    take(*found, dictionaryIn(answer.arguments().value(0)), steadyNow());
            });
    }

    void take(std::pair<const QString, Known>& entry, const QVariantMap& values, std::uint64_t now) {
        WatchedPlayer& player = entry.second.player;
        const WatchedPlayer before = player;
        if (const auto status = values.constFind(u"PlaybackStatus"_s); status != values.constEnd())
            player.isPlaying = status->toString() == "Playing"_L1;
        if (const auto metadata = values.constFind(u"Metadata"_s); metadata != values.constEnd())
            player.track = trackIn(*metadata);
        if (entry.second.described && player == before)
            return;
        entry.second.described = true;
        tell(entry, now);
        if (entry.second.told && player.isPlaying && player.track != before.track)
            askForPosition(entry.first);
    }

    void tell(std::pair<const QString, Known>& entry, std::uint64_t now) {
        if (!entry.second.described)
            return;
        entry.second.told = true;
        listener_.playerChanged(entry.second.player, now);
    }

    void askForPosition(const QString& owner) {
        const std::uint64_t asked = steadyNow();
        ask(owner, watchedPropertiesInterface, u"Get"_s, {watchedPlayerInterface, u"Position"_s},
            [this, owner, asked](const QDBusMessage& answer) {
                if (!players_.contains(owner))
                    return;
                const QVariant value = answer.arguments().value(0).value<QDBusVariant>().variant();
                bool isNumber = false;
                const double seconds = value.toDouble(&isNumber) / 1e6;
                // It was read between the question and the answer.
                const std::uint64_t now = steadyNow();
                if (isNumber && std::isfinite(seconds))
                    listener_.playerPosition(owner, std::max(0.0, seconds), asked + (now - asked) / 2);
            });
    }

    PlayerWatch::Listener& listener_;
    QString name_; ///< of the connection, within this process
    QDBusConnection bus_{QString()};
    QString own_;                      ///< the program's own name on the bus
    std::map<QString, Known> players_; ///< by the unique name of their connection
};

/// A thread of its own: the main thread may be busy for a moment, and then the times of the messages would be wrong.
class MprisWatch final : public PlayerWatch {
public:
    explicit MprisWatch(Listener& listener) : watcher_(new MprisWatcher(listener)) {
        thread_.setObjectName(u"players"_s);
        watcher_->moveToThread(&thread_);
        QObject::connect(&thread_, &QThread::started, watcher_, [watcher = watcher_] { watcher->begin(); });
        QObject::connect(&thread_, &QThread::finished, watcher_, [watcher = watcher_] {
            watcher->end();
            delete watcher;
        });
        thread_.start();
    }
    ~MprisWatch() override {
        thread_.quit();
        thread_.wait();
    }

private:
    QThread thread_;
    MprisWatcher* watcher_; ///< deletes itself at the end of the thread
};

} // namespace

std::unique_ptr<PlayerWatch> PlayerWatch::create(Listener& listener) {
    // Without an address Qt would start a bus where an old helper for that is installed.
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    const bool hasSocket = QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
    if (address.isEmpty() ? !hasSocket : address.startsWith("disabled:"))
        return nullptr;
    return std::make_unique<MprisWatch>(listener);
}

} // namespace Platform

#include "MprisWatch.moc"
