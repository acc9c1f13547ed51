// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/OpticalBurn.h"

#include "Platform/Disc/linux/ImageDrive.h"
#include "Platform/Disc/linux/TrackSource.h"
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <chrono>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;
using namespace burn;

namespace Platform {

namespace {

constexpr auto kBetweenLooks = std::chrono::milliseconds(200);
constexpr int kFirstGapBeforeTheDisc = 150; // sectors: a disc's first block follows two seconds of pre-gap

/// The first text that is not empty.
QString firstOf(const QString& first, const QString& otherwise) {
    return first.isEmpty() ? otherwise : first;
}

QString whyNotHeld(const OpticalTarget& target) {
    const QString why = target.whyNotOpened ? target.whyNotOpened() : QString();
    return u"%1: %2"_s.arg(target.name, firstOf(firstOf(why, LibBurn::message()),
                                                QCoreApplication::translate("Disc", "the drive cannot be opened")));
}

/// Why a disc in this state cannot be written; empty when it can.
QString whyNotBlank(const OpticalTarget& target, burn_disc_status status) {
    switch (status) {
    case BURN_DISC_BLANK:
        return {};
    case BURN_DISC_EMPTY:
        return QCoreApplication::translate("Disc", "%1: there is no disc in the drive").arg(target.name);
    case BURN_DISC_APPENDABLE:
    case BURN_DISC_FULL:
        return QCoreApplication::translate("Disc", "%1: the disc is not blank").arg(target.name);
    case BURN_DISC_UNREADY:
        return QCoreApplication::translate("Disc", "%1: the drive does not get ready").arg(target.name);
    default:
        return QCoreApplication::translate("Disc", "%1: this disc cannot be written to").arg(target.name);
    }
}

/// The layout as libburn objects. Members are destroyed in reverse order.
struct Composed {
    LibBurn::DiscPtr disc;
    LibBurn::SessionPtr session;
    std::vector<LibBurn::TrackPtr> tracks;
};

/// @return false when there is no memory, or a source is refused
bool compose(const DRLayout& layout, TrackFeed* feed, Composed& made) {
    made.disc.reset(burn_disc_create());
    made.session.reset(burn_session_create());
    if (!made.disc || !made.session || burn_disc_add_session(made.disc.get(), made.session.get(), BURN_POS_END) != 1)
        return false;
    for (const auto& each : layout) {
        LibBurn::TrackPtr track(burn_track_create());
        LibBurn::SourcePtr source;
        if (feed) {
            source = feedSource(*feed, each->sectors() * CDFormat::kBytesPerSector);
        } else {
            source.reset(burn_file_source_new(QFile::encodeName(each->path()).constData(), nullptr));
        }
        if (!track || !source)
            return false;
        burn_track_define_data(track.get(), 0, 0, 1, feed ? BURN_AUDIO : BURN_MODE1);
        if (feed && burn_track_set_pregap_size(track.get(), int(each->properties().preGapLength), 0) <= 0)
            return false;
        if (burn_track_set_source(track.get(), source.get()) != BURN_SOURCE_OK ||
            burn_session_add_track(made.session.get(), track.get(), BURN_POS_END) != 1)
            return false;
        made.tracks.push_back(std::move(track));
    }
    return true;
}

/// Sets the write mode. @return why the layout cannot be written; empty when it can
QString prepare(burn_write_opts* options, burn_disc* disc, bool isAudio, DRBurnStrategy strategy) {
    burn_write_opts_set_perform_opc(options, 1);
    burn_write_opts_set_multi(options, 0);
    (void)burn_write_opts_set_underrun_proof(options, 1);
    std::array<char, BURN_REASONS_LEN> reasons{};
    // Only this mode writes the pre-gaps of an audio CD.
    const bool atOnce = isAudio || strategy == DRBurnStrategyDVDDAO;
    if (atOnce && burn_write_opts_set_write_type(options, BURN_WRITE_SAO, BURN_BLOCK_SAO) == 1 &&
        burn_precheck_write(options, disc, reasons.data(), 0) == 1)
        return {};
    if (!isAudio && burn_write_opts_auto_write_type(options, disc, reasons.data(), 0) != BURN_WRITE_NONE)
        return {};
    return QCoreApplication::translate("Disc", "the disc cannot be written like this: %1")
        .arg(firstOf(firstOf(QString::fromLatin1(reasons.data()).simplified(), LibBurn::message()),
                     QCoreApplication::translate("Disc", "the drive gave no reason")));
}

/// The written part of the layout, from 0 to 1.
double shareOf(const DRLayout& layout, const burn_progress& progress) {
    double before = 0;
    double total = 0;
    for (std::size_t i = 0; i < layout.size(); ++i) {
        const auto sectors = double(layout[i]->sectors());
        if (int(i) < progress.track)
            before += sectors;
        else if (int(i) == progress.track)
            before += std::clamp(double(progress.sector), 0.0, sectors);
        total += sectors;
    }
    return total > 0 ? std::min(before / total, 1.0) : 0;
}

bool isWriting(burn_drive_status status) {
    return status == BURN_DRIVE_WRITING || status == BURN_DRIVE_WRITING_PREGAP;
}

bool isClosing(burn_drive_status status) {
    return status == BURN_DRIVE_WRITING_LEADOUT || status == BURN_DRIVE_CLOSING_TRACK ||
           status == BURN_DRIVE_CLOSING_SESSION;
}

void tell(const OpticalTarget& target, bool busy) {
    if (target.setBusy)
        MainQueue::post([set = target.setBusy, busy] { set(busy); });
}

} // namespace

void OpticalBurn::report(DRStatusState state, double share, const QString& reason) {
    status_.report(shared_from_this(), {state, share, reason});
}

void OpticalBurn::writeLayout(const std::optional<DRLayout>& layout) {
    if (status_.shown().state != DRStatusStateNone)
        return;
    status_.set({DRStatusStatePreparing, -1, {}});
    // The free space is known only after the drive has examined its disc.
    if (const QString problem = layoutProblem(layout, std::numeric_limits<std::int64_t>::max(), 0); !problem.isEmpty())
        return report(DRStatusStateFailed, 0, problem);
    tell(target_, true);
    library_.post([self = shared_from_this(), layout = *layout](const std::stop_token& stop) {
        const QString problem = self->run(layout, stop);
        tell(self->target_, false);
        if (!problem.isEmpty())
            return self->report(DRStatusStateFailed, 0, problem);
        if (self->target_.mount && self->properties_.completionAction == DRBurnCompletionActionMount)
            MainQueue::post(self->target_.mount);
        self->report(DRStatusStateDone, 1);
    });
}

QString OpticalBurn::run(const DRLayout& layout, const std::stop_token& stop) {
    const QString stopped =
        QCoreApplication::translate("Disc", "it was stopped before the end: the disc may be unusable");
    report(DRStatusStatePreparing, -1);
    const bool isAudio = std::dynamic_pointer_cast<AudioTrack>(layout.front()) != nullptr;
    std::optional<TrackFeed> feed;
    const std::stop_callback onStop(stop, [this] { aborted_ = true; });
    if (isAudio) {
        feed.emplace(layout, TrackFeed::bytesFor(speed_ > 0 ? speed_ : target_.maximumWriteSpeed));
        if (!feed->fill())
            return feed->error().text;
    }
    if (aborted_)
        return QCoreApplication::translate("Disc", "it was stopped before the first sector: the disc is as it was");

    LibBurn::HeldDrive drive(target_.path, true);
    if (!drive.get())
        return whyNotHeld(target_);
    if (const QString why = whyNotBlank(target_, drive.discStatus(stop)); !why.isEmpty())
        return why;
    QString kind;
    const int profile = drive.profile(&kind);
    if (isAudio && profile != LibBurn::kProfileCDR && profile != LibBurn::kProfileCDRW)
        return QCoreApplication::translate("Disc", "%1: an audio CD needs a CD-R or a CD-RW, this is a %2")
            .arg(target_.name, firstOf(kind, QCoreApplication::translate("Disc", "disc of another kind")));
    const auto leading = std::min<std::int64_t>(layout.front()->properties().preGapLength, kFirstGapBeforeTheDisc);
    if (const QString why = layoutProblem(layout, LibBurn::freeBlocks(drive.get(), profile), leading); !why.isEmpty())
        return why;

    Composed made;
    const LibBurn::WriteOptionsPtr options(burn_write_opts_new(drive.get()));
    if (!options || !compose(layout, feed ? &*feed : nullptr, made))
        return firstOf(LibBurn::message(),
                       QCoreApplication::translate("Disc", "the layout of the disc could not be made"));
    if (const QString why = prepare(options.get(), made.disc.get(), isAudio, properties_.strategy); !why.isEmpty())
        return u"%1: %2"_s.arg(target_.name, why);
    burn_drive_set_speed(drive.get(), 0, speed_ > 0 ? int(speed_) : 0);
    drive.ejectAtTheEnd(properties_.completionAction == DRBurnCompletionActionEject);
    if (aborted_)
        return QCoreApplication::translate("Disc", "it was stopped before the first sector: the disc is as it was");

    burn_disc_write(options.get(), made.disc.get());
    bool cancelled = false;
    bool hasBegun = false;
    for (;;) {
        burn_progress progress{};
        const auto status = burn_drive_get_status(drive.get(), &progress);
        if (status == BURN_DRIVE_IDLE)
            break;
        hasBegun = hasBegun || isWriting(status);
        report(isClosing(status) ? DRStatusStateSessionClose : DRStatusStateTrackWrite,
               hasBegun ? shareOf(layout, progress) : -1);
        const bool ends = aborted_ || (feed && feed->error());
        if (ends && feed)
            feed->cancel(); // libburn may be waiting for a sector
        if (ends && !cancelled && isWriting(status)) {
            burn_drive_cancel(drive.get());
            cancelled = true;
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
    if (feed && feed->error())
        return QCoreApplication::translate("Disc", "%1 (the disc is unusable)").arg(feed->error().text);
    if (aborted_ && cancelled)
        return stopped;
    if (burn_drive_wrote_well(drive.get()) != 1)
        return QCoreApplication::translate("Disc", "%1: the burn failed: %2")
            .arg(target_.name,
                 firstOf(LibBurn::message(), QCoreApplication::translate("Disc", "the drive gave no reason")));
    return {};
}

void OpticalErase::report(DRStatusState state, double share, const QString& reason) {
    status_.report(shared_from_this(), {state, share, reason});
}

void OpticalErase::start() {
    if (status_.shown().state != DRStatusStateNone)
        return;
    status_.set({DRStatusStatePreparing, -1, {}});
    tell(target_, true);
    library_.post([self = shared_from_this()](const std::stop_token& stop) {
        const QString problem = self->run(stop);
        tell(self->target_, false);
        if (problem.isEmpty())
            self->report(DRStatusStateDone, 1);
        else
            self->report(DRStatusStateFailed, 0, problem);
    });
}

QString OpticalErase::run(const std::stop_token& stop) {
    report(DRStatusStatePreparing, -1);
    const LibBurn::HeldDrive drive(target_.path, true);
    if (!drive.get())
        return whyNotHeld(target_);
    const auto status = drive.discStatus(stop);
    if (status == BURN_DISC_BLANK)
        return {}; // nothing to erase
    if (status == BURN_DISC_EMPTY)
        return whyNotBlank(target_, status);
    if (burn_disc_erasable(drive.get()) == 0)
        return QCoreApplication::translate("Disc", "%1: this disc cannot be erased").arg(target_.name);
    burn_disc_erase(drive.get(), type_ == DREraseTypeQuick ? 1 : 0);
    // Interrupting an erase would damage the disc: the end of the program waits for it.
    for (;;) {
        burn_progress progress{};
        if (burn_drive_get_status(drive.get(), &progress) == BURN_DRIVE_IDLE)
            break;
        report(DRStatusStateErasing, double(progress.sector) / 0x10000);
        std::this_thread::sleep_for(kBetweenLooks);
    }
    if (burn_drive_wrote_well(drive.get()) != 1)
        return QCoreApplication::translate("Disc", "%1: the erase failed: %2")
            .arg(target_.name,
                 firstOf(LibBurn::message(), QCoreApplication::translate("Disc", "the drive gave no reason")));
    return {};
}

} // namespace Platform
