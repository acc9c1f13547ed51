// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Disc/DiscRecording.h"
#include "Platform/Foundation/Dictionary.h"
#include "Source/CDBurn/TrackEntry.h"

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

/// A disc is being inserted.
inline const QString BurnControlDVDWillInsertNotification = QStringLiteral("DvdInsert");
/// A disc is present.
inline const QString BurnControlDVDDidInNotification = QStringLiteral("DvdIn");
/// The disc was removed.
inline const QString BurnControlDVDDidOutNotification = QStringLiteral("DvdOut");
/// Each change of a burn's status, with {"burnprogress": progress from 0 to 1, or -1 while unknown}.
inline const QString BurnControlBurnProgressNotification = QStringLiteral("BurnProcess");
inline const QString BurnControlBurnDidFininshNotification = QStringLiteral("BurnFinish");
inline const QString BurnControlBurnDidFailedNotification = QStringLiteral("BurnFailed");
/// Each change of an erase's status, with {"burnprogress": ...}.
inline const QString EraseDVDProgressNotification = QStringLiteral("EraseProcess");
inline const QString EraseDVDDidFininshNotification = QStringLiteral("EraseFininsh");
/// A drive was added or removed: cdROMDisplayNames() and perhaps recordNum() have changed.
inline const QString BurnControlDevicesDidChangeNotification = QStringLiteral("DvdDevices");

/// Key of the progress in the user info of the progress notifications.
inline const QString kBurnProgressKey = QStringLiteral("burnprogress");

/// The engine through which the window and the command use the disc drive. Notifications are posted through the
/// process's notification centre. Main thread.
class BurnControl : public QObject {
    Q_OBJECT

public:
    explicit BurnControl(QObject* parent = nullptr);
    /// Stops watching. A running burn or erase continues.
    ~BurnControl() override;

    /// The displayed name of every drive, in the order of their indices.
    [[nodiscard]] static QStringList cdROMDisplayNames();
    /// getcurrentDVDFreeSize() for the drive at @p index.
    [[nodiscard]] static float getFreeSize(std::uint32_t index);
    /// Whether the system can describe "/dev/" + @p bsdName, that is, a disc is in it.
    [[nodiscard]] static bool statusByPath(const QString& bsdName);

    /// Chooses and watches a drive. An index beyond the list is ignored.
    void setUseCDRom(std::uint32_t index);
    /// Stops watching the current drive.
    void destroyCDRom();
    [[nodiscard]] std::uint32_t recordNum() const { return recordNum_; }

    /// The ticked entries as tracks, each with a pre-gap of 75 sectors. Nothing when a file cannot become a track:
    /// failureReason() then names it.
    [[nodiscard]] std::optional<Platform::DRLayout> createLayoutForCDBurn(const QList<Dictionary>& entries);
    /// Starts to burn the ticked entries as an audio CD; afterwards the disc is ejected or mounted.
    void burnMusicToCD(const QList<Dictionary>& entries, bool ejectDisc);
    /// Starts to burn an image file to a DVD.
    void beginDVDMediaBurn(const QString& imagePath);
    /// Starts a quick erase.
    void eraseDVD();
    /// Aborts the burn. Nothing is posted after this call; the caller closes its own display.
    void stopBurn();

    bool ejectCurrentDvd();
    [[nodiscard]] bool currenrDVDIsBlank() const;
    [[nodiscard]] bool currentDVDIsErasable() const;
    [[nodiscard]] QString currentDVDbsdName() const;
    /// Free space of the disc in gigabytes of 1024 * 1024 * 1024 bytes, counted in blocks of 2048 bytes.
    [[nodiscard]] float getcurrentDVDFreeSize() const;

    /// The user was asked for the image's path and cancelled: the burn was not started, and nothing is posted.
    [[nodiscard]] bool burnWasDeclined() const;
    /// Why the last burn failed, or why its layout could not be made; empty on success.
    [[nodiscard]] QString failureReason() const;
    /// Why the chosen drive cannot be used; empty when it can.
    [[nodiscard]] QString deviceProblem() const;
    /// The tracks of the last burn.
    [[nodiscard]] const Platform::DRLayout& layout() const { return layout_; }
    /// The last burn; null before the first one.
    [[nodiscard]] std::shared_ptr<Platform::DRBurn> burn() const { return burn_; }

    void NotificationToCurrentDevice(const Platform::DRNotification& notification);
    void burnNotification(const Platform::DRNotification& notification);
    void eraseNotification(const Platform::DRNotification& notification);

private:
    [[nodiscard]] static std::shared_ptr<Platform::DRDevice> deviceAt(std::uint32_t index);
    void devicesDidChange();
    void watch(const std::shared_ptr<Platform::DRBurn>& burn);
    void keep(std::shared_ptr<Platform::DRObject> earlier);

    std::uint32_t recordNum_ = 0;
    QString mediaStateMarker_;
    std::shared_ptr<Platform::DRBurn> burn_;
    std::shared_ptr<Platform::DRErase> erase_;

    std::shared_ptr<Platform::DRDevice> watched_;              ///< the drive at recordNum_ when it was chosen
    std::vector<std::shared_ptr<Platform::DRObject>> earlier_; ///< previous burns and erases: never destroyed here
    QString layoutProblem_;
    Platform::DRLayout layout_;
};
