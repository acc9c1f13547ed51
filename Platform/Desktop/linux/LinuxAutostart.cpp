// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/Autostart.h"

#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto hiddenArgument = u"--hidden"_s;

/// Quotes an argument of an Exec line. It is escaped twice: as a command line and as a string value of the file.
QByteArray quotedForExec(const QString& argument) {
    QString text;
    for (const QChar letter : argument) {
        if (letter == u'"' || letter == u'`' || letter == u'$' || letter == u'\\')
            text += u'\\';
        text += letter;
        if (letter == u'%')
            text += letter;
    }
    return '"' + QFile::encodeName(text).replace('\\', "\\\\") + '"';
}

class FileAutostart : public Autostart {
public:
    FileAutostart(const QString& desktopEntry, const QString& program)
        : entry_(desktopEntry), program_(program),
          file_(Folders::config() + u"/autostart/"_s + desktopEntry + u".desktop"_s) {}

    [[nodiscard]] bool isEnabled() const override {
        const auto content = FileManager::read(file_, qint64(64) * 1024);
        if (!content)
            return false;
        // Desktops disable an entry with one of these two lines.
        for (const QByteArray& line : content->split('\n')) {
            const QByteArray said = line.trimmed().replace(" ", "");
            if (said == "Hidden=true" || said == "X-GNOME-Autostart-enabled=false")
                return false;
        }
        return true;
    }

    void setEnabled(bool enabled, Done done) override {
        if (enabled == isEnabled()) {
            done({});
            return;
        }
        if (!enabled) {
            done(FileManager::removeFile(file_).error().text);
            return;
        }
        (void)QDir().mkpath(QFileInfo(file_).path()); // if this fails, the write below reports why
        done(FileManager::writeAtomically(file_, "[Desktop Entry]\n"
                                                 "Type=Application\n"
                                                 "Name=Sonaphex\n"
                                                 "Exec=" +
                                                     quotedForExec(program_) + ' ' + hiddenArgument.toLatin1() +
                                                     "\n"
                                                     "Icon=" +
                                                     entry_.toUtf8() +
                                                     "\n"
                                                     "Terminal=false\n"
                                                     "StartupNotify=false\n"
                                                     "X-GNOME-Autostart-enabled=true\n")
                 .error()
                 .text);
    }

private:
    QString entry_;
    QString program_;
    QString file_;
};

class PortalAutostart : public QObject, public Autostart {
    Q_OBJECT
public:
    explicit PortalAutostart(const QString& program) : program_(program), bus_(QDBusConnection::sessionBus()) {}

    [[nodiscard]] bool isEnabled() const override {
        const auto* defaults = services().userDefaults;
        return defaults && boolValue(defaults->objectForKey(key));
    }

    void setEnabled(bool enabled, Done done) override {
        if (enabled == isEnabled()) {
            done({});
            return;
        }
        wanted_ = enabled;
        done_ = std::move(done);
        // The answer may arrive before the call returns, so connect to its path first.
        const QString token = u"autostart%1"_s.arg(++requests_);
        QString sender = bus_.baseService().mid(1);
        const QString request =
            u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(sender.replace(u'.', u'_'), token);
        bus_.connect(portal, request, u"org.freedesktop.portal.Request"_s, u"Response"_s, this,
                     SLOT(answered(uint, QVariantMap)));
        auto message = QDBusMessage::createMethodCall(portal, u"/org/freedesktop/portal/desktop"_s,
                                                      u"org.freedesktop.portal.Background"_s, u"RequestBackground"_s);
        message << QString()
                << QVariantMap{{u"handle_token"_s, token},
                               {u"reason"_s, tr("Sonaphex waits in the status bar.")},
                               {u"autostart"_s, enabled},
                               {u"commandline"_s, QStringList{program_, hiddenArgument}}};
        auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
            call->deleteLater();
            if (call->isError())
                finish(call->error().message());
        });
    }

private Q_SLOTS:
    void answered(uint response, const QVariantMap& results) {
        const bool granted = results.value(u"autostart"_s).toBool();
        if (response != 0 || granted != wanted_) {
            finish(tr("the desktop did not allow it"));
            return;
        }
        if (auto* defaults = services().userDefaults)
            defaults->setObject(key, qlonglong(granted));
        finish({});
    }

private:
    void finish(const QString& problem) {
        if (const Done done = std::exchange(done_, {}))
            done(problem);
    }

    static inline const QString portal = u"org.freedesktop.portal.Desktop"_s;
    static inline const QString key = u"PreferenceAutostartKey"_s;
    QString program_;
    QDBusConnection bus_;
    bool wanted_ = false;
    int requests_ = 0;
    Done done_;
};

} // namespace

std::unique_ptr<Autostart> Autostart::createWithFile(const QString& desktopEntry, const QString& program) {
    return std::make_unique<FileAutostart>(desktopEntry, program);
}

std::unique_ptr<Autostart> Autostart::createWithPortal(const QString& program) {
    return std::make_unique<PortalAutostart>(program);
}

std::unique_ptr<Autostart> Autostart::create(const QString& desktopEntry) {
    const QString program = QCoreApplication::applicationFilePath();
    if (QFile::exists(u"/.flatpak-info"_s))
        return createWithPortal(QFileInfo(program).fileName());
    // An AppImage is mounted at a different path at each start.
    const QString image = qEnvironmentVariable("APPIMAGE");
    return createWithFile(desktopEntry, image.isEmpty() ? program : image);
}

} // namespace Platform

#include "LinuxAutostart.moc"
