// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/StatusBars.h"

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>

class MainWndController;
enum class RecordState;

/// The program's item in the desktop's status bar: an image whose shape shows the state of the recording, state and
/// time as tool tip, and a menu with the three recording commands. Without a status bar nothing is shown until one
/// appears; when a bar restarts, it gets the item again. Main thread.
class StatusBarItem : public QObject {
    Q_OBJECT
public:
    /// Side of the image in points.
    static constexpr int kImageSize = 20;

    explicit StatusBarItem(MainWndController& mainWndController, QObject* parent = nullptr);

    [[nodiscard]] QMenu* systemBarMenu() { return &systemBarMenu_; }
    [[nodiscard]] QAction* startStopMenu() const { return startStopMenu_; }
    [[nodiscard]] QAction* pauseResumeMenu() const { return pauseResumeMenu_; }
    [[nodiscard]] QAction* startNewRecordMenu() const { return startNewRecordMenu_; }
    /// Null until the desktop has had a status bar.
    [[nodiscard]] const QSystemTrayIcon* icon() const { return icon_.get(); }

    /// Name of the image for a state.
    [[nodiscard]] static QString imageName(RecordState state);

private:
    void showIcon();
    void showImage();
    void showToolTip();
    QAction* add(const QString& title, const QString& action, void (MainWndController::*command)());
    /// Updates titles and enabled states. Call it at each change of the recording, because status bars keep copies of
    /// menus.
    void validate();

    MainWndController& mainWndController_;
    QMenu systemBarMenu_;
    QAction* startStopMenu_;
    QAction* pauseResumeMenu_;
    QAction* startNewRecordMenu_;
    std::unique_ptr<Platform::StatusBars> bars_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    QString image_; ///< name of the shown image
};
