// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/RecordingNotifier.h"

#include "Platform/Desktop/Activation.h"
#include "Source/Control/ToolControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/Preferences/Settings.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainWndController.h"

#include <QApplication>
#include <QFileInfo>
#include <QMainWindow>
#include <QRegularExpression>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

const auto showKey = u"show"_s;
const auto playKey = u"play"_s;

/// Notices that differ only in their numbers count as the same notice, unless it became more urgent.
bool isKnown(const RecordNotice& notice, const RecordNotice& before) {
    static const QRegularExpression numbers(u"[0-9][0-9.,]*"_s);
    return notice.sentence().remove(numbers) == before.sentence().remove(numbers) && notice.stage <= before.stage;
}

} // namespace

RecordingNotifier::RecordingNotifier(MainWndController& window, std::unique_ptr<Platform::Notifications> desktop,
                                     QObject* parent)
    : QObject(parent), window_(window), desktop_(std::move(desktop)), noticesBefore_(window.record().noticeList()) {
    connect(&window_.record(), &RecordStateController::recordingFinished, this, &RecordingNotifier::recordingFinished);
    connect(&window_.record(), &RecordStateController::noticesChanged, this, &RecordingNotifier::noticesChanged);
    connect(desktop_.get(), &Platform::Notifications::actionInvoked, this, &RecordingNotifier::act);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window)
            forget();
    });
}

bool RecordingNotifier::mayNotify() {
    return !QGuiApplication::focusWindow() && Platform::boolValue(Settings::value(Settings::notifications));
}

void RecordingNotifier::recordingFinished(const QString& path, const Dictionary& entry) {
    if (!mayNotify())
        return;
    if (entry.isEmpty()) {
        if (finished_ == 0) // do not replace the text about a kept recording
            text_ = tr("“%1” was not kept: it is too short.").arg(QFileInfo(path).completeBaseName());
    } else {
        ++finished_;
        newest_ = path;
        text_ = u"%1 (%2)"_s.arg(
            Platform::stringForm(entry.value(AudioRecordEntry::Title)),
            ToolControl::getTimeString(Platform::longLongValue(entry.value(AudioRecordEntry::Length))));
    }
    goesOn_ = window_.record().isStateAudioRecord();
    show();
}

void RecordingNotifier::noticesChanged() {
    const QList<RecordNotice> notices = window_.record().noticeList();
    const QList<RecordNotice> before = std::exchange(noticesBefore_, notices);
    if (notices.isEmpty() || !mayNotify())
        return;
    const RecordNotice& newest = notices.last();
    for (const RecordNotice& old : before)
        if (isKnown(newest, old))
            return;
    problem_ = newest.sentence();
    goesOn_ = window_.record().isStateAudioRecord();
    show();
}

void RecordingNotifier::show() {
    Platform::Notifications::Notification shown;
    if (finished_ == 0)
        shown.title = problem_.isEmpty() ? tr("Recording not kept") : tr("About the recording");
    else if (goesOn_)
        shown.title = tr("Recording cut; the next one runs");
    else
        shown.title = finished_ == 1 ? tr("Recording finished") : tr("%n recordings finished", nullptr, finished_);
    QStringList lines;
    if (!text_.isEmpty())
        lines << text_;
    if (!problem_.isEmpty())
        lines << problem_;
    shown.text = lines.join(u'\n');
    shown.isProblem = !problem_.isEmpty();
    shown.defaultAction = showKey;
    shown.actions.append({showKey, tr("Show")});
    if (finished_ > 0 && !goesOn_) // playback is disabled during a recording
        shown.actions.append({playKey, tr("Play")});
    desktop_->show(shown);
}

void RecordingNotifier::forget() {
    finished_ = 0;
    text_.clear();
    problem_.clear();
    newest_.clear();
    desktop_->withdraw();
}

void RecordingNotifier::act(const QString& key, const QByteArray& token) {
    const QString path = newest_;
    Platform::Activation::setToken(token);
    ToolControl::showWindowNib(window_);
    forget();
    if (path.isEmpty() || QApplication::activeModalWidget())
        return;
    LibraryPresenter& library = window_.library();
    if (library.selectFile(path) && key == playKey && library.tableViewPlayEnable())
        window_.tableViewDoubleAction();
}
