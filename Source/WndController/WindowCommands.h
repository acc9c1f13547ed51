// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <array>
#include <functional>

class LibraryPresenter;

/// Opens the windows that work on the library's selection. A feature hands in the function that shows its window; a
/// command without one is disabled wherever it is offered. Main thread.
class WindowCommands {
public:
    enum class Window { ID3Edit, AudioTrim, CDBurn, Filter, RingtoneMaker };
    static constexpr std::size_t kWindows = 5;
    /// Shows the window with the entries that it is to work on, and returns when it may be opened again: a modal one
    /// when it is closed.
    using Opener = std::function<void(const QVariantList& entries)>;

    explicit WindowCommands(LibraryPresenter& library) : library_(library) {}

    void setOpener(Window window, Opener opener);
    [[nodiscard]] bool hasOpener(Window window) const;
    /// Whether the selection of the moment allows the command, and its window is there.
    [[nodiscard]] bool isEnabled(Window window) const;

    /// The tag editor on a copy of the selected entry.
    void openID3EditFace();
    /// Playback stops; the trim window on a copy of the selected entry.
    void openAudioTrimFace();
    /// The burn window on all entries of the selected node.
    void openCDBurnFace();
    /// The short-recording filter on all entries of the selected node.
    void openFilterWindow();
    /// Playback stops; the ringtone maker on the selected entry.
    void openRingtoneMakerWindow();

private:
    void open(Window window, const QVariantList& entries);
    [[nodiscard]] QVariantList nodeEntries() const;

    LibraryPresenter& library_;
    std::array<Opener, kWindows> openers_;
};
