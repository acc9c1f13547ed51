// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Platform {
namespace {

constexpr std::array endings{SIGINT, SIGTERM, SIGHUP};
/// The end of the pipe that a signal handler may write to.
volatile std::sig_atomic_t writeEnd = -1;

void note(int signal) {
    const int before = errno;
    const auto number = static_cast<unsigned char>(signal);
    (void)!write(writeEnd, &number, 1);
    errno = before;
}

} // namespace

struct TerminationSignals::Private {
    std::array<int, 2> pipe{-1, -1};
    std::array<struct sigaction, endings.size()> before{};
    std::unique_ptr<QSocketNotifier> notifier;
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
    struct sigaction action {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < endings.size(); ++i)
        sigaction(endings[i], &action, &d->before[i]);
}

TerminationSignals::~TerminationSignals() {
    if (d->pipe[0] < 0)
        return;
    for (std::size_t i = 0; i < endings.size(); ++i)
        sigaction(endings[i], &d->before[i], nullptr);
    writeEnd = -1;
    d->notifier.reset();
    close(d->pipe[0]);
    close(d->pipe[1]);
}

} // namespace Platform
