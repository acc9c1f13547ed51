// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/MediaPlayer.h"

#include <QList>

/// Records the states that the desktop gets.
struct FakeMediaPlayer : Platform::MediaPlayer {
    void setCommands(Commands* to) override { commands = to; }
    void setState(const State& to) override {
        if (to != state)
            states.append(to);
        state = to;
    }
    void positionJumped(double seconds) override { jumps.append(seconds); }

    Commands* commands = nullptr;
    State state;
    QList<State> states; ///< only states that differ from the previous one
    QList<double> jumps;
};
