// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Notifications.h"
#include "Platform/Foundation/Dictionary.h"
#include "Source/Record/RecordNotice.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class MainWndController;

/// Shows a desktop notification when a recording is finished, cut, dropped or has a problem while no window of the
/// program has the focus. One notification sums up everything since the user last saw the program. It is closed when
/// the program gets the focus. Main thread.
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
    int finished_ = 0; ///< recordings since the user last saw the program
    bool goesOn_ = false;
    QString newest_;  ///< path of the newest recording
    QString text_;    ///< text about the newest recording
    QString problem_; ///< the newest notice since the user last saw the program
    QList<RecordNotice> noticesBefore_;
};
