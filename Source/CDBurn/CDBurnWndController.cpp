// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/CDBurnWndController.h"

#include "Platform/Desktop/Alerts.h"
#include "Platform/Desktop/Panels.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/Translations.h"
#include "Source/CDBurn/BurnControl.h"
#include "Source/CDBurn/BurnWindowFont.h"
#include "Source/CDBurn/ProcessWndController.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/Announcement.h"
#include "Source/View/EditDialog.h"
#include "Source/View/NamedImages.h"
#include "Source/View/Theme.h"
#include "ui_CDBurnWnd.h"

#include <QDialog>
#include <QPointer>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString kLayoutKey = QStringLiteral("CDBurnWndLayout");
constexpr QSize kBurnWindowSize(720, 480);
constexpr int kBottomBorder = 30;
constexpr int kWarningFont = 13;

// Converts gigabytes of free space to the window's megabytes. The track list uses its own, slightly larger estimate;
// the two are compared without conversion.
int megabytes(float gigabytes) {
    const float scaled = gigabytes * 1000;
    constexpr auto most = std::numeric_limits<int>::max();
    return scaled < float(most) ? int(std::max(scaled, 0.0F)) : most;
}

QList<QUrl> urls(const QStringList& paths) {
    QList<QUrl> result;
    for (const QString& path : paths)
        result.append(QUrl::fromLocalFile(path));
    return result;
}

} // namespace

CDBurnWndController::CDBurnWndController(QWidget* mainWindow)
    : window_(std::make_unique<EditDialog>(kLayoutKey, kBurnWindowSize, mainWindow)),
      ui_(std::make_unique<Ui::CDBurnWnd>()) {
    ui_->setupUi(window_.get());
    awakeFromNib();
}

CDBurnWndController::~CDBurnWndController() {
    ui_->trackList_->setDelegateForMain(nullptr);
}

AudioDataSourceView& CDBurnWndController::trackList() const {
    return *ui_->trackList_;
}

void CDBurnWndController::awakeFromNib() {
    burnControl_ = std::make_unique<BurnControl>();
    process_ = std::make_unique<ProcessWndController>(*window_);
    process_->senBurnControl(burnControl_.get());
    fillDrives();
    burnControl_->setUseCDRom(0);
    ui_->bottomBorder_->setMinimumHeight(kBottomBorder);
    ui_->trackList_->setDelegateForMain(this);

    using Self = CDBurnWndController;
    connect(window_.get(), &EditDialog::cancelled, this, [this] {
        if (!process_->window()->isVisible()) // during a burn, its sheet ends the session
            windowShouldClose();
    });
    connect(ui_->popDrives_, &QComboBox::activated, this, &Self::chooseBurnDevice);
    connect(ui_->btnEject_, &QAbstractButton::clicked, this, &Self::ejesctDisc);
    connect(ui_->btnAddFiles_, &QAbstractButton::clicked, this, &Self::addFilesToData);
    connect(ui_->btnBurn_, &QAbstractButton::clicked, this, &Self::startBurnCD);

    auto& center = Platform::NotificationCenter::defaultCenter();
    const auto observe = [&](const QString& name, auto member) {
        observations_.push_back(
            center.addObserver(name, [this, member](const QString&, const Dictionary&) { (this->*member)(); }));
    };
    observe(BurnControlDVDWillInsertNotification, &Self::discInsertCDRROM);
    observe(BurnControlDVDDidInNotification, &Self::discDidInCDROM);
    observe(BurnControlDVDDidOutNotification, &Self::discOutCDROM);
    observations_.push_back(
        center.addObserver(BurnControlDevicesDidChangeNotification, [this](const QString&, const Dictionary&) {
            fillDrives();
            flushDVDStartinfo();
        }));
    flushOtherInfo();
    flushDVDStartinfo();
}

void CDBurnWndController::fillDrives() {
    const QStringList names = BurnControl::cdROMDisplayNames();
    if (names.isEmpty())
        return;
    // Drives are added and removed while the window is open; the chosen one keeps its place in the list or has been
    // replaced.
    ui_->popDrives_->clear();
    ui_->popDrives_->addItems(names);
    ui_->popDrives_->setCurrentIndex(int(burnControl_->recordNum()));
}

void CDBurnWndController::prepareWindow() {
    window_->restoreSize();
    AudioDataSourceView& list = trackList();
    if (!list.isNullForData())
        list.setCurrentIndex(list.model()->index(0, TrackListModel::AudioName));
    list.setFocus();
}

void CDBurnWndController::runModal() {
    prepareWindow();
    window_->exec();
}

void CDBurnWndController::discDidInCDROM() {
    flushDVDStartinfo();
}

void CDBurnWndController::discOutCDROM() {
    flushDVDStartinfo();
}

void CDBurnWndController::musicFileNumChange() {
    flushOtherInfo();
    flushDVDStartinfo();
}

void CDBurnWndController::setAudioDataForCDBurn(const QVariantList& records) {
    ui_->trackList_->addDataFromRecordAudio(records);
    flushOtherInfo();
}

void CDBurnWndController::addFilesToData() {
    // The sheet belongs to the window, which may be destroyed before it is answered.
    const QPointer<CDBurnWndController> self(this);
    Platform::services().panels->chooseFilesAndFolders(window_.get(), tr("Select"), Platform::Folders::home(),
                                                       [self](const QStringList& paths) {
                                                           if (!self || paths.isEmpty())
                                                               return;
                                                           self->ui_->trackList_->addFilesToDataAry(urls(paths));
                                                           self->flushOtherInfo();
                                                       });
}

void CDBurnWndController::chooseBurnDevice(int index) {
    if (index < 0 || std::uint32_t(index) == burnControl_->recordNum())
        return;
    burnControl_->setUseCDRom(std::uint32_t(index));
    flushDVDStartinfo();
    flushOtherInfo();
}

void CDBurnWndController::ejesctDisc() {
    burnControl_->ejectCurrentDvd();
}

void CDBurnWndController::startBurnCD() {
    if (ui_->trackList_->isNullForData())
        return;
    // An empty layout would fail silently and close the window.
    if (ui_->trackList_->dataCountNum() == 0) {
        Platform::services().alerts->runModal(tr("There is nothing to burn."),
                                              tr("Tick the files that are to become tracks, then press Burn."),
                                              {Platform::Alerts::okLabel()});
        return;
    }
    // The disc may just have been removed. A burn that cannot start sends no notification, and its sheet would stay.
    flushDVDStartinfo();
    if (!ui_->btnBurn_->isEnabled())
        return;
    burnControl_->burnMusicToCD(ui_->trackList_->aryForAudioData_(), ui_->btnEjectAfterBurn_->isChecked());
    if (burnControl_->burnWasDeclined())
        return;
    process_->initProcessWnd();
    process_->beginSheet([this] { burnSheetDidEnd(); });
}

void CDBurnWndController::burnSheetDidEnd() {
    flushOtherInfo();
    flushDVDStartinfo();
    window_->done(0);
}

bool CDBurnWndController::windowShouldClose() {
    window_->done(0);
    return true;
}

void CDBurnWndController::flushOtherInfo() {
    ui_->lblSummary_->setText(tr(" %n Items     Size: %1 MB", nullptr, trackList().dataCountNum())
                                  .arg(Platform::Translations::decimal(double(trackList().dataSizeForMusic()))));
    ui_->lblTotalTime_->setText(tr("Time: %1").arg(ToolControl::getTimeString(trackList().tracks().tickedSeconds())));
    burnStateControl();
}

void CDBurnWndController::flushDVDStartinfo() {
    const bool mounted = BurnControl::statusByPath(burnControl_->currentDVDbsdName());
    discFreeSize_ = megabytes(burnControl_->getcurrentDVDFreeSize());
    ui_->btnEject_->setIcon(NamedImages::icon(mounted ? u"EjectDisc1.png"_s : u"EjectDisc2.png"_s));
    ui_->btnEject_->setEnabled(mounted);
    ui_->btnEject_->setToolTip(mounted ? tr("Eject the disc") : tr("There is no disc in the drive."));
    const QString problem = burnControl_->deviceProblem();
    ui_->lblProblem_->setText(problem);
    ui_->lblProblem_->setVisible(!problem.isEmpty());
    burnStateControl();
}

BurnState CDBurnWndController::currentState() const {
    BurnConditions conditions;
    conditions.listIsEmpty = trackList().isNullForData();
    conditions.mounted = BurnControl::statusByPath(burnControl_->currentDVDbsdName());
    conditions.blank = burnControl_->currenrDVDIsBlank();
    conditions.erasable = burnControl_->currentDVDIsErasable();
    conditions.musicSize = trackList().dataSizeForMusic();
    conditions.discFreeSize = discFreeSize_;
    return burnState(conditions);
}

void CDBurnWndController::burnStateControl() {
    const BurnState state = currentState();
    const bool ready = state == BurnState::Ready;
    const QString message = burnStateMessage(state);
    if (ready) {
        ui_->lblState_->setPalette({});
        ui_->lblState_->setFont({});
    } else {
        QPalette warning;
        warning.setColor(QPalette::WindowText, Qt::red);
        warning.setColor(QPalette::Window, Theme::alarmGround());
        ui_->lblState_->setPalette(warning);
        ui_->lblState_->setFont(BurnWindowFont::ofSize(kWarningFont));
    }
    ui_->lblState_->setAutoFillBackground(!ready);
    ui_->lblState_->setMargin(ready ? 0 : 4);
    if (window_->isVisible() && ui_->lblState_->text() != message)
        Announcement::say(*window_, message);
    ui_->lblState_->setText(message);
    ui_->btnBurn_->setEnabled(ready);
    ui_->btnBurn_->setIcon(NamedImages::icon(ready ? u"burn1.png"_s : u"burn3.png"_s));
    ui_->btnBurn_->setToolTip(ready ? QString() : message);
}
