// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/ApplicationService.h"

#include "Platform/Foundation/MainQueue.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

/// The launcher's token: an activation token on Wayland, a startup id on X11.
QByteArray tokenIn(const QVariantMap& platformData) {
    const QByteArray token = platformData.value(u"activation-token"_s).toString().toUtf8();
    return token.isEmpty() ? platformData.value(u"desktop-startup-id"_s).toString().toUtf8() : token;
}

class ServiceObject;

class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit ApplicationInterface(ServiceObject& service);

public Q_SLOTS:
    void Activate(const QVariantMap& platform_data); // NOLINT(readability-identifier-naming): D-Bus names
    void Open(const QStringList& uris, const QVariantMap& platform_data);
    void ActivateAction(const QString& action_name, const QVariantList& parameter, const QVariantMap& platform_data);

private:
    ServiceObject& service_;
};

class ServiceObject : public ApplicationService {
    Q_OBJECT
public:
    explicit ServiceObject(const QString& identifier)
        : name_(identifier), path_(u'/' + QString(identifier).replace(u'.', u'/')),
          bus_(QDBusConnection::sessionBus()) {
        new ApplicationInterface(*this);
        // Register the object first: calls may arrive as soon as the name is owned.
        if (bus_.isConnected() && bus_.registerObject(path_, this, QDBusConnection::ExportAdaptors))
            hasName_ = bus_.registerService(name_);
    }
    ~ServiceObject() override {
        if (hasName_)
            bus_.unregisterService(name_);
        bus_.unregisterObject(path_);
    }

    void begin() override {
        begun_ = true;
        for (auto& work : std::exchange(waiting_, {}))
            MainQueue::post(this, std::move(work));
    }
    void take(std::function<void()> work) {
        if (begun_)
            MainQueue::post(this, std::move(work));
        else
            waiting_.push_back(std::move(work));
    }

private:
    QString name_;
    QString path_;
    QDBusConnection bus_;
    bool hasName_ = false;
    bool begun_ = false;
    std::vector<std::function<void()>> waiting_;
};

ApplicationInterface::ApplicationInterface(ServiceObject& service) : QDBusAbstractAdaptor(&service), service_(service) {
}

void ApplicationInterface::Activate(const QVariantMap& platform_data) {
    service_.take([this, token = tokenIn(platform_data)] { Q_EMIT service_.activated(token); });
}

void ApplicationInterface::Open(const QStringList& uris, const QVariantMap& platform_data) {
    QStringList paths;
    for (const QString& uri : uris)
        if (const QUrl url(uri); url.isLocalFile())
            paths << url.toLocalFile();
    service_.take([this, paths, token = tokenIn(platform_data)] {
        if (paths.isEmpty())
            Q_EMIT service_.activated(token);
        else
            Q_EMIT service_.openRequested(paths, token);
    });
}

void ApplicationInterface::ActivateAction(const QString& action_name, const QVariantList& /*parameter*/,
                                          const QVariantMap& platform_data) {
    service_.take(
        [this, action_name, token = tokenIn(platform_data)] { Q_EMIT service_.actionRequested(action_name, token); });
}

} // namespace

std::unique_ptr<ApplicationService> ApplicationService::create(const QString& bundleIdentifier) {
    return std::make_unique<ServiceObject>(bundleIdentifier);
}

} // namespace Platform

#include "LinuxApplicationService.moc"
