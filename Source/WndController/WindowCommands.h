// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantList>

#include <array>
#include <functional>

class LibraryPresenter;

/// Opens the windows that work on the library's selection. A feature supplies the function that shows its window; a
/// command without one is disabled everywhere. Main thread.
class WindowCommands {
public:
    enum class Window { ID3Edit, AudioTrim, CDBurn, Filter, RingtoneMaker, Split, Join, Balance };
    static constexpr std::size_t kWindows = 8;
    /// Shows the window with the given entries, and returns when it may be opened again; for a modal window, when it is
    /// closed.
    using Opener = std::function<void(const QVariantList& entries)>;

    explicit WindowCommands(LibraryPresenter& library) : library_(library) {}

    void setOpener(Window window, Opener opener);
    [[nodiscard]] bool hasOpener(Window window) const;
    /// Whether the current selection allows the command, and its window is supplied.
    [[nodiscard]] bool isEnabled(Window window) const;

    /// Opens the tag editor with a copy of the selected entry.
    void openID3EditFace();
    /// Stops playback and opens the trim window with a copy of the selected entry.
    void openAudioTrimFace();
    /// Opens the burn window with all entries of the selected node.
    void openCDBurnFace();
    /// Opens the short-recording filter with all entries of the selected node.
    void openFilterWindow();
    /// Stops playback and opens the ringtone maker with the selected entry.
    void openRingtoneMakerWindow();
    /// Stops playback and opens the balance window with a copy of the selected entry.
    void openBalanceWindow();

    /// Stops playback and opens the split window with the selected entry.
    void openSplitWindow();
    /// Joins the selected recordings in the order of the list.
    void joinSelection();

private:
    void open(Window window, const QVariantList& entries);
    [[nodiscard]] QVariantList nodeEntries() const;

    LibraryPresenter& library_;
    std::array<Opener, kWindows> openers_;
};
