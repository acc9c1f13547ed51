// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Disc/linux/OpticalDrive.h"

#include "Platform/Disc/linux/LibBurn.h"
#include "Platform/Foundation/MainQueue.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace Platform {

namespace {

Q_LOGGING_CATEGORY(discLog, "sonaphex.disc")

QString inWords(const QString& path, int error) {
    switch (error) {
    case 0:
        return {};
    case EACCES:
    case EPERM:
        return QCoreApplication::translate(
                   "Disc", "no right to use %1: join the group that owns it (often \"cdrom\") and log in again")
            .arg(path);
    case EBUSY:
        return QCoreApplication::translate("Disc", "another program uses the drive, or its disc is mounted");
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return QCoreApplication::translate("Disc", "the drive is gone");
    default:
        return QCoreApplication::translate("Disc", "%1 cannot be opened: %2").arg(path, qt_error_string(error));
    }
}

} // namespace

DRDeviceStatus OpticalDrive::status() const {
    DRDeviceStatus status;
    status.isBusy = isBusy_;
    status.mediaState = mediaState_;
    status.problem = facts_.problem;
    if (mediaState_ != DRDeviceMediaStateMediaPresent)
        return status;
    status.maximumWriteSpeed = facts_.maximumWriteSpeed;
    status.mediaBlocksFree = facts_.blocksFree;
    status.mediaKind = facts_.kind;
    return status;
}

bool OpticalDrive::mediaIsBlank() const {
    return mediaState_ == DRDeviceMediaStateMediaPresent &&
           (facts_.problem.isEmpty() ? facts_.isBlank : found_.mediaIsBlank);
}

bool OpticalDrive::mediaIsErasable() const {
    return mediaState_ == DRDeviceMediaStateMediaPresent &&
           (facts_.problem.isEmpty() ? facts_.isErasable : found_.mediaIsRewritable);
}

QString OpticalDrive::bsdName() const {
    return mediaState_ == DRDeviceMediaStateMediaPresent ? found_.device : QString();
}

bool OpticalDrive::ejectMedia() {
    if (isBusy_ || isLooking_)
        return false;
    library_.post([path = found_.path](const std::stop_token&) {
        if (const QString problem = LibBurn::eject(path); !problem.isEmpty())
            qCWarning(discLog, "%s: the disc cannot be ejected: %s", qUtf8Printable(path), qUtf8Printable(problem));
    });
    return true;
}

void OpticalDrive::notifyObservers() {
    if (const auto center = center_.lock())
        center->deliver({DRDeviceStatusChangedNotification, shared_from_this()});
}

void OpticalDrive::update(const FoundDrive& found) {
    const bool hasChanged = !wasFound_ || found.media != found_.media || found.mediaChanges != found_.mediaChanges;
    wasFound_ = true;
    found_ = found;
    if (!hasChanged || isBusy_)
        return;
    if (found.media == DRDeviceMediaStateMediaPresent) {
        look();
        return;
    }
    mediaState_ = found.media;
    facts_ = {};
    lookAgain_ = false;
    notifyObservers();
}

/// Examines the disc. Until the drive has answered, the state is "inserting".
void OpticalDrive::look() {
    if (mediaState_ != DRDeviceMediaStateInTransition) {
        mediaState_ = DRDeviceMediaStateInTransition;
        facts_ = {};
        notifyObservers();
    }
    lookAgain_ = isLooking_;
    if (isLooking_)
        return;
    isLooking_ = true;
    const QString why = whyNotOpened();
    library_.post([self = shared_from_this(), path = found_.path, why](const std::stop_token& stop) {
        MediaFacts facts;
        if (why.isEmpty())
            facts = LibBurn::lookAt(path, stop);
        else
            facts.problem = why;
        MainQueue::post([self, facts] {
            self->isLooking_ = false;
            if (self->center_.expired())
                return; // the services are destroyed, and with them everything that a drive uses
            if (std::exchange(self->lookAgain_, false)) {
                self->look();
                return;
            }
            if (self->found_.media != DRDeviceMediaStateMediaPresent)
                return; // it was ejected meanwhile, and that was already announced
            // When the drive could not be examined, trust the system, which reports a disc.
            const bool isPresent = facts.isPresent || !facts.problem.isEmpty();
            self->facts_ = facts;
            self->mediaState_ = isPresent ? DRDeviceMediaStateMediaPresent : DRDeviceMediaStateNone;
            self->notifyObservers();
        });
    });
}

QString OpticalDrive::whyNotOpened() const {
    return inWords(found_.path, source_.openError(found_.path));
}

void OpticalDrive::setBusy(bool busy) {
    if (center_.expired())
        return;
    isBusy_ = busy;
    source_.setQuiet(found_.path, busy);
    notifyObservers();
    if (!busy)
        look(); // another disc is in the drive now
}

OpticalTarget OpticalDrive::target() {
    return {.path = found_.path,
            .name = found_.name,
            .maximumWriteSpeed = facts_.maximumWriteSpeed,
            .whyNotOpened = [&source = source_, path = found_.path] { return inWords(path, source.openError(path)); },
            .setBusy = [self = shared_from_this()](bool busy) { self->setBusy(busy); },
            .mount =
                [self = shared_from_this()] {
                    if (!self->center_.expired())
                        self->source_.mount(self->found_.path);
                }};
}

} // namespace Platform
