// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/ID3EditSave.h"

#include <QObject>
#include <QThreadPool>

/// Writes a title that was typed over in the list: into the file's tags, and as the name of the file, as the tag window
/// does it. Main thread; the files are written by a worker, one after the other.
class TitleEdit : public QObject {
    Q_OBJECT
public:
    explicit TitleEdit(QObject* parent = nullptr);
    /// Waits for titles that are being written.
    ~TitleEdit() override;

    void save(const Dictionary& entry, const QString& title);

Q_SIGNALS:
    /// The file is at @p path now, and @p entry is what it says of itself.
    void saved(const QString& path, const Dictionary& entry);
    /// What could not be done; one sentence.
    void problem(const QString& text);

private:
    void written(const Dictionary& before, ID3EditSave::Result result);

    QThreadPool worker_;
};
