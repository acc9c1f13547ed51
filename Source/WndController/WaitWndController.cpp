// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WaitWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Source/View/NamedImages.h"
#include "ui_WaitWnd.h"

#include <QEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr int kSteps = 1000;
}

WaitWndController::WaitWndController(QObject* parent)
    : QObject(parent), window_(new QDialog(nullptr, Qt::Sheet)), ui_(std::make_unique<Ui::WaitWnd>()) {
    ui_->setupUi(window_);
    window_->setWindowIcon(NamedImages::icon(u"com.korvane.Sonaphex"_s));
    window_->setWindowModality(Qt::WindowModal);
    window_->installEventFilter(this);
    QFont font = ui_->lblMessage_->font();
    font.setFamilies(QStringList{u"Lucida Grande"_s} + font.families());
    ui_->lblMessage_->setFont(font);
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &WaitWndController::cancelWork);
}

WaitWndController::~WaitWndController() {
    delete window_;
}

void WaitWndController::beginSheet(QWidget* over, std::function<void()> didEnd, std::function<void()> cancel) {
    didEnd_ = std::move(didEnd);
    cancel_ = std::move(cancel);
    ui_->btnCancel_->setText(Platform::Alerts::cancelLabel());
    ui_->btnCancel_->setEnabled(true);
    ui_->btnCancel_->setVisible(static_cast<bool>(cancel_));
    window_->hide();
    window_->setParent(over, Qt::Sheet);
    window_->open();
}

void WaitWndController::setIsWorking(const QString& message) {
    ui_->lblMessage_->setText(message);
    ui_->progress_->setRange(0, 0);
}

void WaitWndController::setProgress(double share) {
    ui_->progress_->setRange(0, kSteps);
    ui_->progress_->setValue(int(std::clamp(share, 0.0, 1.0) * kSteps));
}

void WaitWndController::setStopWork() {
    if (!didEnd_)
        return;
    ui_->progress_->setRange(0, kSteps); // an indeterminate bar would keep a timer running
    window_->hide();
    window_->setParent(nullptr, Qt::Sheet);
    cancel_ = {};
    std::exchange(didEnd_, {})();
}

void WaitWndController::cancelWork() {
    if (!cancel_)
        return;
    ui_->btnCancel_->setEnabled(false);
    std::exchange(cancel_, {})();
}

bool WaitWndController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Close) {
        event->ignore();
        cancelWork();
        return true;
    }
    if (watched == window_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
        cancelWork();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
