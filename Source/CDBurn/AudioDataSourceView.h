// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/CDBurn/TrackListModel.h"

#include <QTreeView>
#include <QUrl>

/// Called when the track list changes. Not owned by the list.
class AudioDataSourceViewDelegate {
public:
    virtual ~AudioDataSourceViewDelegate() = default;
    /// The ticks changed.
    virtual void flushOtherInfo() {}
    /// Entries were added or removed.
    virtual void musicFileNumChange() {}
};

/// The burn window's track list: a flat list with a check box, a name and a time in each row. Rows are ticked with the
/// mouse or the space bar, reordered by dragging (or with Alt and an arrow key), and removed with Delete; files dropped
/// onto it are added. Main thread.
class AudioDataSourceView : public QTreeView {
    Q_OBJECT
public:
    explicit AudioDataSourceView(QWidget* parent = nullptr);

    void setDelegateForMain(AudioDataSourceViewDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] TrackListModel& tracks() { return tracks_; }

    /// All entries (see TrackEntry), ticked or not, in the order of the tracks.
    [[nodiscard]] const QList<Dictionary>& aryForAudioData_() const { return tracks_.entries(); }
    /// Replaces the list with recordings of the library, except those without a usable length.
    void addDataFromRecordAudio(const QVariantList& records);
    /// Appends files, except folders, unreadable and very short files. Opens each file to measure it. @return whether
    /// any was added
    bool addFilesToDataAry(const QList<QUrl>& files);

    /// Whether there are no entries, ticked or not.
    [[nodiscard]] bool isNullForData() const { return tracks_.entries().isEmpty(); }
    [[nodiscard]] int dataCountNum() const { return tracks_.tickedCount(); }
    [[nodiscard]] int dataSizeForMusic() const { return tracks_.tickedSize(); }

    void flushOtherInfo();

    // Used by the rows' menu and keys.
    void toggleSelected();
    void removeSelected();
    void moveSelected(int step); ///< -1: up, 1: down

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

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
