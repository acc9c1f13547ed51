// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/EditWindows.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Media/ExtAudioFile.h"
#include "Source/Control/FileTags.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/WndController/AudioTrimWndController.h"
#include "Source/WndController/BalanceWndController.h"
#include "Source/WndController/ID3EditWndController.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/MainWndController.h"
#include "Source/WndController/RecordingJoin.h"
#include "Source/WndController/SplitWndController.h"

#include <QApplication>
#include <QFileInfo>

using Window = WindowCommands::Window;

EditWindows::EditWindows(MainWndController& main, QObject* parent) : QObject(parent), main_(main) {
    main_.commands().setOpener(Window::AudioTrim, [this](const QVariantList& entries) {
        audioTrimWndController().setTrimAudioSourceData(entries.value(0).toMap());
        audioTrimWndController().runModal();
    });
    main_.commands().setOpener(Window::ID3Edit, [this](const QVariantList& entries) {
        Dictionary entry = entries.value(0).toMap();
        // The library stores no pictures: the cover is in the file.
        const QByteArray cover = FileTags::artwork(Platform::stringForm(entry.value(AudioRecordEntry::SavePath)));
        if (!entry.contains(AudioRecordEntry::Artwork) && !cover.isEmpty())
            entry.insert(AudioRecordEntry::Artwork, cover);
        id3EditWndController().setID3EditDataSource(entry);
        id3EditWndController().runModal();
    });
    main_.commands().setOpener(Window::Split, [this](const QVariantList& entries) {
        splitWndController().setRecording(entries.value(0).toMap());
        splitWndController().runModal();
    });
    join_ = std::make_unique<RecordingJoin>(main_.window());
    join_->setDelegate(this);
    connect(join_.get(), &RecordingJoin::joined, this, [this](const QString& notice) { main_.showStatus(notice); });
    main_.commands().setOpener(Window::Join, [this](const QVariantList& entries) { join_->join(entries); });
    main_.commands().setOpener(Window::Balance, [this](const QVariantList& entries) {
        BalanceWndController& balance = balanceWndController();
        if (const QString why = balance.setEntry(entries.value(0).toMap()); why.isEmpty())
            balance.runModal();
        else
            (void)Platform::services().alerts->runModal(tr("The tracks cannot be mixed."), why,
                                                        {Platform::Alerts::okLabel()});
    });
    main_.menus().update();
}

EditWindows::~EditWindows() = default;

QString EditWindows::openFile(const QString& path) {
    if (QApplication::activeModalWidget())
        return tr("%1 cannot be opened: close the open dialog first.").arg(path);
    if (const auto info = Platform::services().mediaFiles->info(path); !info)
        return info.error().text;
    main_.library().stopSoundPlaying();
    audioTrimWndController().setTrimAudioSourceData(MediaLibrary::entryForFile(path, FileTags::texts(path)));
    audioTrimWndController().runModal();
    return {};
}

AudioTrimWndController& EditWindows::audioTrimWndController() {
    if (!trim_) {
        trim_ = std::make_unique<AudioTrimWndController>(main_.window());
        trim_->setDelegate(this);
    }
    return *trim_;
}

BalanceWndController& EditWindows::balanceWndController() {
    if (!balance_) {
        balance_ = std::make_unique<BalanceWndController>(main_.window());
        balance_->setDelegate(this);
    }
    return *balance_;
}

ID3EditWndController& EditWindows::id3EditWndController() {
    if (!tags_) {
        tags_ = std::make_unique<ID3EditWndController>(main_.window());
        tags_->setDelegate(this);
    }
    return *tags_;
}

SplitWndController& EditWindows::splitWndController() {
    if (!split_) {
        split_ = std::make_unique<SplitWndController>(main_.window());
        split_->setDelegate(this);
    }
    return *split_;
}

void EditWindows::removeRecording(const Dictionary& entry) {
    main_.library().removeMediaLibraryArray({entry});
}

void EditWindows::showFile(const QString& path) {
    (void)main_.library().selectFile(path);
}

void EditWindows::updateFile(const QString& path, const Dictionary& tags) {
    main_.library().updateFile(path, tags);
}

bool EditWindows::isFilePlaying(const QString& path) {
    return main_.library().isPlaySoundPlaying() &&
           QFileInfo(main_.library().playingPath()) == QFileInfo(path); // paths may differ for the same file
}
