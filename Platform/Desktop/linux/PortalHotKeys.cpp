// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/KeyCodes.h"
#include "Platform/Desktop/linux/LinuxHotKeys.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QTimer>

#include <algorithm>
#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace Platform::PortalTypes {

struct Shortcut {
    QString id;
    QVariantMap properties;
};

} // namespace Platform::PortalTypes
Q_DECLARE_METATYPE(Platform::PortalTypes::Shortcut)

namespace Platform::PortalTypes {

QDBusArgument& operator<<(QDBusArgument& argument, const Shortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Shortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace Platform::PortalTypes

namespace Platform {
namespace {

using PortalTypes::Shortcut;

const auto service = u"org.freedesktop.portal.Desktop"_s;
const auto desktopPath = u"/org/freedesktop/portal/desktop"_s;
const auto shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;

// The four letters of a signature; the desktop stores its key assignments under this name.
QString nameOf(HotKeys::Id id) {
    QString name;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const auto letter = static_cast<char16_t>((id.signature >> shift) & 0xFF);
        name += letter > 0x20 && letter < 0x7F ? QChar(letter) : u'_';
    }
    return name;
}

QString trigger(std::uint16_t keyCode, std::uint32_t carbonModifiers) {
    QString text;
    if (carbonModifiers & 4096)
        text += u"CTRL+"_s;
    if (carbonModifiers & 2048)
        text += u"ALT+"_s;
    if (carbonModifiers & 512)
        text += u"SHIFT+"_s;
    if (carbonModifiers & 256)
        text += u"LOGO+"_s;
    return text + KeyCodes::keysymName(keyCode);
}

// A session binds its shortcuts only once, so a change needs a new session. All calls are asynchronous: a portal that
// hangs must not block the program.
class PortalHotKeys : public QObject, public HotKeys {
    Q_OBJECT
public:
    PortalHotKeys()
        : bus_(QDBusConnection::sessionBus()), portals_(service, bus_, QDBusServiceWatcher::WatchForRegistration) {
        // Qt matches the slot by type name, and this type must be registered by name first.
        qRegisterMetaType<QDBusObjectPath>();
        qDBusRegisterMetaType<Shortcut>();
        qDBusRegisterMetaType<QList<Shortcut>>();
        rebind_.setSingleShot(true);
        rebind_.setInterval(100); // joins the registrations of three fields
        connect(&rebind_, &QTimer::timeout, this, [this] { openSession(); });
        if (!bus_.isConnected()) {
            answered_ = true;
            return;
        }
        bus_.connect(service, desktopPath, shortcutsInterface, u"Activated"_s, this,
                     SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
        bus_.connect(service, desktopPath, shortcutsInterface, u"ShortcutsChanged"_s, this,
                     SLOT(shortcutsChanged(QDBusMessage)));
        // A restarted portal does not know the old session. Ignored while ask() waits, because the call may start the
        // portal.
        connect(&portals_, &QDBusServiceWatcher::serviceRegistered, this, [this] {
            if (answered_) {
                session_.clear();
                ask();
            }
        });
        ask();
    }
    ~PortalHotKeys() override { closeSession(); }

    Way way() const override { return available_ ? Way::Portal : Way::None; }
    void setHandler(Handler handler) override { handler_ = std::move(handler); }
    void setRefusedHandler(RefusedHandler handler) override { refusedHandler_ = std::move(handler); }
    void setTriggerHandler(TriggerHandler handler) override { triggerHandler_ = std::move(handler); }
    void setWayChangedHandler(std::function<void()> handler) override { wayChanged_ = std::move(handler); }
    void describe(Id id, const QString& text) override { descriptions_[id.signature] = text; }

    Handle registerHotKey(std::uint16_t keyCode, std::uint32_t carbonModifiers, Id id) override {
        if ((answered_ && !available_) || KeyCodes::keysymName(keyCode).isEmpty())
            return 0;
        for (const auto& [handle, taken] : registrations_)
            if (taken.keyCode == keyCode && taken.carbonModifiers == carbonModifiers)
                return 0;
        registrations_.emplace(++lastHandle_, Registration{keyCode, carbonModifiers, id});
        if (available_)
            rebind_.start();
        return lastHandle_;
    }

    void unregisterHotKey(Handle handle) override {
        if (registrations_.erase(handle) > 0 && available_)
            rebind_.start();
    }

private Q_SLOTS:
    void activated(const QDBusObjectPath& session, const QString& name, qulonglong, const QVariantMap&) {
        if (session.path() != session_)
            return;
        for (const auto& [handle, registration] : registrations_) {
            if (nameOf(registration.id) != name)
                continue;
            if (const auto handler = handler_)
                handler(registration.id);
            return;
        }
    }
    /// The user changed the keys of some shortcuts in the desktop's settings.
    void shortcutsChanged(const QDBusMessage& signal) {
        if (signal.arguments().size() < 2 || signal.arguments().at(0).value<QDBusObjectPath>().path() != session_ ||
            session_.isEmpty())
            return;
        tellTriggers(qdbus_cast<QList<Shortcut>>(signal.arguments().at(1)));
    }
    void sessionResponse(uint response, const QVariantMap& results) {
        forgetRequest(SLOT(sessionResponse(uint, QVariantMap)));
        const QString session = results.value(u"session_handle"_s).toString();
        if (response != 0 || session.isEmpty()) {
            qWarning("the desktop portal opens no session for hot keys (answer %u)", response);
            refuseWhatWasAsked();
            return;
        }
        session_ = session;
        bindShortcuts();
    }
    void bindResponse(uint response, const QVariantMap& results) {
        forgetRequest(SLOT(bindResponse(uint, QVariantMap)));
        if (response != 0) {
            qWarning("the desktop portal binds no hot keys (answer %u)", response);
            refuseWhatWasAsked();
            return;
        }
        // A portal that returns no list granted every shortcut.
        const QVariant listed = results.value(u"shortcuts"_s);
        std::set<QString> granted;
        const auto shortcuts = qdbus_cast<QList<Shortcut>>(listed);
        for (const auto& shortcut : shortcuts) {
            // Without a trigger the desktop knows the shortcut but assigned no combination to it.
            const QVariant keys = shortcut.properties.value(u"trigger_description"_s);
            if (!keys.isValid() || !keys.toString().isEmpty())
                granted.insert(shortcut.id);
        }
        Handles refused;
        for (const Handle handle : asked_) {
            const auto found = registrations_.find(handle);
            if (found == registrations_.end())
                continue;
            found->second.granted = !listed.isValid() || granted.contains(nameOf(found->second.id));
            if (!found->second.granted)
                refused.insert(handle);
        }
        refuse(refused);
        tellTriggers(shortcuts);
    }

private:
    struct Registration {
        std::uint16_t keyCode;
        std::uint32_t carbonModifiers;
        Id id;
        bool granted = false; ///< granted by the portal
    };
    using Handles = std::set<Handle>;

    void ask() {
        auto question =
            QDBusMessage::createMethodCall(service, desktopPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
        question << shortcutsInterface << u"version"_s;
        answered_ = false;
        call(question, [this](const QDBusMessage& reply) {
            answered_ = true;
            available_ = reply.type() == QDBusMessage::ReplyMessage;
            if (wayChanged_)
                wayChanged_();
            if (available_ && !registrations_.empty())
                rebind_.start();
            if (!available_)
                refuse(handles());
        });
    }
    void tellTriggers(const QList<Shortcut>& shortcuts) {
        for (const Shortcut& shortcut : shortcuts) {
            const QVariant trigger = shortcut.properties.value(u"trigger_description"_s);
            const auto found = std::find_if(registrations_.cbegin(), registrations_.cend(),
                                            [&](const auto& each) { return nameOf(each.second.id) == shortcut.id; });
            if (trigger.isValid() && found != registrations_.cend() && triggerHandler_)
                triggerHandler_(found->first, trigger.toString());
        }
    }

    [[nodiscard]] Handles handles() const {
        Handles all;
        for (const auto& [handle, registration] : registrations_)
            all.insert(handle);
        return all;
    }
    void refuse(const Handles& refused) {
        for (const Handle handle : refused)
            registrations_.erase(handle);
        const auto handler = refusedHandler_; // the handler may register another combination
        for (const Handle handle : refused)
            if (handler)
                handler(handle);
    }
    /// The portal bound nothing because of the new combinations. Bind those that it granted before again, without the
    /// new ones.
    void refuseWhatWasAsked() {
        Handles refused;
        for (const Handle handle : asked_)
            if (const auto found = registrations_.find(handle); found != registrations_.end() && !found->second.granted)
                refused.insert(handle);
        if (refused.empty())
            refused = asked_;
        refuse(refused);
        if (!registrations_.empty())
            rebind_.start();
    }

    void refuseAtAnError(const QDBusMessage& reply) {
        if (reply.type() != QDBusMessage::ErrorMessage)
            return;
        qWarning("hot keys: %s", qPrintable(reply.errorMessage()));
        refuseWhatWasAsked();
    }

    template <typename Then>
    void call(const QDBusMessage& message, Then then) {
        auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [then](QDBusPendingCallWatcher* done) {
            then(done->reply());
            done->deleteLater();
        });
    }

    // The response may arrive before the call returns, so subscribe to its path first.
    QString expectRequest(const char* slot) {
        for (const char* waiting : {SLOT(sessionResponse(uint, QVariantMap)), SLOT(bindResponse(uint, QVariantMap))})
            forgetRequest(waiting);
        const QString token = u"sonaphex%1"_s.arg(++lastToken_);
        QString sender = bus_.baseService().mid(1);
        sender.replace(u'.', u'_');
        request_ = desktopPath + u"/request/"_s + sender + u'/' + token;
        bus_.connect(service, request_, u"org.freedesktop.portal.Request"_s, u"Response"_s, this, slot);
        return token;
    }
    void forgetRequest(const char* slot) {
        if (!request_.isEmpty())
            bus_.disconnect(service, request_, u"org.freedesktop.portal.Request"_s, u"Response"_s, this, slot);
    }

    void openSession() {
        closeSession();
        asked_ = handles();
        if (asked_.empty())
            return;
        const QString token = expectRequest(SLOT(sessionResponse(uint, QVariantMap)));
        auto message = QDBusMessage::createMethodCall(service, desktopPath, shortcutsInterface, u"CreateSession"_s);
        message << QVariantMap{{u"handle_token"_s, token}, {u"session_handle_token"_s, token}};
        call(message, [this](const QDBusMessage& reply) { refuseAtAnError(reply); });
    }

    void bindShortcuts() {
        QList<Shortcut> shortcuts;
        asked_ = handles();
        for (const auto& [handle, registration] : registrations_) {
            const auto described = descriptions_.find(registration.id.signature);
            const QString name = nameOf(registration.id);
            shortcuts.append({name,
                              {{u"description"_s, described == descriptions_.end() ? name : described->second},
                               {u"preferred_trigger"_s, trigger(registration.keyCode, registration.carbonModifiers)}}});
        }
        const QString token = expectRequest(SLOT(bindResponse(uint, QVariantMap)));
        auto message = QDBusMessage::createMethodCall(service, desktopPath, shortcutsInterface, u"BindShortcuts"_s);
        message << QDBusObjectPath(session_) << QVariant::fromValue(shortcuts) << QString()
                << QVariantMap{{u"handle_token"_s, token}};
        call(message, [this](const QDBusMessage& reply) { refuseAtAnError(reply); });
    }

    void closeSession() {
        if (session_.isEmpty())
            return;
        bus_.send(QDBusMessage::createMethodCall(service, session_, u"org.freedesktop.portal.Session"_s, u"Close"_s));
        session_.clear();
    }

    QDBusConnection bus_;
    QDBusServiceWatcher portals_;
    QTimer rebind_;
    std::map<Handle, Registration> registrations_;
    Handles asked_; ///< the handles of the request that the portal is answering
    std::map<std::uint32_t, QString> descriptions_;
    Handle lastHandle_ = 0;
    QString session_;
    QString request_;
    int lastToken_ = 0;
    bool answered_ = false;
    bool available_ = false;
    Handler handler_;
    RefusedHandler refusedHandler_;
    TriggerHandler triggerHandler_;
    std::function<void()> wayChanged_;
};

} // namespace

std::unique_ptr<HotKeys> createPortalHotKeys() {
    return std::make_unique<PortalHotKeys>();
}

} // namespace Platform

#include "PortalHotKeys.moc"
