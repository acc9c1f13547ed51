// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/PreferenceWndController.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/HotKeys.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/HotKey/KeybordShortcutTextView.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Preferences/Settings.h"
#include "Source/View/NamedImages.h"
#include "ui_PreferenceWnd.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QThread>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace PreferenceStore;

namespace {

const QStringList splitTimes{u"100"_s,  u"200"_s,  u"300"_s,  u"500"_s,  u"800"_s,
                             u"1000"_s, u"1500"_s, u"2000"_s, u"3000"_s, u"5000"_s};
const QStringList filterTimes{u"1"_s, u"2"_s, u"3"_s, u"5"_s, u"10"_s, u"15"_s, u"20"_s, u"30"_s, u"60"_s};

constexpr std::uint32_t commandAndControl = KeybordShortcutTextView::CommandFlag | KeybordShortcutTextView::ControlFlag;

// Selects the item with this title. A value that is not offered is inserted by its number, so that closing the window
// stores it again.
void select(QComboBox* popUp, const QString& title) {
    int index = popUp->findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        index = 0;
        while (index < popUp->count() && Platform::intValue(popUp->itemText(index)) <= Platform::intValue(title))
            ++index;
        popUp->insertItem(index, title);
    }
    popUp->setCurrentIndex(index);
}

/// Stores a switch once it is changed: then the preferences of a user who never touched it stay as they were.
void storeSwitch(const QCheckBox& box, const Settings::Setting& setting) {
    if (box.isChecked() != Platform::boolValue(Settings::value(setting)))
        Settings::setValue(qlonglong(box.isChecked()), setting);
}

} // namespace

PreferenceWndController::PreferenceWndController(ComputerAudioDevice device,
                                                 std::unique_ptr<Platform::Autostart> autostart, QObject* parent)
    : QObject(parent), device_(std::move(device)), autostart_(std::move(autostart)),
      window_(std::make_unique<QWidget>()), ui_(std::make_unique<Ui::PreferenceWnd>()) {
    ui_->setupUi(window_.get());
    awakeFromNib();
}

PreferenceWndController::~PreferenceWndController() {
    if (auto* hotKeys = Platform::services().hotKeys)
        hotKeys->setWayChangedHandler({});
}

void PreferenceWndController::awakeFromNib() {
    window_->setWindowIcon(NamedImages::icon(u"com.korvane.Sonaphex"_s));
    window_->installEventFilter(this);
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(keys, window_.get()), &QShortcut::activated, window_.get(), &QWidget::close);
    ui_->chooseAudioPathButton->setIcon(NamedImages::icon(u"folder"_s));
    ui_->chooseRingtonePathButton->setIcon(NamedImages::icon(u"folder"_s));
    ui_->showAudioPathButton->setIcon(NamedImages::icon(u"show"_s));
    ui_->showRingtonePathButton->setIcon(NamedImages::icon(u"show"_s));
    // A path may be longer than its field.
    for (QLineEdit* field : {ui_->audioPathField, ui_->ringtonePathField})
        connect(field, &QLineEdit::textChanged, field, [field](const QString& path) {
            field->setToolTip(path);
            constexpr int least = 280, most = 480, frame = 16;
            field->setMinimumWidth(qBound(least, field->fontMetrics().horizontalAdvance(path) + frame, most));
        });
    ui_->splitTimePopUp->addItems(splitTimes);
    ui_->filterTimePopUp->addItems(filterTimes);
    ui_->preRollField->setMaximum(Settings::LongestPreRollMS);
    // A screen reader finds the spin box's own line edit.
    ui_->preRollField->findChild<QLineEdit*>()->setAccessibleName(ui_->preRollField->accessibleName());

    using Self = PreferenceWndController;
    connect(ui_->chooseAudioPathButton, &QPushButton::clicked, this, &Self::chooseOutAudioPath);
    connect(ui_->chooseRingtonePathButton, &QPushButton::clicked, this, &Self::chooseOuRingtonePath);
    connect(ui_->showAudioPathButton, &QPushButton::clicked, this, &Self::showOutAudioPath);
    connect(ui_->showRingtonePathButton, &QPushButton::clicked, this, &Self::showOutRingtonePath);
    connect(ui_->splitCheckBox, &QCheckBox::clicked, this, &Self::chooseSplitEffect);
    connect(ui_->filterCheckBox, &QCheckBox::clicked, this, &Self::chooseFilterEffect);
    connect(ui_->splitTimePopUp, &QComboBox::activated, this, &Self::chooseSplitTime);
    connect(ui_->filterTimePopUp, &QComboBox::activated, this, &Self::chooseFilterTime);
    connect(ui_->insertDeviceButton, &QPushButton::clicked, this, &Self::insertTheSystemAudioRecordDevice);
    connect(ui_->unInsertDeviceButton, &QPushButton::clicked, this, &Self::unInsertTheSystemAudioRecordDevice);
    connect(ui_->defaultShortcutsButton, &QPushButton::clicked, this, &Self::useDefaultShortcuts);
    connect(this, &Self::systemAudioRecordDeviceExistChanged, this, &Self::showDeviceState);
    if (auto* hardware = Platform::services().audioHardware)
        connect(hardware, &Platform::AudioHardware::devicesChanged, this, &Self::flushExistSystemAudioRecordDevice);
    showDeviceWork({});
    showDeviceState();

    initPerferceInterface();
    setDefaultShortcut();
    if (auto* hotKeys = Platform::services().hotKeys)
        hotKeys->setWayChangedHandler([this] { showHotKeyWay(); });
    showHotKeyWay();
}

QVariant PreferenceWndController::preferenceValueForKey(const QString& key, const QVariant& defaultObject) {
    return PreferenceStore::preferenceValueForKey(key, defaultObject);
}

void PreferenceWndController::setPreferenceValue(const QVariant& object, const QString& key) {
    PreferenceStore::setPreferenceValue(object, key);
}

KeybordShortcutTextView* PreferenceWndController::startStopShortcut() const {
    return ui_->startStopShortcut;
}

KeybordShortcutTextView* PreferenceWndController::pauseResumeShortcut() const {
    return ui_->pauseResumeShortcut;
}

KeybordShortcutTextView* PreferenceWndController::startNewRecordShortcut() const {
    return ui_->startNewRecordShortcut;
}

void PreferenceWndController::initPerferceInterface() {
    ui_->audioPathField->setText(Settings::value(Settings::savePath).toString());
    ui_->ringtonePathField->setText(Settings::value(Settings::ringtoneSavePath).toString());
    ui_->splitCheckBox->setChecked(Platform::longLongValue(Settings::value(Settings::split)) != 0);
    ui_->filterCheckBox->setChecked(Platform::boolValue(Settings::value(Settings::filter)));
    chooseSplitEffect();
    chooseFilterEffect();
    select(ui_->splitTimePopUp, Platform::stringForm(Settings::value(Settings::splitTimeMS)));
    select(ui_->filterTimePopUp, Platform::stringForm(Settings::value(Settings::filterTime)));
    ui_->preRollField->setValue(Platform::intValue(Settings::value(Settings::preRollMS)));
    ui_->titlesCheckBox->setChecked(Platform::boolValue(Settings::value(Settings::titles)));
    ui_->cutAtTracksCheckBox->setChecked(Platform::boolValue(Settings::value(Settings::cutAtTracks)));
    ui_->keepTracksCheckBox->setChecked(Platform::boolValue(Settings::value(Settings::keepTracks)));
    ui_->notificationsCheckBox->setChecked(Platform::boolValue(Settings::value(Settings::notifications)));
    ui_->autostartCheckBox->setVisible(autostart_ != nullptr);
    ui_->autostartCheckBox->setChecked(autostart_ && autostart_->isEnabled());
}

void PreferenceWndController::setDefaultShortcut() {
    struct Default {
        KeybordShortcutTextView* field;
        const Settings::Shortcut& shortcut;
        std::uint32_t signature;
        QString description;
    };
    for (const Default& d :
         {Default{startStopShortcut(), Settings::startStop, 0x73737273, tr("Start or stop the recording")},
          Default{pauseResumeShortcut(), Settings::pauseResume, 0x70727273, tr("Pause or resume the recording")},
          Default{startNewRecordShortcut(), Settings::startNewRecord, 0x736E7273, tr("Start a new recording")}}) {
        d.field->setSaveKey(d.shortcut.key);
        d.field->setCharacters(d.shortcut.characters);
        d.field->setModifierFlags(commandAndControl);
        d.field->setKeyCode(d.shortcut.keyCode);
        d.field->keepAsDefault();
        d.field->loadUserDefault();
        d.field->setHotKeyRegister(std::make_unique<HotKeyRegister>());
        d.field->hotKeyRegister()->setSignature(d.signature);
        if (auto* hotKeys = Platform::services().hotKeys)
            hotKeys->describe({d.signature, 1}, d.description);
        d.field->updateHotKeyRegister();
    }
}

void PreferenceWndController::useDefaultShortcuts() {
    const auto fields = {startStopShortcut(), pauseResumeShortcut(), startNewRecordShortcut()};
    // One field may hold the default of another.
    for (KeybordShortcutTextView* field : fields)
        field->hotKeyRegister()->unregisterHotKey();
    for (KeybordShortcutTextView* field : fields)
        field->useDefault();
}

bool PreferenceWndController::windowShouldClose() {
    setPreferenceValue(ui_->audioPathField->text(), PreferenceSavePathKey);
    setPreferenceValue(ui_->ringtonePathField->text(), PreferenceRingtoneSavePathKey);
    const bool split = ui_->splitCheckBox->isChecked();
    setPreferenceValue(qlonglong(split), PreferenceSplitKey);
    setPreferenceValue(qlonglong(ui_->filterCheckBox->isChecked()), PreferenceFilterKey);
    const QString splitTime = ui_->splitTimePopUp->currentText();
    // A single store: if an I/O thread read a temporary -1, a silence would not be cut.
    g_SplitTimeMS = split ? Platform::intValue(splitTime) : -1;
    setPreferenceValue(splitTime, PreferenceSplitTimeMSKey);
    setPreferenceValue(ui_->filterTimePopUp->currentText(), PreferenceFilterTimeKey);
    if (ui_->preRollField->value() != Platform::intValue(Settings::value(Settings::preRollMS)))
        setPreferenceValue(qlonglong(ui_->preRollField->value()), PreferencePreRollMSKey);
    storeSwitch(*ui_->titlesCheckBox, Settings::titles);
    storeSwitch(*ui_->cutAtTracksCheckBox, Settings::cutAtTracks);
    storeSwitch(*ui_->keepTracksCheckBox, Settings::keepTracks);
    setPreferenceValue(qlonglong(ui_->notificationsCheckBox->isChecked()), PreferenceNotificationsKey);
    applyAutostart();
    return true;
}

void PreferenceWndController::applyAutostart() {
    if (!autostart_)
        return;
    const bool wanted = ui_->autostartCheckBox->isChecked();
    autostart_->setEnabled(wanted, [this, wanted](const QString& problem) {
        ui_->autostartCheckBox->setChecked(autostart_->isEnabled());
        if (problem.isEmpty())
            return;
        // Posted, because the window is just closing.
        Platform::MainQueue::post(this, [wanted, problem] {
            Platform::services().alerts->runModal(wanted ? tr("Sonaphex cannot be started with the desktop.")
                                                         : tr("Sonaphex is still started with the desktop."),
                                                  problem, {Platform::Alerts::okLabel()});
        });
    });
}

void PreferenceWndController::chooseOutAudioPath() {
    chooseFolder(ui_->audioPathField);
}

void PreferenceWndController::chooseOuRingtonePath() {
    chooseFolder(ui_->ringtonePathField);
}

void PreferenceWndController::chooseFolder(QLineEdit* field) {
    const QString start = QFileInfo::exists(field->text()) ? field->text() : Platform::Folders::home();
    Platform::services().panels->chooseFolder(
        window_.get(), tr("Choose"), start, [this, field](const std::optional<QString>& path) {
            if (!path)
                return;
            const QFileInfo folder(*path);
            if (folder.isWritable() && folder.isReadable()) {
                field->setText(*path);
                return;
            }
            // Posted until the sheet is closed: an alert above a closing sheet would lose the focus.
            Platform::MainQueue::post(this, [] {
                Platform::services().alerts->runModal(
                    tr("Warning:"), tr("You cannot save files in the folder. Read and write privilege is needed."),
                    {Platform::Alerts::okLabel()});
            });
        });
}

void PreferenceWndController::showOutAudioPath() {
    Platform::services().workspace->selectFile(ui_->audioPathField->text());
}

void PreferenceWndController::showOutRingtonePath() {
    Platform::services().workspace->selectFile(ui_->ringtonePathField->text());
}

void PreferenceWndController::chooseSplitEffect() {
    const bool on = ui_->splitCheckBox->isChecked();
    ui_->splitTimePopUp->setEnabled(on);
    ui_->splitTimePopUp->setToolTip(on ? QString() : tr("Nothing is split at a silence: check the box first."));
}

void PreferenceWndController::chooseFilterEffect() {
    const bool on = ui_->filterCheckBox->isChecked();
    ui_->filterTimePopUp->setEnabled(on);
    ui_->filterTimePopUp->setToolTip(on ? QString() : tr("All recordings are kept: check the box first."));
}

bool PreferenceWndController::systemAudioRecordDeviceExist() const {
    return device_.isExist();
}

void PreferenceWndController::setSystemAudioRecordDeviceExist(bool) {
    flushLater();
}

void PreferenceWndController::flushLater() {
    Platform::MainQueue::post(this, [this] { flushExistSystemAudioRecordDevice(); });
}

void PreferenceWndController::flushExistSystemAudioRecordDevice() {
    Q_EMIT systemAudioRecordDeviceExistChanged();
}

QString PreferenceWndController::whyDeviceStays() const {
    return device_.whyNotNow ? device_.whyNotNow() : QString();
}

void PreferenceWndController::insertTheSystemAudioRecordDevice() {
    if (device_.isBusy() || !whyDeviceStays().isEmpty()) {
        flushLater();
        return;
    }
    showDeviceWork(tr("Installing the computer-audio device…"));
    const bool installed = device_.install();
    installProblem_ = installed ? QString() : device_.lastError();
    showDeviceWork({});
    const auto complain = [] {
        Platform::services().alerts->runModal(tr("Can not insert the system audio device, Please try it again."),
                                              QString(), {Platform::Alerts::okLabel()});
    };
    if (!installed && QThread::currentThread() == thread())
        complain();
    else if (!installed)
        Platform::MainQueue::post(this, complain);
    else
        Q_EMIT systemAudioRecordDeviceInstalled();
    flushLater();
}

void PreferenceWndController::unInsertTheSystemAudioRecordDevice() {
    if (device_.isBusy() || !whyDeviceStays().isEmpty()) {
        flushLater();
        return;
    }
    showDeviceWork(tr("Removing the computer-audio device…"));
    static_cast<void>(device_.uninstall());
    installProblem_.clear();
    showDeviceWork({});
    flushLater();
}

// Widgets belong to the main thread; the reported work may run on another.
void PreferenceWndController::showDeviceWork(const QString& work) {
    if (QThread::currentThread() != thread()) {
        Platform::MainQueue::post(this, [this, work] { showDeviceWork(work); });
        return;
    }
    ui_->deviceProgress->setVisible(!work.isEmpty());
    if (work.isEmpty()) {
        showDeviceState();
        return;
    }
    ui_->deviceStateField->setText(work);
    ui_->deviceProblemField->hide();
    ui_->insertDeviceButton->setEnabled(false);
    ui_->unInsertDeviceButton->setEnabled(false);
}

void PreferenceWndController::showDeviceState() {
    if (ui_->deviceProgress->isVisibleTo(window_.get()))
        return;
    const bool exists = systemAudioRecordDeviceExist();
    ui_->deviceStateField->setText(exists ? tr("The computer-audio device is installed.")
                                          : tr("The computer-audio device is not installed."));
    const QString stays = whyDeviceStays();
    ui_->insertDeviceButton->setEnabled(!exists && stays.isEmpty());
    ui_->unInsertDeviceButton->setEnabled(exists && stays.isEmpty());
    ui_->insertDeviceButton->setToolTip(exists ? tr("It is installed already.") : stays);
    ui_->unInsertDeviceButton->setToolTip(exists ? stays : tr("There is nothing to remove."));
    ui_->deviceProblemField->setText(installProblem_);
    ui_->deviceProblemField->setVisible(!installProblem_.isEmpty());
    if (isWindowVisible())
        fitHeight();
}

void PreferenceWndController::showHotKeyWay() {
    using Way = Platform::HotKeys::Way;
    const auto* hotKeys = Platform::services().hotKeys;
    const bool works = hotKeys && hotKeys->way() != Way::None;
    for (QWidget* field : std::initializer_list<QWidget*>{startStopShortcut(), pauseResumeShortcut(),
                                                          startNewRecordShortcut(), ui_->defaultShortcutsButton}) {
        field->setEnabled(works);
        field->setToolTip(works ? QString() : tr("This desktop does not allow global shortcuts."));
    }
    ui_->hotKeyHint->setVisible(!works);
    ui_->hotKeyCommands->setVisible(!works);
    ui_->hotKeyHint->setText(tr("This desktop does not allow global shortcuts. Bind these commands to "
                                "keys in the desktop's own keyboard settings:"));
    ui_->hotKeyCommands->setText(
        u"sonaphex control start-stop\nsonaphex control pause-resume\nsonaphex control split"_s);
    if (isWindowVisible())
        fitHeight();
}

// Wrapped texts have a height only for a given width, which adjustSize() does not consider.
void PreferenceWndController::fitHeight() {
    QLayout* layout = window_->layout();
    layout->activate();
    const int width = std::max(window_->width(), window_->minimumSizeHint().width());
    const int needed =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : layout->totalSizeHint().height();
    // Large text may need more than the screen: then the window scrolls.
    const QSize room = window_->screen()->availableSize();
    if (needed > room.height() && !scrollArea_) {
        makeScrollable();
        window_->resize(std::min(width + window_->style()->pixelMetric(QStyle::PM_ScrollBarExtent), room.width()),
                        room.height());
        return;
    }
    if (needed > window_->height() || width > window_->width())
        window_->resize(width, std::max(needed, window_->height()));
}

void PreferenceWndController::makeScrollable() {
    auto* content = new QWidget;
    content->setLayout(window_->layout()); // takes the controls with it
    scrollArea_ = new QScrollArea;
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setFocusPolicy(Qt::NoFocus);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setWidget(content);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scrollArea_);
    window_->setMinimumSize(0, 0); // was set by the old layout
    layout->activate();
    scrollArea_->show(); // the window may be visible already
    // The area itself follows only the Tab key.
    connect(qApp, &QApplication::focusChanged, scrollArea_, [this](QWidget*, QWidget* focused) {
        if (focused && scrollArea_->widget()->isAncestorOf(focused))
            scrollArea_->ensureWidgetVisible(focused);
    });
}

bool PreferenceWndController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_.get()) {
        if (event->type() == QEvent::Close)
            event->setAccepted(windowShouldClose());
        else if (event->type() == QEvent::WindowActivate)
            flushExistSystemAudioRecordDevice();
    }
    return QObject::eventFilter(watched, event);
}

bool PreferenceWndController::isWindowVisible() const {
    return window_->isVisible();
}

void PreferenceWndController::showWindow() {
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->raise();
    window_->activateWindow();
}

void PreferenceWndController::makeKeyAndOrderFront() {
    window_->layout()->activate();
    if (!scrollArea_)
        window_->adjustSize();
    fitHeight();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void PreferenceWndController::center() {
    QRect frame = window_->frameGeometry();
    frame.moveCenter(window_->screen()->availableGeometry().center());
    window_->move(frame.topLeft());
}
