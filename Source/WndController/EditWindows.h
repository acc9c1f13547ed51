// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/WndController/RecordingEditDelegate.h"

#include <QObject>

#include <memory>

class AudioTrimWndController;
class BalanceWndController;
class ID3EditWndController;
class MainWndController;
class RecordingJoin;
class SplitWndController;

/// Opens the trim, tag, split and balance windows for the main window's commands, joins recordings, and updates the
/// library with the results.
/// Main thread.
class EditWindows : public QObject, public RecordingEditDelegate {
    Q_OBJECT
public:
    /// @p main outlives it.
    explicit EditWindows(MainWndController& main, QObject* parent = nullptr);
    ~EditWindows() override;

    /// Opens the trim window with a file that need not be in the library; the library does not change. @return why it
    /// cannot be opened; empty on success, after the window is closed
    [[nodiscard]] QString openFile(const QString& path);

    /// Created when they are first opened.
    [[nodiscard]] AudioTrimWndController& audioTrimWndController();
    [[nodiscard]] BalanceWndController& balanceWndController();
    [[nodiscard]] ID3EditWndController& id3EditWndController();

    [[nodiscard]] SplitWndController& splitWndController();
    [[nodiscard]] RecordingJoin& recordingJoin() { return *join_; }

    void updateFile(const QString& path, const Dictionary& tags) override;
    void removeRecording(const Dictionary& entry) override;
    void showFile(const QString& path) override;
    bool isFilePlaying(const QString& path) override;

private:
    MainWndController& main_;
    std::unique_ptr<AudioTrimWndController> trim_;
    std::unique_ptr<BalanceWndController> balance_;
    std::unique_ptr<ID3EditWndController> tags_;
    std::unique_ptr<SplitWndController> split_;
    std::unique_ptr<RecordingJoin> join_;
};
