// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/DriveSource.h"
#include "Platform/Disc/linux/ImageDrive.h"
#include "Platform/Foundation/linux/Descriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>

#include <cerrno>
#include <fcntl.h>
#include <libudev.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

template <auto Free>
struct Unref {
    template <typename T>
    void operator()(T* object) const noexcept {
        Free(object);
    }
};
using UdevPtr = std::unique_ptr<udev, Unref<udev_unref>>;
using UdevDevicePtr = std::unique_ptr<udev_device, Unref<udev_device_unref>>;
using UdevEnumeratePtr = std::unique_ptr<udev_enumerate, Unref<udev_enumerate_unref>>;
using UdevMonitorPtr = std::unique_ptr<udev_monitor, Unref<udev_monitor_unref>>;

constexpr int kLookEveryMs = 2000;

bool isSet(udev_device* device, const char* property) {
    const char* value = udev_device_get_property_value(device, property);
    return value && value[0] == '1';
}

QString text(udev_device* device, const char* attribute) {
    return QString::fromUtf8(udev_device_get_sysattr_value(device, attribute)).simplified();
}

/// Asks the drive about its disc; falls back to the device database when the drive cannot be opened.
DRDeviceMediaState mediaState(const QString& path, udev_device* device) {
    const Descriptor drive(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const int status = drive ? ::ioctl(drive.get(), CDROM_DRIVE_STATUS, CDSL_CURRENT) : -1;
    switch (status) {
    case CDS_DISC_OK:
        return DRDeviceMediaStateMediaPresent;
    case CDS_DRIVE_NOT_READY:
        return DRDeviceMediaStateInTransition;
    case CDS_NO_DISC:
    case CDS_TRAY_OPEN:
        return DRDeviceMediaStateNone;
    default:
        return isSet(device, "ID_CDROM_MEDIA") ? DRDeviceMediaStateMediaPresent : DRDeviceMediaStateNone;
    }
}

class UdevDrives final : public DriveSource {
public:
    explicit UdevDrives(std::function<void()> changed) : changed_(std::move(changed)), udev_(udev_new()) {
        if (!udev_)
            return;
        monitor_.reset(udev_monitor_new_from_netlink(udev_.get(), "udev"));
        if (monitor_ && udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), "block", nullptr) >= 0 &&
            udev_monitor_enable_receiving(monitor_.get()) >= 0) {
            notifier_ = std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor_.get()), QSocketNotifier::Read);
            QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { receive(); });
        }
        QObject::connect(&look_, &QTimer::timeout, &look_, [this] {
            if (hasDrives_) // without a drive nothing is polled; a new drive sends an event
                changed_();
        });
        look_.start(kLookEveryMs);
    }

    std::vector<FoundDrive> drives() override {
        std::vector<FoundDrive> found;
        hasDrives_ = false;
        const UdevEnumeratePtr list(udev_ ? udev_enumerate_new(udev_.get()) : nullptr);
        if (!list || udev_enumerate_add_match_subsystem(list.get(), "block") < 0 ||
            udev_enumerate_add_match_property(list.get(), "ID_CDROM", "1") < 0 ||
            udev_enumerate_scan_devices(list.get()) < 0)
            return found;
        udev_list_entry* entry = nullptr;
        udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(list.get())) {
            const UdevDevicePtr device(udev_device_new_from_syspath(udev_.get(), udev_list_entry_get_name(entry)));
            if (device && udev_device_get_devnode(device.get()) && writesDiscs(device.get()))
                found.push_back(describe(device.get()));
        }
        hasDrives_ = !found.empty();
        return found;
    }

    int openError(const QString& path) override {
        const Descriptor drive(::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_EXCL | O_CLOEXEC));
        return drive ? 0 : errno;
    }

    void setQuiet(const QString& path, bool quiet) override {
        if (quiet)
            quiet_.insert(path);
        else
            quiet_.remove(path);
    }

    void mount(const QString& path) override {
        const auto bus = QDBusConnection::systemBus();
        const QString object = u"/org/freedesktop/UDisks2/block_devices/"_s + QFileInfo(path).fileName();
        // One after the other on the bus. A machine without the service mounts discs by other means or not at all.
        for (const auto& [interface, call] : {std::pair(u"org.freedesktop.UDisks2.Block"_s, u"Rescan"_s),
                                              std::pair(u"org.freedesktop.UDisks2.Filesystem"_s, u"Mount"_s)}) {
            auto message = QDBusMessage::createMethodCall(u"org.freedesktop.UDisks2"_s, object, interface, call);
            message << QVariantMap();
            if (bus.isConnected())
                bus.asyncCall(message);
        }
    }

private:
    static bool writesDiscs(udev_device* device) {
        return isSet(device, "ID_CDROM_CD_R") || isSet(device, "ID_CDROM_CD_RW") || isSet(device, "ID_CDROM_DVD_R") ||
               isSet(device, "ID_CDROM_DVD_PLUS_R");
    }

    FoundDrive describe(udev_device* device) {
        FoundDrive drive;
        drive.path = QFile::decodeName(udev_device_get_devnode(device));
        drive.device = QString::fromUtf8(udev_device_get_sysname(device));
        drive.name = u"%1 %2"_s.arg(text(device, "device/vendor"), text(device, "device/model")).simplified();
        if (drive.name.isEmpty())
            drive.name = drive.device;
        drive.mediaIsBlank = qstrcmp(udev_device_get_property_value(device, "ID_CDROM_MEDIA_STATE"), "blank") == 0;
        drive.mediaIsRewritable = isSet(device, "ID_CDROM_MEDIA_CD_RW") || isSet(device, "ID_CDROM_MEDIA_DVD_RW") ||
                                  isSet(device, "ID_CDROM_MEDIA_DVD_PLUS_RW");
        drive.mediaChanges = changes_.value(drive.path);
        DRDeviceMediaState& seen = seen_[drive.path];
        if (!quiet_.contains(drive.path))
            seen = mediaState(drive.path, device);
        drive.media = seen;
        return drive;
    }

    void receive() {
        bool matters = false;
        while (const UdevDevicePtr device{udev_monitor_receive_device(monitor_.get())}) {
            if (!isSet(device.get(), "ID_CDROM") || !udev_device_get_devnode(device.get()))
                continue;
            matters = true;
            if (isSet(device.get(), "DISK_MEDIA_CHANGE"))
                ++changes_[QFile::decodeName(udev_device_get_devnode(device.get()))];
        }
        if (matters)
            changed_();
    }

    std::function<void()> changed_;
    UdevPtr udev_;
    UdevMonitorPtr monitor_;
    QHash<QString, DRDeviceMediaState> seen_; // the last disc state of each drive
    bool hasDrives_ = false;
    QHash<QString, int> changes_;
    QSet<QString> quiet_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QTimer look_;
};

class Disk final : public DADisk {
public:
    explicit Disk(bool described) : described_(described) {}
    [[nodiscard]] bool hasDescription() const override { return described_; }

private:
    bool described_;
};

class Session final : public DASession {
public:
    explicit Session(UdevPtr udev) : udev_(std::move(udev)) {}

    std::unique_ptr<DADisk> createDiskFromBSDName(const QByteArray& path) override {
        const QByteArray prefix = "/dev/";
        if (!path.startsWith(prefix))
            return nullptr;
        const QByteArray name = path.mid(prefix.size());
        if (name == ImageDrive::deviceName().toUtf8())
            return std::make_unique<Disk>(true);
        if (name.isEmpty() || name.contains('/')) // such a name is no block device, so udev is not asked
            return std::make_unique<Disk>(false);
        const UdevDevicePtr device(udev_device_new_from_subsystem_sysname(udev_.get(), "block", name.constData()));
        if (!device)
            return std::make_unique<Disk>(false);
        const bool isDrive = isSet(device.get(), "ID_CDROM");
        return std::make_unique<Disk>(!isDrive || mediaState(QFile::decodeName(path), device.get()) ==
                                                      DRDeviceMediaStateMediaPresent);
    }

private:
    UdevPtr udev_;
};

class UdevDiskArbitration final : public DiskArbitration {
public:
    std::unique_ptr<DASession> createSession() override {
        UdevPtr udev(udev_new());
        if (!udev)
            return nullptr;
        return std::make_unique<Session>(std::move(udev));
    }
};

} // namespace

std::unique_ptr<DriveSource> createDriveSource(std::function<void()> changed) {
    return std::make_unique<UdevDrives>(std::move(changed));
}

std::unique_ptr<DiskArbitration> createDiskArbitration() {
    return std::make_unique<UdevDiskArbitration>();
}

} // namespace Platform
