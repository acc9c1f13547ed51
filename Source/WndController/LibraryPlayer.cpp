// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/LibraryPlayer.h"

#include "Platform/Foundation/MainQueue.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainWndController.h"

#include <QApplication>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using Platform::MediaPlayer;

LibraryPlayer::LibraryPlayer(MainWndController& window, std::unique_ptr<MediaPlayer> desktop,
                             const QString& coverFolder, QObject* parent)
    : QObject(parent), window_(window), desktop_(std::move(desktop)), cover_(coverFolder) {
    later_.setSingleShot(true);
    later_.setInterval(0);
    connect(&later_, &QTimer::timeout, this, &LibraryPlayer::update);
    const auto soon = [this] { later_.start(); };

    LibraryPresenter& library = window_.library();
    connect(&window_.display(), &AudioWaveViewController::playSoundChanged, this, &LibraryPlayer::soundChanged);
    connect(&window_.display(), &AudioWaveViewController::audioPositionSet, this,
            [this](double seconds) { desktop_->positionJumped(seconds); });
    connect(&library, &LibraryPresenter::playbackChanged, this, &LibraryPlayer::update);
    connect(&cover_, &CoverFile::urlChanged, this, &LibraryPlayer::update);
    // These change canPlay, canGoNext and canGoPrevious.
    connect(&library, &LibraryPresenter::tableViewPlayEnableChanged, this, soon);
    connect(&window_.record(), &RecordStateController::stateChanged, this, soon);
    AudioTableModel& rows = library.tableModel();
    connect(&rows, &QAbstractItemModel::rowsInserted, this, soon);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, soon);
    connect(&rows, &QAbstractItemModel::modelReset, this, soon);
    connect(&rows, &QAbstractItemModel::layoutChanged, this, soon);

    desktop_->setCommands(this);
    update();
}

LibraryPlayer::~LibraryPlayer() {
    desktop_->setCommands(nullptr);
}

std::shared_ptr<CustomSound> LibraryPlayer::sound() const {
    return window_.display().playSound();
}

void LibraryPlayer::soundChanged() {
    pausedAtStart_ = std::exchange(takeUpPaused_, false);
    if (!sound())
        return;
    ++track_;
    sound()->setVolume(static_cast<float>(volume_));
}

MediaPlayer::State LibraryPlayer::state() {
    MediaPlayer::State state;
    const bool recording = window_.record().isStateAudioRecord();
    state.volume = volume_;
    state.canPlay = window_.library().isPlaySoundButtonEnable() || (!recording && !sound() && rowFrom(-1, 1) >= 0);
    state.canQuit = !recording;
    const auto playing = sound();
    if (!playing)
        return state;
    if (playing->isPlaying())
        pausedAtStart_ = false;
    state.status = playing->isPlaying()                   ? MediaPlayer::Status::Playing
                   : playing->isPause() || pausedAtStart_ ? MediaPlayer::Status::Paused
                                                          : MediaPlayer::Status::Stopped;
    const Dictionary entry = window_.library().playingEntry();
    const auto text = [&entry](const QString& key) { return Platform::stringForm(entry.value(key)); };
    state.track = {track_,
                   text(AudioRecordEntry::Title),
                   text(AudioRecordEntry::Artist),
                   text(AudioRecordEntry::Album),
                   QUrl::fromLocalFile(playing->path()),
                   cover_.url(),
                   playing->duration()};
    state.canPause = state.canSeek = !recording && playing->duration() > 0;
    state.canGoNext = !recording && rowFromPlaying(1) >= 0;
    state.canGoPrevious = !recording && rowFromPlaying(-1) >= 0;
    return state;
}

void LibraryPlayer::update() {
    later_.stop();
    cover_.setAudioFile(sound() ? sound()->path() : QString());
    const MediaPlayer::State now = state();
    const auto before = std::exchange(status_, now.status);
    desktop_->setState(now);
    // Without this the desktop continues from the position at which the track was stopped.
    if (before == MediaPlayer::Status::Stopped && now.status == MediaPlayer::Status::Playing)
        desktop_->positionJumped(position());
}

int LibraryPlayer::rowFromPlaying(int step) const {
    const AudioTableModel& rows = window_.library().tableModel();
    const int row = rows.rowOfPath(window_.library().playingPath());
    return row < 0 ? -1 : rowFrom(row, step);
}

int LibraryPlayer::rowFrom(int row, int step) const {
    const AudioTableModel& rows = window_.library().tableModel();
    for (row += step; row >= 0 && row < rows.rowCount(); row += step)
        if (QFileInfo::exists(Platform::stringForm(rows.entry(row).value(AudioRecordEntry::SavePath))))
            return row;
    return -1;
}

void LibraryPlayer::go(int step) {
    const int row = rowFromPlaying(step);
    // The trim window and the ringtone maker are modal and have their own playback.
    if (row < 0 || QApplication::activeModalWidget())
        return;
    const Dictionary entry = window_.library().tableModel().entry(row);
    if (status_ == MediaPlayer::Status::Playing) {
        window_.library().playSoundFile(entry);
    } else {
        takeUpPaused_ = status_ == MediaPlayer::Status::Paused;
        window_.library().takeUpSoundFile(entry);
    }
}

void LibraryPlayer::play() {
    LibraryPresenter& library = window_.library();
    if (library.isPlaySoundPlaying() || QApplication::activeModalWidget())
        return;
    if (library.isPlaySoundButtonEnable())
        library.playSoundButtonAction();
    else if (const int first = rowFrom(-1, 1); first >= 0 && !sound() && !window_.record().isStateAudioRecord())
        library.playSoundFile(library.tableModel().entry(first)); // nothing is selected
}

void LibraryPlayer::pause() {
    if (window_.library().isPlaySoundPlaying())
        window_.library().playSoundButtonAction();
}

void LibraryPlayer::stop() {
    pausedAtStart_ = false;
    window_.library().stopSoundPlaying();
    update();
}

void LibraryPlayer::next() {
    go(1);
}

void LibraryPlayer::previous() {
    go(-1);
}

double LibraryPlayer::position() const {
    return window_.display().currentTime();
}

void LibraryPlayer::setPosition(double seconds) {
    window_.display().setAudioPosition(static_cast<float>(seconds));
}

void LibraryPlayer::setVolume(double volume) {
    volume_ = std::clamp(volume, 0.0, 1.0);
    if (sound())
        sound()->setVolume(static_cast<float>(volume_));
    update();
}

void LibraryPlayer::raise() {
    ToolControl::showWindowNib(window_);
}

void LibraryPlayer::quit() {
    // Not inside the D-Bus call: closing may open a dialog.
    Platform::MainQueue::post(this, [this] { window_.closeWindow(); });
}
