// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/WaitWndController.h"

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
}

WaitWndController::~WaitWndController() {
    delete window_;
}

void WaitWndController::beginSheet(QWidget* over, std::function<void()> didEnd) {
    didEnd_ = std::move(didEnd);
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
    std::exchange(didEnd_, {})();
}

bool WaitWndController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Close) {
        event->ignore();
        return true;
    }
    if (watched == window_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel))
        return true; // the work cannot be cancelled
    return QObject::eventFilter(watched, event);
}
