// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Record/RecordPrograms.h"

#include <QIcon>
#include <QObject>

class QMenu;
class QToolButton;
class RecordStateController;

/// The menu beside "Computer audio": everything, only some programs, or everything but some. It lists the programs that
/// play now and those that played lately. It shows the recorder's choice and forwards the user's. Main thread.
class ProgramsMenu : public QObject {
    Q_OBJECT
public:
    /// The button is not owned; it gets the menu.
    ProgramsMenu(QToolButton& button, RecordStateController& record, QObject* parent = nullptr);

    /// The icon of a program from the desktop's icon theme, else a general one.
    [[nodiscard]] static QIcon iconOf(const RecordPrograms::Program& program);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void show();
    void showText();
    void fill();
    void fillList(QMenu& menu, RecordPrograms::Mode mode);
    void addProgram(QMenu& menu, RecordPrograms::Mode mode, const RecordPrograms::Program& program);
    void toggle(RecordPrograms::Mode mode, const RecordPrograms::Program& program);

    QToolButton& button_;
    RecordStateController& record_;
    QMenu* menu_; ///< child of the button, as its two lists are of it
    QMenu* only_;
    QMenu* allBut_;
};
