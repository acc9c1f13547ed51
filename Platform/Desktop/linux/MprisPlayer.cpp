// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/MediaPlayer.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Platform {
namespace {

const auto mprisPath = u"/org/mpris/MediaPlayer2"_s;
const auto mprisPlayerInterface = u"org.mpris.MediaPlayer2.Player"_s;
const auto mprisInterface = u"org.mpris.MediaPlayer2"_s;
constexpr double microseconds = 1e6; // MPRIS counts times in microseconds

QDBusObjectPath trackPath(const MediaPlayer::Track& track) {
    return QDBusObjectPath(track.number == 0 ? u"/org/mpris/MediaPlayer2/TrackList/NoTrack"_s
                                             : u"/com/korvane/Sonaphex/track/%1"_s.arg(track.number));
}

QString statusText(MediaPlayer::Status status) {
    switch (status) {
    case MediaPlayer::Status::Playing:
        return u"Playing"_s;
    case MediaPlayer::Status::Paused:
        return u"Paused"_s;
    case MediaPlayer::Status::Stopped:
        break;
    }
    return u"Stopped"_s;
}

QVariantMap metadataOf(const MediaPlayer::Track& track) {
    if (track.number == 0)
        return {};
    QVariantMap data{{u"mpris:trackid"_s, QVariant::fromValue(trackPath(track))},
                     {u"mpris:length"_s, qlonglong(std::llround(track.seconds * microseconds))}};
    const auto add = [&data](const QString& key, const QVariant& value, bool there) {
        if (there)
            data.insert(key, value);
    };
    add(u"xesam:title"_s, track.title, !track.title.isEmpty());
    add(u"xesam:artist"_s, QStringList{track.artist}, !track.artist.isEmpty());
    add(u"xesam:album"_s, track.album, !track.album.isEmpty());
    add(u"xesam:url"_s, track.file.toString(QUrl::FullyEncoded), !track.file.isEmpty());
    add(u"mpris:artUrl"_s, track.cover.toString(QUrl::FullyEncoded), !track.cover.isEmpty());
    return data;
}

/// State that both D-Bus interfaces read.
struct MprisState {
    MediaPlayer::State state;
    MediaPlayer::Commands* commands = nullptr;
    QString desktopEntry;
};

class RootInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ canQuit)
    Q_PROPERTY(bool CanRaise READ canRaise)
    Q_PROPERTY(bool HasTrackList READ hasTrackList)
    Q_PROPERTY(QString Identity READ identity)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry)
    Q_PROPERTY(QStringList SupportedUriSchemes READ supportedUriSchemes)
    Q_PROPERTY(QStringList SupportedMimeTypes READ supportedMimeTypes)

public:
    RootInterface(QObject* parent, MprisState& shared) : QDBusAbstractAdaptor(parent), shared_(shared) {}

    [[nodiscard]] bool canQuit() const { return shared_.state.canQuit; }
    [[nodiscard]] bool canRaise() const { return true; }
    [[nodiscard]] bool hasTrackList() const { return false; }
    [[nodiscard]] QString identity() const { return u"Sonaphex"_s; }
    [[nodiscard]] QString desktopEntry() const { return shared_.desktopEntry; }
    // Only library entries are played. org.freedesktop.Application opens other files.
    [[nodiscard]] QStringList supportedUriSchemes() const { return {}; }
    [[nodiscard]] QStringList supportedMimeTypes() const { return {}; }

public Q_SLOTS:
    void Raise() { // NOLINT(readability-identifier-naming): D-Bus name, also the methods below
        if (shared_.commands)
            shared_.commands->raise();
    }
    void Quit() {
        if (shared_.commands && shared_.state.canQuit)
            shared_.commands->quit();
    }

private:
    MprisState& shared_;
};

class PlayerInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double MinimumRate READ rate)
    Q_PROPERTY(double MaximumRate READ rate)
    Q_PROPERTY(bool CanGoNext READ canGoNext)
    Q_PROPERTY(bool CanGoPrevious READ canGoPrevious)
    Q_PROPERTY(bool CanPlay READ canPlay)
    Q_PROPERTY(bool CanPause READ canPause)
    Q_PROPERTY(bool CanSeek READ canSeek)
    Q_PROPERTY(bool CanControl READ canControl)

public:
    PlayerInterface(QObject* parent, MprisState& shared) : QDBusAbstractAdaptor(parent), shared_(shared) {}

    [[nodiscard]] QString playbackStatus() const { return statusText(shared_.state.status); }
    // Playback has one speed.
    [[nodiscard]] double rate() const { return 1; }
    void setRate(double rate) {
        if (rate == 0) // MPRIS defines rate 0 as a pause
            Pause();
    }
    [[nodiscard]] QVariantMap metadata() const { return metadataOf(shared_.state.track); }
    [[nodiscard]] double volume() const { return shared_.state.volume; }
    void setVolume(double volume) {
        if (shared_.commands && std::isfinite(volume))
            shared_.commands->setVolume(std::clamp(volume, 0.0, 1.0));
    }
    [[nodiscard]] qlonglong position() const {
        return shared_.commands ? std::llround(shared_.commands->position() * microseconds) : 0;
    }
    [[nodiscard]] bool canGoNext() const { return shared_.state.canGoNext; }
    [[nodiscard]] bool canGoPrevious() const { return shared_.state.canGoPrevious; }
    [[nodiscard]] bool canPlay() const { return shared_.state.canPlay; }
    [[nodiscard]] bool canPause() const { return shared_.state.canPause; }
    [[nodiscard]] bool canSeek() const { return shared_.state.canSeek; }
    [[nodiscard]] bool canControl() const { return true; }

public Q_SLOTS:
    void Next() {
        if (shared_.commands && shared_.state.canGoNext)
            shared_.commands->next();
    }
    void Previous() {
        if (shared_.commands && shared_.state.canGoPrevious)
            shared_.commands->previous();
    }
    void Play() {
        if (shared_.commands && shared_.state.canPlay)
            shared_.commands->play();
    }
    void Pause() {
        if (shared_.commands && shared_.state.canPause)
            shared_.commands->pause();
    }
    void PlayPause() {
        if (shared_.state.status == MediaPlayer::Status::Playing)
            Pause();
        else
            Play();
    }
    void Stop() {
        if (shared_.commands && shared_.state.status != MediaPlayer::Status::Stopped)
            shared_.commands->stop();
    }
    /// A position after the end skips to the next track. A position before the beginning goes to the beginning.
    void Seek(qlonglong Offset) {
        if (!shared_.commands || !shared_.state.canSeek)
            return;
        const double to = shared_.commands->position() + double(Offset) / microseconds;
        if (to > shared_.state.track.seconds)
            Next();
        else
            shared_.commands->setPosition(std::max(0.0, to));
    }
    /// Ignores a position outside the track, and a track that is no longer the current one.
    void SetPosition(const QDBusObjectPath& TrackId, qlonglong Position) {
        const double to = double(Position) / microseconds;
        if (shared_.commands && shared_.state.canSeek && TrackId == trackPath(shared_.state.track) && to >= 0 &&
            to <= shared_.state.track.seconds)
            shared_.commands->setPosition(to);
    }
    void OpenUri(const QString& /*Uri*/, const QDBusMessage& message) {
        message.setDelayedReply(true);
        QDBusConnection::sessionBus().send(
            message.createErrorReply(QDBusError::NotSupported, u"Only recordings of the library are played."_s));
    }

Q_SIGNALS:
    void Seeked(qlonglong Position);

private:
    MprisState& shared_;
};

/// The properties of @p now that differ from @p before, for PropertiesChanged.
QVariantMap changesOfPlayer(const MediaPlayer::State& before, const MediaPlayer::State& now) {
    QVariantMap changes;
    if (now.status != before.status)
        changes.insert(u"PlaybackStatus"_s, statusText(now.status));
    if (now.track != before.track)
        changes.insert(u"Metadata"_s, metadataOf(now.track));
    if (now.volume != before.volume)
        changes.insert(u"Volume"_s, now.volume);
    const auto flag = [&](const QString& name, bool MediaPlayer::State::*member) {
        if (now.*member != before.*member)
            changes.insert(name, now.*member);
    };
    flag(u"CanPlay"_s, &MediaPlayer::State::canPlay);
    flag(u"CanPause"_s, &MediaPlayer::State::canPause);
    flag(u"CanSeek"_s, &MediaPlayer::State::canSeek);
    flag(u"CanGoNext"_s, &MediaPlayer::State::canGoNext);
    flag(u"CanGoPrevious"_s, &MediaPlayer::State::canGoPrevious);
    return changes;
}

class MprisPlayer : public MediaPlayer {
public:
    MprisPlayer(const QString& name, const QString& desktopEntry) : bus_(QDBusConnection::sessionBus()) {
        shared_.desktopEntry = desktopEntry;
        if (!bus_.isConnected() || !bus_.registerObject(mprisPath, &object_, QDBusConnection::ExportAdaptors))
            return;
        name_ = mprisInterface + u'.' + name;
        if (bus_.registerService(name_))
            return;
        name_ += u".instance%1"_s.arg(QCoreApplication::applicationPid());
        if (!bus_.registerService(name_))
            name_.clear();
    }
    ~MprisPlayer() override {
        if (!name_.isEmpty())
            bus_.unregisterService(name_);
        bus_.unregisterObject(mprisPath);
    }

    void setCommands(Commands* commands) override { shared_.commands = commands; }
    void setState(const State& state) override {
        const State before = std::exchange(shared_.state, state);
        tell(mprisPlayerInterface, changesOfPlayer(before, state));
        if (state.canQuit != before.canQuit)
            tell(mprisInterface, {{u"CanQuit"_s, state.canQuit}});
    }
    void positionJumped(double seconds) override { Q_EMIT player_->Seeked(std::llround(seconds * microseconds)); }

private:
    void tell(const QString& interface, const QVariantMap& changes) {
        if (changes.isEmpty() || name_.isEmpty())
            return;
        auto signal =
            QDBusMessage::createSignal(mprisPath, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        signal << interface << changes << QStringList();
        bus_.send(signal);
    }

    MprisState shared_;
    QDBusConnection bus_;
    QString name_; ///< empty when the player is not on the bus
    QObject object_;
    RootInterface* root_ = new RootInterface(&object_, shared_);
    PlayerInterface* player_ = new PlayerInterface(&object_, shared_);
};

} // namespace

std::unique_ptr<MediaPlayer> MediaPlayer::create(const QString& name, const QString& desktopEntry) {
    return std::make_unique<MprisPlayer>(name, desktopEntry);
}

} // namespace Platform

#include "MprisPlayer.moc"
