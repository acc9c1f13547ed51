// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/RingtoneMakerViewController.h"

#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Translations.h"
#include "RingtoneMaker/AudioOutline.h"
#include "RingtoneMaker/ValueTransformers.h"
#include "RingtoneMaker/WaveImage.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/Announcement.h"
#include "Source/View/EditDialog.h"
#include "Source/View/NamedImages.h"
#include "ui_RingtoneMakerViewController.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTick = 100;        ///< ms
constexpr int kEnvelopeTick = 20; ///< ms; a step of a fade of five seconds is then 0.4 % of the whole
constexpr int kRulerHeight = 32;
constexpr float kLongestSelection = 40; ///< seconds of the first selection

std::unique_ptr<RingtoneMakerViewController>& instance() {
    static std::unique_ptr<RingtoneMakerViewController> controller;
    return controller;
}

} // namespace

RingtoneMakerViewController& RingtoneMakerViewController::shareController() {
    auto& controller = instance();
    if (!controller) {
        controller = std::make_unique<RingtoneMakerViewController>();
        qAddPostRoutine([] { instance().reset(); }); // the window must not outlive the application
    }
    return *controller;
}

RingtoneMakerViewController::RingtoneMakerViewController()
    : window_(std::make_unique<EditDialog>(u"RingtoneMakerLayout"_s, QSize(860, 460))),
      ui_(std::make_unique<Ui::RingtoneMakerViewController>()), outline_(std::make_unique<AudioOutline>()),
      converterAudioControl_(std::make_unique<ConverterAudioControl>()) {
    ui_->setupUi(window_.get());
    window_->setMinimumSize(640, 400);
    layViews();
    bindControls();
    connect(window_.get(), &EditDialog::cancelled, this, &RingtoneMakerViewController::closeWindow);
    connect(window_.get(), &EditDialog::keyPressed, this, &RingtoneMakerViewController::keyPressed);
    connect(outline_.get(), &AudioOutline::grew, this, &RingtoneMakerViewController::growWaveImage);
    connect(outline_.get(), &AudioOutline::loaded, this, &RingtoneMakerViewController::finishGenerateWaveImage);
    audioPlayUpdateTimer_.setInterval(kTick);
    audioPlayUpdateTimer_.setTimerType(Qt::PreciseTimer);
    connect(&audioPlayUpdateTimer_, &QTimer::timeout, this,
            &RingtoneMakerViewController::audioPlayUpdateTimerFireMethod);
    envelopeTimer_.setInterval(kEnvelopeTick);
    envelopeTimer_.setTimerType(Qt::PreciseTimer);
    connect(&envelopeTimer_, &QTimer::timeout, this, [this] {
        updatePlaySoundPreviewCurrentTime();
        updatePlaySoundVolume();
    });
}

RingtoneMakerViewController::~RingtoneMakerViewController() {
    stopWriting_ = true;
    outline_->stop();
    window_.reset(); // first: a visible window moves its focus while it is destroyed, and the fields report that here
}

void RingtoneMakerViewController::layViews() {
    QScrollArea& area = *ui_->audioEditScrollView;
    const int height = kRulerHeight + WaveImage::kHeight;
    area.setFixedHeight(height + area.horizontalScrollBar()->sizeHint().height());
    area.horizontalScrollBar()->setSingleStep(int(kPointsPerSecond));
    area.viewport()->setAutoFillBackground(false);
    area.setLayoutDirection(Qt::LeftToRight); // time runs from left to right in every language
    ui_->audioEditContainerView->setAutoFillBackground(false);
    ui_->audioEditContainerView->resize(100, height);
    area.viewport()->installEventFilter(this);
    ui_->audioWaveTrimView->setFrame(QRectF(0, kRulerHeight, 0, WaveImage::kHeight));
    ui_->audioPointerLineView->resize(AudioPointerLineView::kWidth, height);
    ui_->audioPointerLineView->raise();
    ui_->audioWaveEditView->installEventFilter(this); // its arrow keys move the selection
    ui_->audioEditTimeView->setDelegate(this);
    ui_->audioWaveEditView->setDelegate(this);
    ui_->audioWaveTrimView->setDelegate(this);
    resizeContainer();
}

void RingtoneMakerViewController::bindControls() {
    ui_->btnPlay->setIcon(NamedImages::icon(u"play"_s));
    ui_->btnPreview->setIcon(NamedImages::icon(u"repeat"_s));
    connect(ui_->btnPlay, &QPushButton::clicked, this, &RingtoneMakerViewController::setPlaySound);
    connect(ui_->btnPreview, &QPushButton::clicked, this, &RingtoneMakerViewController::setPreviewSound);
    connect(this, &RingtoneMakerViewController::playSoundChanged, this, [this] {
        ui_->btnPlay->setChecked(playSound());
        ui_->btnPlay->setIcon(NamedImages::icon(playSound() ? u"pause"_s : u"play"_s));
        ui_->btnPlay->setText(playSound() ? tr("&Pause") : tr("&Play"));
    });
    connect(this, &RingtoneMakerViewController::previewSoundChanged, this,
            [this] { ui_->btnPreview->setChecked(previewSound()); });

    AudioWaveTrimView* const selection = ui_->audioWaveTrimView;
    connect(selection, &AudioWaveTrimView::audioFromTimeChanged, this, &RingtoneMakerViewController::followSelection);
    connect(ui_->fromField, &AudioTimeField::secondsEdited, selection,
            [selection](int seconds) { selection->setAudioFromTime(float(seconds)); });
    connect(ui_->toField, &AudioTimeField::secondsEdited, selection,
            [selection](int seconds) { selection->setAudioToTime(float(seconds)); });

    connect(ui_->fadeInBox, &QCheckBox::toggled, this, &RingtoneMakerViewController::setFadeInEnable);
    connect(ui_->fadeOutBox, &QCheckBox::toggled, this, &RingtoneMakerViewController::setFadeOutEnable);
    connect(ui_->fadeInField, &QDoubleSpinBox::valueChanged, this, [this](double s) { setFadeIn(float(s)); });
    connect(ui_->fadeOutField, &QDoubleSpinBox::valueChanged, this, [this](double s) { setFadeOut(float(s)); });
    connect(ui_->transferBox, &QCheckBox::toggled, this, &RingtoneMakerViewController::setTransferToITunes);
    connect(this, &RingtoneMakerViewController::fadesChanged, this, [this] {
        ui_->fadeInField->setValue(double(fadeIn_));
        ui_->fadeOutField->setValue(double(fadeOut_));
        ui_->fadeInBox->setChecked(fadeInEnable_);
        ui_->fadeOutBox->setChecked(fadeOutEnable_);
    });
    connect(this, &RingtoneMakerViewController::transferToITunesChanged, ui_->transferBox,
            [this] { ui_->transferBox->setChecked(transferToITunes_); });
    Q_EMIT fadesChanged();

    connect(ui_->makeButton, &QPushButton::clicked, this, &RingtoneMakerViewController::startConvert);
    connect(ui_->cancelButton, &QPushButton::clicked, this, &RingtoneMakerViewController::closeWindow);
    ui_->progressBar->setVisible(false);
}

// ---- the file -------------------------------------------------------------------------------------------------------

void RingtoneMakerViewController::openFile(const QString& path, const Dictionary& tag) {
    audioTag_ = tag;
    stopPlay();
    sound_ = std::make_unique<CustomSound>(path);
    resizeContainer();

    const QString title = tag.value(AudioRecordEntry::Title).isValid()
                              ? Platform::stringForm(tag.value(AudioRecordEntry::Title))
                              : QFileInfo(path).completeBaseName();
    window_->setWindowTitle(tr("Ringtone from “%1”").arg(title));
    ui_->audioWaveEditView->setMessage({});
    ui_->audioWaveEditView->setDescription(
        tr("%1, %2").arg(title, AudioWaveTime2TimeStringTransformer().transformedValue(soundDuration()).toString()));
    showProblem({});

    ui_->audioWaveEditView->setViewContentCache(nullptr);
    ui_->audioWaveTrimView->setAudioFrom(0);
    ui_->audioWaveTrimView->setAudioLength(std::min(kLongestSelection, soundDuration()) * kPointsPerSecond);
    ui_->audioWaveTrimView->setFocus();
    ui_->audioPointerLineView->setPosition(0);
    ui_->audioEditScrollView->horizontalScrollBar()->setValue(0);
    beginGenerateWaveImage();
    createDudioPlayUpdateTimer();
    updateEnabled();
}

void RingtoneMakerViewController::resizeContainer() {
    const int height = kRulerHeight + WaveImage::kHeight;
    const int sound = int(std::min(double(soundDuration()) * double(kPointsPerSecond), double(QWIDGETSIZE_MAX)));
    const int width = std::max(sound, ui_->audioEditScrollView->viewport()->width());
    ui_->audioEditContainerView->resize(width, height);
    ui_->audioEditTimeView->setGeometry(0, 0, width, kRulerHeight);
    ui_->audioWaveEditView->setGeometry(0, kRulerHeight, width, WaveImage::kHeight);
}

void RingtoneMakerViewController::beginGenerateWaveImage() {
    generatingWave_ = true;
    Q_EMIT generatingWaveChanged();
    outline_->load(sound_->path());
}

void RingtoneMakerViewController::growWaveImage(qsizetype first) {
    const auto& values = outline_->values();
    if (values.size() < WaveImage::kFewestValues)
        return;
    auto strip = ui_->audioWaveEditView->viewContentCache();
    if (!strip) {
        strip =
            std::make_shared<ImageStrip>(QSizeF(0, WaveImage::kHeight), [this](QPainter& painter, const QRectF& area) {
                WaveImage::paint(painter, outline_->values(), qsizetype(area.left()), qsizetype(area.right()) + 1);
            });
        ui_->audioWaveEditView->setViewContentCache(strip);
    }
    strip->setSize(QSizeF(double(values.size()), WaveImage::kHeight));
    strip->forget(double(first));
    ui_->audioWaveEditView->update(QRect(int(first), 0, int(values.size() - first), WaveImage::kHeight));
}

void RingtoneMakerViewController::finishGenerateWaveImage() {
    generatingWave_ = false;
    Q_EMIT generatingWaveChanged();
    ui_->audioWaveEditView->setViewContentCache(nullptr);
    growWaveImage(0);
    if (!outline_->problem().isEmpty())
        ui_->audioWaveEditView->setMessage(tr("This recording cannot be read: %1").arg(outline_->problem()));
}

// ---- the window -----------------------------------------------------------------------------------------------------

void RingtoneMakerViewController::showWindow(QWidget* owner) {
    const QPointer<QWidget> above(owner);
    window_->setParent(owner, window_->windowFlags());
    window_->setWindowModality(Qt::ApplicationModal);
    window_->restoreSize();
    window_->center();
    ui_->audioWaveTrimView->setFocus();
    window_->exec();
    // The owner may be destroyed before this window, which is reused.
    if (above)
        window_->setParent(nullptr, window_->windowFlags());
}

void RingtoneMakerViewController::closeWindow() {
    if (writing_) {
        stopWriting_ = true; // converterAudio() closes the window
        return;
    }
    windowWillClose();
    window_->done(QDialog::Rejected);
}

void RingtoneMakerViewController::windowWillClose() {
    stopPlay();
    destroyDudioPlayUpdateTimer();
    outline_->stop();
    sound_.reset();
}

bool RingtoneMakerViewController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->audioEditScrollView->viewport() && event->type() == QEvent::Resize) {
        resizeContainer();
    } else if (watched == ui_->audioWaveEditView && event->type() == QEvent::KeyPress) {
        if (ui_->audioWaveTrimView->moveByKey(static_cast<QKeyEvent&>(*event)))
            return true;
    }
    return QObject::eventFilter(watched, event);
}

void RingtoneMakerViewController::keyPressed(QKeyEvent* event) {
    if (writing_ || !ui_->btnPlay->isEnabled() || (event->modifiers() & ~Qt::KeypadModifier))
        return;
    // I and O draw a selection of any length, as a drag on the outline does: one end is at the pointer, the other
    // stays.
    const AudioWaveTrimView& selection = *ui_->audioWaveTrimView;
    const auto pointer = double(ui_->audioPointerLineView->position());
    const auto begin = double(selection.audioFrom());
    const double end = begin + double(selection.audioLength());
    switch (event->key()) {
    case Qt::Key_Space:
        setPlaySound(!playSound());
        break;
    case Qt::Key_P:
        setPreviewSound(!previewSound());
        break;
    case Qt::Key_I:
        trimAudioFromPoint({pointer, 0}, {end, 0});
        break;
    case Qt::Key_O:
        trimAudioFromPoint({begin, 0}, {pointer, 0});
        break;
    default:
        return;
    }
    event->accept();
}

void RingtoneMakerViewController::followSelection() {
    const AudioWaveTrimView& selection = *ui_->audioWaveTrimView;
    ui_->fromField->setSeconds(selection.audioFromTime());
    ui_->toField->setSeconds(selection.audioToTime());
    ui_->lengthLabel->setText(
        tr("%1 seconds")
            .arg(Platform::Translations::decimal(double(selection.audioLength() / kPointsPerSecond), 'f', 1)));
    updateEnabled();
}

void RingtoneMakerViewController::updateEnabled() {
    const bool readable = soundDuration() > 0;
    const bool idle = !writing_;
    for (QWidget* each : std::initializer_list<QWidget*>{ui_->audioEditScrollView, ui_->btnPlay, ui_->btnPreview,
                                                         ui_->fromField, ui_->toField, ui_->fadeInBox, ui_->fadeInField,
                                                         ui_->fadeOutBox, ui_->fadeOutField, ui_->transferBox})
        each->setEnabled(idle && readable);
    ui_->makeButton->setEnabled(idle && readable && ui_->audioWaveTrimView->audioLength() >= 1);
    ui_->makeButton->setToolTip(!readable                      ? tr("This recording cannot be read.")
                                : ui_->makeButton->isEnabled() ? QString()
                                                               : tr("Select a part of the recording first."));
}

void RingtoneMakerViewController::showProblem(const QString& text) {
    ui_->problemLabel->setText(text);
    ui_->problemLabel->setVisible(!text.isEmpty());
    Announcement::say(*window_, text);
}

// ---- listening ------------------------------------------------------------------------------------------------------

float RingtoneMakerViewController::soundDuration() const {
    return sound_ ? float(sound_->duration()) : 0;
}

float RingtoneMakerViewController::audioPosition() const {
    return sound_ ? float(sound_->currentTime()) * kPointsPerSecond : 0;
}

void RingtoneMakerViewController::trimAudioFromPoint(QPointF from, QPointF to) {
    const float limit = soundDuration() * kPointsPerSecond;
    const float one = std::clamp(float(from.x()), 0.0F, limit);
    const float other = std::clamp(float(to.x()), 0.0F, limit);
    ui_->audioWaveTrimView->setAudioFrom(std::min(one, other));
    ui_->audioWaveTrimView->setAudioLength(std::max(one, other) - std::min(one, other));
}

void RingtoneMakerViewController::setAudioPosition(float x) {
    const QRectF container(ui_->audioEditContainerView->rect());
    AudioPointerLineView& pointer = *ui_->audioPointerLineView;
    pointer.setPosition(std::clamp(x, float(container.left()), float(container.width())));
    if (sound_)
        sound_->setCurrentTime(double(pointer.position() / kPointsPerSecond));
    ScrollTo::makeVisible(pointer, QRectF(pointer.rect()));
}

bool RingtoneMakerViewController::playSound() const {
    return sound_ && sound_->isPlaying() && !isPreview_;
}

bool RingtoneMakerViewController::previewSound() const {
    return sound_ && sound_->isPlaying() && isPreview_;
}

void RingtoneMakerViewController::setPlaySound(bool play) {
    setSoundPlaying(play, false);
}

void RingtoneMakerViewController::setPreviewSound(bool preview) {
    setSoundPlaying(preview, true);
}

void RingtoneMakerViewController::setSoundPlaying(bool play, bool preview) {
    isPreview_ = preview;
    wantsSound_ = play && sound_;
    showProblem({});
    if (wantsSound_) {
        // Like the first tick: nothing outside the selection is played, and nothing too loud.
        if (isPreview_)
            updatePlaySoundPreviewCurrentTime();
        updatePlaySoundVolume();
        sound_->play();
        envelopeTimer_.start();
        if (!sound_->isPlaying()) {
            wantsSound_ = false;
            const QString why = sound_->sound() ? sound_->sound()->lastError() : QString();
            showProblem(why.isEmpty() ? tr("This recording cannot be played.")
                                      : tr("This recording cannot be played: %1").arg(why));
        }
    } else if (sound_) {
        sound_->pause();
    }
    if (!wantsSound_)
        envelopeTimer_.stop();
    QMetaObject::invokeMethod(this, &RingtoneMakerViewController::updatePlaySoundState, Qt::QueuedConnection);
}

void RingtoneMakerViewController::stopPlay() {
    wantsSound_ = false;
    envelopeTimer_.stop();
    if (sound_)
        sound_->stop();
    QMetaObject::invokeMethod(this, &RingtoneMakerViewController::updatePlaySoundState, Qt::QueuedConnection);
}

void RingtoneMakerViewController::updatePlaySoundState() {
    Q_EMIT playSoundChanged();
    Q_EMIT previewSoundChanged();
}

void RingtoneMakerViewController::createDudioPlayUpdateTimer() {
    destroyDudioPlayUpdateTimer();
    audioPlayUpdateTimer_.start();
}

void RingtoneMakerViewController::destroyDudioPlayUpdateTimer() {
    audioPlayUpdateTimer_.stop();
}

void RingtoneMakerViewController::audioPlayUpdateTimerFireMethod() {
    updatePlaySoundPreviewCurrentTime();
    updatePlaySoundVolume();
    updatePlaySoundCurrentTime();
    QMetaObject::invokeMethod(this, &RingtoneMakerViewController::updatePlaySoundState, Qt::QueuedConnection);
}

void RingtoneMakerViewController::updatePlaySoundPreviewCurrentTime() {
    if (!sound_ || !isPreview_ || !(wantsSound_ || previewSound()))
        return;
    const AudioWaveTrimView& selection = *ui_->audioWaveTrimView;
    const double now = sound_->currentTime();
    const auto from = double(selection.audioFromTime());
    if (now < from || now > double(selection.audioToTime()))
        sound_->setCurrentTime(from);
    // A selection that reaches to the end of the file: the player has stopped by itself before the time went beyond the
    // selection.
    if (wantsSound_ && sound_->isStop() && envelopeTimer_.isActive()) {
        sound_->setCurrentTime(from);
        sound_->play();
        if (!sound_->isPlaying())
            stopPlay();
    }
}

void RingtoneMakerViewController::updatePlaySoundVolume() {
    if (!sound_)
        return;
    const AudioWaveTrimView& selection = *ui_->audioWaveTrimView;
    // A new volume takes effect after a delay, so compute the volume for that time. Otherwise each fade would be late,
    // an error of almost a decibel where it is quiet.
    const double now = sound_->currentTime() + sound_->volumeDelay();
    double gain = 1;
    const auto fade = [&gain](bool enabled, double length, double distance) {
        if (!enabled || length <= double(0.1F))
            return;
        if (distance > -0.2 && distance < 0)
            gain = 0;
        else if (distance > 0 && distance < length)
            gain = gain / length * distance;
    };
    fade(fadeOutEnable_, double(fadeOut_), double(selection.audioToTime()) - now);
    fade(fadeInEnable_, double(fadeIn_), now - double(selection.audioFromTime()));
    sound_->setVolume(float(std::clamp(gain, 0.0, 1.0)));
}

void RingtoneMakerViewController::updatePlaySoundCurrentTime() {
    if (!sound_)
        return;
    Q_EMIT currentTimeChanged();
    AudioPointerLineView& pointer = *ui_->audioPointerLineView;
    pointer.setPosition(audioPosition());
    if (sound_->isPlaying())
        ScrollTo::makeVisible(pointer, QRectF(pointer.rect()));
    else if (wantsSound_ && !isPreview_ && sound_->isStop())
        stopPlay(); // the file ended
}

void RingtoneMakerViewController::setFadeIn(float seconds) {
    if (fadeIn_ == seconds)
        return;
    fadeIn_ = seconds;
    Q_EMIT fadesChanged();
}

void RingtoneMakerViewController::setFadeOut(float seconds) {
    if (fadeOut_ == seconds)
        return;
    fadeOut_ = seconds;
    Q_EMIT fadesChanged();
}

void RingtoneMakerViewController::setFadeInEnable(bool enable) {
    if (fadeInEnable_ == enable)
        return;
    fadeInEnable_ = enable;
    Q_EMIT fadesChanged();
}

void RingtoneMakerViewController::setFadeOutEnable(bool enable) {
    if (fadeOutEnable_ == enable)
        return;
    fadeOutEnable_ = enable;
    Q_EMIT fadesChanged();
}

void RingtoneMakerViewController::setTransferToITunes(bool transfer) {
    if (transferToITunes_ == transfer)
        return;
    transferToITunes_ = transfer;
    Q_EMIT transferToITunesChanged();
}
