// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/RingtoneMakerViewController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Workspace.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/ConverterAudioControl.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/View/EditDialog.h"
#include "ui_RingtoneMakerViewController.h"

#include <QEventLoop>
#include <QFileInfo>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int kProgressTick = 50; ///< ms

void tell(const QString& title, const QString& text) {
    (void)Platform::services().alerts->runModal(title, text, {Platform::Alerts::okLabel()});
}

} // namespace

void RingtoneMakerViewController::startConvert() {
    QMetaObject::invokeMethod(this, &RingtoneMakerViewController::converterAudio, Qt::QueuedConnection);
}

void RingtoneMakerViewController::converterAudio() {
    if (writing_ || !sound_)
        return;
    stopPlay();
    const AudioWaveTrimView& selection = *ui_->audioWaveTrimView;
    RingtoneFile::Task task;
    task.source = sound_->path();
    task.temporaryFolder = g_strTmpPath;
    task.target = delegate_ ? delegate_->nextRingtoneMakerFilePath() : QString();
    task.from = selection.audioFromTime();
    task.to = selection.audioToTime();
    task.fadeIn = fadeIn_;
    task.fadeOut = fadeOut_;

    setWriting(true);
    const RingtoneFile::Result result = writeOnWorker(task);
    setWriting(false);
    if (!result.problem.isEmpty())
        tell(tr("The ringtone could not be made."), result.problem);
    else if (!result.damage.isEmpty())
        tell(tr("The recording is damaged. The ringtone is silent where it could not be read."), result.damage);
    converterAudioFinish(result.path);
}

RingtoneFile::Result RingtoneMakerViewController::writeOnWorker(const RingtoneFile::Task& task) {
    stopWriting_ = false;
    std::atomic<double> share{0};
    std::atomic<bool> done{false};
    RingtoneFile::Result result;
    QEventLoop loop;
    QTimer progress;
    connect(&progress, &QTimer::timeout, this, [&] { ui_->progressBar->setValue(int(share * 1000)); });
    progress.start(kProgressTick);
    std::thread worker([&] {
        result = RingtoneFile::write(*converterAudioControl_, task, [&](double part) {
            share = part;
            return !stopWriting_;
        });
        done = true;
        Platform::MainQueue::post(&loop, [&loop] { loop.quit(); });
    });
    loop.exec();
    if (!done)
        stopWriting_ = true; // the program is ending, which ends every event loop
    worker.join();
    return result;
}

void RingtoneMakerViewController::setWriting(bool writing) {
    writing_ = writing;
    ui_->progressBar->setValue(0);
    ui_->progressBar->setVisible(writing);
    ui_->transferBox->setVisible(!writing);
    updateEnabled();
    if (writing)
        ui_->cancelButton->setFocus();
}

void RingtoneMakerViewController::converterAudioFinish(const QString& path) {
    if (!path.isEmpty()) {
        if (transferToITunes_ && !Platform::services().workspace->openFile(path, u"iTunes"_s))
            tell(tr("No player could be opened for “%1”.").arg(QFileInfo(path).fileName()),
                 tr("The ringtone is in the library."));
        const float seconds = ui_->audioWaveTrimView->audioLength() / kPointsPerSecond;
        const Dictionary tags = RingtoneFile::tags(audioTag_, path, seconds);
        if (delegate_)
            delegate_->addRingtoneFile(path, tags);
    }
    closeWindow();
}
