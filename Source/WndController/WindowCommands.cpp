// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WindowCommands.h"

#include "Source/Model/MediaLibraryNode.h"
#include "Source/Model/RecordingTracks.h"
#include "Source/WndController/LibraryPresenter.h"

void WindowCommands::setOpener(Window window, Opener opener) {
    openers_[static_cast<std::size_t>(window)] = std::move(opener);
}

bool WindowCommands::hasOpener(Window window) const {
    return static_cast<bool>(openers_[static_cast<std::size_t>(window)]);
}

bool WindowCommands::isEnabled(Window window) const {
    if (!hasOpener(window))
        return false;
    switch (window) {
    case Window::ID3Edit:
    case Window::AudioTrim:
        return library_.tableViewPlayEnable();
    case Window::RingtoneMaker:
    case Window::Split:
        return library_.tableViewCanEditSelectionAudioRecord();
    case Window::Join:
        return library_.canJoinSelection();
    case Window::Balance:
        return library_.tableViewPlayEnable() && RecordingTracks::isKeptFor(library_.tableViewSelectionAudio());
    case Window::CDBurn:
    case Window::Filter:
        return library_.canFilterAudio();
    }
    return false;
}

void WindowCommands::open(Window window, const QVariantList& entries) {
    if (const Opener& opener = openers_[static_cast<std::size_t>(window)])
        opener(entries);
}

QVariantList WindowCommands::nodeEntries() const {
    const MediaLibraryNode* node = library_.libraryViewSelectedNode();
    return node ? node->leafNode() : QVariantList();
}

void WindowCommands::openID3EditFace() {
    open(Window::ID3Edit, {library_.tableViewSelectionAudio()});
}

void WindowCommands::openAudioTrimFace() {
    library_.stopSoundPlaying();
    open(Window::AudioTrim, {library_.tableViewSelectionAudio()});
}

void WindowCommands::openCDBurnFace() {
    open(Window::CDBurn, nodeEntries());
}

void WindowCommands::openFilterWindow() {
    open(Window::Filter, nodeEntries());
}

void WindowCommands::openRingtoneMakerWindow() {
    library_.stopSoundPlaying();
    open(Window::RingtoneMaker, {library_.tableViewSelectionAudio()});
}

void WindowCommands::openSplitWindow() {
    library_.stopSoundPlaying();
    open(Window::Split, {library_.tableViewSelectionAudio()});
}

void WindowCommands::joinSelection() {
    open(Window::Join, library_.tableViewSelectionAudioArray());
}

void WindowCommands::openBalanceWindow() {
    library_.stopSoundPlaying();
    open(Window::Balance, {library_.tableViewSelectionAudio()});
}
