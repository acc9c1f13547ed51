// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/PlayerWatch.h"

/// Media players without a bus: the test says what they do.
class FakePlayers {
public:
    [[nodiscard]] Platform::PlayerWatch::Factory factory() {
        return [this](Platform::PlayerWatch::Listener& watching) {
            ++watches;
            listener = &watching;
            return std::make_unique<Watch>(*this);
        };
    }

    int watches = 0;                                     ///< that were ever begun
    Platform::PlayerWatch::Listener* listener = nullptr; ///< null while nobody watches

private:
    struct Watch final : Platform::PlayerWatch {
        explicit Watch(FakePlayers& players) : players_(players) {}
        ~Watch() override { players_.listener = nullptr; }
        FakePlayers& players_;
    };
};
