// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterAudio/AudioFilterController.h"

#include "FilterAudio/FilteredAudioModel.h"
#include "Platform/Desktop/Alerts.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/EditDialog.h"
#include "ui_AudioFilterController.h"

#include <QKeyEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int kFirstSeconds = 10;
}

AudioFilterController::AudioFilterController(QObject* parent)
    : QObject(parent), tableArrayControler_(std::make_unique<FilteredAudioModel>()) {
    connect(tableArrayControler_.get(), &FilteredAudioModel::ticksChanged, this, &AudioFilterController::showTicked);
}

AudioFilterController::~AudioFilterController() {
    window_.reset();
}

QString AudioFilterController::windowNibName() {
    return u"AudioFilterController"_s;
}

void AudioFilterController::setAudioArray(const QVariantList& entries) {
    tableArrayControler_->setContent(entries);
    setLessThanSecond(lessThanSecond_);
}

void AudioFilterController::setLessThanSecond(int seconds) {
    lessThanSecond_ = seconds;
    tableArrayControler_->setFilter(seconds);
    Q_EMIT lessThanSecondChanged();
}

EditDialog& AudioFilterController::makeWindow(QWidget* owner) {
    ui_ = std::make_unique<Ui::AudioFilterController>();
    window_ = std::make_unique<EditDialog>(u"AudioFilterLayout"_s, QSize(640, 420), owner);
    ui_->setupUi(window_.get());
    bindControls();
    awakeFromNib();
    window_->restoreSize();
    return *window_;
}

void AudioFilterController::awakeFromNib() {
    setLessThanSecond(kFirstSeconds);
}

void AudioFilterController::bindControls() {
    QTableView& table = *ui_->audioTableView;
    table.setModel(tableArrayControler_.get());
    QHeaderView& columns = *table.horizontalHeader();
    columns.setHighlightSections(false);
    columns.setMinimumSectionSize(24);
    columns.setSectionResizeMode(FilteredAudioModel::Title, QHeaderView::Stretch);
    columns.resizeSection(FilteredAudioModel::Tick, 32);
    const QFontMetrics letters = table.fontMetrics();
    columns.resizeSection(FilteredAudioModel::Length, std::max(88, letters.horizontalAdvance(u"00:00:00"_s) + 20));
    columns.resizeSection(FilteredAudioModel::Date, std::max(104, letters.horizontalAdvance(u"0000/00/00"_s) + 20));
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 10);
    table.installEventFilter(this);
    ui_->lessThanSecondField->installEventFilter(this);

    connect(this, &AudioFilterController::lessThanSecondChanged, window_.get(),
            [this] { ui_->lessThanSecondField->setValue(lessThanSecond_); });
    connect(ui_->lessThanSecondField, &QSpinBox::valueChanged, window_.get(), [this](int seconds) {
        if (seconds != lessThanSecond_)
            setLessThanSecond(seconds);
    });
    connect(ui_->removeButton, &QPushButton::clicked, this, &AudioFilterController::removeAudio);
    connect(ui_->cancelButton, &QPushButton::clicked, this, &AudioFilterController::closeWindow);
    connect(window_.get(), &EditDialog::cancelled, this, &AudioFilterController::closeWindow);
}

void AudioFilterController::showTicked() {
    if (!ui_)
        return;
    const auto seconds = static_cast<std::int64_t>(tableArrayControler_->tickedSeconds());
    ui_->tickedLabel->setText(
        tr("%1 ticked, %2").arg(tableArrayControler_->tickedCount()).arg(ToolControl::getTimeString(seconds)));
}

void AudioFilterController::showWindow(QWidget* owner) {
    EditDialog& window = makeWindow(owner);
    window.center();
    ui_->audioTableView->setFocus();
    window.exec();
    window_.reset();
    ui_.reset();
    tableArrayControler_->setContent({});
}

void AudioFilterController::closeWindow() {
    if (window_)
        window_->done(QDialog::Rejected); // ends the modal session
}

bool AudioFilterController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !ui_)
        return QObject::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (watched == ui_->audioTableView && key == Qt::Key_Space) {
        tableArrayControler_->toggle(ui_->audioTableView->selectionModel()->selectedRows());
        return true;
    }
    // Return completes a number and must not press Remove.
    if (watched == ui_->lessThanSecondField && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        ui_->lessThanSecondField->interpretText();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool AudioFilterController::runRemoveAudioAlert() {
    // "Cancel" is the default button, so that an accidental Enter keeps the files.
    return Platform::services().alerts->runModal(tr("Do you want to move these items to the trash?"), {},
                                                 {Platform::Alerts::cancelLabel(), tr("Remove")}) == 1;
}

void AudioFilterController::removeAudio() {
    if (!runRemoveAudioAlert())
        return;
    removeMediaLibraryArray(tableArrayControler_->tickedEntries());
    closeWindow();
}

void AudioFilterController::removeMediaLibraryArray(const QVariantList& entries) {
    if (delegate_)
        delegate_->removeMediaLibraryArray(entries);
}
