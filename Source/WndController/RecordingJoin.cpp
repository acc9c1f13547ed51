// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/RecordingJoin.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/AudioTrimSave.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "Source/WndController/WaitWndController.h"

#include <QFileInfo>
#include <QWidget>

#include <chrono>
#include <utility>

namespace {
constexpr auto kTimeBetweenReports = std::chrono::milliseconds(100);
}

RecordingJoin::RecordingJoin(QWidget* window, QObject* parent)
    : QObject(parent), window_(window), waitWndController_(std::make_unique<WaitWndController>()) {
}

RecordingJoin::~RecordingJoin() {
    cancelled_ = true;
    joinWorker();
}

void RecordingJoin::join(const QVariantList& entries) {
    if (waitWndController_->isSheetUp() || entries.size() < 2)
        return;
    const auto tell = [](const QString& why) {
        (void)Platform::services().alerts->runModal(tr("The recordings were not joined."), why,
                                                    {Platform::Alerts::okLabel()});
    };
    QStringList sources;
    for (const QVariant& entry : entries) {
        sources.append(Platform::stringForm(entry.toMap().value(AudioRecordEntry::SavePath)));
        if (!QFileInfo(sources.constLast()).isFile())
            return tell(tr("The file is no longer there: %1").arg(sources.constLast()));
    }
    const auto chosen = Platform::services().panels->saveFile(
        window_, tr("Join"), RecordingParts::joinedPath(sources.constFirst()), Platform::Panels::Existing::Unasked);
    if (!chosen)
        return;
    const QString path = AudioTrimSave::exportPath(*chosen);
    if (const QFileInfo target(path); target.exists() || target.isSymLink())
        return tell(tr("This path exists, please change the path or name."));
    start(sources, path);
}

void RecordingJoin::start(const QStringList& sources, const QString& path) {
    joinWorker();
    cancelled_ = false;
    count_ = sources.size();
    outcome_.reset();
    waitWndController_->beginSheet(
        window_, [this] { sheetEnded(); }, [this] { cancelled_ = true; });
    waitWndController_->setIsWorking(tr("Joining %n recordings…", nullptr, int(count_)));
    worker_ = std::thread([this, sources, path] {
        auto shown = std::chrono::steady_clock::now();
        bool encoded = false;
        auto part = RecordingParts::join(
            sources, path,
            [&](double share) {
                const auto now = std::chrono::steady_clock::now();
                if (now - shown >= kTimeBetweenReports) {
                    shown = now;
                    Platform::MainQueue::post(this, [this, share] { waitWndController_->setProgress(share); });
                }
                return !cancelled_;
            },
            &encoded);
        auto outcome = std::make_shared<Outcome>(Outcome{std::move(part), encoded});
        Platform::MainQueue::post(this, [this, outcome] {
            joinWorker();
            outcome_ = outcome;
            waitWndController_->setStopWork();
        });
    });
}

void RecordingJoin::sheetEnded() {
    const auto outcome = std::exchange(outcome_, {});
    if (!outcome)
        return;
    if (!outcome->part) {
        const Platform::Error error = outcome->part.error();
        if (error.kind != Platform::Error::Kind::Cancelled)
            (void)Platform::services().alerts->runModal(tr("The recordings were not joined."), error.text,
                                                        {Platform::Alerts::okLabel()});
        return;
    }
    const RecordingParts::Part& part = *outcome->part;
    if (delegate_) {
        delegate_->updateFile(part.path, RecordingParts::entryOf(part));
        delegate_->showFile(part.path);
    }
    const QString name = QFileInfo(part.path).fileName();
    Q_EMIT joined(
        outcome->encoded
            ? tr("“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.")
                  .arg(name)
            : tr("“%1” was made. The sound was copied without encoding it again.").arg(name));
}

void RecordingJoin::joinWorker() {
    if (worker_.joinable())
        worker_.join();
}
