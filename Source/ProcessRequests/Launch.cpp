// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/ProcessRequests/Launch.h"

#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace Launch {

Outcome begin(Platform::RunningProgram& running, const QByteArray& token, int patienceMs) {
    const QByteArray request = ("show " + token).trimmed();
    QElapsedTimer timer;
    timer.start();
    while (true) {
        if (running.acquire())
            return Outcome::First;
        if (!running.lastError().isEmpty())
            return Outcome::NoPlace;
        // Fails at once when the other process does not listen yet.
        const auto left = int(std::max<qint64>(1, patienceMs - timer.elapsed()));
        QByteArray answer;
        if (running.ask(request, answer, left))
            return Outcome::Raised;
        if (timer.elapsed() >= patienceMs)
            return Outcome::NobodyAnswers;
        QThread::msleep(20);
    }
}

} // namespace Launch
