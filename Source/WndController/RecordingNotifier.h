// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Notifications.h"
#include "Platform/Foundation/Dictionary.h"

#include <QObject>
#include <QStringList>

#include <memory>

class MainWndController;

/// Tells the user by a notification of the desktop what became of a recording while the program was not in front: it is
/// finished, it was cut and goes on, something went wrong. The one notification sums up all that the user has not seen;
/// it goes when the program comes to the front. Main thread.
class RecordingNotifier : public QObject {
    Q_OBJECT
public:
    RecordingNotifier(MainWndController& window, std::unique_ptr<Platform::Notifications> desktop,
                      QObject* parent = nullptr);

private:
    [[nodiscard]] static bool mayNotify();
    void recordingFinished(const QString& path, const Dictionary& entry);
    void noticesChanged();
    void show();
    void forget();
    void act(const QString& key, const QByteArray& token);

    MainWndController& window_;
    std::unique_ptr<Platform::Notifications> desktop_;
    int finished_ = 0; ///< recordings that the user has not seen
    bool goesOn_ = false;
    QString newest_;  ///< path of the last one
    QString text_;    ///< about the last one
    QString problem_; ///< the last one that the user has not seen
    QStringList noticesBefore_;
};
