// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/MainWndController.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/Activation.h"
#include "Platform/Foundation/Services.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Preferences/Settings.h"
#include "Source/View/Announcement.h"
#include "Source/View/MediaLibraryNodeSizeFieldCell.h"
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/LibraryRowDelegates.h"
#include "Source/WndController/LibrarySearch.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/RecordPanel.h"
#include "Source/WndController/WindowKeys.h"
#include "Source/WndController/WindowLayout.h"
#include "ui_MainWnd.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QWindow>

MainWndController::MainWndController(RecordStateController& record, MediaLibrary& library, QObject* parent)
    : QObject(parent), record_(record), window_(std::make_unique<QMainWindow>()), ui_(std::make_unique<Ui::MainWnd>()),
      filter_(std::make_unique<AudioFilterController>()) {
    ui_->setupUi(window_.get());
    window_->setWindowIcon(NamedImages::icon(QStringLiteral("com.korvane.Sonaphex")));
    window_->installEventFilter(this);

    auto* host = new QVBoxLayout(ui_->audioWaveBackgroundView_);
    host->setContentsMargins(0, 0, 0, 0);
    display_ = std::make_unique<AudioWaveViewController>(ui_->audioWaveBackgroundView_);
    host->addWidget(display_->view());
    QWidget* before = ui_->btnPlayAudio_;
    for (QWidget* control : display_->controls()) {
        QWidget::setTabOrder(before, control);
        before = control;
    }

    setUpViews();
    library_ = std::make_unique<LibraryPresenter>(library, *ui_->outlineLibraryView_, *ui_->audioTableView_, *display_,
                                                  *filter_, [this] { return record_.isStateAudioRecord(); });
    commands_ = std::make_unique<WindowCommands>(*library_);
    panel_ = std::make_unique<RecordPanel>(*ui_, record_, *display_);
    menus_ = std::make_unique<MainMenus>(*ui_, record_, *library_, *commands_, *display_,
                                         [this](QAction& item) { return validateMenuItem(item); });
    layout_ = std::make_unique<WindowLayout>(*window_, *ui_->librarySplitter_, *ui_->audioTableView_);
    keys_ = std::make_unique<WindowKeys>(*window_, *menus_->play());
    bindMenus();
    bindLibrary();

    display_->setDelegate(this);
    record_.setDelegate(this);
    library_->updateDefaultListStyle();
    menus_->update();
}

MainWndController::~MainWndController() {
    record_.setDelegate(nullptr);
    display_->setDelegate(nullptr);
    window_->removeEventFilter(this);
    layout_->save();
}

void MainWndController::setUpViews() {
    QTreeView* outline = ui_->outlineLibraryView_;
    outline->setItemDelegateForColumn(LibraryOutlineModel::Name, new OutlineRowDelegate(outline));
    outline->setItemDelegateForColumn(LibraryOutlineModel::Count, new MediaLibraryNodeSizeFieldCell(outline));
    outline->setIconSize({LibraryOutlineModel::kIconSize, LibraryOutlineModel::kIconSize});
    outline->setRootIsDecorated(false);
    outline->setItemsExpandable(true);
    outline->setExpandsOnDoubleClick(false);
    outline->setIndentation(2 * OutlineRowDelegate::kInset);
    outline->setEditTriggers(QAbstractItemView::NoEditTriggers);
    outline->setTextElideMode(Qt::ElideMiddle);
    outline->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    if (window_->isRightToLeft()) { // layouts do not mirror their margins
        const QMargins margins = ui_->statusLayout->contentsMargins();
        ui_->statusLayout->setContentsMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
    }

    // Makes the pane's own background visible.
    outline->viewport()->setAutoFillBackground(false);

    MediaNodeListTableView* table = ui_->audioTableView_;
    table->setMenuDelegate(this);
    table->setSearchColumn(AudioTableModel::Title);
    table->setItemDelegate(new AudioRowDelegate(table));
    table->setSortingEnabled(false); // enabled once the columns exist, because it sorts at once
}

void MainWndController::bindLibrary() {
    QHeaderView* columns = ui_->outlineLibraryView_->header();
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(LibraryOutlineModel::Name, QHeaderView::Stretch);
    columns->setSectionResizeMode(LibraryOutlineModel::Count, QHeaderView::Fixed);
    columns->setMinimumSectionSize(24);
    columns->resizeSection(LibraryOutlineModel::Count, Theme::enlarged(48));

    MediaNodeListTableView* table = ui_->audioTableView_;
    table->verticalHeader()->setDefaultSectionSize(AudioRowDelegate::rowHeight(*table));
    table->setColumnHidden(AudioTableModel::Path, true);
    table->horizontalHeader()->setSectionResizeMode(AudioTableModel::State, QHeaderView::Fixed);
    table->horizontalHeader()->setSortIndicatorClearable(true);
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    menus_->fitStrip(0); // the smallest window shows icons only
    layout_->restore();

    LibraryPresenter* library = library_.get();
    const auto update = [this] { menus_->update(); };
    connect(library, &LibraryPresenter::tableViewPlayEnableChanged, menus_.get(), update);
    connect(library, &LibraryPresenter::tableViewSelectionAudioChanged, menus_.get(), update);
    connect(library, &LibraryPresenter::canFilterAudioChanged, menus_.get(), update);
    connect(library, &LibraryPresenter::canFilterAudioChanged, this, &MainWndController::showEmptyText);
    connect(library, &LibraryPresenter::tableViewSelectionAudioChanged, this, &MainWndController::showSelection);
    connect(library, &LibraryPresenter::problem, this, &MainWndController::showStatus);
    connect(ui_->searchField_, &QLineEdit::textChanged, this, [this](const QString& text) {
        library_->search().setText(text);
        showEmptyText();
    });
    connect(ui_->searchField_, &SearchField::left, this, &MainWndController::leaveSearch);
    connect(library, &LibraryPresenter::searchEnded, ui_->searchField_, &QLineEdit::clear);
    // Called ten times a second while the display runs: only changed values are set.
    connect(library, &LibraryPresenter::isPlaySoundPlayingChanged, this, [this] {
        const bool playing = library_->isPlaySoundPlaying();
        const bool enabled = library_->isPlaySoundButtonEnable();
        const QString image = playing ? QStringLiteral("Pause.png") : QStringLiteral("Play.png");
        if (ui_->btnPlayAudio_->image() == image && ui_->btnPlayAudio_->isEnabled() == enabled)
            return;
        ui_->btnPlayAudio_->setImage(image);
        ui_->btnPlayAudio_->setToolTip(playing ? tr("Pause") : tr("Play"));
        ui_->btnPlayAudio_->setEnabled(enabled);
        menus_->update();
        if (playing) { // removes the message about an earlier problem
            shownSelection_.reset();
            showSelection();
        }
    });
    connect(ui_->btnPlayAudio_, &QAbstractButton::clicked, this, &MainWndController::playSoundButtonAction);
    connect(&record_, &RecordStateController::stateChanged, menus_.get(), update);
    connect(&record_, &RecordStateController::noticesChanged, menus_.get(), update);
    connect(&record_, &RecordStateController::stateChanged, this, &MainWndController::showEmptyText);
    connect(&record_, &RecordStateController::stateChanged, this, &MainWndController::chooseInstalledDevice);
    if (auto* hardware = Platform::services().audioHardware)
        connect(hardware, &Platform::AudioHardware::devicesChanged, this, &MainWndController::chooseInstalledDevice,
                Qt::QueuedConnection); // after the recording side has handled the signal
    connect(&record_, &RecordStateController::recordingFinished, this, &MainWndController::recordingFinished);
    showEmptyText();
    showSelection();
    ui_->audioTableView_->setFocus();
}

void MainWndController::bindWindows() {
    commands_->setOpener(WindowCommands::Window::RingtoneMaker, [this](const QVariantList& entries) {
        const Dictionary entry = entries.value(0).toMap();
        auto& maker = RingtoneMakerViewController::shareController();
        maker.setDelegate(this);
        maker.openFile(Platform::stringForm(entry.value(AudioRecordEntry::SavePath)), entry);
        maker.showWindow(window_.get());
        maker.setDelegate(nullptr);
    });
    filter_->setDelegate(this);
    commands_->setOpener(WindowCommands::Window::Filter, [this](const QVariantList& entries) {
        filter_->setAudioArray(entries);
        filter_->showWindow(window_.get());
    });
    menus_->update();
}

void MainWndController::removeMediaLibraryArray(const QVariantList& entries) {
    library_->removeMediaLibraryArray(entries);
}

QString MainWndController::nextRingtoneMakerFilePath() {
    return record_.nextRingtoneMakerFilePath();
}

void MainWndController::addRingtoneFile(const QString& path, const Dictionary& tags) {
    library_->addRingtoneFile(path, tags);
}

bool MainWndController::isWindowVisible() const {
    return window_->isVisible();
}

void MainWndController::showWindow() {
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    if (QWindow* handle = window_->windowHandle())
        Platform::Activation::bringToFront(*handle);
}

void MainWndController::makeKeyAndOrderFront() {
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void MainWndController::center() {
    if (const QScreen* screen = window_->screen()) {
        QRect frame = window_->frameGeometry();
        frame.moveCenter(screen->availableGeometry().center());
        window_->move(frame.topLeft());
    }
}

void MainWndController::closeWindow() {
    (void)record_.windowShouldClose();
}

bool MainWndController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_.get()) {
        if (event->type() == QEvent::Close) {
            // The window is never closed: either the whole program ends, or the recording continues.
            event->ignore();
            closeWindow();
            return true;
        }
        if (event->type() == QEvent::Resize)
            menus_->fitStrip(window_->width());
    }
    return QObject::eventFilter(watched, event);
}

QString MainWndController::startStopMenuString() const {
    return record_.isStateAudioRecord() ? QCoreApplication::translate("Record", "Stop Record")
                                        : QCoreApplication::translate("Record", "Start Record");
}

QString MainWndController::pauseResumeMenuString() const {
    return record_.isStateAudioRecord() && record_.isRecordPause_()
               ? QCoreApplication::translate("Record", "Resume Record")
               : QCoreApplication::translate("Record", "Pause Record");
}

void MainWndController::bindMenus() {
    using Self = MainWndController;
    using Window = WindowCommands::Window;
    const auto bind = [this](QAction* action, void (Self::*does)()) {
        connect(action, &QAction::triggered, this, does);
    };
    bind(menus_->startStop(), &Self::startAndStopRecord);
    bind(menus_->pauseResume(), &Self::pauseAndResumeRecord);
    bind(menus_->split(), &Self::splitTheRecord);
    bind(menus_->quit(), &Self::closeWindow);
    bind(menus_->window(Window::ID3Edit), &Self::openID3EditFace);
    bind(menus_->window(Window::AudioTrim), &Self::openAudioTrimFace);
    bind(menus_->window(Window::RingtoneMaker), &Self::openRingtoneMakerWindow);
    connect(menus_->window(Window::Split), &QAction::triggered, this, [this] { commands_->openSplitWindow(); });
    connect(menus_->window(Window::Join), &QAction::triggered, this, [this] { commands_->joinSelection(); });
    bind(menus_->window(Window::CDBurn), &Self::openCDBurnFace);
    bind(menus_->window(Window::Filter), &Self::openFilterWindow);
    bind(menus_->remove(), &Self::deleteAudioFile);
    bind(menus_->preferences(), &Self::perference);
    bind(menus_->play(), &Self::playSoundButtonAction);
    bind(menus_->playSelected(), &Self::tableViewDoubleAction);
    bind(menus_->show(), &Self::revealInFinder);
    bind(menus_->open(), &Self::openIniTunes);
    bind(menus_->support(), &Self::support);
    bind(menus_->audioDevice(), &Self::audioDevice);
    bind(menus_->installDevice(), &Self::requestSystemAudioRecordDevice);
    QMenu* table = menus_->audioTableViewMenu();
    connect(table, &QMenu::aboutToShow, this, [this, table] { menuWillOpen(*table); });
}

bool MainWndController::validateMenuItem(QAction& item) const {
    const QString action = item.property(MainMenus::kActionProperty).toString();
    if (action == QStringLiteral("splitTheRecord:"))
        return record_.splitEnabled();
    if (action == QStringLiteral("startAndStopRecord:")) {
        item.setText(startStopMenuString());
        return record_.isStateAudioCanStartRecord();
    }
    if (action == QStringLiteral("pauseAndResumeRecord:")) {
        item.setText(pauseResumeMenuString());
        return record_.isStateAudioRecord();
    }
    return true;
}

bool MainWndController::tableMenuHidden() const {
    return library_->tableViewSelectionAudio().isEmpty();
}

void MainWndController::menuWillOpen(QMenu& menu) {
    if (&menu != menus_->audioTableViewMenu())
        return;
    menus_->update();
    const bool hidden = tableMenuHidden();
    for (QAction* item : menu.actions())
        item->setVisible(!hidden);
}

QMenu* MainWndController::menuForEvent(QContextMenuEvent& /*event*/) {
    return menus_->audioTableViewMenu();
}

void MainWndController::startAndStopRecord() {
    record_.startAndStopRecord();
}

void MainWndController::pauseAndResumeRecord() {
    record_.pauseAndResumeRecord();
}

void MainWndController::splitTheRecord() {
    record_.splitTheRecord();
}

bool MainWndController::isStateAudioCanStartRecord() const {
    return record_.isStateAudioCanStartRecord();
}

bool MainWndController::isStateAudioRecord() const {
    return record_.isStateAudioRecord();
}

void MainWndController::playSoundButtonAction() {
    library_->playSoundButtonAction();
}

void MainWndController::tableViewDoubleAction() {
    library_->tableViewDoubleAction();
}

void MainWndController::deleteAudioFile() {
    library_->deleteAudioFile();
}

void MainWndController::revealInFinder() {
    library_->revealInFinder();
}

void MainWndController::openIniTunes() {
    library_->openIniTunes();
}

void MainWndController::openID3EditFace() {
    commands_->openID3EditFace();
}

void MainWndController::openAudioTrimFace() {
    commands_->openAudioTrimFace();
}

void MainWndController::openCDBurnFace() {
    commands_->openCDBurnFace();
}

void MainWndController::openFilterWindow() {
    commands_->openFilterWindow();
}

void MainWndController::openRingtoneMakerWindow() {
    commands_->openRingtoneMakerWindow();
}

void MainWndController::stopSoundPlaying() {
    library_->stopSoundPlaying();
}

void MainWndController::setTabViewShowWave(bool show) {
    display_->setTabViewShowWave(show);
}

void MainWndController::updateRecordStateAction() {
    library_->updateRecordStateAction();
    selectionAtStop_ = selection();
}

void MainWndController::addRecordFile(const QString& path, const Dictionary& tags) {
    library_->addRecordFile(path, tags);
}

void MainWndController::insertTheSystemAudioRecordDevice() {
    Q_EMIT requestSystemAudioRecordDevice();
}

void MainWndController::terminate() {
    layout_->save();
    Q_EMIT terminateRequested();
}

void MainWndController::systemAudioRecordDeviceInstalled() {
    showStatus(tr("The computer-audio device is installed."));
    awaitsDevice_ = true;
    chooseInstalledDevice();
}

void MainWndController::chooseInstalledDevice() {
    // Without the device this choice would offer its installation again.
    if (!awaitsDevice_ || !record_.hasComputerAudioDevice() || record_.isStateAudioRecord())
        return;
    awaitsDevice_ = false;
    record_.chooseRecordComputerAudio(true);
    showStatus(tr("The computer-audio device is installed. What the computer plays is recorded from now on."));
}

float MainWndController::getAudioWaveLevelValue() {
    return record_.getAudioWaveLevelValue();
}

bool MainWndController::takeClipping() {
    return record_.takeClipping();
}

void MainWndController::updateAudioWaveRecordState() {
    if (display_->isRecording() != record_.isStateAudioRecord())
        display_->setIsRecording(record_.isStateAudioRecord());
}

void MainWndController::updatePlaySoundButton() {
    library_->updatePlaySoundButton();
}

void MainWndController::recordingFinished(const QString& path, const Dictionary& entry) {
    if (entry.isEmpty()) {
        const QString seconds = Platform::stringForm(Settings::value(Settings::filterTime));
        showStatus(tr("“%1” was not added: it is shorter than %2 s.").arg(QFileInfo(path).completeBaseName(), seconds));
        return;
    }
    // The user's own selection stays while the next recording runs, and when it was made after the stop: mixing two
    // sources takes minutes, and the user may be about to press Delete.
    if (record_.isStateAudioRecord() || selectionAtStop_.value_or(selection()) != selection()) {
        showStatus(path);
    } else if (library_->selectFile(path)) {
        showSelection();
        selectionAtStop_ = selection();
        offerTitle();
    }
}

void MainWndController::leaveSearch(bool toFirst) {
    MediaNodeListTableView* table = ui_->audioTableView_;
    table->setFocus(Qt::OtherFocusReason);
    if (toFirst && table->model()->rowCount() > 0)
        table->selectionModel()->setCurrentIndex(table->model()->index(0, AudioTableModel::Title),
                                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void MainWndController::offerTitle() {
    // Only when the library has the keyboard focus: the editor must not take it from another control.
    MediaNodeListTableView* table = ui_->audioTableView_;
    const QWidget* focus = window_->focusWidget();
    if (!window_->isActiveWindow() || (focus && focus != table && focus != ui_->outlineLibraryView_))
        return;
    if (QWidget* editor = table->editCell(table->currentIndex().siblingAtColumn(AudioTableModel::Title)))
        AudioRowDelegate::offer(*editor);
}

QStringList MainWndController::selection() const {
    const MediaLibraryNode* node = library_->libraryViewSelectedNode();
    QStringList selected{node ? node->key() : QString()};
    for (const QVariant& entry : library_->tableViewSelectionAudioArray())
        selected += entry.toMap().value(AudioRecordEntry::SavePath).toString();
    return selected;
}

void MainWndController::showSelection() {
    const qsizetype rows = library_->selectedRowCount();
    const QString path =
        rows > 1 ? tr("%1 selected, %2 together")
                       .arg(QLocale().toString(rows),
                            ToolControl::getTimeString(static_cast<std::int64_t>(library_->selectedSeconds())))
                 : library_->tableViewSelectionAudioPath();
    // The selection is also announced when its row was only redrawn, and then the error message must stay visible.
    if (std::exchange(shownSelection_, path) != path)
        showStatus(path);
}

void MainWndController::showStatus(const QString& text) {
    // The line keeps its height without a text. Otherwise the list would move under the pointer between two clicks.
    ui_->lblStatus_->setText(text);
    // The path of a selected row is no news.
    if (shownSelection_ != text)
        Announcement::say(*window_, text);
}

void MainWndController::showEmptyText() {
    const bool nothingYet = library_->libraryIsEmpty();
    const MediaLibraryNode* node = library_->libraryViewSelectedNode();
    const bool ringtones = node && node->key().endsWith(QStringLiteral("ringtone"));
    if (library_->canFilterAudio())
        ui_->audioTableView_->setEmptyText({});
    else if (library_->search().isActive())
        ui_->audioTableView_->setEmptyText(
            tr("No title, artist or album here has “%1” in it.").arg(library_->search().text().simplified()));
    else if (record_.isStateAudioRecord() && !ringtones)
        ui_->audioTableView_->setEmptyText(tr("The recording appears here when it has ended."));
    else if (nothingYet && !ringtones)
        ui_->audioTableView_->setEmptyText(tr("Nothing here yet. Press the red button to make your first recording."),
                                           QStringLiteral("arrow-to-start"));
    else
        ui_->audioTableView_->setEmptyText(ringtones ? tr("Ringtones that you make of your recordings appear here.")
                                                     : tr("Recordings that you make now appear here."));
}
