// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/ID3EditSave.h"

#include <QObject>
#include <QThreadPool>

/// Saves a title that the user edited in the list: writes the tag and renames the file, like the tag window. Main
/// thread; a worker changes the files, one after the other.
class TitleEdit : public QObject {
    Q_OBJECT
public:
    explicit TitleEdit(QObject* parent = nullptr);
    /// Waits until all titles are saved.
    ~TitleEdit() override;

    void save(const Dictionary& entry, const QString& title);

Q_SIGNALS:
    /// The file is at @p path now; @p entry is its entry with the new tags.
    void saved(const QString& path, const Dictionary& entry);
    /// A part of the save failed; one sentence.
    void problem(const QString& text);

private:
    void written(const Dictionary& before, ID3EditSave::Result result);

    QThreadPool worker_;
};
