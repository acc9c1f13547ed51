// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/LinuxServices.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Audio/IORegistry.h"
#include "Platform/Audio/PrivateSession.h"
#include "Platform/Desktop/SleepInhibitor.h"
#include "Platform/Desktop/linux/LinuxAdminShell.h"
#include "Platform/Desktop/linux/LinuxDesktop.h"
#include "Platform/Desktop/linux/LinuxHotKeys.h"
#include "Platform/Desktop/linux/PortalColorScheme.h"
#include "Platform/Desktop/linux/PortalRegistry.h"
#include "Platform/Disc/linux/LinuxDiscRecording.h"
#include "Platform/Foundation/Bundle.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/linux/LinuxFoundation.h"
#include "Platform/Foundation/linux/PropertyListDefaults.h"
#include "Platform/Media/linux/MediaFilesLinux.h"
#include "Platform/Media/linux/play/PipeWireSounds.h"

#include <QCoreApplication>

#include <cstdio>
#include <optional>

namespace Platform {

struct LinuxServices::Private {
    ServicesScope before;                    // destroyed last: the services stay available until then
    std::unique_ptr<PrivateSession> session; // outlives everything that is connected to it
    std::optional<Result<>> audio;           // how startAudio() ended
    std::unique_ptr<Bundle> bundle;
    std::unique_ptr<Clock> clock;
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<MediaFiles> mediaFiles;
    std::unique_ptr<Sounds> sounds;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<Alerts> alerts;
    std::unique_ptr<AdminShell> adminShell;
    std::unique_ptr<SleepInhibitor> sleepInhibitor;
    std::unique_ptr<DiscRecording> discRecording; // a running burn reads through mediaFiles
    std::unique_ptr<DiskArbitration> diskArbitration;
    std::unique_ptr<ColorScheme> colorScheme;
    std::unique_ptr<HotKeys> hotKeys;
    std::unique_ptr<AudioHardware> audioHardware;
    std::unique_ptr<IORegistry> ioRegistry;
};

LinuxServices::LinuxServices() : d(std::make_unique<Private>()) {
}

LinuxServices::~LinuxServices() = default;

void LinuxServices::install(Mode mode) {
    Services& set = services();
    set.bundle = (d->bundle = createBundle()).get();
    set.clock = (d->clock = createClock()).get();
    set.userDefaults = (d->userDefaults = createUserDefaults(set.bundle->bundleIdentifier())).get();
    set.mediaFiles = (d->mediaFiles = createMediaFiles()).get();
    set.sounds = (d->sounds = createSounds(*set.mediaFiles)).get(); // connects when something is played
    set.workspace = (d->workspace = createWorkspace()).get();
    set.alerts = (d->alerts = createCommandLineAlerts()).get();
    set.adminShell = (d->adminShell = createAdminShell()).get();
    set.sleepInhibitor = (d->sleepInhibitor = createSleepInhibitor()).get();  // connects when something is recorded
    d->discRecording = std::make_unique<LinuxDiscRecording>(*set.mediaFiles); // looks for drives when it is first asked
    set.discRecording = d->discRecording.get();
    set.diskArbitration = (d->diskArbitration = createDiskArbitration()).get();
    if (mode == Mode::CommandLine)
        return;
    introduceToPortal(set.bundle->bundleIdentifier()); // must be the first call to the portal
    set.colorScheme = (d->colorScheme = createColorScheme()).get();
    set.hotKeys = (d->hotKeys = createHotKeys()).get();
}

Result<> LinuxServices::startAudio(const std::function<bool()>& whileWaiting) {
    if (d->audio)
        return *d->audio;
    d->audio.emplace();
    const auto server = PrivateSession::waitForServer(whileWaiting);
    if (server == PrivateSession::Server::Absent) {
        auto started = PrivateSession::start();
        d->audio = started.error();
        d->session = std::move(started).valueOr(nullptr);
        if (d->session)
            std::fprintf(
                stderr, "sonaphex: %s\n",
                qUtf8Printable(QCoreApplication::translate(
                    "Audio", "no sound server answers: a private one was started, its input device is a tone")));
    } else if (server == PrivateSession::Server::Silent) {
        d->audio = Error{
            Error::Kind::Busy,
            QCoreApplication::translate("Audio", "the sound server accepts connections but does not answer. Restart it "
                                                 "(systemctl --user restart pipewire) and try again")};
    }
    services().audioHardware = (d->audioHardware = createAudioHardware(d->session != nullptr)).get();
    services().ioRegistry = (d->ioRegistry = createIORegistry()).get();
    return *d->audio;
}

} // namespace Platform
