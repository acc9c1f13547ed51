// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/WndController/TitleEdit.h"

#include "Platform/Foundation/MainQueue.h"
#include "Source/Model/AudioRecordEntry.h"

#include <memory>

TitleEdit::TitleEdit(QObject* parent) : QObject(parent) {
    worker_.setMaxThreadCount(1);
}

TitleEdit::~TitleEdit() {
    worker_.waitForDone();
}

void TitleEdit::save(const Dictionary& entry, const QString& title) {
    using namespace AudioRecordEntry;
    Dictionary edited = entry;
    edited.insert(Title, title);
    // All five texts are written to the file; those that the entry lacks are empty.
    for (const QString& key : {Artist, Album, Genre})
        edited.insert(key, entry.contains(key) ? Platform::stringForm(entry.value(key)) : QString());
    edited.insert(Year, Platform::intValue(entry.value(Year)));
    worker_.start([this, entry, edited] {
        auto result = std::make_shared<ID3EditSave::Result>(ID3EditSave::save(entry, edited, {}));
        Platform::MainQueue::post(this, [this, entry, result] { written(entry, std::move(*result)); });
    });
}

void TitleEdit::written(const Dictionary& before, ID3EditSave::Result result) {
    if (result.entry != before)
        Q_EMIT saved(Platform::stringForm(result.entry.value(AudioRecordEntry::SavePath)), result.entry);
    if (result.note)
        result.note->end();
    if (!result.notice.isEmpty())
        Q_EMIT problem(result.notice);
}
