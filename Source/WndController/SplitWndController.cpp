// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/SplitWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "RingtoneMaker/AudioOutline.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/SilenceSearch.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/NamedImages.h"
#include "Source/View/SplitEditView.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "Source/WndController/SplitPartsModel.h"
#include "Source/WndController/WaitWndController.h"
#include "ui_SplitWnd.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalBlocker>

#include <algorithm>
#include <chrono>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPlayTickMs = 100;
constexpr double kBeforeEnd = 0.1;   ///< the file counts as played this many seconds before its end
constexpr double kAroundCut = 2;     ///< seconds that are played before and behind a cut
constexpr double kLengthSteps = 10;  ///< steps of the length slider per second
constexpr int kScrollSteps = 100000; ///< of the scroll bar for the whole recording
constexpr auto kBetweenReports = std::chrono::milliseconds(100);
constexpr QSize kSplitWindowSize(760, 600);

} // namespace

SplitWndController::SplitWndController(QWidget* mainWindow, QObject* parent)
    : QObject(parent), window_(new EditDialog(u"SplitWndLayout"_s, kSplitWindowSize, mainWindow)),
      ui_(std::make_unique<Ui::SplitWnd>()), parts_(std::make_unique<SplitPartsModel>(plan_)),
      search_(std::make_unique<SilenceSearch>()), outline_(std::make_unique<AudioOutline>()),
      waitWndController_(std::make_unique<WaitWndController>()) {
    ui_->setupUi(window_);
    ui_->lblName_->setMargin(0);
    ui_->partsView_->setModel(parts_.get());
    ui_->partsView_->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui_->partsView_->setSelectionMode(QAbstractItemView::SingleSelection);
    ui_->partsView_->setTabKeyNavigation(false);
    ui_->partsView_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                     QAbstractItemView::SelectedClicked);
    ui_->partsView_->verticalHeader()->hide();
    ui_->partsView_->setWordWrap(false);
    ui_->partsView_->horizontalHeader()->setHighlightSections(false);
    ui_->partsView_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    ui_->partsView_->horizontalHeader()->setSectionResizeMode(SplitPartsModel::Title, QHeaderView::Stretch);
    for (const int column : {SplitPartsModel::Begin, SplitPartsModel::Length})
        ui_->partsView_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    ui_->lblLevelValue_->setReserve(tr("%1 dB").arg(-90));
    ui_->lblLengthValue_->setReserve(tr("%1 s").arg(QLocale().toString(10.0, 'f', 1)));
    connectControls();
    showPlayButton(false);
}

SplitWndController::~SplitWndController() {
    cancelled_ = true;
    joinWorker();
    delete window_;
}

void SplitWndController::connectControls() {
    using Self = SplitWndController;
    connect(ui_->btnPlay_, &QPushButton::clicked, this, &Self::togglePlay);
    connect(ui_->btnListen_, &QPushButton::clicked, this, &Self::listenToCut);
    connect(ui_->btnAdd_, &QPushButton::clicked, this, &Self::addCutHere);
    connect(ui_->btnRemove_, &QPushButton::clicked, this, &Self::removeCurrentCut);
    connect(ui_->btnReset_, &QPushButton::clicked, this, &Self::resetCuts);
    connect(ui_->btnSplit_, &QPushButton::clicked, this, &Self::split);
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &Self::close);
    connect(window_, &EditDialog::cancelled, this, &Self::close);
    connect(window_, &EditDialog::keyPressed, this, [this](QKeyEvent* event) { keyPressed(*event); });
    connect(ui_->levelSlider_, &QSlider::valueChanged, this, &Self::changeRule);
    connect(ui_->lengthSlider_, &QSlider::valueChanged, this, &Self::changeRule);
    connect(outline_.get(), &AudioOutline::loaded, this,
            [this] { ui_->splitEditView_->setOutline(outline_->values()); });
    connect(search_.get(), &SilenceSearch::progressed, this, [this](double share) {
        searchedShare_ = share;
        showFound();
    });
    connect(search_.get(), &SilenceSearch::finished, this, &Self::searchEnded);

    SplitEditView* const bar = ui_->splitEditView_;
    connect(bar, &SplitEditView::seekAsked, this, &Self::seek);
    connect(bar, &SplitEditView::moveAsked, this, [this](int cut, std::int64_t frame) {
        plan_.move(cut, frame);
        showCuts();
    });
    connect(bar, &SplitEditView::addAsked, this, [this, bar](std::int64_t frame) {
        const int cut = plan_.add(frame);
        showCuts();
        bar->setCurrentCut(cut);
    });
    connect(bar, &SplitEditView::removeAsked, this, [this](int cut) {
        plan_.remove(cut);
        showCuts();
    });
    connect(bar, &SplitEditView::currentCutChanged, this, &Self::showCurrentPart);
    connect(bar, &SplitEditView::visibleRangeChanged, this, &Self::showScrollBar);
    connect(ui_->scrollBar_, &QScrollBar::valueChanged, this,
            [bar](int value) { bar->scrollTo(std::llround(double(value) / kScrollSteps * double(bar->frames()))); });
    connect(ui_->partsView_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, bar](const QModelIndex& current) {
                if (current.row() > 0)
                    bar->setCurrentCut(current.row() - 1);
            });
    // A timer of this thread also runs in modal dialogs and during drags.
    timer_.setInterval(kPlayTickMs);
    connect(&timer_, &QTimer::timeout, this, &Self::updatePlayPosition);
    listenEnd_.setSingleShot(true);
    listenEnd_.setTimerType(Qt::PreciseTimer);
    connect(&listenEnd_, &QTimer::timeout, this, &Self::updatePlayPosition);
}

QString SplitWndController::sourcePath() const {
    return Platform::stringForm(entry_.value(AudioRecordEntry::SavePath));
}

double SplitWndController::duration() const {
    return audioPlayControl_ ? audioPlayControl_->duration() : 0;
}

void SplitWndController::setRecording(const Dictionary& entry) {
    entry_ = entry;
    searched_ = false;
    searchedShare_ = 0;
    listenUntil_ = -1;
    plan_.setMap(nullptr);
    audioPlayControl_ = std::make_unique<CustomSound>(sourcePath());
    ui_->lblName_->setText(QFileInfo(sourcePath()).fileName());
    ui_->boxDelete_->setChecked(false);
    const QString title = Platform::stringForm(entry.value(AudioRecordEntry::Title));
    parts_->setRecordingTitle(title.isEmpty() ? QFileInfo(sourcePath()).completeBaseName() : title);
    constexpr double rate = 44100; // until the file is read
    ui_->splitEditView_->setRecording(std::llround(duration() * rate), rate);
    ui_->splitEditView_->setOutline({});
    outline_->load(sourcePath());
    search_->load(sourcePath());
    changeRule();
    showPlayTime();
    showPlayButton(false);
    timer_.start();
}

void SplitWndController::searchEnded() {
    searched_ = true;
    plan_.setMap(search_->map());
    if (plan_.isReady()) {
        SplitEditView& bar = *ui_->splitEditView_;
        const double played = double(bar.playFrame()) / bar.sampleRate();
        bar.setRecording(plan_.frames(), plan_.sampleRate());
        bar.setPlayFrame(std::llround(played * plan_.sampleRate()));
    }
    showCuts();
}

void SplitWndController::changeRule() {
    SilenceFinder::Rule rule;
    rule.level = ui_->levelSlider_->value();
    rule.seconds = ui_->lengthSlider_->value() / kLengthSteps;
    plan_.setRule(rule);
    ui_->lblLevelValue_->setText(tr("%1 dB").arg(ui_->levelSlider_->value()));
    ui_->lblLengthValue_->setText(tr("%1 s").arg(QLocale().toString(rule.seconds, 'f', 1)));
    showCuts();
}

void SplitWndController::showCuts() {
    ui_->splitEditView_->setSilences(plan_.found().silences);
    ui_->splitEditView_->setCuts(plan_.cuts());
    parts_->update();
    showCurrentPart();
    showFound();
}

void SplitWndController::showFound() {
    const auto& found = plan_.found();
    const auto cuts = int(plan_.cuts().size());
    QString text;
    if (!searched_)
        text = tr("Searching for silences… %1 %").arg(int(searchedShare_ * 100));
    else if (!plan_.isReady())
        text = search_->problem();
    else if (found.longest == 0)
        text = tr("No silence found at this level. Choose a higher level, or add cuts yourself.");
    else {
        const QString longest =
            QLocale().toString(std::floor(double(found.longest) / found.sampleRate * 10) / 10, 'f', 1);
        text = cuts == 0   ? tr("No silence is long enough. The longest silence found: %1 s.").arg(longest)
               : cuts == 1 ? tr("One cut. The longest silence found: %1 s.").arg(longest)
                           : tr("%n cuts. The longest silence found: %1 s.", nullptr, cuts).arg(longest);
    }
    ui_->lblFound_->setText(text);
    const bool hasCut = ui_->splitEditView_->currentCut() >= 0;
    ui_->btnSplit_->setEnabled(cuts > 0);
    ui_->btnListen_->setEnabled(hasCut);
    ui_->btnRemove_->setEnabled(hasCut);
    ui_->btnAdd_->setEnabled(plan_.isReady());
    ui_->btnReset_->setEnabled(plan_.isChanged());
}

void SplitWndController::showCurrentPart() {
    const int cut = ui_->splitEditView_->currentCut();
    if (cut < 0 || cut + 1 >= parts_->rowCount())
        return;
    const QSignalBlocker quiet(ui_->partsView_->selectionModel());
    const QModelIndex row = parts_->index(cut + 1, SplitPartsModel::Title);
    ui_->partsView_->setCurrentIndex(row);
    ui_->partsView_->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ui_->partsView_->scrollTo(row);
    ui_->partsView_->viewport()->update();
}

void SplitWndController::showScrollBar() {
    const SplitEditView& bar = *ui_->splitEditView_;
    const double all = double(std::max<std::int64_t>(1, bar.frames()));
    const int page = int(double(bar.visibleFrames()) / all * kScrollSteps);
    QScrollBar& scroll = *ui_->scrollBar_;
    const QSignalBlocker quiet(scroll);
    scroll.setRange(0, std::max(0, kScrollSteps - page));
    scroll.setPageStep(page);
    scroll.setSingleStep(std::max(1, page / 10));
    scroll.setValue(int(double(bar.firstVisible()) / all * kScrollSteps));
    scroll.setEnabled(bar.zoom() > 1);
}

void SplitWndController::keyPressed(QKeyEvent& event) {
    if (event.modifiers() & ~Qt::KeypadModifier)
        return;
    if (event.key() == Qt::Key_Space)
        togglePlay();
    else if (event.key() == Qt::Key_P)
        listenToCut();
    else if (event.key() == Qt::Key_Insert)
        addCutHere();
    else if (event.key() == Qt::Key_Delete)
        removeCurrentCut();
    else
        return;
    event.accept();
}

void SplitWndController::runModal() {
    window_->restoreSize();
    ui_->btnCancel_->setText(Platform::Alerts::cancelLabel());
    ui_->splitEditView_->setFocus();
    ToolControl::showWindowNib(*this);
    const QPointer<SplitWndController> self(this);
    window_->exec();
    if (!self)
        return;
    stopPlaying();
    timer_.stop();
    outline_->stop();
    search_->stop();
    audioPlayControl_.reset(); // closes the file
}

// ---- playing

void SplitWndController::showPlayButton(bool playing) {
    const QString image = playing ? u"Pause.png"_s : u"Play.png"_s;
    ui_->btnPlay_->setProperty("image", image);
    ui_->btnPlay_->setIcon(NamedImages::icon(image));
    ui_->btnPlay_->setText(playing ? tr("Pause") : tr("Play"));
}

void SplitWndController::showPlayTime() {
    const double now = double(ui_->splitEditView_->playFrame()) / ui_->splitEditView_->sampleRate();
    ui_->lblPlayTime_->setText(ToolControl::getTimeString(qint64(now)) + u'/' +
                               ToolControl::getTimeString(qint64(duration())));
}

void SplitWndController::togglePlay() {
    if (!audioPlayControl_)
        return;
    listenUntil_ = -1;
    listenEnd_.stop();
    if (audioPlayControl_->isPlaying()) {
        audioPlayControl_->pause();
        showPlayButton(false);
    } else {
        audioPlayControl_->play();
        showPlayButton(true); // the timer resets it when nothing plays
    }
}

void SplitWndController::listenToCut() {
    const int cut = ui_->splitEditView_->currentCut();
    if (cut < 0 || !audioPlayControl_)
        return;
    const double at = double(plan_.cuts()[std::size_t(cut)]) / plan_.sampleRate();
    listenUntil_ = std::min(duration(), at + kAroundCut);
    audioPlayControl_->setCurrentTime(std::max(0.0, at - kAroundCut));
    audioPlayControl_->play();
    showPlayButton(true);
}

void SplitWndController::stopPlaying() {
    listenEnd_.stop();
    listenUntil_ = -1;
    if (audioPlayControl_)
        audioPlayControl_->stop();
    showPlayButton(false);
}

void SplitWndController::seek(std::int64_t frame) {
    ui_->splitEditView_->setPlayFrame(frame);
    if (audioPlayControl_)
        audioPlayControl_->setCurrentTime(double(frame) / ui_->splitEditView_->sampleRate());
    listenUntil_ = -1;
    listenEnd_.stop();
    showPlayTime();
}

void SplitWndController::updatePlayPosition() {
    if (!audioPlayControl_ || ui_->btnPlay_->property("image") != u"Pause.png"_s)
        return;
    const double now = audioPlayControl_->currentTime();
    ui_->splitEditView_->setPlayFrame(std::llround(now * ui_->splitEditView_->sampleRate()));
    showPlayTime();
    if (listenUntil_ >= 0 && now >= listenUntil_) {
        listenUntil_ = -1;
        audioPlayControl_->pause();
        showPlayButton(false);
        return;
    }
    if (listenUntil_ >= 0 && (listenUntil_ - now) * 1000 < kPlayTickMs)
        listenEnd_.start(std::max(1, int((listenUntil_ - now) * 1000)));
    // The sound stopped by itself: the file could not be played, or the sound server went away.
    if (now >= duration() - kBeforeEnd || audioPlayControl_->isStop())
        stopPlaying();
}

// ---- cuts

void SplitWndController::addCutHere() {
    Q_EMIT ui_->splitEditView_->addAsked(ui_->splitEditView_->playFrame());
}

void SplitWndController::removeCurrentCut() {
    if (const int cut = ui_->splitEditView_->currentCut(); cut >= 0)
        Q_EMIT ui_->splitEditView_->removeAsked(cut);
}

void SplitWndController::resetCuts() {
    plan_.reset();
    showCuts();
}

// ---- writing

void SplitWndController::split() {
    if (waitWndController_->isSheetUp() || plan_.cuts().empty())
        return;
    ui_->btnSplit_->setFocus(); // takes over a title that is being typed
    stopPlaying();
    cancelled_ = false;
    result_.reset();
    waitWndController_->beginSheet(
        window_, [this] { sheetEnded(); }, [this] { cancelled_ = true; });
    waitWndController_->setIsWorking(tr("Writing the parts…"));
    write();
}

void SplitWndController::write() {
    joinWorker();
    const QString source = sourcePath();
    const auto paths = RecordingParts::freePartPaths(source, QFileInfo(source).path(), plan_.cuts().size() + 1);
    worker_ = std::thread([this, source, paths, cuts = plan_.cuts(), titles = plan_.titles()] {
        auto shown = std::chrono::steady_clock::now();
        auto result = std::make_shared<Platform::Result<QList<RecordingParts::Part>>>(RecordingParts::split(
            source, cuts, paths,
            [&](double share) {
                const auto now = std::chrono::steady_clock::now();
                if (now - shown >= kBetweenReports) {
                    shown = now;
                    Platform::MainQueue::post(this, [this, share] { waitWndController_->setProgress(share); });
                }
                return !cancelled_;
            },
            titles));
        Platform::MainQueue::post(this, [this, result] { written(result); });
    });
}

void SplitWndController::written(std::shared_ptr<Platform::Result<QList<RecordingParts::Part>>> result) {
    joinWorker();
    result_ = std::move(result);
    waitWndController_->setStopWork();
}

void SplitWndController::sheetEnded() {
    const auto result = std::exchange(result_, {});
    if (!result)
        return;
    if (!*result) {
        if (result->error().kind != Platform::Error::Kind::Cancelled)
            (void)Platform::services().alerts->runModal(tr("The recording was not split."), result->error().text,
                                                        {Platform::Alerts::okLabel()});
        return;
    }
    audioPlayControl_.reset();
    if (delegate_) {
        for (const RecordingParts::Part& part : **result)
            delegate_->updateFile(part.path, RecordingParts::entryOf(part));
        if (ui_->boxDelete_->isChecked())
            delegate_->removeRecording(entry_);
        delegate_->showFile((*result)->constFirst().path);
    }
    window_->done(QDialog::Accepted);
}

void SplitWndController::joinWorker() {
    if (worker_.joinable())
        worker_.join();
}

void SplitWndController::close() {
    if (waitWndController_->isSheetUp())
        return;
    window_->done(QDialog::Rejected);
}

bool SplitWndController::isWindowVisible() const {
    return window_->isVisible();
}

void SplitWndController::showWindow() {
    window_->show();
}

void SplitWndController::makeKeyAndOrderFront() {
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void SplitWndController::center() {
    window_->center();
}
