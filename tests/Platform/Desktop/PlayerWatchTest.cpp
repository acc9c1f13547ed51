// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The watch of media players on a real bus.
#include "Platform/Desktop/PlayerWatch.h"

#include "tests/support/Environment.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/ScriptedPlayer.h"
#include "tests/support/WaitFor.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;
using Platform::PlayerTrack;
using Platform::PlayerWatch;
using Platform::WatchedPlayer;

namespace {

std::uint64_t steadyTime() {
    return std::uint64_t(std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count());
}

/// Keeps what it is told.
class Listener final : public PlayerWatch::Listener {
public:
    void playerChanged(const WatchedPlayer& player, std::uint64_t time) override {
        const std::scoped_lock lock(mutex_);
        players_[player.key] = player;
        ++changes_;
        last_ = time;
    }
    void playerGone(const QString& key, std::uint64_t time) override {
        const std::scoped_lock lock(mutex_);
        players_.erase(key);
        last_ = time;
    }
    void playerPosition(const QString&, double seconds, std::uint64_t time) override {
        const std::scoped_lock lock(mutex_);
        position_ = seconds;
        last_ = time;
    }
    [[nodiscard]] std::size_t count() const {
        const std::scoped_lock lock(mutex_);
        return players_.size();
    }
    /// The only player; an empty one unless there is exactly one.
    [[nodiscard]] WatchedPlayer only() const {
        const std::scoped_lock lock(mutex_);
        return players_.size() == 1 ? players_.begin()->second : WatchedPlayer();
    }
    [[nodiscard]] int changes() const {
        const std::scoped_lock lock(mutex_);
        return changes_;
    }
    [[nodiscard]] double position() const {
        const std::scoped_lock lock(mutex_);
        return position_;
    }
    [[nodiscard]] std::uint64_t last() const {
        const std::scoped_lock lock(mutex_);
        return last_;
    }

private:
    mutable std::mutex mutex_;
    std::map<QString, WatchedPlayer> players_;
    int changes_ = 0;
    double position_ = -1;
    std::uint64_t last_ = 0;
};

/// One bus for all: a process knows the address of one session bus.
class PlayerWatchTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        bus_ = std::make_unique<PrivateBus>(folder_->path());
    }
    static void TearDownTestSuite() {
        bus_.reset();
        folder_.reset();
    }
    [[nodiscard]] bool sees(const QString& title) {
        return waitFor([&] { return listener_.only().track.title == title; });
    }

    static inline std::unique_ptr<QTemporaryDir> folder_;
    static inline std::unique_ptr<PrivateBus> bus_;
    EnvironmentScope address_{"DBUS_SESSION_BUS_ADDRESS", bus_->address().toUtf8()};
    Listener listener_;
};

} // namespace

TEST_F(PlayerWatchTest, FindsAPlayerThatRunsAlreadyWithAllItSays) {
    ScriptedPlayer player(bus_->address(), u"scripted.instance12"_s);
    ASSERT_TRUE(player.isRegistered());
    player.properties = {{u"PlaybackStatus"_s, u"Playing"_s},
                         {u"Metadata"_s, ScriptedPlayer::track(u"/one"_s, u"One"_s, u"Somebody"_s, u"Numbers"_s, 12.5,
                                                               u"file:///tmp/one.png"_s)}};
    const auto watch = PlayerWatch::create(listener_);
    ASSERT_TRUE(sees(u"One"_s));
    ASSERT_TRUE(waitFor([&] { return listener_.only().names.size() == 2; }));
    const WatchedPlayer seen = listener_.only();
    EXPECT_TRUE(seen.isPlaying);
    EXPECT_EQ(seen.names, (QStringList{u"Scripted Player"_s, u"scripted"_s}));
    const PlayerTrack expected{.id = u"/one"_s,
                               .title = u"One"_s,
                               .artist = u"Somebody"_s,
                               .album = u"Numbers"_s,
                               .source = {},
                               .cover = QUrl(u"file:///tmp/one.png"_s),
                               .seconds = 12.5};
    EXPECT_EQ(seen.track, expected);
}

TEST_F(PlayerWatchTest, FollowsPlayersThatComeChangeAndGo) {
    const auto watch = PlayerWatch::create(listener_);
    auto player = std::make_unique<ScriptedPlayer>(bus_->address(), u"scripted"_s);
    ASSERT_TRUE(waitFor([&] { return listener_.count() == 1; }));
    player->position = [] { return 1.5; };
    player->setStatus(u"Playing"_s);
    ASSERT_TRUE(waitFor([&] { return listener_.only().isPlaying; }));
    const std::uint64_t before = steadyTime();
    player->setTrack(ScriptedPlayer::track(u"/one"_s, u"One"_s));
    ASSERT_TRUE(sees(u"One"_s));
    EXPECT_GE(listener_.last(), before);
    EXPECT_LE(listener_.last(), steadyTime());
    ASSERT_TRUE(waitFor([&] { return listener_.position() == 1.5; })) << "it is asked for its position";
    player->setStatus(u"Paused"_s);
    ASSERT_TRUE(waitFor([&] { return !listener_.only().isPlaying; }));
    EXPECT_EQ(listener_.only().track.title, u"One"_s);
    // Some players only say that something is different.
    player->properties[u"Metadata"_s] = ScriptedPlayer::track(u"/two"_s, u"Two"_s);
    player->invalidate({u"Metadata"_s});
    ASSERT_TRUE(sees(u"Two"_s));
    player.reset();
    ASSERT_TRUE(waitFor([&] { return listener_.count() == 0; }));
    ScriptedPlayer again(bus_->address(), u"scripted"_s);
    ASSERT_TRUE(waitFor([&] { return listener_.count() == 1; }));
    EXPECT_FALSE(listener_.only().isPlaying) << "it is another one";
}

TEST_F(PlayerWatchTest, APlayerWithTwoNamesIsOnePlayer) {
    const auto watch = PlayerWatch::create(listener_);
    ScriptedPlayer player(bus_->address(), u"scripted"_s);
    ASSERT_TRUE(player.alsoAs(u"scripted.instance7"_s));
    player.properties[u"PlaybackStatus"_s] = u"Playing"_s;
    ScriptedPlayer other(bus_->address(), u"other"_s);
    ASSERT_TRUE(waitFor([&] { return listener_.count() == 2; }));
    player.setStatus(u"Playing"_s);
    EXPECT_EQ(listener_.count(), 2U);
}

TEST_F(PlayerWatchTest, WhatAPlayerSaysIsBoundedAndOfAnyType) {
    const auto watch = PlayerWatch::create(listener_);
    ScriptedPlayer player(bus_->address(), u"scripted"_s);
    player.setTrack({{u"mpris:trackid"_s, u"text instead of a path"_s},
                     {u"xesam:title"_s, QString(100000, u'x')},
                     {u"xesam:artist"_s, u"  one\nline\x1b "_s},
                     {u"xesam:album"_s, 12},
                     {u"mpris:length"_s, u"long"_s},
                     {u"mpris:artUrl"_s, QString(20000000, u'y')}});
    ASSERT_TRUE(waitFor([&] { return !listener_.only().track.title.isEmpty(); }));
    const PlayerTrack track = listener_.only().track;
    EXPECT_EQ(track.id, u"text instead of a path"_s);
    EXPECT_EQ(track.title, QString(PlayerTrack::LongestText, u'x'));
    EXPECT_EQ(track.artist, u"one line"_s);
    EXPECT_EQ(track.album, QString());
    EXPECT_EQ(track.seconds, 0);
    EXPECT_TRUE(track.cover.isEmpty());
    // Metadata that is no dictionary at all.
    player.set({{u"Metadata"_s, u"nothing"_s}});
    ASSERT_TRUE(waitFor([&] { return listener_.only().track == PlayerTrack(); }));
    player.setTrack(ScriptedPlayer::track(u"/org/mpris/MediaPlayer2/TrackList/NoTrack"_s, u"None"_s));
    player.setTrack(ScriptedPlayer::track(u"/one"_s, u"One"_s));
    ASSERT_TRUE(sees(u"One"_s));
}

TEST_F(PlayerWatchTest, LeavesOutThePlayerOfItsOwnProcess) {
    ScriptedPlayer own(QDBusConnection::sessionBus(), u"own"_s);
    ASSERT_TRUE(own.isRegistered());
    const auto watch = PlayerWatch::create(listener_);
    ScriptedPlayer other(bus_->address(), u"other"_s);
    own.setTrack(ScriptedPlayer::track(u"/own"_s, u"Own"_s));
    other.setTrack(ScriptedPlayer::track(u"/one"_s, u"One"_s));
    ASSERT_TRUE(sees(u"One"_s));
    EXPECT_EQ(listener_.count(), 1U);
}

TEST_F(PlayerWatchTest, EndsWithoutWaitingForAPlayer) {
    auto watch = PlayerWatch::create(listener_);
    ScriptedPlayer player(bus_->address(), u"scripted"_s); // answers only while this test's loop runs
    const auto begin = steadyTime();
    watch.reset();
    EXPECT_LT(steadyTime() - begin, 5'000'000'000U);
    const int changes = listener_.changes();
    player.setStatus(u"Playing"_s);
    auto second = PlayerWatch::create(listener_);
    ASSERT_TRUE(waitFor([&] { return listener_.only().isPlaying; })) << "a second watch works as well";
    EXPECT_EQ(changes, 0);
}

TEST(PlayerWatch, ThereIsNoneWithoutASessionBus) {
    const QTemporaryDir folder;
    const EnvironmentScope runtime("XDG_RUNTIME_DIR", folder.path().toUtf8());
    Listener listener;
    {
        const EnvironmentScope address("DBUS_SESSION_BUS_ADDRESS");
        EXPECT_EQ(PlayerWatch::create(listener), nullptr);
    }
    const EnvironmentScope address("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    EXPECT_EQ(PlayerWatch::create(listener), nullptr);
}
