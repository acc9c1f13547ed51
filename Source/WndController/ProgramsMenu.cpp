// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/ProgramsMenu.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Foundation/Services.h"
#include "Source/Record/RecordStateController.h"
#include "Source/View/NamedImages.h"

#include <QAction>
#include <QEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

using Mode = RecordPrograms::Mode;

namespace {

/// Programs are watched from so long after the start on, so that the window does not open later.
constexpr int kWatchDelayMs = 2000;

/// An ampersand in a program's name is no mnemonic.
QString asText(QString name) {
    return name.replace(u'&', QStringLiteral("&&"));
}

} // namespace

ProgramsMenu::ProgramsMenu(QToolButton& button, RecordStateController& record, QObject* parent)
    : QObject(parent), button_(button), record_(record), menu_(new QMenu(&button)), only_(new QMenu(menu_)),
      allBut_(new QMenu(menu_)) {
    button_.setMenu(menu_);
    button_.setPopupMode(QToolButton::InstantPopup);
    button_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button_.setFocusPolicy(Qt::TabFocus);
    button_.installEventFilter(this);
    menu_->setAccessibleName(tr("Programs to record"));
    menu_->setTitle(tr("P&rograms to Record")); // in the menu bar
    connect(menu_, &QMenu::aboutToShow, this, [this] {
        record_.watchPrograms();
        fill();
    });
    connect(&record_, &RecordStateController::stateChanged, this, &ProgramsMenu::show);
    connect(&record_, &RecordStateController::devicesChanged, this, &ProgramsMenu::show);
    connect(&record_, &RecordStateController::programsChanged, this, [this] {
        // The first answer of the sound server may come when the menu is open already.
        if (menu_->isVisible() && !only_->isVisible() && !allBut_->isVisible())
            fill();
    });
    QTimer::singleShot(kWatchDelayMs, &record_, &RecordStateController::watchPrograms);
    fill();
    show();
}

bool ProgramsMenu::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &button_ && (event->type() == QEvent::Resize || event->type() == QEvent::FontChange))
        showText();
    return QObject::eventFilter(watched, event);
}

QIcon ProgramsMenu::iconOf(const RecordPrograms::Program& program) {
    for (const QString& name : {program.iconName, program.id, program.id.toLower(), program.name.toLower(),
                                QStringLiteral("applications-multimedia")})
        if (const QIcon icon = name.isEmpty() ? QIcon() : QIcon::fromTheme(name); !icon.isNull())
            return icon;
    return NamedImages::icon(QStringLiteral("audio-playing-icon"));
}

void ProgramsMenu::show() {
    const RecordPrograms& programs = record_.recordPrograms();
    const QString title = programs.title();
    const bool choosable = record_.sourcesEnabled();
    button_.setEnabled(choosable && record_.hasComputerAudioDevice());
    button_.setAccessibleName(tr("Programs to record: %1").arg(title));
    QStringList lines{tr("Of computer audio, this is recorded: %1").arg(title)};
    if (!choosable)
        lines << tr("The sources stay as they are until the recording ends.");
    else if (!record_.hasComputerAudioDevice())
        lines << tr("The computer-audio device is not installed.");
    button_.setToolTip(lines.join(u'\n'));
    button_.setIcon(programs.mode != Mode::Everything ? iconOf(programs.programs.constFirst()) : QIcon());
    showText();
}

/// The button is as wide as there is room; a long text is elided.
void ProgramsMenu::showText() {
    const QString title = record_.recordPrograms().title();
    const auto shows = [&](const QString& text) {
        if (text != button_.text())
            button_.setText(text);
        return button_.sizeHint().width() <= button_.width();
    };
    if (shows(asText(title)))
        return;
    const QFontMetrics metrics = button_.fontMetrics();
    const int beside = button_.sizeHint().width() - metrics.size(Qt::TextShowMnemonic, button_.text()).width();
    shows(asText(metrics.elidedText(title, Qt::ElideRight, std::max(button_.width() - beside, 0))));
}

void ProgramsMenu::fill() {
    menu_->clear();
    const Mode mode = record_.recordPrograms().mode;
    QAction* everything = menu_->addAction(tr("&Everything"), this, [this] {
        RecordPrograms choice = record_.recordPrograms();
        choice.mode = Mode::Everything;
        record_.chooseRecordPrograms(choice);
    });
    everything->setCheckable(true);
    everything->setChecked(mode == Mode::Everything);
    menu_->addSeparator();
    only_->setTitle(tr("&Only"));
    allBut_->setTitle(tr("Everything &but"));
    for (const auto& [list, itsMode] : {std::pair{only_, Mode::Only}, std::pair{allBut_, Mode::AllBut}}) {
        menu_->addMenu(list);
        list->menuAction()->setCheckable(true);
        list->menuAction()->setChecked(mode == itsMode);
        fillList(*list, itsMode);
    }
}

/// The programs that play now, then the chosen ones and those that played lately.
void ProgramsMenu::fillList(QMenu& menu, Mode mode) {
    menu.clear();
    const RecordPrograms& choice = record_.recordPrograms();
    auto* hardware = Platform::services().audioHardware;
    QStringList listed;
    if (hardware)
        for (const auto& program : hardware->playingPrograms()) {
            if (!program.isPlaying)
                continue;
            listed.append(program.id);
            addProgram(menu, mode, {.id = program.id, .name = program.name, .iconName = program.iconName});
        }
    bool separated = listed.isEmpty();
    for (const RecordPrograms::Program& program : choice.programs + choice.recent) {
        if (listed.contains(program.id))
            continue;
        if (!separated)
            menu.addSeparator();
        separated = true;
        listed.append(program.id);
        addProgram(menu, mode, program);
    }
    if (listed.isEmpty())
        menu.addAction(tr("No program has played yet"))->setEnabled(false);
}

void ProgramsMenu::addProgram(QMenu& menu, Mode mode, const RecordPrograms::Program& program) {
    QAction* action =
        menu.addAction(iconOf(program), asText(program.name), this, [this, mode, program] { toggle(mode, program); });
    action->setCheckable(true);
    action->setChecked(record_.recordPrograms().mode == mode && record_.recordPrograms().has(program.id));
    action->setIconVisibleInMenu(true);
}

/// A program is added to a list or removed from it; the first one of the other list begins a new list.
void ProgramsMenu::toggle(Mode mode, const RecordPrograms::Program& program) {
    RecordPrograms choice = record_.recordPrograms();
    if (choice.mode != mode)
        choice.programs.clear();
    choice.mode = mode;
    if (!choice.has(program.id))
        choice.programs.append(program);
    else
        choice.programs.removeIf([&](const RecordPrograms::Program& each) { return each.id == program.id; });
    if (choice.programs.isEmpty())
        choice.mode = Mode::Everything;
    record_.chooseRecordPrograms(choice);
}
