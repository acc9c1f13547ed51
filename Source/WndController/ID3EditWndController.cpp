// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/ID3EditWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Foundation/FileManager.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/Services.h"
#include "Source/Control/ID3ChangeControl.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/AcceptDragImageView.h"
#include "Source/WndController/RecordingEditDelegate.h"
#include "Source/WndController/WaitWndController.h"
#include "ui_ID3EditWnd.h"

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kEditWindowSize(520, 300);

/// Encodes as TIFF; as PNG where Qt has no TIFF writer.
QByteArray dataOf(const QImage& image) {
    for (const char* format : {"TIFF", "PNG"}) {
        QByteArray data;
        QBuffer buffer(&data);
        buffer.open(QIODevice::WriteOnly);
        if (image.save(&buffer, format))
            return data;
    }
    return {};
}

} // namespace

ID3EditWndController::ID3EditWndController(QWidget* mainWindow, QObject* parent)
    : QObject(parent), window_(new EditDialog(u"ID3EditWndLayout"_s, kEditWindowSize, mainWindow)),
      ui_(std::make_unique<Ui::ID3EditWnd>()) {
    ui_->setupUi(window_);
    awakeFromNib();
}

ID3EditWndController::~ID3EditWndController() {
    joinWorker();
    delete window_;
}

void ID3EditWndController::awakeFromNib() {
    waitWndController_ = std::make_unique<WaitWndController>();
    using Self = ID3EditWndController;
    connect(ui_->btnChooseArtwork_, &QPushButton::clicked, this, &Self::chooseImageForArtwork);
    connect(ui_->btnDone_, &QPushButton::clicked, this, &Self::doneEditID3);
    connect(ui_->btnCancel_, &QPushButton::clicked, this, &Self::cancelEditID3);
    connect(window_, &EditDialog::cancelled, this, &Self::cancelEditID3);
    connect(ui_->yearField_, &QLineEdit::editingFinished, this, &Self::controlTextDidEndEditing);
    connect(ui_->artworkView_, &AcceptDragImageView::fileWanted, this, &Self::chooseImageForArtwork);
    connect(ui_->artworkView_, &AcceptDragImageView::imageChanged, this, [this] { imageChanged_ = true; });
}

void ID3EditWndController::setID3EditDataSource(const Dictionary& entry) {
    using namespace AudioRecordEntry;
    entry_ = entry;
    const auto text = [&](const QString& key) {
        return entry.contains(key) ? Platform::stringForm(entry.value(key)) : QString();
    };
    ui_->titleField_->setText(text(Title));
    ui_->artistField_->setText(text(Artist));
    ui_->albumField_->setText(text(Album));
    ui_->genreField_->setText(text(Genre));
    const int year = Platform::intValue(entry.value(Year));
    ui_->yearField_->setText(year == 0 ? QString() : QString::number(year));
    ui_->artworkView_->setStrImagePath({});
    ui_->artworkView_->setImgShow(QImage::fromData(entry.value(Artwork).toByteArray()));
    imageChanged_ = false;
}

void ID3EditWndController::runModal() {
    window_->restoreSize();
    ui_->titleField_->setFocus();
    ui_->titleField_->selectAll();
    ToolControl::showWindowNib(*this);
    window_->exec();
}

void ID3EditWndController::chooseImageForArtwork() {
    if (const auto path = Platform::services().panels->chooseFile(window_, tr("Choose"), {}, {}))
        if (!ui_->artworkView_->hasImageFile({*path}))
            (void)Platform::services().alerts->runModal(tr("This file is not a picture."), *path,
                                                        {Platform::Alerts::okLabel()});
}

void ID3EditWndController::controlTextDidEndEditing() {
    ui_->yearField_->setText(ID3EditSave::yearText(ui_->yearField_->text()));
}

void ID3EditWndController::doneEditID3() {
    if (waitWndController_->isSheetUp())
        return;
    startConverter();
    StartID3Edit();
}

void ID3EditWndController::cancelEditID3() {
    if (!waitWndController_->isSheetUp())
        window_->done(QDialog::Rejected);
}

void ID3EditWndController::startConverter() {
    waitWndController_->beginSheet(window_, [this] { converterSheetDidEnd(); });
    waitWndController_->setIsWorking(tr("ID3 converter......"));
}

void ID3EditWndController::StartID3Edit() {
    using namespace AudioRecordEntry;
    Dictionary edited = entry_;
    edited.insert(Title, ui_->titleField_->text());
    edited.insert(Artist, ui_->artistField_->text());
    edited.insert(Album, ui_->albumField_->text());
    edited.insert(Genre, ui_->genreField_->text());
    controlTextDidEndEditing();
    edited.insert(Year, Platform::intValue(ui_->yearField_->text()));
    const QImage image = ui_->artworkView_->imgShow();
    ID3EditSave::Artwork artwork;
    if (imageChanged_) {
        edited.remove(Artwork);
        artwork.kind = image.isNull() ? ID3EditSave::Artwork::Kind::Default : ID3EditSave::Artwork::Kind::Set;
        if (!image.isNull()) {
            edited.insert(Artwork, dataOf(image));
            artwork.path = ID3ChangeControl::createPathForImage(image);
        }
    }
    joinWorker();
    worker_ = std::thread([this, before = entry_, edited, artwork] {
        auto result = std::make_shared<ID3EditSave::Result>(ID3EditSave::save(before, edited, artwork));
        if (!artwork.path.isEmpty())
            (void)Platform::FileManager::removeFile(artwork.path);
        Platform::MainQueue::post(this, [this, result] { written(std::move(*result)); });
    });
}

void ID3EditWndController::written(ID3EditSave::Result result) {
    joinWorker();
    entry_ = result.entry;
    notice_ = result.notice;
    updateFile(Platform::stringForm(entry_.value(AudioRecordEntry::SavePath)), entry_);
    if (result.note)
        result.note->end();
    waitWndController_->setStopWork();
}

void ID3EditWndController::converterSheetDidEnd() {
    window_->done(QDialog::Accepted);
    if (!notice_.isEmpty())
        (void)Platform::services().alerts->runModal(tr("Not everything could be saved."), notice_,
                                                    {Platform::Alerts::okLabel()});
}

void ID3EditWndController::updateFile(const QString& path, const Dictionary& tags) {
    if (delegate_)
        delegate_->updateFile(path, tags);
}

void ID3EditWndController::joinWorker() {
    if (worker_.joinable())
        worker_.join();
}

bool ID3EditWndController::isWindowVisible() const {
    return window_->isVisible();
}

void ID3EditWndController::showWindow() {
    window_->show();
}

void ID3EditWndController::makeKeyAndOrderFront() {
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void ID3EditWndController::center() {
    window_->center();
}
