// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/AudioWaveViewController/AudioWaveViewController.h"

#include "Platform/Foundation/MainQueue.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"
#include "Source/AudioWaveViewController/BackViews.h"
#include "Source/Record/RecordStateController.h"
#include "Source/View/Announcement.h"
#include "Source/View/NamedImages.h"
#include "Source/View/PathText.h"
#include "Source/View/SpokenField.h"
#include "Source/View/Theme.h"
#include "ui_AudioWaveViewController.h"

#include <QDir>
#include <QEvent>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int tickMilliseconds = 100;
constexpr int restMilliseconds = 500; ///< of a window that nobody sees
constexpr qreal timePointSize = 28;
constexpr int timesFrom = 160; ///< a narrower playback side shows no times beside its bar
constexpr int wordsFrom = 420; ///< a narrower panel has no room for the words on the button beside a notice

// "3:07", "1:02:03"; a minus sign marks remaining time.
QString clockText(double seconds, bool left) {
    const auto whole = std::llround(std::floor(std::max(0.0, seconds)));
    const auto hours = whole / 3600;
    const auto minutes = whole / 60 % 60;
    const QString sign = left ? u"\u2212"_s : QString();
    const QChar zero = u'0';
    if (hours > 0)
        return sign + u"%1:%2:%3"_s.arg(hours).arg(minutes, 2, 10, zero).arg(whole % 60, 2, 10, zero);
    return sign + u"%1:%2"_s.arg(minutes).arg(whole % 60, 2, 10, zero);
}

QFont scaled(QFont font, qreal points, QFont::Weight weight = QFont::Normal) {
    font.setPointSizeF(points);
    font.setWeight(weight);
    return font;
}

/// The text in at most so many lines, elided at the end, because the important part comes first.
QString inLines(int lines, const QString& text, const QFontMetrics& metrics, int room) {
    if (metrics.horizontalAdvance(text) <= room)
        return text;
    qsizetype end = 0; // of the first line, between two words
    for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1))
        if (metrics.horizontalAdvance(text.left(blank)) <= room)
            end = blank;
    if (end == 0 || lines == 1)
        return metrics.elidedText(text, Qt::ElideRight, room);
    return text.left(end) + u'\n' + inLines(lines - 1, text.mid(end + 1), metrics, room);
}

/// A notice in two lines. A path is on the second line, elided in the middle.
QString inTwoLines(const RecordNotice& notice, const QFontMetrics& metrics, int room) {
    if (notice.path.isEmpty())
        return inLines(2, notice.text, metrics, room);
    QString path = notice.path;
    if (const QString home = QDir::homePath(); path.startsWith(home + u'/'))
        path = u'~' + path.mid(home.size());
    return metrics.elidedText(notice.text, Qt::ElideRight, room) + u'\n' +
           pathText(metrics.elidedText(path, Qt::ElideMiddle, room));
}

/// Notices about one event replace each other.
qsizetype indexOf(const RecordNotice& wanted, const QList<RecordNotice>& notices) {
    for (qsizetype i = 0; i < notices.size(); ++i)
        if (wanted.event.isEmpty() ? notices[i] == wanted : notices[i].event == wanted.event)
            return i;
    return -1;
}

void setElided(QLabel* label, const QString& text) {
    const int room = std::max(label->width() - 2, 16);
    const QString shown = label->fontMetrics().elidedText(text, Qt::ElideMiddle, room);
    label->setText(shown);
    label->setToolTip(shown == text ? QString() : text);
    SpokenField::setText(*label, text);
}

QString stateSentence(RecordState state, bool isRecording) {
    switch (state) {
    case RecordState::Idle:
        break;
    case RecordState::Armed:
        return AudioWaveViewController::tr("Waiting for the first sound");
    case RecordState::Recording:
        return isRecording ? AudioWaveViewController::tr("Recording")
                           : AudioWaveViewController::tr("Nothing is being recorded");
    case RecordState::Paused:
        return AudioWaveViewController::tr("Paused");
    case RecordState::Finishing:
        return AudioWaveViewController::tr("Finishing the recording");
    }
    return AudioWaveViewController::tr("Not recording");
}

QString helpText(RecordNotice::Help help) {
    switch (help) {
    case RecordNotice::Help::None:
        break;
    case RecordNotice::Help::Show:
        return AudioWaveViewController::tr("Show");
    case RecordNotice::Help::ChooseDevice:
        return AudioWaveViewController::tr("Choose Device");
    case RecordNotice::Help::Unmute:
        return AudioWaveViewController::tr("Unmute");
    case RecordNotice::Help::FreeSpace:
        return AudioWaveViewController::tr("Free Space …");
    }
    return {};
}

QString helpImage(RecordNotice::Help help) {
    switch (help) {
    case RecordNotice::Help::None:
        break;
    case RecordNotice::Help::Show:
        return u"show"_s;
    case RecordNotice::Help::ChooseDevice:
    case RecordNotice::Help::Unmute:
        return u"microphone"_s;
    case RecordNotice::Help::FreeSpace:
        return u"folder"_s;
    }
    return {};
}

void setGlassIcon(QToolButton* button, const QString& name) {
    button->setIcon(NamedImages::icon(
        name, [](QIcon::Mode mode) { return mode == QIcon::Active ? Theme::Glass::text() : Theme::Glass::dimText(); }));
    button->setIconSize({20, 20});
}

} // namespace

AudioWaveViewController::AudioWaveViewController(QWidget* parent)
    : QObject(parent), ui_(std::make_unique<Ui::AudioWaveViewController>()) {
    view_ = new AudioWaveformBackView(parent);
    ui_->setupUi(view_);
    // Either may be destroyed first: the window deletes its panel; a panel without a window belongs to the controller.
    connect(view_, &QObject::destroyed, this, [this] {
        view_ = nullptr;
        destroyDudioPlayUpdateTimer();
    });
    awakeFromNib();
}

AudioWaveViewController::~AudioWaveViewController() {
    destroyDudioPlayUpdateTimer();
    if (view_) {
        disconnect(view_, nullptr, this, nullptr);
        if (view_->parent())
            audioPlayProgressView()->setDelegate(nullptr);
        else
            delete view_;
    }
}

void AudioWaveViewController::awakeFromNib() {
    const QFont font = view_->font();
    // Large letters: red on the glass has too little contrast for small ones.
    ui_->stateField->setFont(scaled(font, font.pointSizeF() + 4, QFont::Bold));
    ui_->timeField->setFont(scaled(font, timePointSize, QFont::Medium));
    ui_->timeField->setReserve(u"00:00"_s);
    ui_->hintField->hide();
    ui_->titleField->setFont(scaled(font, font.pointSizeF() + 3, QFont::DemiBold));
    QPalette dim = view_->palette();
    dim.setColor(QPalette::WindowText, Theme::Glass::dimText());
    for (QWidget* field : {static_cast<QWidget*>(ui_->artistField), static_cast<QWidget*>(ui_->currentTimeField),
                           static_cast<QWidget*>(ui_->playLeftTimeField)})
        field->setPalette(dim);
    ui_->playLeftTimeField->setAlignment(Qt::AlignRight);
    ui_->noticeMark->setPixmap(NamedImages::pixmap(u"warning"_s, {16, 16}, 2, Theme::Glass::warning()));
    setGlassIcon(ui_->changeTabViewButton, u"switch-display"_s);
    setGlassIcon(ui_->dismissNoticeButton, u"close"_s);
    // The line uses free space below the time, so the panel keeps its height.
    ui_->noticeField->setFont(scaled(font, font.pointSizeF() - 1.5));
    ui_->noticeLine->setFixedHeight(2 * QFontMetrics(ui_->noticeField->font()).height());
    ui_->dismissNoticeButton->setIconSize({16, 16});
    ui_->dismissNoticeButton->setFixedSize(24, 24);
    for (QWidget* elided : {ui_->titleField, ui_->artistField, ui_->noticeField, ui_->hintField})
        elided->installEventFilter(this);
    view_->installEventFilter(this);

    ui_->audioPlayProgressView->setDelegate(this);
    connect(ui_->changeTabViewButton, &QToolButton::clicked, this, &AudioWaveViewController::changeTabView);
    ui_->helpButton->setFont(scaled(font, font.pointSizeF() - 1.5, QFont::DemiBold));
    connect(ui_->helpButton, &QToolButton::clicked, this, &AudioWaveViewController::askForHelp);
    ui_->nextNoticeButton->setFont(scaled(font, font.pointSizeF() - 1.5, QFont::DemiBold));
    ui_->nextNoticeButton->setIcon(
        NamedImages::icon(u"warning"_s, [](QIcon::Mode) { return Theme::Glass::warning(); }));
    ui_->nextNoticeButton->setIconSize({16, 16});
    ui_->nextNoticeButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(ui_->nextNoticeButton, &QToolButton::clicked, this, &AudioWaveViewController::showNextNotice);
    connect(ui_->dismissNoticeButton, &QToolButton::clicked, this, [this] {
        if (notices_.isEmpty())
            return;
        const RecordNotice seen = notices_[shownNotice_];
        QList<RecordNotice> others = notices_;
        others.removeAt(shownNotice_);
        setNotices(others);
        Q_EMIT noticeDismissed(seen);
    });
    showNotices();

    setTabViewShowWave(true);
    createDudioPlayUpdateTimer();
    setStateColor(Qt::black);
    updatePlaySoundProgress();
}

QWidget* AudioWaveViewController::view() const {
    return view_;
}

QList<QWidget*> AudioWaveViewController::controls() const {
    return {ui_->audioPlayProgressView, ui_->changeTabViewButton, ui_->nextNoticeButton, ui_->helpButton,
            ui_->dismissNoticeButton};
}

AudioPlayProgressView* AudioWaveViewController::audioPlayProgressView() const {
    return ui_->audioPlayProgressView;
}

AudioRecordWaveView* AudioWaveViewController::audioRecordWaveView() const {
    return ui_->audioRecordWaveView;
}

void AudioWaveViewController::setTabViewShowWave(bool show) {
    tabViewShowWave_ = show;
    showTab();
    Q_EMIT tabViewShowWaveChanged();
}

void AudioWaveViewController::showTab() {
    if (!view_)
        return;
    ui_->tabView->setCurrentWidget(tabViewShowWave_ ? ui_->recordPage : ui_->playPage);
    // During a recording, its state and time are also shown on the playback side.
    ui_->recordTextView->setVisible(tabViewShowWave_ || recordState_ != RecordState::Idle);
}

void AudioWaveViewController::setRecordState(RecordState state, bool isRecording) {
    if (view_)
        view_->setRecording(isRecording);
    // The shown text blinks, so screen readers get their own.
    if (const QString sentence = stateSentence(state, isRecording); view_ && sentence != stateSentence_) {
        SpokenField::setText(*ui_->stateField, sentence);
        if (!stateSentence_.isEmpty())
            Announcement::say(*view_, sentence);
        stateSentence_ = sentence;
    }
    if (state == recordState_)
        return;
    recordState_ = state;
    showTab();
}

void AudioWaveViewController::setHint(const QString& hint) {
    if (hint == hint_)
        return;
    hint_ = hint;
    showHint();
    if (view_)
        Announcement::say(*view_, hint_);
}

void AudioWaveViewController::showHint() {
    if (!view_)
        return;
    ui_->hintField->setVisible(!hint_.isEmpty());
    // A narrow panel shows the sentence in smaller letters instead of cutting it off.
    const QFont font = view_->font();
    const int room = std::max(ui_->hintField->width(), 16);
    ui_->hintField->setFont(scaled(font, font.pointSizeF(), QFont::DemiBold));
    QString text = inLines(4, hint_, ui_->hintField->fontMetrics(), room);
    if (text.simplified() != hint_) {
        ui_->hintField->setFont(scaled(font, font.pointSizeF() - 1.5, QFont::DemiBold));
        text = inLines(5, hint_, ui_->hintField->fontMetrics(), room);
    }
    ui_->hintField->setText(text);
    SpokenField::setText(*ui_->hintField, hint_);
    ui_->hintField->setToolTip(hint_);
}

void AudioWaveViewController::changeTabView() {
    setTabViewShowWave(!tabViewShowWave());
}

void AudioWaveViewController::setIsRecording(bool recording) {
    isRecording_ = recording;
    Q_EMIT isRecordingChanged();
}

void AudioWaveViewController::setPlaySound(std::shared_ptr<CustomSound> sound) {
    playSound_ = std::move(sound);
    Q_EMIT playSoundChanged();
    updatePlaySoundProgress();
}

void AudioWaveViewController::setTitle(const QString& title) {
    title_ = title;
    showTitles();
    Q_EMIT titleChanged();
}

void AudioWaveViewController::setArtist(const QString& artist) {
    artist_ = artist;
    showTitles();
    Q_EMIT artistChanged();
}

void AudioWaveViewController::showTitles() {
    if (!view_)
        return;
    setElided(ui_->titleField, title_);
    setElided(ui_->artistField, artist_);
    // Beside the state of a recording a narrow panel has room for the bar only.
    const int needed = ui_->currentTimeField->sizeHint().width() + ui_->playLeftTimeField->sizeHint().width() +
                       ui_->audioPlayProgressView->minimumSizeHint().width() + 2 * ui_->progressLayout->spacing();
    for (QWidget* time : {ui_->currentTimeField, ui_->playLeftTimeField})
        time->setVisible(ui_->titleField->width() >= std::max(timesFrom, needed));
}

void AudioWaveViewController::setStateString(const QString& state) {
    if (state == stateString_)
        return;
    stateString_ = state;
    if (view_)
        ui_->stateField->setText(state);
    Q_EMIT stateStringChanged();
}

void AudioWaveViewController::setTimeString(const QString& time) {
    if (time == timeString_)
        return;
    timeString_ = time;
    if (view_)
        ui_->timeField->setText(time);
    Q_EMIT timeStringChanged();
}

void AudioWaveViewController::setStateColor(const QColor& color) {
    if (color == stateColor_)
        return;
    stateColor_ = color;
    if (view_) {
        QPalette colors = ui_->stateField->palette();
        colors.setColor(QPalette::WindowText, color == QColor(Qt::black) ? Theme::Glass::text() : color);
        ui_->stateField->setPalette(colors);
    }
    Q_EMIT stateColorChanged();
}

void AudioWaveViewController::updateChangeTabViewButtonState() {
    if (view_)
        ui_->changeTabViewButton->setEnabled(changeTabViewButtonState());
    Q_EMIT changeTabViewButtonStateChanged();
}

void AudioWaveViewController::setChangeTabViewButtonState(bool) {
    Platform::MainQueue::post(this, [this] { updateChangeTabViewButtonState(); });
}

double AudioWaveViewController::currentTime() const {
    return playSound_ ? playSound_->currentTime() : 0;
}

double AudioWaveViewController::duration() const {
    return playSound_ ? playSound_->duration() : 0;
}

float AudioWaveViewController::playLeftTime() const {
    return static_cast<float>(duration() - currentTime());
}

void AudioWaveViewController::setAudioPosition(float seconds) {
    const float position = std::fmin(std::fmax(seconds, 0.0F), static_cast<float>(duration()));
    if (playSound_)
        playSound_->setCurrentTime(position);
    updatePlaySoundProgress();
    if (playSound_)
        Q_EMIT audioPositionSet(double(position));
}

void AudioWaveViewController::setNotices(const QList<RecordNotice>& notices) {
    if (notices == notices_)
        return;
    // A new notice is shown at once. Another change leaves the shown one in its place: the user may be about to click.
    const RecordNotice shown = notices_.value(shownNotice_);
    qsizetype next = notices_.isEmpty() ? -1 : indexOf(shown, notices);
    for (const RecordNotice& each : notices) {
        if (indexOf(each, notices_) >= 0)
            continue;
        next = notices.size() - 1;
        if (view_)
            Announcement::say(*view_, each.sentence());
    }
    notices_ = notices;
    shownNotice_ = next < 0 ? std::max<qsizetype>(notices.size() - 1, 0) : next;
    showNotices();
}

QString AudioWaveViewController::noticeHelp() const {
    return notices_.isEmpty() ? QString() : helpText(notices_[shownNotice_].help);
}

void AudioWaveViewController::askForHelp() {
    if (!noticeHelp().isEmpty())
        Q_EMIT helpRequested(RecordNotice(notices_[shownNotice_])); // a copy: the answer may remove it from the list
}

void AudioWaveViewController::showNextNotice() {
    if (notices_.size() < 2)
        return;
    shownNotice_ = (shownNotice_ + notices_.size() - 1) % notices_.size(); // the newest one first
    showNotices();
    Q_EMIT shownNoticeChanged();
}

void AudioWaveViewController::showNotices() {
    if (!view_)
        return;
    ui_->noticeLine->setVisible(!notices_.isEmpty());
    if (notices_.isEmpty())
        return;
    // The line shows one notice, its tool tip shows all of them.
    const RecordNotice& shown = notices_[shownNotice_];
    const QString help = helpText(shown.help);
    if (!help.isEmpty())
        ui_->helpButton->setIcon(
            NamedImages::icon(helpImage(shown.help), [](QIcon::Mode) { return Theme::Glass::text(); }));
    ui_->helpButton->setIconSize({16, 16});
    ui_->helpButton->setToolButtonStyle(view_->width() < wordsFrom ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    ui_->helpButton->setText(help);
    ui_->helpButton->setToolTip(help);
    ui_->helpButton->setVisible(!help.isEmpty());
    ui_->helpButton->setAccessibleName(help);
    // With several notices the mark is the button that leads through them.
    const auto place = notices_.size() - shownNotice_;
    ui_->noticeMark->setVisible(notices_.size() == 1);
    ui_->nextNoticeButton->setVisible(notices_.size() > 1);
    ui_->nextNoticeButton->setText(u"%1/%2"_s.arg(place).arg(notices_.size()));
    ui_->nextNoticeButton->setAccessibleName(tr("Notice %1 of %2. Show the next one").arg(place).arg(notices_.size()));
    QStringList all;
    for (const RecordNotice& notice : notices_)
        all.append(notice.sentence());
    ui_->noticeField->setText(
        inTwoLines(shown, ui_->noticeField->fontMetrics(), std::max(ui_->noticeField->width(), 16)));
    ui_->noticeField->setToolTip(all.join(u'\n'));
    SpokenField::setText(*ui_->noticeField, shown.sentence());
}

bool AudioWaveViewController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched == view_)
        setTimerInterval(tickMilliseconds);
    if (event->type() == QEvent::Resize && view_) {
        showTitles();
        if (watched == ui_->noticeField)
            showNotices();
        if (watched == ui_->hintField)
            showHint();
    }
    return QObject::eventFilter(watched, event);
}

void AudioWaveViewController::createDudioPlayUpdateTimer() {
    destroyDudioPlayUpdateTimer();
    audioPlayUpdateTimer_ = std::make_unique<QTimer>();
    audioPlayUpdateTimer_->setTimerType(Qt::PreciseTimer);
    connect(audioPlayUpdateTimer_.get(), &QTimer::timeout, this, &AudioWaveViewController::tick);
    audioPlayUpdateTimer_->start(tickMilliseconds);
}

/// In a window that nobody sees the timer fires twice a second only. The level history still moves by one column for
/// each tenth of a second.
void AudioWaveViewController::tick() {
    const int interval = audioPlayUpdateTimer_->interval();
    const bool isSeen = view_ && AudioRecordWaveView::isSeen(*view_);
    setTimerInterval(isSeen ? tickMilliseconds : restMilliseconds);
    if (std::exchange(isSeen_, isSeen) != isSeen)
        Q_EMIT seenChanged(isSeen);
    for (int passed = tickMilliseconds; passed < interval; passed += tickMilliseconds)
        updateAudioWaveView();
    audioPlayUpdateTimerFireMethod();
}

void AudioWaveViewController::setTimerInterval(int milliseconds) {
    if (audioPlayUpdateTimer_ && audioPlayUpdateTimer_->interval() != milliseconds)
        audioPlayUpdateTimer_->setInterval(milliseconds);
}

void AudioWaveViewController::destroyDudioPlayUpdateTimer() {
    audioPlayUpdateTimer_.reset();
}

void AudioWaveViewController::audioPlayUpdateTimerFireMethod() {
    Platform::MainQueue::post(this, [this] {
        updatePlaySoundProgress();
        updatePlaySoundButton();
    });
    updateAudioWaveRecordState();
    updateAudioWaveView();
}

void AudioWaveViewController::updatePlaySoundProgress() {
    Q_EMIT playSoundProgressChanged();
    if (!view_)
        return;
    auto* bar = ui_->audioPlayProgressView;
    bar->setCurrentTime(currentTime());
    bar->setDuration(duration());
    ui_->currentTimeField->setText(clockText(currentTime(), false));
    ui_->playLeftTimeField->setText(clockText(playLeftTime(), true));
    bar->update();
}

void AudioWaveViewController::updatePlaySoundButton() {
    if (delegate_)
        delegate_->updatePlaySoundButton();
}

void AudioWaveViewController::updateAudioWaveRecordState() {
    if (delegate_)
        delegate_->updateAudioWaveRecordState();
}

void AudioWaveViewController::updateAudioWaveView() {
    if (view_)
        ui_->audioRecordWaveView->addCurrentLevel(getAudioWaveLevelValue(), delegate_ && delegate_->takeClipping());
}

float AudioWaveViewController::getAudioWaveLevelValue() const {
    return delegate_ ? delegate_->getAudioWaveLevelValue() : 0;
}
