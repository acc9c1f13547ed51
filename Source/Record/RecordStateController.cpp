// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordStateController.h"

#include "CaptureComputerAudio/CaptureComputerAudio.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/SleepInhibitor.h"
#include "Platform/Foundation/Clock.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Model/MediaLibrary.h"
#include "Source/Record/RecordStateControllerPrivate.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace PreferenceStore;

namespace {

Q_LOGGING_CATEGORY(recordLog, "sonaphex.record")

} // namespace

void RecordStateControllerDelegate::addRecordFile(const QString& path, const Dictionary& tags) {
    MediaLibrary::shareLibrary().addRecordFile(MediaLibrary::entryForFile(path, tags));
}

bool RecordStateControllerDelegate::hasRecordFile(const QString& path) {
    MediaLibrary& library = MediaLibrary::shareLibrary();
    library.takeUpMediaLibraryList(); // the killed process may have stored it
    return std::ranges::any_of(library.records(), [&](const QVariant& entry) {
        return Platform::stringForm(entry.toMap().value(AudioRecordEntry::SavePath)) == path;
    });
}

RecordStateController::RecordStateController(EngineFactory factory, QObject* parent)
    : QObject(parent), d(std::make_unique<Private>(this)) {
    d->namesWorker.setMaxThreadCount(1);
    const auto make = [&factory] { return factory ? factory() : std::make_unique<BuildInAudioRecord>(); };
    d->builtIn.engine = make();
    d->builtIn.label = QCoreApplication::translate("Record", "The input device");
    d->builtIn.labelInSentence = QCoreApplication::translate("Record", "the input device");
    d->builtIn.rawName = u"/BuiltInA"_s;
    d->builtIn.jobKey = ExportJob::BuiltInAudioTempPath;
    d->computer.engine = make();
    d->computer.label = QCoreApplication::translate("Record", "Computer audio");
    d->computer.labelInSentence = QCoreApplication::translate("Record", "computer audio");
    d->computer.rawName = u"/ComputerA"_s;
    d->computer.jobKey = ExportJob::ComputerAudioTempPath;

    RecordQueue::Owner owner;
    owner.nextFreeName = [this] { return getAudioRecordPath(); };
    owner.releaseName = [this](const QString& path) { d->names.release(path); };
    owner.addRecordFile = [this](const QString& path, const Dictionary& tags) {
        d->delegate->addRecordFile(path, tags);
    };
    owner.hasRecordFile = [this](const QString& path) { return d->delegate->hasRecordFile(path); };
    owner.filter = [this] { return RecordFilter::read(*d->preferences); };
    d->queue = std::make_unique<RecordQueue>(std::move(owner));
    connect(d->queue.get(), &RecordQueue::queueChanged, this, &RecordStateController::queueChanged);
    connect(d->queue.get(), &RecordQueue::recordingFinished, this, &RecordStateController::recordingFinished);
    connect(d->queue.get(), &RecordQueue::recordingSetAside, this, &RecordStateController::recordingSetAside);
    connect(d->queue.get(), &RecordQueue::noticed, this,
            [this](const RecordNotice& notice) { d->queueNotice(notice); });
    connect(&d->notices_, &RecordNotices::changed, this, &RecordStateController::noticesChanged);
    connect(&d->room_, &RecordRoom::measured, this, [this](const RecordRoom::Room& room) { d->followRoom(room); });

    connect(&d->recordTimerForTime_, &QTimer::timeout, this, &RecordStateController::recordFlushTime);
    d->recordTimerForTime_.setTimerType(Qt::PreciseTimer);
    d->recordTimerForTime_.setInterval(500);
}

RecordStateController::~RecordStateController() {
    d->devices.reset();
    // Recordings that still run are added to the queue; when the queue ends, it sets its waiting jobs aside.
    d->endHiddenRecording();
    {
        // A cut on the computer-audio engine's I/O thread holds the cycles of the other one, and so uses its unit.
        const Platform::HeldCycles held(d->computer.engine.get());
        d->builtIn.engine->cleanUp();
    }
    d->computer.engine->cleanUp();
    // Other programs may record from the driver, too.
    if (d->programsChosen_)
        (void)CaptureComputerAudio::choosePrograms({}, 0);
    // Cycles use the engines through these pointers: all cycles have ended by now.
    for (RecordSource& source : d->sources)
        source.engine.reset();
    d->queue.reset();
    if (auto* inhibitor = Platform::services().sleepInhibitor)
        inhibitor->setInhibited(false, {});
}

void RecordStateController::setDelegate(RecordStateControllerDelegate* delegate) {
    d->delegate = delegate ? delegate : &d->defaultDelegate;
}

void RecordStateController::setPreferences(RecordPreferences* preferences) {
    d->preferences = preferences ? preferences : &d->storedPreferences;
}

void RecordStateController::awakeFromNib() {
    setIsRecordPause_(false);
    d->computer.engine->setIsecordComputerAudio_(true);
    for (RecordSource& source : d->sources) {
        source.engine->setDelegate(this);
        source.engine->setEventHandler(
            [this, &source](Platform::InputUnit::Event event) { d->deviceEvent(event, source); });
    }
    d->applyPreRoll();
    // So that a source that is not recorded is not waited for.
    d->builtIn.checked = Platform::boolValue(d->preferences->value(Settings::recordBuiltIn));
    d->computer.checked = Platform::boolValue(d->preferences->value(Settings::recordComputerAudio));
    d->setUses();
    d->devices = std::make_unique<RecordSources>(*d->builtIn.engine, *d->computer.engine);
    connect(d->devices.get(), &RecordSources::devicesChanged, this, &RecordStateController::devicesChanged);
    connect(d->devices.get(), &RecordSources::computerAudioDeviceChanged, this, [this] {
        d->discardHiddenWait();
        (void)d->applyPrograms(0);
        refreshTheFace();
    });
    connect(d->devices.get(), &RecordSources::noticed, this, [this](const RecordNotice& notice) { d->notice(notice); });
    connect(d->devices.get(), &RecordSources::settled, this,
            [this](const QString& event) { d->withdrawNotice(event); });
    d->readPrograms();
    d->devices->awakeFromNib();
    if (d->programs_.mode != RecordPrograms::Mode::Everything)
        watchPrograms();
    (void)d->applyPrograms(0);

    d->isRecordingFlushTheFace(false);
    refreshTheFace();
    d->display_ = RecordDisplay::of(0, 0, isShowWaveRecordFullTime());
    d->recordTimerForTime_.start();
}

void RecordStateController::setDisplayClockRunning(bool running) {
    if (running)
        d->recordTimerForTime_.start();
    else
        d->recordTimerForTime_.stop();
}

void RecordStateController::setLevelSeen(bool seen) {
    d->levelSeen_ = seen;
    // From now on the display's timer has the same interval: both fire together, and the program wakes once for them.
    if (!seen && !d->isActive() && d->recordTimerForTime_.isActive())
        d->recordTimerForTime_.start();
    d->setUses();
}

void RecordStateController::refreshTheFace() {
    d->builtIn.checked = Platform::boolValue(d->preferences->value(Settings::recordBuiltIn));
    d->popUpEnabled_ = d->builtIn.checked;
    d->computer.checked = d->devices->computerAudioDeviceID() != 0 &&
                          Platform::boolValue(d->preferences->value(Settings::recordComputerAudio));
    d->changed();
}

void RecordStateController::chooseRecordBuiltIn(bool on) {
    d->builtIn.checked = on;
    d->builtIn.off = false;
    d->popUpEnabled_ = on;
    d->preferences->setValue(on, Settings::recordBuiltIn);
    d->changed();
}

void RecordStateController::chooseRecordComputerAudio(bool on) {
    if (d->devices->computerAudioDeviceID() == 0)
        d->devices->findComputerAudioDevice();
    const bool present = d->devices->computerAudioDeviceID() != 0;
    if (!present) {
        const int button = Platform::services().alerts->runModal(
            QCoreApplication::translate("Record", "Add-on required to record the system audio."),
            QCoreApplication::translate(
                "Record",
                "KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application "
                "to "
                "send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux "
                "computers. This driver will only be used by Sonaphex."),
            {QCoreApplication::translate("Record", "Install"), Platform::Alerts::cancelLabel()});
        if (button == 0)
            d->delegate->insertTheSystemAudioRecordDevice();
    }
    d->computer.checked = on && present;
    d->computer.off = false;
    d->preferences->setValue(bool(d->computer.checked), Settings::recordComputerAudio);
    d->changed();
}

void RecordStateController::chooseBuiltInDevice(int index) {
    d->devices->chooseBuiltInDevice(index);
}

void RecordStateController::unmuteBuiltInDevice() {
    BuildInAudioRecord::setMaxVolume(d->devices->boundDevice());
}

bool RecordStateController::windowShouldClose() {
    // An armed wait that a stop left running may still record. Closing does not wait for it: finishAll() saves it.
    if (recordState_() == 0)
        d->delegate->terminate();
    else
        Platform::services().alerts->runModal(QCoreApplication::translate("Record", "Waring:"),
                                              QCoreApplication::translate("Record", "Please stop your recording."),
                                              {Platform::Alerts::okLabel()});
    return false;
}

int RecordStateController::recordState_() const {
    if (d->builtIn.takesPart())
        return d->builtIn.engine->recordStatus();
    return d->computer.takesPart() ? d->computer.engine->recordStatus() : 0;
}

RecordState RecordStateController::state() const {
    return d->state;
}

bool RecordStateController::isStateAudioCanStartRecord() const {
    return canRecord() && d->state != RecordState::Finishing;
}

bool RecordStateController::isStateAudioRecord() const {
    return d->isActive();
}

bool RecordStateController::isStateAudioRecordPause() const {
    return d->isActive();
}

bool RecordStateController::isRecordPause_() const {
    return d->isRecordPause_;
}

void RecordStateController::setIsRecordPause_(bool paused) {
    d->isRecordPause_ = paused;
    d->changed();
}

bool RecordStateController::canRecord() const {
    return d->builtIn.checked || d->computer.checked;
}

float RecordStateController::getAudioWaveLevelValue() const {
    // An engine without a device keeps the level of the last cycle, and so does one that cannot write.
    const auto hears = [](const RecordSource& source) {
        return source.engine->isRunning() && !(source.writes() && source.engine->writeError());
    };
    const float builtIn = hears(d->builtIn) ? d->builtInLevelValue_.load() : 0;
    const float computer = hears(d->computer) ? d->computerLevelValue_.load() : 0;
    float level = 0;
    if (d->builtIn.checked)
        level = builtIn;
    if (d->computer.checked)
        level = computer;
    if (d->builtIn.checked && d->computer.checked) {
        const double t = Platform::services().clock->timeIntervalSinceReferenceDate();
        level = static_cast<std::uint64_t>(t * 10) % 2 == 0 ? builtIn : computer;
    }
    return level;
}

bool RecordStateController::takeClipping() {
    bool isClipped = false;
    for (RecordSource& source : d->sources) {
        const std::uint64_t cycles = source.engine->clippedCycles();
        if (cycles != std::exchange(source.clippedCyclesSeen, cycles) && source.checked)
            isClipped = true;
    }
    return isClipped;
}

bool RecordStateController::isShowWaveRecordFullTime() const {
    return RecordDisplay::blinkOn(Platform::services().clock->timeIntervalSinceReferenceDate());
}

bool RecordStateController::splitEnabled() const {
    return d->isActive();
}

bool RecordStateController::sourcesEnabled() const {
    return !d->isActive();
}

bool RecordStateController::popUpEnabled() const {
    return d->popUpEnabled_;
}

bool RecordStateController::builtInChecked() const {
    return d->builtIn.checked;
}

bool RecordStateController::computerAudioChecked() const {
    return d->computer.checked;
}

QString RecordStateController::startToolTip() const {
    return d->isActive() ? QCoreApplication::translate("Record", "Stop Record")
                         : QCoreApplication::translate("Record", "Start Record");
}

QString RecordStateController::startImage() const {
    return d->isActive() ? u"RecorderStop.png"_s : u"RecorderStart.png"_s;
}

QString RecordStateController::startPressedImage() const {
    return d->isActive() ? u"RecorderStopDown.png"_s : u"RecorderStartDown.png"_s;
}

QString RecordStateController::pauseToolTip() const {
    return d->isRecordPause_ ? QCoreApplication::translate("Record", "Resume Record")
                             : QCoreApplication::translate("Record", "Pause Record");
}

QString RecordStateController::pauseImage() const {
    return d->isRecordPause_ ? u"RecorderResume.png"_s : u"RecorderPause.png"_s;
}

QString RecordStateController::stateString() const {
    return d->display_.stateString;
}

QString RecordStateController::timeString() const {
    return d->display_.timeString;
}

Qt::GlobalColor RecordStateController::stateColor() const {
    return d->display_.stateColor;
}

QString RecordStateController::headline() const {
    const QString headline = RecordDisplay::headline(d->state, double(d->fRecordTime_));
    if (d->state == RecordState::Armed)
        if (const QString waiting = waitingForPrograms(); !waiting.isEmpty())
            return waiting;
    return d->state == RecordState::Recording && !isGrowing()
               ? QCoreApplication::translate("Record", "Nothing is being recorded")
               : headline;
}

QString RecordStateController::fileConvertTip() const {
    return d->convertTip_;
}

float RecordStateController::fRecordTime() const {
    return d->fRecordTime_;
}

QStringList RecordStateController::deviceNames() const {
    return d->devices ? d->devices->deviceNames() : QStringList();
}

int RecordStateController::selectedDevice() const {
    return d->devices ? d->devices->selectedDevice() : -1;
}

int RecordStateController::indexOfDevice(AudioObjectID device) const {
    return d->devices ? d->devices->indexOfDevice(device) : -1;
}

bool RecordStateController::hasComputerAudioDevice() const {
    return d->devices && d->devices->computerAudioDeviceID() != 0;
}

bool RecordStateController::isWaittingForSound() const {
    const std::scoped_lock lock(d->mutex);
    return d->splitter.isWaitting() && d->computer.engine->recordStatus() == 0;
}

int RecordStateController::jobsInQueue() const {
    return d->queue->count();
}

double RecordStateController::jobProgress() const {
    return d->queue->progress();
}

int RecordStateController::droppedRecordings() const {
    return d->dropped_;
}

Dictionary RecordStateController::initID3BasicInfoDic() {
    return RecordQueue::initID3BasicInfoDic();
}

void RecordStateController::recordFlushTime() {
    const int state = recordState_();
    if (state == 1 && isGrowing())
        d->fRecordTime_.fetch_add(0.5F);
    if (state == 2)
        qCInfo(recordLog, "Pause Rcd   %f", double(d->fRecordTime_));
    const bool blinkOn = isShowWaveRecordFullTime();
    const RecordDisplay display = RecordDisplay::of(state, d->fRecordTime_, blinkOn);
    const QString tip = RecordDisplay::convertingTip(blinkOn);
    if (display != d->display_ || tip != d->convertTip_) {
        d->display_ = display;
        d->convertTip_ = tip;
        Q_EMIT displayChanged();
    }
    d->keepPrograms();
    d->showLosses();
    d->showSilences();
    d->lookForRoom();
    if (jobsInQueue() > 0)
        Q_EMIT queueChanged();
}

void RecordStateController::Private::onMain(std::function<void()> work) {
    if (QThread::currentThread() == q->thread()) {
        work();
        return;
    }
    alive.post(std::move(work));
}

void RecordStateController::Private::changed() {
    onMain([this] {
        keepAwake();
        setUses();
        Q_EMIT q->stateChanged();
    });
}

/// A source whose box is not checked is not captured, unless it records, waits for a sound or keeps what came before
/// one. So its device can sleep, and nothing wakes this program.
void RecordStateController::Private::setUses() {
    using Use = Platform::InputUnit::Use;
    const bool keepsPreRoll = Platform::intValue(preferences->value(Settings::preRollMS)) > 0;
    for (RecordSource& source : sources) {
        const bool waits = &source == &computer && (keepsPreRoll || q->isWaittingForSound());
        const bool records = source.engine->recordStatus() != 0;
        if (!source.checked && !waits && !records)
            source.engine->setUse(Use::Nothing);
        else
            source.engine->setUse(levelSeen_ || isActive() || records ? Use::Now : Use::Later);
    }
}

/// The machine must not sleep while an engine records, whatever the buttons show, nor during an armed wait.
void RecordStateController::Private::keepAwake() {
    if (auto* inhibitor = Platform::services().sleepInhibitor)
        inhibitor->setInhibited(isActive() || anyEngineRecords(), tr("A recording is running."));
}
