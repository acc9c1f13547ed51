// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TerminationSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace Platform {
namespace {

/// The write end of the pipe, for the signal handler.
volatile std::sig_atomic_t writeEnd = -1;

void note(int signal) {
    const int before = errno;
    const auto number = static_cast<unsigned char>(signal);
    (void)!write(writeEnd, &number, 1);
    errno = before;
}

} // namespace

TerminationHandler::TerminationHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        sigaction(signals[i], nullptr, &before_[i]);
        if (before_[i].sa_handler != SIG_IGN)
            sigaction(signals[i], &action, nullptr);
    }
}

TerminationHandler::~TerminationHandler() {
    for (std::size_t i = 0; i < signals.size(); ++i)
        sigaction(signals[i], &before_[i], nullptr);
}

struct TerminationSignals::Private {
    std::array<int, 2> pipe{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
    std::optional<TerminationHandler> handler;
};

TerminationSignals::TerminationSignals(std::function<void(int)> handler) : d(std::make_unique<Private>()) {
    if (pipe2(d->pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = d->pipe[1];
    d->notifier = std::make_unique<QSocketNotifier>(d->pipe[0], QSocketNotifier::Read);
    QObject::connect(d->notifier.get(), &QSocketNotifier::activated, d->notifier.get(),
                     [from = d->pipe[0], handler = std::move(handler)] {
                         unsigned char number = 0;
                         while (read(from, &number, 1) == 1)
                             handler(number);
                     });
    d->handler.emplace(note);
}

TerminationSignals::~TerminationSignals() {
    if (d->pipe[0] < 0)
        return;
    d->handler.reset();
    writeEnd = -1;
    d->notifier.reset();
    close(d->pipe[0]);
    close(d->pipe[1]);
}

} // namespace Platform
