// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// bench_window [--idle SECONDS] PROGRAM [ARGUMENT ...]
// Starts a program on an empty screen, waits until a window of it is painted, lets it idle, and prints one line:
//   <milliseconds to the painted window> <percent of a core while idle> <megabytes of its own memory>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QSet>
#include <QThread>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int kGrid = 8; ///< every n-th point of the screen is examined

/// A window counts as painted when an area of its size is no longer black and has more than one colour.
bool isPainted(const QImage& screen) {
    QSet<QRgb> colours;
    int lit = 0;
    for (int y = kGrid / 2; y < screen.height(); y += kGrid) {
        for (int x = kGrid / 2; x < screen.width(); x += kGrid) {
            const QRgb pixel = screen.pixel(x, y) & 0xffffff;
            if (pixel == 0)
                continue;
            ++lit;
            colours.insert(pixel);
        }
    }
    return lit * kGrid * kGrid > 160 * 80 && colours.size() > 6;
}

double processorSeconds(qint64 pid) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = file.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    return (fields.value(11).toDouble() + fields.value(12).toDouble()) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

double megabytes(qint64 pid) {
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("Pss:"))
            return line.mid(4).trimmed().split(' ').value(0).toDouble() / 1024;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments().mid(1);
    int idle = 0;
    if (arguments.value(0) == QStringLiteral("--idle")) {
        idle = arguments.value(1).toInt();
        arguments = arguments.mid(2);
    }
    if (arguments.isEmpty())
        return 2;
    QProcess program;
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    program.start(arguments.first(), arguments.mid(1));
    while (!isPainted(QGuiApplication::primaryScreen()->grabWindow(0).toImage())) {
        if (timer.elapsed() > 60000 || program.state() == QProcess::NotRunning) {
            std::fprintf(stderr, "%s painted no window\n", qUtf8Printable(arguments.first()));
            return 1;
        }
        // A screenshot costs the X server and a core as much as painting does: a shorter interval would falsify the
        // result.
        QThread::msleep(10);
        QCoreApplication::processEvents(); // delivers the end of the program
    }
    const double painted = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    double percent = 0;
    if (idle > 0) {
        QThread::sleep(3); // work that follows the start does not count as idle
        const double before = processorSeconds(program.processId());
        QThread::sleep(static_cast<unsigned long>(idle));
        percent = 100 * (processorSeconds(program.processId()) - before) / idle;
    }
    if (program.state() == QProcess::NotRunning) {
        std::fprintf(stderr, "%s ended while it should idle\n", qUtf8Printable(arguments.first()));
        return 1;
    }
    const double memory = megabytes(program.processId());
    program.terminate();
    if (!program.waitForFinished(10000))
        program.kill();
    program.waitForFinished(5000);
    std::printf("%.1f %.2f %.1f\n", painted, percent, memory);
    return 0;
}
