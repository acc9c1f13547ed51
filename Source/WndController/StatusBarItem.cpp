// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/StatusBarItem.h"

#include "Source/View/NamedImages.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/MainWndController.h"

#include <QApplication>

StatusBarItem::StatusBarItem(MainWndController& mainWndController, QObject* parent)
    : QObject(parent), mainWndController_(mainWndController),
      startStopMenu_(add(QCoreApplication::translate("Record", "Start Record"), QStringLiteral("startAndStopRecord:"),
                         &MainWndController::startAndStopRecord)),
      pauseResumeMenu_(add(QCoreApplication::translate("Record", "Pause Record"),
                           QStringLiteral("pauseAndResumeRecord:"), &MainWndController::pauseAndResumeRecord)),
      startNewRecordMenu_(
          add(tr("Cut to Another Recording"), QStringLiteral("splitTheRecord:"), &MainWndController::splitTheRecord)) {
    systemBarMenu_.addSeparator();
    connect(systemBarMenu_.addAction(tr("Show Sonaphex")), &QAction::triggered, &mainWndController_,
            [this] { ToolControl::showWindowNib(mainWndController_); });
    connect(systemBarMenu_.addAction(tr("Quit")), &QAction::triggered, &mainWndController_,
            &MainWndController::closeWindow);
    connect(&systemBarMenu_, &QMenu::aboutToShow, this, &StatusBarItem::validate);
    const RecordStateController* record = &mainWndController_.record();
    connect(record, &RecordStateController::stateChanged, this, &StatusBarItem::validate);
    connect(record, &RecordStateController::stateChanged, this, &StatusBarItem::showImage);
    connect(record, &RecordStateController::stateChanged, this, &StatusBarItem::showToolTip);
    connect(record, &RecordStateController::displayChanged, this, &StatusBarItem::showToolTip);
    validate();

    // Qt 6.4 checks once per process, when the first icon is created, whether the session bus has a status bar. An icon
    // that is created before the bar exists would never be shown.
    bars_ = Platform::StatusBars::create();
    connect(bars_.get(), &Platform::StatusBars::appeared, this, &StatusBarItem::showIcon);
}

QString StatusBarItem::imageName(RecordState state) {
    switch (state) {
    case RecordState::Armed:
        return QStringLiteral("record-status-bar-armed");
    case RecordState::Recording:
        return QStringLiteral("record-status-bar-recording");
    case RecordState::Paused:
        return QStringLiteral("record-status-bar-paused");
    case RecordState::Idle:
    case RecordState::Finishing:
        break;
    }
    return QStringLiteral("record-status-bar-start");
}

void StatusBarItem::showImage() {
    const QString name = imageName(mainWndController_.record().state());
    if (!icon_ || name == image_)
        return;
    image_ = name;
    QIcon image;
    for (const qreal ratio : {1.0, 2.0, 3.0})
        image.addPixmap(NamedImages::pixmap(name, {kImageSize, kImageSize}, ratio));
    icon_->setIcon(image);
}

void StatusBarItem::showToolTip() {
    if (!icon_)
        return;
    const QString headline = mainWndController_.record().headline();
    const QString text = headline.isEmpty() ? QStringLiteral("Sonaphex") : tr("Sonaphex: %1").arg(headline);
    if (icon_->toolTip() != text)
        icon_->setToolTip(text);
}

void StatusBarItem::showIcon() {
    icon_ = std::make_unique<QSystemTrayIcon>();
    image_.clear();
    showImage();
    showToolTip();
    icon_->setContextMenu(&systemBarMenu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            ToolControl::showWindowNib(mainWndController_);
    });
    icon_->show();
}

QAction* StatusBarItem::add(const QString& title, const QString& action, void (MainWndController::*command)()) {
    QAction* item = systemBarMenu_.addAction(title);
    item->setProperty(MainMenus::kActionProperty, action);
    connect(item, &QAction::triggered, &mainWndController_, command);
    return item;
}

void StatusBarItem::validate() {
    for (QAction* item : {startStopMenu_, pauseResumeMenu_, startNewRecordMenu_})
        item->setEnabled(mainWndController_.validateMenuItem(*item));
}
