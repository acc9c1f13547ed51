// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/LibBurn.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace Platform::LibBurn {

namespace {

bool initialised = false; // the thread of BurnLibrary only

} // namespace

bool initialise() {
    if (initialised)
        return true;
    initialised = burn::burn_initialize() != 0;
    if (initialised) {
        static char queued[] = "SORRY";
        static char never[] = "NEVER";
        static char prefix[] = "sonaphex: ";
        burn::burn_msgs_set_severities(queued, never, prefix); // errors are shown by the program itself
        burn::burn_preset_device_open(1, 0, 0);                // exclusive, and without waiting for the drive to open
    }
    return initialised;
}

void finish() {
    if (initialised)
        burn::burn_finish();
    initialised = false;
}

QString message() {
    static char severity[] = "SORRY";
    int code = 0;
    int systemError = 0;
    std::array<char, BURN_MSGS_MESSAGE_LEN> text{};
    std::array<char, 80> had{};
    QString first;
    while (burn::burn_msgs_obtain(severity, &code, text.data(), &systemError, had.data()) == 1)
        if (first.isEmpty())
            first = QString::fromLocal8Bit(text.data()).simplified();
    return first;
}

HeldDrive::HeldDrive(const QString& path, bool load) {
    if (!initialise())
        return;
    (void)message(); // drops older messages: later ones are about this drive
    QByteArray address = QFile::encodeName(path);
    if (burn::burn_drive_scan_and_grab(&infos_, address.data(), load ? 1 : 0) == 1)
        drive_ = infos_[0].drive;
}

HeldDrive::~HeldDrive() {
    if (!drive_)
        return;
    burn::burn_drive_release(drive_, eject_ ? 1 : 0);
    burn::burn_drive_info_free(infos_);
}

burn::burn_disc_status HeldDrive::discStatus(const std::stop_token& stop) const {
    constexpr int kLooks = 300; // polls of a tenth of a second: a drive may take long to recognise a disc
    auto status = burn::burn_disc_get_status(drive_);
    for (int i = 0; i < kLooks && status == burn::BURN_DISC_UNREADY && !stop.stop_requested(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        status = burn::burn_disc_get_status(drive_);
    }
    return status;
}

int HeldDrive::profile(QString* name) const {
    int number = 0;
    std::array<char, 80> text{};
    if (burn::burn_disc_get_profile(drive_, &number, text.data()) != 1)
        return 0;
    if (name)
        *name = QString::fromLatin1(text.data()).section(u' ', 0, 0);
    return number;
}

std::int64_t freeBlocks(burn::burn_drive* drive, int profile) {
    int start = 0;
    int end = 0;
    if ((profile == kProfileCDR || profile == kProfileCDRW) && burn::burn_disc_read_atip(drive) == 1 &&
        burn::burn_drive_get_start_end_lba(drive, &start, &end, 0) == 1 && end > 0)
        return end;
    return burn::burn_disc_available_space(drive, nullptr) / 2048;
}

MediaFacts lookAt(const QString& path, const std::stop_token& stop) {
    MediaFacts facts;
    const HeldDrive drive(path, false);
    if (!drive.get()) {
        facts.problem = message();
        if (facts.problem.isEmpty())
            facts.problem = QCoreApplication::translate("Disc", "the drive cannot be opened");
        return facts;
    }
    const auto status = drive.discStatus(stop);
    facts.isPresent = status != burn::BURN_DISC_EMPTY && status != burn::BURN_DISC_UNREADY;
    if (!facts.isPresent)
        return facts;
    facts.isBlank = status == burn::BURN_DISC_BLANK;
    facts.isErasable = burn::burn_disc_erasable(drive.get()) != 0;
    const int profile = drive.profile(&facts.kind);
    if (facts.isBlank)
        facts.blocksFree = freeBlocks(drive.get(), profile);
    facts.maximumWriteSpeed = float(burn::burn_drive_get_write_speed(drive.get()));
    return facts;
}

QString eject(const QString& path) {
    HeldDrive drive(path, false);
    if (drive.get()) {
        drive.ejectAtTheEnd(true);
        return {};
    }
    const QString said = message();
    return said.isEmpty() ? QCoreApplication::translate("Disc", "the drive cannot be opened") : said;
}

} // namespace Platform::LibBurn
