// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/AudioTrimWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/AudioOutline.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/NamedImages.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "Source/WndController/WaitWndController.h"
#include "ui_AudioTrimWnd.h"

#include <QFileInfo>
#include <QKeyEvent>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTickMs = 100;
constexpr double kEndOfFile = 0.1; ///< the file counts as played this many seconds before its end
constexpr auto kProgressEvery = std::chrono::milliseconds(100);
constexpr QSize kTrimWindowSize(720, 320);

/// Inserts a name into a text without arg(), because the name may contain "%1".
} // namespace

AudioTrimWndController::AudioTrimWndController(QWidget* mainWindow, QObject* parent)
    : QObject(parent), window_(new EditDialog(u"AudioTrimWndLayout"_s, kTrimWindowSize, mainWindow)),
      ui_(std::make_unique<Ui::AudioTrimWnd>()), waitWndController_(std::make_unique<WaitWndController>()),
      converterAudioControl_(std::make_unique<ConverterAudioControl>()), outline_(std::make_unique<AudioOutline>()) {
    ui_->setupUi(window_);
    converterAudioControl_->setDelegate(this);
    awakeFromNib();
}

AudioTrimWndController::~AudioTrimWndController() {
    cancelled_ = true;
    joinWorker();
    delete window_;
}

void AudioTrimWndController::awakeFromNib() {
    ui_->audioTrimEditView_->setDelegate(this);
    ui_->rangeTimesView_->setUp(ui_->audioTrimEditView_, ui_->lblLeftTrimTime_, ui_->lblTrimAudiolength_,
                                ui_->lblRightTrimTime_);
    ui_->lblEditAudioName_->setMargin(0);
    using Self = AudioTrimWndController;
    connect(ui_->btnPlay_, &QPushButton::clicked, this, &Self::togglePlayAudio);
    connect(ui_->btnPreview_, &QPushButton::clicked, this, &Self::previewEditAudio);
    connect(ui_->btnLeftTrim_, &QPushButton::clicked, this, &Self::leftTrim);
    connect(ui_->btnRightTrim_, &QPushButton::clicked, this, &Self::rightTrim);
    connect(ui_->btnSave_, &QPushButton::clicked, this, &Self::saveAudio);
    connect(ui_->btnSaveAs_, &QPushButton::clicked, this, &Self::saveAsAudio);
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &Self::cancelTrimAudio);
    connect(window_, &EditDialog::cancelled, this, &Self::cancelTrimAudio);
    connect(window_, &EditDialog::keyPressed, this, [this](QKeyEvent* event) { keyPressed(*event); });
    connect(outline_.get(), &AudioOutline::loaded, this,
            [this] { ui_->audioTrimEditView_->setOutline(outline_->values()); });
    // A timer of this thread also runs in modal dialogs and during drags.
    timerForPlay_.setInterval(kTickMs);
    connect(&timerForPlay_, &QTimer::timeout, this, &Self::audioPlayTrimAudioUpdateTimer);
    previewEnd_.setSingleShot(true);
    previewEnd_.setTimerType(Qt::PreciseTimer);
    connect(&previewEnd_, &QTimer::timeout, this, &Self::audioPlayTrimAudioUpdateTimer);
    ui_->btnPreview_->setIcon(NamedImages::icon(u"trim"_s));
    showPlayButton(false);
}

double AudioTrimWndController::duration() const {
    return audioPlayControl_ ? audioPlayControl_->duration() : 0;
}

QString AudioTrimWndController::sourcePath() const {
    return Platform::stringForm(trimAudioSourceDic_.value(AudioRecordEntry::SavePath));
}

void AudioTrimWndController::setTrimAudioSourceData(const Dictionary& entry) {
    trimAudioSourceDic_ = entry;
    isPreview_ = false;
    audioPlayControl_ = std::make_unique<CustomSound>(sourcePath());
    AudioTrimEditView* const bar = ui_->audioTrimEditView_;
    bar->setDuration(duration());
    bar->setPlayRate(0);
    // The right end first: neither end can be moved past the other.
    bar->setRightTrimRate(1);
    bar->setLeftTrimRate(0);
    bar->setLastHandle(AudioTrimEditView::LeftHandle);
    bar->setOutline({});
    outline_->load(sourcePath());
    ui_->lblEditAudioName_->setText(QFileInfo(sourcePath()).fileName());
    showPlayTime(0, duration());
    setLeftTrim(0);
    setRightTrim(1);
    showPlayButton(false);
    timerForPlay_.start();
}

void AudioTrimWndController::runModal() {
    window_->restoreSize();
    ui_->btnCancel_->setText(Platform::Alerts::cancelLabel());
    ui_->audioTrimEditView_->setFocus();
    ToolControl::showWindowNib(*this);
    const QPointer<AudioTrimWndController> self(this);
    window_->exec();
    if (!self)
        return;
    stopAudio();
    timerForPlay_.stop();
    outline_->stop();
    audioPlayControl_.reset(); // closes the file
}

void AudioTrimWndController::keyPressed(QKeyEvent& event) {
    if (event.modifiers() & ~Qt::KeypadModifier)
        return;
    if (event.key() == Qt::Key_Space)
        togglePlayAudio();
    else if (event.key() == Qt::Key_P)
        previewEditAudio();
    else if (event.key() == Qt::Key_I)
        leftTrim();
    else if (event.key() == Qt::Key_O)
        rightTrim();
    else
        return;
    event.accept();
}

void AudioTrimWndController::showPlayButton(bool playing) {
    const QString image = playing ? u"Pause.png"_s : u"Play.png"_s;
    ui_->btnPlay_->setProperty("image", image);
    ui_->btnPlay_->setIcon(NamedImages::icon(image));
    ui_->btnPlay_->setText(playing ? tr("Pause") : tr("Play"));
}

void AudioTrimWndController::togglePlayAudio() {
    if (audioPlayControl_ && audioPlayControl_->isPlaying())
        pauseAudio();
    else
        playAudio();
}

void AudioTrimWndController::playAudio() {
    if (audioPlayControl_)
        audioPlayControl_->play();
    showPlayButton(true);
    // The timer resets the button when nothing plays.
}

void AudioTrimWndController::pauseAudio() {
    if (audioPlayControl_)
        audioPlayControl_->pause();
    showPlayButton(false);
}

void AudioTrimWndController::stopAudio() {
    previewEnd_.stop();
    if (audioPlayControl_)
        audioPlayControl_->stop();
    showPlayButton(false);
}

void AudioTrimWndController::previewEditAudio() {
    isPreview_ = true;
    seekPlay(ui_->audioTrimEditView_->leftTrimRate());
    playAudio();
}

void AudioTrimWndController::leftTrim() {
    ui_->audioTrimEditView_->setLastHandle(AudioTrimEditView::LeftHandle);
    setLeftTrim(ui_->audioTrimEditView_->playRate());
}

void AudioTrimWndController::rightTrim() {
    ui_->audioTrimEditView_->setLastHandle(AudioTrimEditView::RightHandle);
    setRightTrim(ui_->audioTrimEditView_->playRate());
}

void AudioTrimWndController::seekPlay(float rate) {
    ui_->audioTrimEditView_->setPlayRate(rate);
    if (audioPlayControl_)
        audioPlayControl_->setCurrentTime(duration() * double(rate));
}

void AudioTrimWndController::setLeftTrim(float rate) {
    ui_->audioTrimEditView_->setLeftTrimRate(rate);
    showRange();
}

void AudioTrimWndController::setRightTrim(float rate) {
    ui_->audioTrimEditView_->setRightTrimRate(rate);
    showRange();
}

void AudioTrimWndController::showRange() {
    const auto time = [this](float rate) { return ToolControl::getTimeString(qint64(double(rate) * duration())); };
    const float left = ui_->audioTrimEditView_->leftTrimRate();
    const float right = ui_->audioTrimEditView_->rightTrimRate();
    ui_->lblLeftTrimTime_->setText(time(left));
    ui_->lblRightTrimTime_->setText(time(right));
    ui_->lblTrimAudiolength_->setText(time(right - left));
    ui_->rangeTimesView_->place();
    const bool longEnough = double(right - left) * duration() >= AudioTrimSave::kShortestRange;
    for (QPushButton* button : {ui_->btnSave_, ui_->btnSaveAs_}) {
        button->setEnabled(longEnough);
        button->setToolTip(longEnough ? QString() : tr("The range is shorter than a tenth of a second."));
    }
}

void AudioTrimWndController::playTimeForAudio(float rate, double audioLength) {
    ui_->audioTrimEditView_->setPlayRate(rate);
    showPlayTime(double(rate) * audioLength, audioLength);
    if (isPreview_ && ui_->audioTrimEditView_->rightTrimRate() <= rate)
        playTheAudioEnd();
}

void AudioTrimWndController::showPlayTime(double seconds, double audioLength) {
    ui_->lblPlayTime_->setText(ToolControl::getTimeString(qint64(seconds)) + u'/' +
                               ToolControl::getTimeString(qint64(audioLength)));
}

void AudioTrimWndController::audioPlayTrimAudioUpdateTimer() {
    if (!audioPlayControl_)
        return;
    const double length = duration();
    const double now = audioPlayControl_->currentTime();
    const double rate = length > 0 ? now / length : 0;
    const float right = ui_->audioTrimEditView_->rightTrimRate();
    ui_->audioTrimEditView_->setPlayRate(float(rate));
    showPlayTime(now, length);
    if (isPreview_ && double(right) <= rate)
        playTheAudioEnd();
    else if (isPreview_ && audioPlayControl_->isPlaying() && (double(right) - rate) * length < kTickMs / 1000.0)
        previewEnd_.start(std::max(1, int((double(right) - rate) * length * 1000)));
    // The sound stopped by itself: the file could not be played, or the sound server went away.
    const bool brokenOff = audioPlayControl_->isStop() && ui_->btnPlay_->property("image") == u"Pause.png"_s;
    if (now >= length - kEndOfFile || brokenOff)
        playTheAudioEnd();
}

void AudioTrimWndController::playTheAudioEnd() {
    isPreview_ = false;
    stopAudio();
}

bool AudioTrimWndController::refuse() {
    const float left = ui_->audioTrimEditView_->leftTrimRate();
    const float right = ui_->audioTrimEditView_->rightTrimRate();
    QString why = AudioTrimSave::refusal(sourcePath(), double(left) * duration(), double(right) * duration());
    if (why.isEmpty() && delegate_ && delegate_->isFilePlaying(sourcePath()))
        why = tr("The file is being played.");
    if (why.isEmpty())
        return false;
    (void)Platform::services().alerts->runModal(tr("The recording cannot be saved."), why,
                                                {Platform::Alerts::okLabel()});
    return true;
}

void AudioTrimWndController::saveAudio() {
    if (waitWndController_->isSheetUp())
        return;
    pauseAudio();
    if (refuse())
        return;
    const QString question = tr("Do you want to replace \"%1\" audio file.").arg(sourcePath());
    if (Platform::services().alerts->runModal(tr("Waring:"), question,
                                              {Platform::Alerts::okLabel(), Platform::Alerts::cancelLabel()}) != 0)
        return;
    stopAudio();
    strExportAudioPath_ = AudioTrimSave::exportPath(sourcePath());
    save(true);
}

void AudioTrimWndController::saveAsAudio() {
    if (waitWndController_->isSheetUp())
        return;
    pauseAudio();
    if (refuse())
        return;
    const auto chosen = Platform::services().panels->saveFile(
        window_, tr("Save As"), AudioTrimSave::exportPath(sourcePath()), Platform::Panels::Existing::Unasked);
    if (!chosen)
        return;
    strExportAudioPath_ = AudioTrimSave::exportPath(*chosen);
    const QFileInfo target(strExportAudioPath_);
    if (target.exists() || target.isSymLink()) {
        (void)Platform::services().alerts->runModal(
            tr("Warning:"), tr("This path exists, please change the path or name."), {Platform::Alerts::okLabel()});
        return;
    }
    save(false);
}

void AudioTrimWndController::save(bool replace) {
    replaces_ = replace;
    startConverter();
    converterAudio();
}

void AudioTrimWndController::startConverter() {
    waitWndController_->beginSheet(window_, [this] { converterSheetDidEnd(); });
    waitWndController_->setIsWorking(tr("Converting Audio......"));
}

void AudioTrimWndController::converterAudio() {
    AudioTrimSave::Task task;
    task.source = sourcePath();
    task.exportPath = strExportAudioPath_;
    task.from = float(double(ui_->audioTrimEditView_->leftTrimRate()) * duration());
    task.to = float(double(ui_->audioTrimEditView_->rightTrimRate()) * duration());
    task.entry = trimAudioSourceDic_;
    task.replace = replaces_;
    // Images are encoded here: their file names are numbered on the main thread.
    const QImage artwork = QImage::fromData(trimAudioSourceDic_.value(AudioRecordEntry::Artwork).toByteArray());
    if (!artwork.isNull())
        task.artworkPath = ID3ChangeControl::createPathForImage(artwork);
    joinWorker();
    worker_ = std::thread([this, task] {
        auto shown = std::chrono::steady_clock::now();
        auto result = std::make_shared<AudioTrimSave::Result>(
            AudioTrimSave::run(*converterAudioControl_, task, [&](double share) {
                const auto now = std::chrono::steady_clock::now();
                if (now - shown >= kProgressEvery) {
                    shown = now;
                    Platform::MainQueue::post(this, [this, share] { waitWndController_->setProgress(share); });
                }
                return !cancelled_;
            }));
        if (!task.artworkPath.isEmpty())
            (void)Platform::FileManager::removeFile(task.artworkPath);
        Platform::MainQueue::post(this, [this, result] { converted(std::move(*result)); });
    });
}

void AudioTrimWndController::converted(AudioTrimSave::Result result) {
    joinWorker();
    result_ = std::move(result);
    if (result_.done && replaces_) {
        const auto range = ui_->audioTrimEditView_->rightTrimRate() - ui_->audioTrimEditView_->leftTrimRate();
        trimAudioSourceDic_.insert(AudioRecordEntry::Length, float(double(range) * duration()));
    }
    waitWndController_->setStopWork();
}

void AudioTrimWndController::converterSheetDidEnd() {
    stopAudio();
    AudioTrimSave::Result result = std::exchange(result_, {});
    updateFile(sourcePath(), trimAudioSourceDic_);
    if (result.note)
        result.note->end();
    if (!result.done) {
        (void)Platform::services().alerts->runModal(tr("The recording was not saved."), result.problem,
                                                    {Platform::Alerts::okLabel()});
        return;
    }
    // Nothing is left to cancel. The window continues with the file that is at the path now.
    ui_->btnCancel_->setText(tr("Close"));
    if (replaces_)
        setTrimAudioSourceData(trimAudioSourceDic_);
}

void AudioTrimWndController::updateFile(const QString& path, const Dictionary& tags) {
    if (delegate_)
        delegate_->updateFile(path, tags);
}

void AudioTrimWndController::joinWorker() {
    if (worker_.joinable())
        worker_.join();
}

void AudioTrimWndController::cancelTrimAudio() {
    if (waitWndController_->isSheetUp())
        return;
    window_->done(QDialog::Rejected);
}

bool AudioTrimWndController::isWindowVisible() const {
    return window_->isVisible();
}

void AudioTrimWndController::showWindow() {
    window_->show();
}

void AudioTrimWndController::makeKeyAndOrderFront() {
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void AudioTrimWndController::center() {
    window_->center();
}
