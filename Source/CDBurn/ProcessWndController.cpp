// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/ProcessWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/Services.h"
#include "Source/CDBurn/BurnControl.h"
#include "Source/CDBurn/BurnWindowFont.h"
#include "Source/View/Theme.h"
#include "ui_ProcessWnd.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const char* const kWaiting = QT_TRANSLATE_NOOP("ProcessWndController", "Please waiting a moment ...");
const char* const kBurning = QT_TRANSLATE_NOOP("ProcessWndController", "Burning Disc...");

constexpr int kMostPercent = 99;      ///< the sheet never shows 100
constexpr int kCancelFromPercent = 4; ///< a drive that has just started should not be stopped
constexpr int kUnknownPercent = -100;

/// Escape and the close box ask the same question as Cancel; the sheet does not close by itself.
class Sheet : public QDialog {
public:
    Sheet(QWidget* parent, std::function<void()> rejected)
        : QDialog(parent, Qt::Sheet), rejected_(std::move(rejected)) {
        setWindowFlag(Qt::WindowCloseButtonHint, false);
    }
    void reject() override { rejected_(); }

private:
    std::function<void()> rejected_;
};

} // namespace

ProcessWndController::ProcessWndController(QWidget& window) : ui_(std::make_unique<Ui::ProcessWnd>()) {
    window_ = std::make_unique<Sheet>(&window, [this] {
        if (ui_->btnCancel_->isEnabled())
            cancelBurn();
    });
    ui_->setupUi(window_.get());
    awakeFromNib();
}

ProcessWndController::~ProcessWndController() {
    window_->removeEventFilter(this);
}

void ProcessWndController::awakeFromNib() {
    ui_->lblTitle_->setText(tr("Burn Progress:"));
    ui_->lblTitle_->setFont(BurnWindowFont::ofSize(20));
    ui_->lblPercent_->setFont(BurnWindowFont::ofSize(20));
    ui_->lblMessage_->setFont(BurnWindowFont::ofSize(16));
    // As wide as its longest text, so that the layout does not move.
    ui_->lblPercent_->setMinimumWidth(ui_->lblPercent_->fontMetrics().horizontalAdvance(u"99  %"_s));
    ui_->btnCancel_->setText(Platform::Alerts::cancelLabel());
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &ProcessWndController::cancelBurn);
    window_->installEventFilter(this);
    applyColors();

    linger_.setSingleShot(true);
    linger_.setInterval(kLingerMs);
    linger_.setTimerType(Qt::PreciseTimer);
    connect(&linger_, &QTimer::timeout, this, &ProcessWndController::finishBurn);

    auto& center = Platform::NotificationCenter::defaultCenter();
    observations_.push_back(
        center.addObserver(BurnControlBurnProgressNotification,
                           [this](const QString&, const Dictionary& userInfo) { burnProcess(userInfo); }));
    observations_.push_back(center.addObserver(BurnControlBurnDidFininshNotification,
                                               [this](const QString&, const Dictionary&) { burnFinish(); }));
    observations_.push_back(center.addObserver(BurnControlBurnDidFailedNotification,
                                               [this](const QString&, const Dictionary&) { burnError(); }));
    initProcessWnd();
}

void ProcessWndController::applyColors() {
    const bool dark = Theme::shade() == Theme::Shade::Dark;
    const auto paint = [dark](QLabel* label, float grey) {
        QPalette colors;
        const float shown = dark ? 1 - grey : grey;
        colors.setColor(QPalette::WindowText, QColor::fromRgbF(shown, shown, shown));
        label->setPalette(colors);
    };
    paint(ui_->lblTitle_, 0.18F);
    paint(ui_->lblPercent_, 0.18F);
    paint(ui_->lblMessage_, 0.12F);
}

bool ProcessWndController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        applyColors();
    return QObject::eventFilter(watched, event);
}

void ProcessWndController::initProcessWnd() {
    linger_.stop();
    finished_ = false;
    ui_->lblMessage_->setText(tr(kWaiting));
    ui_->progressBar_->setValue(0);
    setProcess(0);
    ui_->btnCancel_->setEnabled(false);
    ui_->btnCancel_->setToolTip(tr("A burn cannot be stopped before it has written 4 %."));
}

void ProcessWndController::beginSheet(std::function<void()> didEnd) {
    didEnd_ = std::move(didEnd);
    window_->hide();
    window_->adjustSize();
    window_->open();
}

void ProcessWndController::burnProcess(const Dictionary& userInfo) {
    const double share = userInfo.value(kBurnProgressKey).toDouble();
    if (std::isnan(share))
        return;
    const int percent = std::min(int(std::clamp(share, -1.0, 1.0) * 100), kMostPercent);
    if (percent == kUnknownPercent) {
        ui_->lblMessage_->setText(tr(kWaiting));
        return;
    }
    if (percent >= kCancelFromPercent && !finished_) {
        ui_->btnCancel_->setEnabled(true);
        ui_->btnCancel_->setToolTip(tr("Stops the burn; the disc is then unusable."));
    }
    ui_->lblMessage_->setText(tr(kBurning));
    // Finer than the percentage, so that the bar moves visibly for a whole disc.
    ui_->progressBar_->setValue(int(std::clamp(share, 0.0, kMostPercent / 100.0) * ui_->progressBar_->maximum()));
    setProcess(percent);
}

void ProcessWndController::setProcess(int percent) {
    ui_->lblPercent_->setText(u"%1  %"_s.arg(percent));
}

void ProcessWndController::burnFinish() {
    // After this point nothing can be stopped.
    finished_ = true;
    ui_->btnCancel_->setEnabled(false);
    ui_->btnCancel_->setToolTip({});
    linger_.start();
}

void ProcessWndController::finishBurn() {
    endSheet();
}

void ProcessWndController::burnError() {
    endSheet();
}

void ProcessWndController::cancelBurn() {
    const int answer =
        Platform::services().alerts->runModal(tr("Warning:"), tr("Are you sure to end the task?"),
                                              {Platform::Alerts::cancelLabel(), Platform::Alerts::okLabel()});
    // The burn may have ended while the question was open.
    if (answer != 1 || finished_ || !didEnd_)
        return;
    engine_->stopBurn();
    endSheet();
}

void ProcessWndController::endSheet() {
    linger_.stop();
    window_->hide();
    if (const auto didEnd = std::exchange(didEnd_, {}))
        didEnd();
}
