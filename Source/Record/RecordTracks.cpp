// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/Record/RecordTracks.h"

#include "Platform/Audio/AudioHardware.h"
#include "Platform/Desktop/PlayerCover.h"
#include "Platform/Foundation/Services.h"
#include "Source/Preferences/Settings.h"

#include <QLoggingCategory>

#include <utility>

namespace {

Q_LOGGING_CATEGORY(tracksLog, "sonaphex.players")

} // namespace

RecordTracks::Wishes RecordTracks::Wishes::read(const RecordPreferences& preferences) {
    return {.titles = Platform::boolValue(preferences.value(Settings::titles)),
            .cuts = Platform::boolValue(preferences.value(Settings::cutAtTracks))};
}

RecordTracks::RecordTracks()
    : players_(Platform::PlayerWatch::create), history_([this](const QUrl& place) { return readCover(place); }) {
    covers_.setMaxThreadCount(1);
}

RecordTracks::~RecordTracks() {
    end();
}

void RecordTracks::begin(Wishes wishes, const Platform::ProgramChoice& recorded) {
    end();
    if (!wishes.any())
        return;
    if (auto* hardware = Platform::services().audioHardware) {
        const auto follow = [this, hardware, recorded] { history_.setPrograms(recorded, hardware->playingPrograms()); };
        QObject::connect(hardware, &Platform::AudioHardware::playingProgramsChanged, &context_, follow);
        follow();
    }
    titles_ = wishes.titles;
    cuts_ = wishes.cuts;
    watch_ = players_(history_);
    if (!watch_)
        qCWarning(tracksLog, "there is no session bus: no player names the tracks of this recording");
}

void RecordTracks::end() {
    titles_ = false;
    cuts_ = false;
    watch_.reset();
    if (auto* hardware = Platform::services().audioHardware)
        hardware->disconnect(&context_);
    history_.clear();
}

PartTitle::Cover RecordTracks::readCover(const QUrl& place) {
    if (!titles_)
        return {};
    const auto result = std::make_shared<std::promise<QByteArray>>();
    PartTitle::Cover cover = result->get_future().share();
    covers_.start([result, place] {
        auto bytes = Platform::readPlayerCover(place);
        if (!bytes)
            qCInfo(tracksLog, "a cover cannot be read: %s", qUtf8Printable(bytes.error().text));
        result->set_value(std::move(bytes).valueOr({}));
    });
    return cover;
}
