// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/MainMenus.h"

#include "CaptureComputerAudio/KextInstallControl.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/Record/RecordStateController.h"
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/ProgramsMenu.h"
#include "ui_MainWnd.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>
#include <array>

using Window = WindowCommands::Window;

namespace {
constexpr int kSkipSeconds = 10;
constexpr int kCompactBelow = 760; ///< a narrower window shows no texts in the strip
} // namespace

MainMenus::MainMenus(Ui::MainWnd& ui, RecordStateController& record, LibraryPresenter& library,
                     WindowCommands& commands, AudioWaveViewController& display, Validate validate, QObject* parent)
    : QObject(parent), ui_(ui), record_(record), library_(library), commands_(commands), display_(display),
      validate_(std::move(validate)) {
    makeRecordMenu();
    makeEditMenu();
    makeLibraryMenu();
    makeViewMenu();
    makeHelpMenu();
    makeContextMenu();
    makeStrip();
}

QAction* MainMenus::add(QMenu* menu, const QString& text, const QString& icon, const QString& toolTip,
                        const QList<QKeySequence>& keys) {
    auto* action = new QAction(text, this);
    if (!icon.isEmpty())
        action->setIcon(NamedImages::icon(icon));
    action->setToolTip(toolTip);
    action->setData(toolTip);
    action->setShortcuts(keys);
    // Some desktops move menu items by guessing from their words; these items must stay where they are.
    action->setMenuRole(QAction::NoRole);
    menu->addAction(action);
    return action;
}

QAction* MainMenus::addWindow(QMenu* menu, Window window, const QString& text, const QString& icon,
                              const QString& toolTip, const QList<QKeySequence>& keys) {
    QAction* action = add(menu, text, icon, toolTip, keys);
    windows_[static_cast<std::size_t>(window)] = action;
    return action;
}

QAction* MainMenus::window(Window window) const {
    return windows_[static_cast<std::size_t>(window)];
}

void MainMenus::makeRecordMenu() {
    QMenu* menu = ui_.mainMenu_->addMenu(tr("&Record"));
    menu->setToolTipsVisible(true);
    startStop_ =
        add(menu, QCoreApplication::translate("Record", "Start Record"), {}, {}, {QKeySequence(Qt::CTRL | Qt::Key_R)});
    pauseResume_ =
        add(menu, QCoreApplication::translate("Record", "Pause Record"), {}, {}, {QKeySequence(Qt::CTRL | Qt::Key_P)});
    split_ = add(menu, tr("&Cut to Another Recording"), {}, tr("Close this file and go on in a new one"),
                 {QKeySequence(Qt::CTRL | Qt::Key_N)});
    startStop_->setProperty(kActionProperty, QStringLiteral("startAndStopRecord:"));
    pauseResume_->setProperty(kActionProperty, QStringLiteral("pauseAndResumeRecord:"));
    split_->setProperty(kActionProperty, QStringLiteral("splitTheRecord:"));
    menu->addSeparator();
    recordInput_ = add(menu, tr("Record the &Input Device"), {}, {});
    recordInput_->setCheckable(true);
    connect(recordInput_, &QAction::triggered, ui_.btnBuiltInRecord_, &QAbstractButton::click);
    recordComputer_ = add(menu, tr("Record Computer &Audio"), {}, {});
    recordComputer_->setCheckable(true);
    connect(recordComputer_, &QAction::triggered, ui_.btnComputerAudioRecord_, &QAbstractButton::click);
    programs_ = ui_.btnRecordPrograms_->menu()->menuAction();
    menu->addAction(programs_);
    menu->addSeparator();
    quit_ = add(menu, tr("&Quit"), {}, {}, {QKeySequence(Qt::CTRL | Qt::Key_Q)});
    connect(menu, &QMenu::aboutToShow, this, &MainMenus::update);
}

void MainMenus::makeEditMenu() {
    QMenu* menu = ui_.mainMenu_->addMenu(tr("&Edit"));
    menu->setToolTipsVisible(true);
    addWindow(menu, Window::ID3Edit, tr("Edit &Tags…"), QStringLiteral("tags"),
              tr("Title, artist, album and cover of the recording"), {QKeySequence(Qt::Key_F2)});
    addWindow(menu, Window::AudioTrim, tr("T&rim…"), QStringLiteral("trim"), tr("Keep a part of the recording"),
              {QKeySequence(Qt::CTRL | Qt::Key_T)});
    addWindow(menu, Window::Split, tr("Sp&lit at Silences…"), {}, tr("Cut the recording into several at its silences"),
              {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T)});
    addWindow(menu, Window::Join, tr("&Join…"), {},
              tr("Make one recording of the selected ones, in the order of the list"),
              {QKeySequence(Qt::CTRL | Qt::Key_J)});
    addWindow(menu, Window::RingtoneMaker, tr("Make a &Ringtone…"), QStringLiteral("ringtone"),
              tr("Cut a ringtone out of the recording"), {QKeySequence(Qt::CTRL | Qt::Key_M)});
    addWindow(menu, Window::Balance, tr("&Balance…"), QStringLiteral("balance"),
              tr("Mix the input and computer audio of the recording anew"), {QKeySequence(Qt::CTRL | Qt::Key_L)});
    connect(window(Window::Balance), &QAction::triggered, this, [this] { commands_.openBalanceWindow(); });
    menu->addSeparator();
    remove_ = add(menu, tr("&Delete"), QStringLiteral("delete"), tr("Delete the selected recordings and their files"),
                  {QKeySequence(Qt::Key_Delete)});
    // Other widgets also use Delete: it acts on the library only while that has the focus.
    remove_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    ui_.audioTableView_->addAction(remove_);
    QAction* search = add(menu, tr("&Search…"), QStringLiteral("search"), tr("Search titles, artists and albums"),
                          {QKeySequence(Qt::CTRL | Qt::Key_F)});
    connect(search, &QAction::triggered, ui_.searchField_, &SearchField::begin);
    QAction* all = add(menu, tr("Select &All"), {}, {}, {QKeySequence::SelectAll});
    all->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    ui_.libraryView_->addAction(all);
    connect(all, &QAction::triggered, ui_.audioTableView_, &QTableView::selectAll);
    menu->addSeparator();
    preferences_ =
        add(menu, tr("&Preferences…"), QStringLiteral("preferences"), {}, {QKeySequence(Qt::CTRL | Qt::Key_Comma)});
}

void MainMenus::makeLibraryMenu() {
    QMenu* menu = ui_.mainMenu_->addMenu(tr("&Library"));
    menu->setToolTipsVisible(true);
    play_ = add(menu, tr("&Play"), QStringLiteral("play"), tr("Play or pause"), {QKeySequence(Qt::Key_Space)});
    playSelected_ = add(menu, tr("Play the &Selected Recording"), {}, tr("Play from its beginning"),
                        {QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    playSelected_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    ui_.audioTableView_->addAction(playSelected_);
    // Space is only displayed here: WindowKeys handles it, also while nothing can be played.
    play_->setShortcutContext(Qt::WidgetShortcut);
    back_ = add(menu, tr("Back %1 Seconds").arg(kSkipSeconds), {}, {}, {QKeySequence(Qt::CTRL | Qt::Key_Left)});
    forward_ = add(menu, tr("Forward %1 Seconds").arg(kSkipSeconds), {}, {}, {QKeySequence(Qt::CTRL | Qt::Key_Right)});
    for (QAction* skip : {back_, forward_}) {
        const double seconds = skip == back_ ? -kSkipSeconds : kSkipSeconds;
        connect(skip, &QAction::triggered, &display_,
                [this, seconds] { display_.setAudioPosition(static_cast<float>(display_.currentTime() + seconds)); });
    }
    menu->addSeparator();
    show_ = add(menu, tr("S&how in Folder"), QStringLiteral("show"), tr("Show the file in the file manager"),
                {QKeySequence(Qt::CTRL | Qt::Key_E)});
    open_ = add(menu, tr("&Open in Player"), QStringLiteral("open"), tr("Open the file in your music player"),
                {QKeySequence(Qt::CTRL | Qt::Key_O)});
    menu->addSeparator();
    addWindow(menu, Window::CDBurn, tr("&Burn to Disc…"), QStringLiteral("burn"), tr("Make an audio CD of this list"),
              {QKeySequence(Qt::CTRL | Qt::Key_B)});
    addWindow(menu, Window::Filter, tr("&Find Short Recordings…"), QStringLiteral("filter"),
              tr("Find recordings that are too short to keep"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)});
}

void MainMenus::makeViewMenu() {
    QMenu* menu = ui_.mainMenu_->addMenu(tr("&View"));
    QAction* change =
        add(menu, tr("&Switch the Display"), QStringLiteral("switch-display"),
            tr("Level of the recording, or position of the playback"), {QKeySequence(Qt::CTRL | Qt::Key_D)});
    connect(change, &QAction::triggered, &display_, &AudioWaveViewController::changeTabView);
    makeSortMenu(menu->addMenu(tr("S&ort By")));
    menu->addSeparator();
    menu->setToolTipsVisible(true);
    nextNotice_ = add(menu, tr("Show the Next &Notice"), {}, tr("Several notices stand in the display"),
                      {QKeySequence(Qt::Key_F8)});
    noticeHelp_ = add(menu, {}, {}, {}, {QKeySequence(Qt::SHIFT | Qt::Key_F8)});
    dismissNotices_ = add(menu, tr("&Dismiss All Notices"), {}, {});
    connect(nextNotice_, &QAction::triggered, &display_, &AudioWaveViewController::showNextNotice);
    connect(noticeHelp_, &QAction::triggered, &display_, &AudioWaveViewController::askForHelp);
    connect(dismissNotices_, &QAction::triggered, &record_, &RecordStateController::dismissNotices);
    connect(&display_, &AudioWaveViewController::shownNoticeChanged, this, &MainMenus::update);
    connect(menu, &QMenu::aboutToShow, this, &MainMenus::update);
}

void MainMenus::makeSortMenu(QMenu* menu) {
    // What a click on a column heading does; a second choice of the same column reverses the order.
    QTableView* table = ui_.audioTableView_;
    for (int column = AudioTableModel::Title; column < AudioTableModel::ColumnCount; ++column) {
        if (column == AudioTableModel::Path)
            continue;
        QAction* item = menu->addAction(table->model()->headerData(column, Qt::Horizontal).toString());
        connect(item, &QAction::triggered, table, [table, column] {
            const QHeaderView& header = *table->horizontalHeader();
            const bool again =
                header.sortIndicatorSection() == column && header.sortIndicatorOrder() == Qt::AscendingOrder;
            table->sortByColumn(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
        });
    }
    menu->addSeparator();
    connect(menu->addAction(tr("&Unsorted")), &QAction::triggered, table,
            [table] { table->sortByColumn(-1, Qt::AscendingOrder); });
}

void MainMenus::makeHelpMenu() {
    QMenu* menu = ui_.mainMenu_->addMenu(tr("&Help"));
    menu->setToolTipsVisible(true);
    support_ = add(menu, tr("&Support Page"), {}, {}, {QKeySequence(Qt::Key_F1)});
    audioDevice_ = add(menu, tr("Computer-Audio &Add-on Page"), {}, {});
    installDevice_ = add(menu, tr("&Install the Computer-Audio Device…"), {}, {});
    connect(menu, &QMenu::aboutToShow, this, &MainMenus::update);
    menu->addSeparator();
    about_ = add(menu, tr("A&bout Sonaphex"), {}, {});
    connect(about_, &QAction::triggered, this, &MainMenus::showAbout);
}

void MainMenus::makeContextMenu() {
    audioTableViewMenu_ = new QMenu(ui_.audioTableView_);
    audioTableViewMenu_->setObjectName(QStringLiteral("audioTableViewMenu_"));
    audioTableViewMenu_->setToolTipsVisible(true);
    // Separate items: this menu hides its items when nothing is selected, the menu bar does not.
    const auto item = [this](QAction* original) {
        QAction* copy = audioTableViewMenu_->addAction(original->icon(), original->text());
        connect(copy, &QAction::triggered, original, &QAction::trigger);
        contextItems_.emplaceBack(copy, original);
    };
    item(playSelected_);
    audioTableViewMenu_->addSeparator();
    for (const Window each :
         {Window::ID3Edit, Window::AudioTrim, Window::Split, Window::Join, Window::RingtoneMaker, Window::Balance})
        item(window(each));
    audioTableViewMenu_->addSeparator();
    item(show_);
    item(open_);
    audioTableViewMenu_->addSeparator();
    item(remove_);
}

void MainMenus::makeStrip() {
    place(ui_.btnTrim_, window(Window::AudioTrim), QStringLiteral("trim"), tr("Trim"));
    place(ui_.btnRingtone_, window(Window::RingtoneMaker), QStringLiteral("ringtone"), tr("Ringtone"));
    place(ui_.btnEditTags_, window(Window::ID3Edit), QStringLiteral("tags"), tr("Edit Tags"));
    place(ui_.btnBurn_, window(Window::CDBurn), QStringLiteral("burn"), tr("Burn"));
    place(ui_.btnFilter_, window(Window::Filter), QStringLiteral("filter"), tr("Filter"));
    place(ui_.btnShow_, show_, QStringLiteral("show"), tr("Show"));
    place(ui_.btnOpen_, open_, QStringLiteral("open"), tr("Open in player"));
    place(ui_.btnDelete_, remove_, QStringLiteral("delete"), tr("Delete"));
}

void MainMenus::place(QToolButton* button, QAction* action, const QString& icon, const QString& words) {
    constexpr QSize size(16, 16);
    button->setIcon(
        NamedImages::icon(icon, [](QIcon::Mode mode) { return Theme::Strip::text(mode != QIcon::Disabled); }));
    button->setIconSize(size);
    button->setText(words);
    button->setAccessibleName(words);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    // Not as the button's default action: that would show the menu's icon and text.
    const auto follow = [button, action, words] {
        button->setEnabled(action->isEnabled());
        button->setToolTip(action->toolTip().isEmpty() ? words : action->toolTip());
    };
    follow();
    connect(action, &QAction::changed, button, follow);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
}

void MainMenus::fitStrip(int width) {
    const std::array buttons{ui_.btnTrim_,   ui_.btnRingtone_, ui_.btnEditTags_, ui_.btnBurn_,
                             ui_.btnFilter_, ui_.btnShow_,     ui_.btnOpen_,     ui_.btnDelete_};
    QBoxLayout& strip = *ui_.additionalLayout;
    const auto fits = [&](Qt::ToolButtonStyle style, int spacing) {
        strip.setSpacing(spacing);
        const QMargins margins = strip.contentsMargins();
        int needed =
            margins.left() + margins.right() + ui_.stripSpacer->sizeHint().width() + spacing * int(buttons.size());
        for (QToolButton* button : buttons) {
            button->setToolButtonStyle(style);
            needed += button->sizeHint().width();
        }
        return needed <= width;
    };
    constexpr int wide = 8;
    constexpr int narrow = 2; // some languages need more room than English
    if (width < kCompactBelow ||
        (!fits(Qt::ToolButtonTextBesideIcon, wide) && !fits(Qt::ToolButtonTextBesideIcon, narrow)))
        (void)fits(Qt::ToolButtonIconOnly, wide);
}

void MainMenus::update() {
    // The tool tip of a disabled command also says why it is disabled.
    const auto say = [](QAction* action, const QString& why) {
        QStringList lines{action->data().toString()};
        if (!action->isEnabled())
            lines << why;
        lines.removeAll(QString());
        action->setToolTip(lines.isEmpty() ? QAction(action->text()).toolTip() : lines.join(u'\n'));
    };
    for (QAction* action : {startStop_, pauseResume_, split_}) {
        action->setEnabled(validate_(*action));
        say(action, action == startStop_ ? tr("Choose the input, computer audio, or both first.")
                                         : tr("Nothing is being recorded."));
    }
    recordInput_->setChecked(record_.builtInChecked());
    recordInput_->setEnabled(record_.sourcesEnabled());
    recordComputer_->setChecked(record_.computerAudioChecked());
    const bool installed = KextInstallControl::isExist();
    installDevice_->setEnabled(!installed && !record_.isStateAudioRecord());
    say(installDevice_,
        installed ? tr("It is installed already.") : tr("The device stays as it is until the recording ends."));
    recordComputer_->setEnabled(record_.sourcesEnabled());
    programs_->setEnabled(record_.sourcesEnabled() && record_.hasComputerAudioDevice());
    say(programs_, record_.hasComputerAudioDevice() ? tr("The sources stay as they are until the recording ends.")
                                                    : ProgramsMenu::tr("The computer-audio device is not installed."));
    for (QAction* action : {recordInput_, recordComputer_})
        say(action, tr("The sources stay as they are until the recording ends."));

    const bool playing = library_.isPlaySoundPlaying();
    play_->setText(playing ? tr("&Pause") : tr("&Play"));
    play_->setIcon(NamedImages::icon(playing ? QStringLiteral("pause") : QStringLiteral("play")));
    play_->setEnabled(library_.isPlaySoundButtonEnable());
    const bool hasPosition = display_.duration() > 0 && library_.isPlaySoundButtonEnable();
    for (QAction* skip : {back_, forward_}) {
        skip->setEnabled(hasPosition);
        say(skip, tr("Nothing is playing."));
    }
    const auto notices = display_.notices().size();
    const QString help = display_.noticeHelp();
    nextNotice_->setEnabled(notices > 1);
    noticeHelp_->setText(help.isEmpty() ? tr("&Answer the Notice") : tr("&Answer the Notice: %1").arg(help));
    noticeHelp_->setEnabled(!help.isEmpty());
    dismissNotices_->setEnabled(notices > 0);
    say(nextNotice_, tr("There is no other notice."));
    say(noticeHelp_, notices > 0 ? tr("This notice offers nothing.") : tr("There is no notice."));
    say(dismissNotices_, tr("There is no notice."));
    playSelected_->setEnabled(library_.tableViewPlayEnable());
    show_->setEnabled(library_.tableViewShowEnable());
    open_->setEnabled(library_.tableViewShowEnable());
    remove_->setEnabled(library_.tableViewDeleteEnable());
    const QString selectFirst = tr("Select a recording first.");
    for (QAction* action : {play_, playSelected_})
        say(action, tr("Select a recording first. Nothing is played while recording."));
    for (QAction* action : {show_, open_, remove_})
        say(action, selectFirst);
    for (std::size_t i = 0; i < windows_.size(); ++i) {
        const auto which = static_cast<Window>(i);
        windows_[i]->setEnabled(commands_.isEnabled(which));
        const bool wholeList = which == Window::CDBurn || which == Window::Filter;
        say(windows_[i], !commands_.hasOpener(which) ? tr("Arrives in a later version of Sonaphex.")
                         : wholeList                 ? tr("There is nothing in this list.")
                         : which == Window::Join     ? tr("Select two recordings or more first.")
                         : which == Window::Balance  ? whyNoBalance()
                                                     : selectFirst);
    }
    for (const auto& [copy, original] : contextItems_) {
        copy->setText(original->text());
        copy->setToolTip(original->toolTip());
        copy->setEnabled(original->isEnabled());
    }
}

QString MainMenus::whyNoBalance() const {
    return library_.tableViewPlayEnable()
               ? tr("This recording has no tracks. The preferences have a box that keeps those of the next ones.")
               : tr("Select a recording first.");
}

void MainMenus::showAbout() {
    QMessageBox box(ui_.contentView_->window());
    box.setWindowTitle(tr("About Sonaphex"));
    box.setIconPixmap(
        NamedImages::pixmap(QStringLiteral("com.korvane.Sonaphex"), {64, 64}, ui_.contentView_->devicePixelRatioF()));
    box.setText(tr("Sonaphex %1").arg(QStringLiteral(SONAPHEX_VERSION)));
    box.setInformativeText(tr("Records what the computer plays, what a microphone hears, or both.\n\n"
                              "© 2026 The Sonaphex authors. Free software under the GNU General Public License, "
                              "version 3 or later."));
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}
