// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/CDBurn/BurnControl.h"

#include "Platform/Disc/DiskArbitration.h"
#include "Platform/Foundation/NotificationCenter.h"
#include "Platform/Foundation/Services.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <utility>

using namespace Platform;

namespace {

Q_LOGGING_CATEGORY(burnLog, "sonaphex.burn")

const QString DRDeviceMediaStateBegin = QStringLiteral("DRDeviceMediaStateBegin"); // no disc yet, or it was removed
const QString DRDeviceMediaStateEnd = QStringLiteral("DRDeviceMediaStateEnd");     // a disc is present

constexpr std::uint32_t kPreGapSectors = 75;

DiscRecording& recording() {
    return *services().discRecording;
}

void post(const QString& name, const Dictionary& userInfo = {}) {
    NotificationCenter::defaultCenter().post(name, userInfo);
}

float gigabytes(const DRDevice& device) {
    return float(device.status().mediaBlocksFree) * 2048 / 1024 / 1024 / 1024;
}

} // namespace

BurnControl::BurnControl(QObject* parent) : QObject(parent), mediaStateMarker_(DRDeviceMediaStateBegin) {
    recording().currentRunLoopCenter().addObserver(this, DRDeviceListChangedNotification, nullptr,
                                                   [this](const DRNotification&) { devicesDidChange(); });
}

BurnControl::~BurnControl() {
    destroyCDRom();
    // The notifications of a running burn or erase must not reach a destroyed observer.
    recording().currentRunLoopCenter().removeObserver(this);
}

// ---- drives --------------------------------------------------------------------------------------------------------

std::shared_ptr<DRDevice> BurnControl::deviceAt(std::uint32_t index) {
    const auto devices = recording().devices();
    return index < devices.size() ? devices[index] : nullptr;
}

QStringList BurnControl::cdROMDisplayNames() {
    QStringList names;
    for (const auto& device : recording().devices())
        names.append(device ? device->displayName() : QString());
    return names;
}

float BurnControl::getFreeSize(std::uint32_t index) {
    const auto device = deviceAt(index);
    return device ? gigabytes(*device) : 0;
}

bool BurnControl::statusByPath(const QString& bsdName) {
    const QByteArray path = "/dev/" + bsdName.toUtf8();
    const auto session = services().diskArbitration->createSession();
    if (!session) {
        qCWarning(burnLog, "Can't create DiskArb session");
        return false;
    }
    const auto disk = session->createDiskFromBSDName(path);
    if (!disk) {
        qCWarning(burnLog, "DADiskCreateFromBSDName(%s) failed", path.constData());
        return false;
    }
    return disk->hasDescription();
}

void BurnControl::setUseCDRom(std::uint32_t index) {
    if (index >= recording().devices().size())
        return;
    destroyCDRom();
    recordNum_ = index;
    watched_ = deviceAt(index);
    if (watched_)
        recording().currentRunLoopCenter().addObserver(
            this, DRDeviceStatusChangedNotification, watched_,
            [this](const DRNotification& notification) { NotificationToCurrentDevice(notification); });
    qCInfo(burnLog, "Init DRDevice!");
}

void BurnControl::destroyCDRom() {
    // The chosen drive itself, not its index: the list may have changed since.
    if (watched_)
        recording().currentRunLoopCenter().removeObserver(this, DRDeviceStatusChangedNotification, watched_);
    watched_.reset();
    qCInfo(burnLog, "Remove DRDevice!");
}

void BurnControl::devicesDidChange() {
    const auto devices = recording().devices();
    const auto found = std::find(devices.begin(), devices.end(), watched_);
    if (watched_ && found != devices.end())
        recordNum_ = std::uint32_t(found - devices.begin()); // a drive before it in the list was added or removed
    else if (!devices.empty())
        setUseCDRom(0);
    post(BurnControlDevicesDidChangeNotification);
}

void BurnControl::NotificationToCurrentDevice(const DRNotification& notification) {
    const auto device = std::dynamic_pointer_cast<DRDevice>(notification.object);
    if (!device) {
        qCInfo(burnLog, "CurrentDevice. is not DRDevice");
        return;
    }
    const DRDeviceStatus status = device->status();
    if (status.isBusy)
        return;
    if (mediaStateMarker_ == DRDeviceMediaStateBegin && status.mediaState == DRDeviceMediaStateInTransition) {
        post(BurnControlDVDWillInsertNotification);
        qCInfo(burnLog, "cd  insert to  the CD -ROM");
    }
    if (mediaStateMarker_ == DRDeviceMediaStateBegin && status.mediaState == DRDeviceMediaStateMediaPresent) {
        mediaStateMarker_ = DRDeviceMediaStateEnd;
        post(BurnControlDVDDidInNotification);
        qCInfo(burnLog, "cd  into to  the CD -ROM");
    }
    if (status.mediaState == DRDeviceMediaStateNone && mediaStateMarker_ == DRDeviceMediaStateEnd) {
        post(BurnControlDVDDidOutNotification);
        mediaStateMarker_ = DRDeviceMediaStateBegin;
        qCInfo(burnLog, "cd  out to  the CD -ROM");
    }
}

bool BurnControl::ejectCurrentDvd() {
    const auto device = deviceAt(recordNum_);
    return device && device->ejectMedia();
}

bool BurnControl::currenrDVDIsBlank() const {
    const auto device = deviceAt(recordNum_);
    return device && device->mediaIsBlank();
}

bool BurnControl::currentDVDIsErasable() const {
    const auto device = deviceAt(recordNum_);
    return device && device->mediaIsErasable();
}

QString BurnControl::currentDVDbsdName() const {
    const auto device = deviceAt(recordNum_);
    return device ? device->bsdName() : QString();
}

float BurnControl::getcurrentDVDFreeSize() const {
    return getFreeSize(recordNum_);
}

QString BurnControl::deviceProblem() const {
    const auto device = deviceAt(recordNum_);
    return device ? device->status().problem : QCoreApplication::translate("BurnControl", "there is no drive");
}

// ---- burning -------------------------------------------------------------------------------------------------------

std::optional<DRLayout> BurnControl::createLayoutForCDBurn(const QList<Dictionary>& entries) {
    layoutProblem_.clear();
    DRLayout layout;
    for (const Dictionary& entry : entries) {
        if (!boolValue(entry.value(TrackEntry::ChooseTheAudio)))
            continue;
        auto track = recording().trackForAudioFile(entry.value(TrackEntry::FilePath).toString());
        layoutProblem_ = track.error().text;
        if (!track)
            return std::nullopt;
        layout.push_back(*std::move(track));
    }
    for (const auto& track : layout) {
        DRTrackProperties properties = track->properties();
        properties.preGapLength = kPreGapSectors;
        track->setProperties(properties);
    }
    return layout;
}

void BurnControl::watch(const std::shared_ptr<DRBurn>& burn) {
    recording().currentRunLoopCenter().addObserver(
        this, DRBurnStatusChangedNotification, burn,
        [this](const DRNotification& notification) { burnNotification(notification); });
}

void BurnControl::burnMusicToCD(const QList<Dictionary>& entries, bool ejectDisc) {
    layoutProblem_.clear();
    const auto device = deviceAt(recordNum_);
    if (!device)
        return;
    const auto burn = recording().burnWithDevice(device);
    if (!burn)
        return;
    burn->setRequestedBurnSpeed(device->status().maximumWriteSpeed);
    watch(burn);
    DRBurnProperties properties = burn->properties();
    properties.completionAction = ejectDisc ? DRBurnCompletionActionEject : DRBurnCompletionActionMount;
    burn->setProperties(properties);
    const auto layout = createLayoutForCDBurn(entries);
    layout_ = layout.value_or(DRLayout());
    burn->writeLayout(layout);
    keep(std::exchange(burn_, burn));
}

void BurnControl::beginDVDMediaBurn(const QString& imagePath) {
    layoutProblem_.clear();
    const auto device = deviceAt(recordNum_);
    if (!device)
        return;
    const auto layout = recording().layoutForImageFile(imagePath);
    layoutProblem_ = layout.error().text;
    const auto burn = recording().burnWithDevice(device);
    if (!burn)
        return;
    burn->setRequestedBurnSpeed(device->status().maximumWriteSpeed);
    watch(burn);
    DRBurnProperties properties = burn->properties();
    properties.strategy = DRBurnStrategyDVDDAO;
    properties.verifyDisc = false;
    properties.completionAction = DRBurnCompletionActionMount;
    properties.udfWriteVersion = DRUDFVersion150;
    burn->setProperties(properties);
    burn->writeLayout(layout ? std::optional(*layout) : std::nullopt);
    keep(std::exchange(burn_, burn));
}

void BurnControl::eraseDVD() {
    const auto device = deviceAt(recordNum_);
    if (!device)
        return;
    const auto erase = recording().eraseWithDevice(device);
    if (!erase)
        return;
    keep(std::exchange(erase_, erase));
    erase->setEraseType(DREraseTypeQuick);
    recording().currentRunLoopCenter().addObserver(
        this, DREraseStatusChangedNotification, erase,
        [this](const DRNotification& notification) { eraseNotification(notification); });
    erase->start();
}

void BurnControl::stopBurn() {
    if (!burn_)
        return;
    burn_->abort();
    recording().currentRunLoopCenter().removeObserver(this, DRBurnStatusChangedNotification, burn_);
}

void BurnControl::keep(std::shared_ptr<DRObject> earlier) {
    if (earlier)
        earlier_.push_back(std::move(earlier));
}

void BurnControl::burnNotification(const DRNotification& notification) {
    const auto burn = std::dynamic_pointer_cast<DRBurn>(notification.object);
    if (!burn) {
        qCInfo(burnLog, "burnNotification. is not DRBurn");
        return;
    }
    const DRStatus status = burn->status();
    qCInfo(burnLog, "                    BurndValue  =  %f", status.percentComplete);
    post(BurnControlBurnProgressNotification, {{kBurnProgressKey, status.percentComplete}});
    if (status.state == DRStatusStateDone) {
        qCInfo(burnLog, "Burn is end");
        qCInfo(burnLog, "          the   Burn  is    end\n  ");
        post(BurnControlBurnDidFininshNotification);
        recording().currentRunLoopCenter().removeObserver(this, DRBurnStatusChangedNotification, burn);
    } else if (status.state == DRStatusStateFailed) {
        qCInfo(burnLog, "Burn is failed");
        const QString reason = failureReason();
        if (!reason.isEmpty())
            qCWarning(burnLog, "%s", qUtf8Printable(reason));
        post(BurnControlBurnDidFailedNotification);
        recording().currentRunLoopCenter().removeObserver(this, DRBurnStatusChangedNotification, burn);
    }
}

void BurnControl::eraseNotification(const DRNotification& notification) {
    const auto erase = std::dynamic_pointer_cast<DRErase>(notification.object);
    if (!erase) {
        qCInfo(burnLog, "burnNotification. is not DRErase");
        return;
    }
    const DRStatus status = erase->status();
    const auto value = float(status.percentComplete);
    qCInfo(burnLog, "    value  =  %f", double(value));
    post(EraseDVDProgressNotification, {{kBurnProgressKey, value}});
    // Only the observer of burns is removed; the observer of an erase stays, so notifications after the end of an erase
    // are still posted.
    if (status.state == DRStatusStateFailed) {
        qCInfo(burnLog, "           the   erase  is  Failed");
        recording().currentRunLoopCenter().removeObserver(this, DRBurnStatusChangedNotification, erase);
    }
    if (status.state == DRStatusStateDone) {
        post(EraseDVDDidFininshNotification);
        recording().currentRunLoopCenter().removeObserver(this, DRBurnStatusChangedNotification, erase);
        qCInfo(burnLog, "     the erase   end !!!  ");
    }
}

bool BurnControl::burnWasDeclined() const {
    return burn_ && burn_->wasDeclined();
}

QString BurnControl::failureReason() const {
    if (!layoutProblem_.isEmpty())
        return layoutProblem_;
    return burn_ ? burn_->status().reason : QString();
}
