// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

class QColor;
class QPainter;
class QRectF;

/// Fetches the outline of an audio file on a thread of its own. Main thread; one file at a time.
class AudioOutline : public QObject {
    Q_OBJECT
public:
    explicit AudioOutline(QObject* parent = nullptr);
    /// Stops the thread and waits for it: some milliseconds.
    ~AudioOutline() override;

    /// Forgets the values of the file before, and reads those of @p path.
    void load(const QString& path);
    /// Nothing is announced any more; the values that are there stay.
    void stop();
    /// Ten values a second, -1 to 1; those that are there so far, none for a file that cannot be read.
    [[nodiscard]] const QList<float>& values() const { return values_; }
    /// Why the file cannot be read, for a person; empty when it can.
    [[nodiscard]] QString problem() const { return problem_; }

    /// Draws values over the whole of @p rect, centred on the middle of its height: one line for each point, as long as
    /// the loudest of the values that fall into it.
    static void draw(QPainter& painter, const QRectF& rect, const QList<float>& values, const QColor& color);

Q_SIGNALS:
    /// Some of the values are there; those from the number @p first on are new.
    void grew(qsizetype first);
    /// All values are there, or the file cannot be read.
    void loaded();

private:
    void take(qsizetype first, const QList<float>& values);

    QList<float> values_;
    QString problem_;
    std::shared_ptr<std::atomic<bool>> cancelled_;
    std::thread worker_;
};
