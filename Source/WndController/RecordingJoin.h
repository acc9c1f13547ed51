// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Result.h"
#include "Source/Control/RecordingParts.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

#include <atomic>
#include <memory>
#include <thread>

class QWidget;
class RecordingEditDelegate;
class WaitWndController;

/// Joins recordings of the library to one: asks for its name, writes it under a progress sheet, and adds it to the
/// library. The recordings stay. Main thread; writing runs on a worker.
class RecordingJoin : public QObject {
    Q_OBJECT
public:
    /// @p window gets the sheet.
    explicit RecordingJoin(QWidget* window, QObject* parent = nullptr);
    /// Cancels a running join: then nothing is written.
    ~RecordingJoin() override;

    void setDelegate(RecordingEditDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] WaitWndController& waitWndController() const { return *waitWndController_; }
    /// Joins the recordings of these entries in their order. Returns when the sheet is shown.
    void join(const QVariantList& entries);

Q_SIGNALS:
    /// The recording was written; one sentence for the user.
    void joined(const QString& notice);

private:
    struct Outcome {
        Platform::Result<RecordingParts::Part> part;
        bool encoded = false;
    };
    void start(const QStringList& sources, const QString& path);
    void sheetEnded();
    void joinWorker();

    QPointer<QWidget> window_;
    std::unique_ptr<WaitWndController> waitWndController_;
    RecordingEditDelegate* delegate_ = nullptr;
    qsizetype count_ = 0; ///< recordings that are being joined
    std::shared_ptr<Outcome> outcome_;
    std::thread worker_;
    std::atomic<bool> cancelled_ = false;
};
