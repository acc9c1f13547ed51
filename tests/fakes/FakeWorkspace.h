// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Workspace.h"

#include <QList>
#include <QPair>
#include <QStringList>

/// Records the desktop requests and returns the configured results.
class FakeWorkspace : public Platform::Workspace {
public:
    bool selectFile(const QString& path) override {
        selected.append(path);
        return answer;
    }
    bool openFile(const QString& path, const QString& application) override {
        opened.append({path, application});
        return answer;
    }
    bool openUrl(const QUrl& url) override {
        urls.append(url);
        return answer;
    }

    bool answer = true;
    QStringList selected;
    QList<QPair<QString, QString>> opened; ///< path, application
    QList<QUrl> urls;
};
