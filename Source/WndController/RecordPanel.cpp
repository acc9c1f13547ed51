// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/RecordPanel.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/Services.h"
#include "Source/AudioWaveViewController/AudioWaveViewController.h"
#include "Source/Record/RecordStateController.h"
#include "Source/View/ConvertingTipView.h"
#include "Source/View/NamedImages.h"
#include "Source/WndController/ProgramsMenu.h"
#include "ui_MainWnd.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSignalBlocker>
#include <QUrl>

namespace {
constexpr int kShortConversionMs = 500; // one tick of the display's clock
} // namespace

RecordPanel::RecordPanel(Ui::MainWnd& ui, RecordStateController& record, AudioWaveViewController& display,
                         QObject* parent)
    : QObject(parent), ui_(ui), record_(record), display_(display),
      fileConvertingTipView_(new ConvertingTipView(ui.libraryView_)) {
    new ProgramsMenu(*ui_.btnRecordPrograms_, record_, this);
    ui_.btnSatrtRecord_->setImageSize(52);
    ui_.btnSplitRecord_->setImage(QStringLiteral("split"));
    ui_.btnPlayAudio_->setImage(QStringLiteral("Play.png"));
    for (TransportButton* button : {ui_.btnPauseRecord_, ui_.btnSplitRecord_, ui_.btnPlayAudio_})
        button->setImageSize(32);

    connect(ui_.btnSatrtRecord_, &QAbstractButton::clicked, &record_, &RecordStateController::startAndStopRecord);
    connect(ui_.btnPauseRecord_, &QAbstractButton::clicked, &record_, &RecordStateController::pauseAndResumeRecord);
    connect(ui_.btnSplitRecord_, &QAbstractButton::clicked, &record_, &RecordStateController::splitTheRecord);
    // The box shows the recorder's state after the click: without the device, "computer audio" is switched off again.
    connect(ui_.btnBuiltInRecord_, &QCheckBox::clicked, this, [this](bool on) {
        record_.chooseRecordBuiltIn(on);
        showState();
    });
    connect(ui_.btnComputerAudioRecord_, &QCheckBox::clicked, this, [this](bool on) {
        record_.chooseRecordComputerAudio(on);
        showState();
    });
    connect(ui_.popBuiltInDevice_, &QComboBox::activated, &record_, &RecordStateController::chooseBuiltInDevice);
    connect(&display_, &AudioWaveViewController::noticeDismissed, &record_,
            [this](const RecordNotice& notice) { record_.dismissNotice(notice.event); });
    connect(&display_, &AudioWaveViewController::seenChanged, &record_, &RecordStateController::setLevelSeen);
    connect(&display_, &AudioWaveViewController::helpRequested, this, &RecordPanel::help);
    connect(&record_, &RecordStateController::stateChanged, this, &RecordPanel::showState);
    connect(&record_, &RecordStateController::displayChanged, this, &RecordPanel::showDisplay);
    connect(&record_, &RecordStateController::devicesChanged, this, &RecordPanel::showDevices);
    connect(&record_, &RecordStateController::noticesChanged, this, &RecordPanel::showNotices);
    connect(&record_, &RecordStateController::queueChanged, this, &RecordPanel::showFileConvertTipView);
    connect(&record_, &RecordStateController::programsChanged, this, &RecordPanel::showHealth);
    if (const auto* hardware = Platform::services().audioHardware)
        connect(hardware, &Platform::AudioHardware::connectedChanged, this, &RecordPanel::showHealth);

    conversion_.setSingleShot(true);
    conversion_.setInterval(kShortConversionMs);
    connect(&conversion_, &QTimer::timeout, this, [this] {
        conversionLasts_ = true;
        showFileConvertTipView();
    });

    initToopTip();
    showDevices();
    showState();
    showDisplay();
    showNotices();
    fileConvertingTipView_->setText(QStringLiteral(""));
}

void RecordPanel::initToopTip() {
    ui_.btnSatrtRecord_->setToolTip(QCoreApplication::translate("Record", "Start Record"));
    ui_.btnPauseRecord_->setToolTip(QCoreApplication::translate("Record", "Pause Record"));
    ui_.btnSplitRecord_->setToolTip(tr("Cut to another recording"));
    ui_.btnPlayAudio_->setToolTip(tr("Play"));
    const QString idle = tr("Nothing is being recorded.");
    ui_.btnSatrtRecord_->setDisabledReason(tr("Choose the input, computer audio, or both first."));
    ui_.btnPauseRecord_->setDisabledReason(idle);
    ui_.btnSplitRecord_->setDisabledReason(idle);
    ui_.btnPlayAudio_->setDisabledReason(tr("Select a recording first. Nothing is played while recording."));
}

void RecordPanel::showState() {
    ui_.btnSatrtRecord_->setEnabled(record_.isStateAudioCanStartRecord());
    // The filled disc means that sound is being recorded right now.
    const RecordState state = record_.state();
    wasRecording_ = isRecording();
    const bool waits = record_.isStateAudioRecord() && !isRecording();
    ui_.btnSatrtRecord_->setImage(waits ? QStringLiteral("RecorderStopWaiting.png") : record_.startImage());
    ui_.btnSatrtRecord_->setPressedImage(waits ? QStringLiteral("RecorderStopWaitingDown.png")
                                               : record_.startPressedImage());
    display_.setRecordState(state, isRecording());
    ui_.btnSatrtRecord_->setToolTip(record_.startToolTip());
    ui_.btnPauseRecord_->setEnabled(record_.isStateAudioRecord());
    ui_.btnPauseRecord_->setImage(record_.pauseImage());
    ui_.btnPauseRecord_->setToolTip(record_.pauseToolTip());
    ui_.btnSplitRecord_->setEnabled(record_.splitEnabled());
    ui_.btnBuiltInRecord_->setEnabled(record_.sourcesEnabled());
    ui_.btnComputerAudioRecord_->setEnabled(record_.sourcesEnabled());
    ui_.popBuiltInDevice_->setEnabled(record_.popUpEnabled());
    const QString fixed = tr("The sources stay as they are until the recording ends.");
    const bool choosable = record_.sourcesEnabled();
    ui_.btnBuiltInRecord_->setToolTip(choosable ? tr("Record the chosen input device") : fixed);
    ui_.btnComputerAudioRecord_->setToolTip(choosable ? tr("Record what the computer plays") : fixed);
    ui_.btnBuiltInRecord_->setChecked(record_.builtInChecked());
    ui_.btnComputerAudioRecord_->setChecked(record_.computerAudioChecked());
    showDeviceToolTip();
    showHealth();
}

bool RecordPanel::isRecording() const {
    return record_.state() == RecordState::Recording && record_.isGrowing();
}

void RecordPanel::showDisplay() {
    display_.setStateString(record_.stateString());
    display_.setStateColor(record_.stateColor());
    display_.setTimeString(record_.timeString());
    if (isRecording() != wasRecording_)
        showState(); // a disk is full, or has room again
    showHealth();
}

/// Updates the window's title, the texts in the display, and the number of lost frames.
void RecordPanel::showHealth() {
    const QString headline = record_.headline();
    ui_.contentView_->window()->setWindowTitle(headline.isEmpty() ? QStringLiteral("Sonaphex")
                                                                  : tr("%1 \u2013 Sonaphex").arg(headline));
    display_.setHint(hint());

    const auto lost = static_cast<qulonglong>(record_.lostFrames());
    const RecordState state = record_.state();
    QString text;
    if (lost > 0)
        text = tr("%1 s lost").arg(QLocale().toString(record_.lostSeconds(), 'f', record_.lostSeconds() < 1 ? 3 : 1));
    else if (state == RecordState::Recording || state == RecordState::Paused)
        text = tr("No frames lost");
    ui_.lblLostFrames_->setText(text);
    ui_.lblLostFrames_->setToolTip(lost > 0 ? tr("%1 frames").arg(QLocale().toString(lost)) : QString());
    ui_.lblLostFrames_->setForegroundRole(lost > 0 ? QPalette::WindowText : QPalette::PlaceholderText);
}

QString RecordPanel::hint() const {
    if (record_.state() == RecordState::Recording && !record_.isGrowing())
        return tr("Nothing is being recorded");
    const auto* hardware = Platform::services().audioHardware;
    if (hardware && !hardware->connected())
        return tr("No sound server");
    if (record_.builtInChecked() && record_.deviceNames().isEmpty())
        return tr("No input device");
    if (const QString waiting = record_.waitingForPrograms(); !waiting.isEmpty())
        return waiting;
    // An armed recording has no time yet, but must be visible as a recording.
    if (record_.isStateAudioRecord() && record_.isWaittingForSound())
        return tr("Waiting for the first sound of computer audio");
    // Without a sound server only the test tone is recorded. The user must be able to see that.
    if (hardware && hardware->isTestTone())
        return tr("No sound server: a test tone is recorded");
    return record_.roomLeft();
}

void RecordPanel::showDevices() {
    const QSignalBlocker quiet(ui_.popBuiltInDevice_);
    ui_.popBuiltInDevice_->clear();
    const QStringList names = record_.deviceNames();
    for (const QString& name : names) {
        ui_.popBuiltInDevice_->addItem(name);
        ui_.popBuiltInDevice_->setItemData(ui_.popBuiltInDevice_->count() - 1, name, Qt::ToolTipRole);
    }
    ui_.popBuiltInDevice_->setPlaceholderText(tr("No device"));
    ui_.popBuiltInDevice_->setCurrentIndex(record_.selectedDevice());
    showDeviceToolTip();
    showHealth();
}

void RecordPanel::showDeviceToolTip() {
    const QStringList names = record_.deviceNames();
    QStringList lines{names.isEmpty() ? tr("No input device was found.") : names.value(record_.selectedDevice())};
    if (!record_.sourcesEnabled())
        lines << tr("The sources stay as they are until the recording ends.");
    else if (!record_.popUpEnabled() && !names.isEmpty())
        lines << tr("The input is not recorded: check the box first.");
    ui_.popBuiltInDevice_->setToolTip(lines.join(u'\n'));
    lines.replace(0, ui_.popBuiltInDevice_->accessibleName());
    ui_.popBuiltInDevice_->setAccessibleDescription(lines.join(u'\n'));
}

void RecordPanel::showNotices() {
    display_.setNotices(record_.noticeList());
}

/// What the user asks for at a notice.
void RecordPanel::help(const RecordNotice& notice) {
    auto* workspace = Platform::services().workspace;
    const QString target = notice.target.isEmpty() ? notice.path : notice.target;
    switch (notice.help) {
    case RecordNotice::Help::None:
        break;
    case RecordNotice::Help::Show:
        if (workspace)
            (void)workspace->selectFile(target);
        record_.dismissNotice(notice.event);
        break;
    case RecordNotice::Help::ChooseDevice:
        if (!record_.sourcesEnabled())
            break;
        if (!record_.builtInChecked())
            record_.chooseRecordBuiltIn(true);
        ui_.popBuiltInDevice_->setFocus(Qt::OtherFocusReason);
        ui_.popBuiltInDevice_->showPopup();
        break;
    case RecordNotice::Help::Unmute:
        record_.unmuteBuiltInDevice();
        record_.dismissNotice(notice.event);
        break;
    case RecordNotice::Help::FreeSpace:
        if (workspace)
            (void)workspace->openUrl(QUrl::fromLocalFile(target));
        break;
    }
}

void RecordPanel::showFileConvertTipView() {
    // A recording of one source is finished within a few frames of the animation: its notice would only flash.
    if (record_.jobsInQueue() == 0) {
        conversion_.stop();
        conversionLasts_ = false;
    } else if (!conversionLasts_ && !conversion_.isActive()) {
        conversion_.start();
    }
    fileConvertingTipView_->showFileConvertTipView(conversionLasts_, record_.fileConvertTip(), record_.jobProgress());
}
