// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/BalanceWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Platform/Media/Sound.h"
#include "RingtoneMaker/AudioOutline.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/Announcement.h"
#include "Source/View/NamedImages.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "ui_BalanceWnd.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>

#include <chrono>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;
using Platform::Alerts;

namespace {

constexpr int kFollowEveryMs = 50;
constexpr int kMeasureAfterMs = 250;
constexpr auto kSaveProgressEvery = std::chrono::milliseconds(100);
constexpr int kProgressSteps = 1000;
constexpr QSize kBalanceWindowSize(720, 420);
/// Seconds that are decoded in advance: a change of the gains or of the delay is heard after about this time.
constexpr double kSecondsAhead = 0.1;

QString decibelText(double decibels) {
    return QLocale().toString(decibels, 'f', 1);
}

} // namespace

BalanceWndController::BalanceWndController(QWidget* mainWindow, QObject* parent)
    : QObject(parent), window_(new EditDialog(u"BalanceWndLayout"_s, kBalanceWindowSize, mainWindow)),
      ui_(std::make_unique<Ui::BalanceWnd>()), outlines_{std::make_unique<AudioOutline>(),
                                                         std::make_unique<AudioOutline>()} {
    ui_->setupUi(window_);
    awakeFromNib();
}

BalanceWndController::~BalanceWndController() {
    cancelled_ = true;
    ++measurement_;
    joinWorkers();
    delete window_;
}

void BalanceWndController::joinWorkers() {
    for (std::thread* worker : {&measurer_, &saver_})
        if (worker->joinable())
            worker->join();
}

void BalanceWndController::awakeFromNib() {
    ui_->lblBalanceName_->setMargin(0);
    bind(ui_->sldInputGain_, ui_->fldInputGain_, &BalanceSettings::inputGain, 10);
    bind(ui_->sldComputerGain_, ui_->fldComputerGain_, &BalanceSettings::computerGain, 10);
    bind(ui_->sldDelay_, ui_->fldDelay_, &BalanceSettings::delayMs, 1);
    for (QDoubleSpinBox* gain : {ui_->fldInputGain_, ui_->fldComputerGain_})
        gain->setSpecialValueText(tr("Silent", "a track that is not in the mix"));
    using Self = BalanceWndController;
    connect(ui_->btnPlay_, &QPushButton::clicked, this, &Self::togglePlay);
    connect(ui_->btnReset_, &QPushButton::clicked, this, &Self::reset);
    connect(ui_->btnLower_, &QPushButton::clicked, this, &Self::lowerToFit);
    connect(ui_->btnSave_, &QPushButton::clicked, this, &Self::saveAudio);
    connect(ui_->btnSaveAs_, &QPushButton::clicked, this, &Self::saveAsAudio);
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &Self::cancel);
    connect(window_, &EditDialog::cancelled, this, &Self::cancel);
    connect(window_, &EditDialog::keyPressed, this, [this](QKeyEvent* event) { keyPressed(*event); });
    connect(ui_->balanceView_, &BalanceView::positionChosen, this, [this](double seconds) {
        if (sound_)
            sound_->setCurrentTime(seconds);
        follow();
    });
    for (const auto lane : {BalanceView::Input, BalanceView::Computer}) {
        AudioOutline* const outline = outlines_[lane].get();
        const auto show = [this, lane, outline] { ui_->balanceView_->setOutline(lane, outline->values()); };
        connect(outline, &AudioOutline::grew, this, show);
        connect(outline, &AudioOutline::loaded, this, show);
    }
    clock_.setInterval(kFollowEveryMs);
    connect(&clock_, &QTimer::timeout, this, &Self::follow);
    measureSoon_.setSingleShot(true);
    measureSoon_.setInterval(kMeasureAfterMs);
    connect(&measureSoon_, &QTimer::timeout, this, &Self::measure);
    showPlayButton(false);
    showSaving(false);
}

/// Makes a slider and a field show and change one value. The slider counts @p steps to one of the value's units.
void BalanceWndController::bind(QAbstractSlider* slider, QDoubleSpinBox* field, double BalanceSettings::*value,
                                double steps) {
    slider->setRange(int(std::lround(field->minimum() * steps)), int(std::lround(field->maximum() * steps)));
    // A screen reader finds the spin box's own line edit.
    field->findChild<QLineEdit*>()->setAccessibleName(field->accessibleName());
    const auto change = [this, value](double to) {
        if (showing_ || settings_.*value == to)
            return;
        settings_.*value = to;
        settingsChanged();
    };
    connect(slider, &QAbstractSlider::valueChanged, this, [change, steps](int to) { change(to / steps); });
    connect(field, &QDoubleSpinBox::valueChanged, this, change);
}

QString BalanceWndController::mixPath() const {
    return Platform::stringForm(entry_.value(AudioRecordEntry::SavePath));
}

QString BalanceWndController::setEntry(const Dictionary& entry) {
    entry_ = entry;
    tracks_ = RecordingTracks::found(entry);
    if (const QString why = BalanceSave::refusal(tracks_, mixPath()); !why.isEmpty())
        return why;
    settings_ = {};
    controls_ = std::make_shared<BalanceControls>(settings_);
    ui_->lblBalanceName_->setText(QFileInfo(mixPath()).fileName());
    openSound();
    if (sound_->duration() <= 0)
        return sound_->sound() ? sound_->sound()->lastError() : tr("The tracks cannot be played.");
    for (const auto lane : {BalanceView::Input, BalanceView::Computer}) {
        ui_->balanceView_->setOutline(lane, {});
        outlines_[lane]->load(lane == BalanceView::Input ? tracks_.input : tracks_.computer);
    }
    ui_->balanceView_->setDuration(sound_->duration());
    settingsChanged();
    follow();
    clock_.start();
    return {};
}

void BalanceWndController::openSound() {
    sound_ = std::make_unique<CustomSound>(QString());
    auto reader = BalanceReader::open(tracks_, controls_);
    auto* const sounds = Platform::services().sounds;
    if (reader && sounds)
        sound_->setSound(sounds->openReader(*std::move(reader), mixPath(), kSecondsAhead));
    sound_->setPath(mixPath());
}

void BalanceWndController::runModal() {
    window_->restoreSize();
    ui_->btnCancel_->setText(Alerts::cancelLabel());
    ui_->sldInputGain_->setFocus();
    ToolControl::showWindowNib(*this);
    const QPointer<BalanceWndController> self(this);
    window_->exec();
    if (!self)
        return;
    stop();
    clock_.stop();
    measureSoon_.stop();
    ++measurement_;
    for (const auto& outline : outlines_)
        outline->stop();
    sound_.reset(); // closes the files
}

void BalanceWndController::keyPressed(QKeyEvent& event) {
    if (event.modifiers() & ~Qt::KeypadModifier || event.key() != Qt::Key_Space)
        return;
    togglePlay();
    event.accept();
}

// ---- the settings

void BalanceWndController::setSettings(const BalanceSettings& settings) {
    settings_ = settings;
    settingsChanged();
}

void BalanceWndController::settingsChanged() {
    controls_->set(settings_);
    showSettings();
    peak_ = -1;
    ++measurement_; // ends a measurement of other settings
    measureSoon_.start();
    showLoudness();
}

void BalanceWndController::showSettings() {
    showing_ = true;
    ui_->fldInputGain_->setValue(settings_.inputGain);
    ui_->sldInputGain_->setValue(int(std::lround(settings_.inputGain * 10)));
    ui_->fldComputerGain_->setValue(settings_.computerGain);
    ui_->sldComputerGain_->setValue(int(std::lround(settings_.computerGain * 10)));
    ui_->fldDelay_->setValue(settings_.delayMs);
    ui_->sldDelay_->setValue(int(std::lround(settings_.delayMs)));
    showing_ = false;
    ui_->balanceView_->setBalance(settings_);
    const bool isReset = settings_ == BalanceSettings();
    ui_->btnReset_->setEnabled(!isReset && !isSaving());
    ui_->btnReset_->setToolTip(isReset ? tr("Both gains and the delay are 0.") : QString());
}

void BalanceWndController::reset() {
    setSettings({});
}

void BalanceWndController::lowerToFit() {
    // A tenth is the step of the fields.
    if (const double excess = tooLoud(); excess > 0)
        setSettings(settings_.loweredBy(std::ceil(excess * 10) / 10));
}

// ---- the loudest point

void BalanceWndController::measure() {
    if (isSaving())
        return; // saving measures, too
    if (measurer_.joinable())
        measurer_.join(); // its settings have changed, so it is ending
    measurer_ = std::thread([this, number = measurement_.load(), tracks = tracks_, settings = settings_] {
        const auto goesOn = [&](double) { return measurement_ == number; };
        const auto peak = BalanceSave::peak(tracks, settings, goesOn);
        Platform::MainQueue::post(this, [this, number, found = peak ? *peak : -1.0] {
            if (measurement_ != number)
                return;
            peak_ = found;
            showLoudness();
        });
    });
}

double BalanceWndController::tooLoud() const {
    return peak_ > 1 ? BalanceSave::decibels(peak_) : 0;
}

void BalanceWndController::showLoudness() {
    const double excess = tooLoud();
    const QString before = ui_->lblLoudness_->text();
    QString words;
    if (peak_ < 0)
        words = tr("Measuring the loudest point …");
    else if (excess > 0)
        words = tr("Too loud by %1 dB: the loudest parts would be clipped.")
                    .arg(decibelText(std::max(0.1, std::ceil(excess * 10) / 10)));
    else if (peak_ <= 1e-10)
        words = tr("The mix is silent.");
    else
        words = tr("Loudest point: %1 dB below the limit").arg(decibelText(-BalanceSave::decibels(peak_)));
    ui_->lblLoudness_->setText(words);
    QFont font = ui_->lblLoudness_->font();
    font.setBold(excess > 0);
    ui_->lblLoudness_->setFont(font);
    ui_->btnLower_->setEnabled(excess > 0 && !isSaving());
    ui_->btnLower_->setToolTip(excess > 0 ? tr("Lowers both gains until nothing is clipped")
                                          : tr("Nothing would be clipped."));
    if (excess > 0 && words != before)
        Announcement::say(*window_, words);
}

// ---- playing

void BalanceWndController::showPlayButton(bool playing) {
    const QString image = playing ? u"Pause.png"_s : u"Play.png"_s;
    ui_->btnPlay_->setProperty("image", image);
    ui_->btnPlay_->setIcon(NamedImages::icon(image));
    ui_->btnPlay_->setText(playing ? tr("Pause") : tr("Play"));
}

void BalanceWndController::togglePlay() {
    if (!sound_ || isSaving())
        return;
    if (sound_->isPlaying())
        sound_->pause();
    else
        sound_->play();
    follow();
}

void BalanceWndController::follow() {
    if (!sound_)
        return;
    const double length = sound_->duration();
    const double now = sound_->currentTime();
    ui_->balanceView_->setPosition(now);
    const QString times = ToolControl::getTimeString(qint64(now)) + u'/' + ToolControl::getTimeString(qint64(length));
    if (ui_->lblPlayTime_->text() != times)
        ui_->lblPlayTime_->setText(times);
    if (const bool playing = sound_->isPlaying(); playing != (ui_->btnPlay_->property("image") == u"Pause.png"_s))
        showPlayButton(playing);
}

void BalanceWndController::stop() {
    if (sound_)
        sound_->stop();
    showPlayButton(false);
}

// ---- saving

bool BalanceWndController::refuse() {
    QString why = BalanceSave::refusal(tracks_, mixPath());
    if (why.isEmpty() && delegate_ && delegate_->isFilePlaying(mixPath()))
        why = tr("The file is being played.");
    if (why.isEmpty())
        return false;
    (void)Platform::services().alerts->runModal(tr("The recording cannot be saved."), why, {Alerts::okLabel()});
    return true;
}

void BalanceWndController::saveAudio() {
    if (isSaving() || refuse())
        return;
    stop();
    // Inserted without arg(), because the path may contain "%1".
    const QString question =
        tr("Do you want to replace \"%1\" with the new mix? Its tracks stay.").replace(u"%1"_s, mixPath());
    if (Platform::services().alerts->runModal(tr("Warning:"), question, {Alerts::okLabel(), Alerts::cancelLabel()}) ==
        0)
        save(AudioTrimSave::exportPath(mixPath()), true, false);
}

void BalanceWndController::saveAsAudio() {
    if (isSaving() || refuse())
        return;
    stop();
    const auto chosen = Platform::services().panels->saveFile(
        window_, tr("Save As"), AudioTrimSave::exportPath(mixPath()), Platform::Panels::Existing::Unasked);
    if (!chosen)
        return;
    const QString path = AudioTrimSave::exportPath(*chosen);
    const QFileInfo target(path);
    if (target.exists() || target.isSymLink()) {
        (void)Platform::services().alerts->runModal(
            tr("Warning:"), tr("This path exists, please change the path or name."), {Alerts::okLabel()});
        return;
    }
    save(path, false, false);
}

void BalanceWndController::save(const QString& path, bool replace, bool lowersToFit) {
    task_ = {.tracks = tracks_, .settings = settings_, .file = {}, .lowersToFit = lowersToFit};
    task_.file.source = mixPath();
    task_.file.exportPath = path;
    task_.file.entry = entry_;
    task_.file.replace = replace;
    cancelled_ = false;
    measureSoon_.stop();
    ++measurement_;
    joinWorkers();
    saver_ = std::thread([this, task = task_] {
        auto shown = std::chrono::steady_clock::now();
        const auto result = std::make_shared<BalanceSave::Result>(BalanceSave::run(task, [&](double share) {
            const auto now = std::chrono::steady_clock::now();
            if (now - shown >= kSaveProgressEvery) {
                shown = now;
                Platform::MainQueue::post(this,
                                          [this, share] { ui_->progress_->setValue(int(share * kProgressSteps)); });
            }
            return !cancelled_;
        }));
        Platform::MainQueue::post(this, [this, result] { saved(std::move(*result)); });
    });
    showSaving(true);
}

void BalanceWndController::showSaving(bool saving) {
    ui_->progress_->setVisible(saving);
    ui_->progress_->setRange(0, kProgressSteps);
    ui_->progress_->setValue(0);
    ui_->lblLoudness_->setVisible(!saving);
    ui_->btnLower_->setVisible(!saving);
    const std::initializer_list<QWidget*> controls{ui_->balanceView_,     ui_->sldInputGain_,    ui_->fldInputGain_,
                                                   ui_->sldComputerGain_, ui_->fldComputerGain_, ui_->sldDelay_,
                                                   ui_->fldDelay_,        ui_->btnPlay_,         ui_->btnReset_,
                                                   ui_->btnSaveAs_,       ui_->btnSave_};
    for (QWidget* control : controls)
        control->setEnabled(!saving);
    if (saving)
        ui_->btnCancel_->setFocus();
    else if (controls_)
        showSettings();
}

void BalanceWndController::saved(BalanceSave::Result result) {
    joinWorkers();
    showSaving(false);
    if (peak_ < 0)
        measureSoon_.start();
    showLoudness();
    if (!result.file.done) {
        if (result.file.note)
            result.file.note->end();
        if (cancelled_)
            return;
        if (result.tooLoud > 0) {
            const QString lower = tr("Lower Both by %1 dB").arg(decibelText(std::ceil(result.tooLoud * 10) / 10));
            if (Platform::services().alerts->runModal(
                    tr("The mix is too loud."),
                    tr("Its loudest parts would be clipped. Lower both gains, and nothing is clipped."),
                    {lower, Alerts::cancelLabel()}) != 0)
                return;
            setSettings(settings_.loweredBy(std::ceil(result.tooLoud * 10) / 10));
            save(QString(task_.file.exportPath), task_.file.replace, true); // a copy: save() makes the task anew
            return;
        }
        (void)Platform::services().alerts->runModal(tr("The recording was not saved."), result.file.problem,
                                                    {Alerts::okLabel()});
        return;
    }
    if (task_.file.replace) {
        entry_.insert(AudioRecordEntry::Length, float(result.seconds));
        RecordingTracks::insertInto(entry_, tracks_);
        if (delegate_)
            delegate_->updateFile(mixPath(), entry_);
    }
    if (result.file.note)
        result.file.note->end();
    // Nothing is left to cancel.
    ui_->btnCancel_->setText(tr("Close"));
    Announcement::say(*window_, tr("The new mix is saved."));
}

void BalanceWndController::cancel() {
    if (isSaving()) {
        cancelled_ = true;
        return;
    }
    window_->done(QDialog::Rejected);
}

bool BalanceWndController::isWindowVisible() const {
    return window_->isVisible();
}

void BalanceWndController::showWindow() {
    window_->show();
}

void BalanceWndController::makeKeyAndOrderFront() {
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void BalanceWndController::center() {
    window_->center();
}
