// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/CDBurn/TrackListModel.h"

#include <QTreeView>
#include <QUrl>

/// Is told when the track list changes. Not owned by the list.
class AudioDataSourceViewDelegate {
public:
    virtual ~AudioDataSourceViewDelegate() = default;
    /// The ticks changed.
    virtual void flushOtherInfo() {}
    /// Entries came or went.
    virtual void musicFileNumChange() {}
};

/// The burn window's track list: a flat outline with a tick, a name and a time a row. Rows are ticked with the mouse or
/// the space bar, dragged (or moved with Alt and an arrow key) into another order, and taken out with Delete; files
/// that are dropped onto it are added. Main thread.
class AudioDataSourceView : public QTreeView {
    Q_OBJECT
public:
    explicit AudioDataSourceView(QWidget* parent = nullptr);

    void setDelegateForMain(AudioDataSourceViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] TrackListModel& tracks() { return tracks_; }

    /// All entries (see TrackEntry), ticked or not, in the order of the tracks.
    [[nodiscard]] const QList<Dictionary>& aryForAudioData_() const { return tracks_.entries(); }
    /// Replaces the list by recordings of the library; those without a usable length are left out.
    void addDataFromRecordAudio(const QVariantList& records);
    /// Appends files; folders, unreadable and very short files are left out. Opens each file to measure it.
    /// @return whether any was added
    bool addFilesToDataAry(const QList<QUrl>& files);

    /// Whether there are no entries, ticked or not.
    [[nodiscard]] bool isNullForData() const { return tracks_.entries().isEmpty(); }
    [[nodiscard]] int dataCountNum() const { return tracks_.tickedCount(); }
    [[nodiscard]] int dataSizeForMusic() const { return tracks_.tickedSize(); }

    void flushOtherInfo();

    // What the rows' menu and its keys do.
    void toggleSelected();
    void removeSelected();
    void moveSelected(int step); ///< -1: up, 1: down

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void makeActions();
    void updateActions();
    [[nodiscard]] QList<int> selectedRows() const;
    [[nodiscard]] int rowAt(const QPoint& place) const;

    TrackListModel tracks_;
    AudioDataSourceViewDelegate* delegate_ = nullptr;
    QAction* toggle_ = nullptr;
    QAction* up_ = nullptr;
    QAction* down_ = nullptr;
    QAction* remove_ = nullptr;
};
