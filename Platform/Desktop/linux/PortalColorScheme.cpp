// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/linux/PortalColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto portalService = u"org.freedesktop.portal.Desktop"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto settingsInterface = u"org.freedesktop.portal.Settings"_s;
const auto appearance = u"org.freedesktop.appearance"_s;
const auto colorSchemeKey = u"color-scheme"_s;

class PortalColorScheme : public ColorScheme {
    Q_OBJECT
public:
    PortalColorScheme() {
        const QByteArray wish = qgetenv("SONAPHEX_COLOR_SCHEME");
        if (wish == "dark" || wish == "light") {
            preference_ = wish == "dark" ? Preference::Dark : Preference::Light;
            return;
        }
        auto bus = QDBusConnection::sessionBus();
        if (!bus.isConnected())
            return;
        bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                    SLOT(settingChanged(QString, QString, QDBusVariant)));
        auto question = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
        question << appearance << colorSchemeKey;
        auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
            const QDBusPendingReply<QDBusVariant> reply = *call;
            if (reply.isValid())
                take(reply.value().variant());
            call->deleteLater();
        });
    }
    Preference preference() const override { return preference_; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
        if (group == appearance && key == colorSchemeKey)
            take(value.variant());
    }

private:
    void take(QVariant value) {
        // Older portals wrap the result of Read in a second variant.
        while (value.canConvert<QDBusVariant>() && value.metaType() == QMetaType::fromType<QDBusVariant>())
            value = value.value<QDBusVariant>().variant();
        const uint code = value.toUInt();
        const auto wish = code == 1 ? Preference::Dark : code == 2 ? Preference::Light : Preference::NoPreference;
        if (wish == preference_)
            return;
        preference_ = wish;
        Q_EMIT changed();
    }

    Preference preference_ = Preference::NoPreference;
};

} // namespace

std::unique_ptr<ColorScheme> createColorScheme() {
    return std::make_unique<PortalColorScheme>();
}

} // namespace Platform

#include "PortalColorScheme.moc"
