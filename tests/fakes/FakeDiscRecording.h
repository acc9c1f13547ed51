// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"
#include "Platform/Disc/DiskArbitration.h"

#include <QMap>
#include <QSet>
#include <QStringList>

/// A drive whose state the test sets.
class FakeDrive : public Platform::DRDevice {
public:
    explicit FakeDrive(QString name = QStringLiteral("Fake Drive")) : name(std::move(name)) {}

    QString displayName() const override { return name; }
    Platform::DRDeviceStatus status() const override { return state; }
    bool mediaIsBlank() const override { return blank; }
    bool mediaIsErasable() const override { return erasable; }
    QString bsdName() const override {
        return state.mediaState == Platform::DRDeviceMediaStateMediaPresent ? device : QString();
    }
    QString path() const override { return QStringLiteral("/dev/") + device; }
    bool ejectMedia() override {
        ++ejects;
        return ejectWorks;
    }

    /// Inserts a blank disc with this many free blocks.
    void insertBlankDisc(std::int64_t freeBlocks = 360'000) {
        state.mediaState = Platform::DRDeviceMediaStateMediaPresent;
        state.mediaBlocksFree = freeBlocks;
        state.mediaKind = QStringLiteral("CD-R");
        blank = true;
    }
    void removeDisc() {
        state = {};
        blank = erasable = false;
    }

    QString name;
    QString device = QStringLiteral("sr0");
    Platform::DRDeviceStatus state;
    bool blank = false;
    bool erasable = false;
    bool ejectWorks = true;
    int ejects = 0;
};

class FakeTrack : public Platform::DRTrack {
public:
    explicit FakeTrack(QString path) : path_(std::move(path)) {}
    Platform::DRTrackProperties properties() const override { return properties_; }
    void setProperties(const Platform::DRTrackProperties& properties) override { properties_ = properties; }
    QString path() const override { return path_; }
    std::int64_t sectors() const override { return length; }

    std::int64_t length = 750;

private:
    QString path_;
    Platform::DRTrackProperties properties_;
};

/// A burn that records its calls in order and makes progress when the test says so.
class FakeBurn : public Platform::DRBurn, public std::enable_shared_from_this<FakeBurn> {
public:
    explicit FakeBurn(Platform::DRNotificationCenter& center) : center_(center) {}

    void setRequestedBurnSpeed(float speed) override {
        calls.append(QStringLiteral("speed"));
        requestedSpeed = speed;
    }
    Platform::DRBurnProperties properties() const override { return properties_; }
    void setProperties(const Platform::DRBurnProperties& properties) override {
        calls.append(QStringLiteral("properties"));
        properties_ = properties;
    }
    void writeLayout(const std::optional<Platform::DRLayout>& given) override {
        calls.append(QStringLiteral("write"));
        layout = given;
        if (!declined)
            state.state = Platform::DRStatusStatePreparing;
    }
    Platform::DRStatus status() const override { return state; }
    void abort() override {
        calls.append(QStringLiteral("abort"));
        ++aborts;
    }
    bool wasDeclined() const override { return declined; }

    /// Moves the burn to this state and notifies its observers at once.
    void reach(Platform::DRStatusState reached, double share, const QString& reason = {}) {
        state = {reached, share, reason};
        center_.deliver({Platform::DRBurnStatusChangedNotification, shared_from_this()});
    }

    Platform::DRStatus state;
    std::optional<Platform::DRLayout> layout;
    QStringList calls;
    float requestedSpeed = -1;
    int aborts = 0;
    bool declined = false;

private:
    Platform::DRNotificationCenter& center_;
    Platform::DRBurnProperties properties_;
};

class FakeErase : public Platform::DRErase, public std::enable_shared_from_this<FakeErase> {
public:
    explicit FakeErase(Platform::DRNotificationCenter& center) : center_(center) {}
    void setEraseType(Platform::DREraseType given) override { type = given; }
    void start() override { started = true; }
    Platform::DRStatus status() const override { return state; }
    void reach(Platform::DRStatusState reached, double share) {
        state = {reached, share, {}};
        center_.deliver({Platform::DREraseStatusChangedNotification, shared_from_this()});
    }

    Platform::DRStatus state;
    std::optional<Platform::DREraseType> type;
    bool started = false;

private:
    Platform::DRNotificationCenter& center_;
};

/// Drives, burns and erases that the test controls.
class FakeDiscRecording : public Platform::DiscRecording {
public:
    std::vector<std::shared_ptr<Platform::DRDevice>> devices() override { return drives; }
    Platform::Result<std::shared_ptr<Platform::DRTrack>> trackForAudioFile(const QString& path) override {
        if (unreadable.contains(path))
            return Platform::Error{Platform::Error::Kind::Damaged, path + QStringLiteral(": cannot be read")};
        return std::make_shared<FakeTrack>(path);
    }
    Platform::Result<Platform::DRLayout> layoutForImageFile(const QString& path) override {
        if (unreadable.contains(path))
            return Platform::Error{Platform::Error::Kind::Damaged, path + QStringLiteral(": cannot be read")};
        return Platform::DRLayout{std::make_shared<FakeTrack>(path)};
    }
    std::shared_ptr<Platform::DRBurn> burnWithDevice(const std::shared_ptr<Platform::DRDevice>&) override {
        if (refusesBurns)
            return nullptr;
        const auto burn = std::make_shared<FakeBurn>(center);
        burn->declined = declinesBurns;
        burns.push_back(burn);
        return burn;
    }
    std::shared_ptr<Platform::DRErase> eraseWithDevice(const std::shared_ptr<Platform::DRDevice>&) override {
        const auto erase = std::make_shared<FakeErase>(center);
        erases.push_back(erase);
        return erase;
    }
    Platform::DRNotificationCenter& currentRunLoopCenter() override { return center; }
    void setImagePath(const QString& path) override { imagePath = path; }

    /// Adds a drive at the end of the list.
    std::shared_ptr<FakeDrive> addDrive(const QString& name = QStringLiteral("Fake Drive")) {
        const auto drive = std::make_shared<FakeDrive>(name);
        drive->device = QStringLiteral("sr%1").arg(drives.size());
        drives.push_back(drive);
        return drive;
    }
    /// Notifies the observers of a drive at once that its status changed.
    void statusChanged(const std::shared_ptr<Platform::DRDevice>& drive) {
        center.deliver({Platform::DRDeviceStatusChangedNotification, drive});
    }
    /// Notifies all observers at once that a drive was added or removed.
    void listChanged() { center.deliver({Platform::DRDeviceListChangedNotification, nullptr}); }
    [[nodiscard]] std::shared_ptr<FakeBurn> lastBurn() const { return burns.empty() ? nullptr : burns.back(); }

    Platform::DRNotificationCenter center;
    std::vector<std::shared_ptr<Platform::DRDevice>> drives;
    std::vector<std::shared_ptr<FakeBurn>> burns;
    std::vector<std::shared_ptr<FakeErase>> erases;
    QSet<QString> unreadable; ///< paths for which no track can be created
    QString imagePath;
    bool refusesBurns = false;
    bool declinesBurns = false;
};

/// Describes the devices that a test names ("/dev/sr0"), or fails at the step that it names.
class FakeDiskArbitration : public Platform::DiskArbitration {
public:
    std::unique_ptr<Platform::DASession> createSession() override {
        if (failsSession)
            return nullptr;
        return std::make_unique<Session>(*this);
    }

    QSet<QString> described;
    QStringList asked;
    bool failsSession = false;
    bool failsDisk = false;

private:
    struct Disk : Platform::DADisk {
        explicit Disk(bool known) : known(known) {}
        bool hasDescription() const override { return known; }
        bool known;
    };
    struct Session : Platform::DASession {
        explicit Session(FakeDiskArbitration& owner) : owner(owner) {}
        std::unique_ptr<Platform::DADisk> createDiskFromBSDName(const QByteArray& path) override {
            owner.asked.append(QString::fromUtf8(path));
            if (owner.failsDisk)
                return nullptr;
            return std::make_unique<Disk>(owner.described.contains(QString::fromUtf8(path)));
        }
        FakeDiskArbitration& owner;
    };
};
