// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/WndController/WindowCommands.h"

#include <QAction>
#include <QObject>

#include <functional>

class AudioWaveViewController;
class LibraryPresenter;
class QMenu;
class QToolButton;
class RecordStateController;
namespace Ui {
class MainWnd;
}

/// The main window's commands as actions, and the places that offer them: the menu bar, the strip below the library,
/// the table's context menu. The window's controller connects the actions to what they do. Main thread.
class MainMenus : public QObject {
    Q_OBJECT
public:
    /// Name of an action's property with the command that it sends ("startAndStopRecord:").
    static constexpr const char* kActionProperty = "action";
    /// Sets the title of an action with that property where it follows the state. @return whether the action is enabled
    using Validate = std::function<bool(QAction& item)>;

    MainMenus(Ui::MainWnd& ui, RecordStateController& record, LibraryPresenter& library, WindowCommands& commands,
              AudioWaveViewController& display, Validate validate, QObject* parent = nullptr);

    /// Updates titles and enabled states of all actions from recording and selection. Shortcuts of disabled actions do
    /// nothing, so call this at each change instead of when a menu opens.
    void update();
    /// Shows only icons in the strip below the library when the texts do not fit into a window of this width.
    void fitStrip(int width);

    [[nodiscard]] QMenu* audioTableViewMenu() const { return audioTableViewMenu_; }
    [[nodiscard]] QAction* startStop() const { return startStop_; }
    [[nodiscard]] QAction* pauseResume() const { return pauseResume_; }
    [[nodiscard]] QAction* split() const { return split_; }
    [[nodiscard]] QAction* play() const { return play_; }
    [[nodiscard]] QAction* playSelected() const { return playSelected_; }
    [[nodiscard]] QAction* show() const { return show_; }
    [[nodiscard]] QAction* open() const { return open_; }
    [[nodiscard]] QAction* remove() const { return remove_; }
    [[nodiscard]] QAction* quit() const { return quit_; }
    [[nodiscard]] QAction* preferences() const { return preferences_; }
    [[nodiscard]] QAction* about() const { return about_; }
    [[nodiscard]] QAction* support() const { return support_; }
    [[nodiscard]] QAction* audioDevice() const { return audioDevice_; }
    [[nodiscard]] QAction* installDevice() const { return installDevice_; }
    [[nodiscard]] QAction* window(WindowCommands::Window window) const;

    void showAbout();

private:
    QAction* add(QMenu* menu, const QString& text, const QString& icon, const QString& toolTip,
                 const QList<QKeySequence>& keys = {});
    QAction* addWindow(QMenu* menu, WindowCommands::Window window, const QString& text, const QString& icon,
                       const QString& toolTip, const QList<QKeySequence>& keys);
    void makeRecordMenu();
    void makeEditMenu();
    void makeLibraryMenu();
    void makeViewMenu();
    void makeSortMenu(QMenu* menu);
    void makeHelpMenu();
    void makeContextMenu();
    void makeStrip();
    [[nodiscard]] QString whyNoBalance() const;
    void place(QToolButton* button, QAction* action, const QString& icon, const QString& words);

    Ui::MainWnd& ui_;
    RecordStateController& record_;
    LibraryPresenter& library_;
    WindowCommands& commands_;
    AudioWaveViewController& display_;
    Validate validate_;
    QMenu* audioTableViewMenu_ = nullptr;
    QAction* startStop_ = nullptr;
    QAction* pauseResume_ = nullptr;
    QAction* split_ = nullptr;
    QAction* recordInput_ = nullptr;
    QAction* installDevice_ = nullptr;
    QAction* recordComputer_ = nullptr;
    QAction* programs_ = nullptr; ///< opens the menu of the button beside "Computer audio"
    QAction* play_ = nullptr;
    QAction* playSelected_ = nullptr;
    QAction* show_ = nullptr;
    QAction* open_ = nullptr;
    QAction* remove_ = nullptr;
    QAction* quit_ = nullptr;
    QAction* preferences_ = nullptr;
    QAction* about_ = nullptr;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
    QAction* nextNotice_ = nullptr;
    QAction* noticeHelp_ = nullptr;
    QAction* dismissNotices_ = nullptr;
    QAction* support_ = nullptr;
    QAction* audioDevice_ = nullptr;
    std::array<QAction*, WindowCommands::kWindows> windows_{};
    QList<QPair<QAction*, QAction*>> contextItems_; ///< an item of the context menu and its action
};
