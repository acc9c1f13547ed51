// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/ID3EditSave.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/EditDialog.h"

#include <QObject>
#include <QPointer>

#include <memory>
#include <thread>

class RecordingEditDelegate;
class WaitWndController;
namespace Ui {
class ID3EditWnd;
}

/// The window with the tags and the cover of one recording. Done writes them and renames the file after the title.
/// Created once and reused. Main thread; saving runs on a worker.
class ID3EditWndController : public QObject, public ToolControl::WindowShower {
    Q_OBJECT
public:
    /// @p mainWindow may be null.
    explicit ID3EditWndController(QWidget* mainWindow = nullptr, QObject* parent = nullptr);
    /// Waits for a running save.
    ~ID3EditWndController() override;

    void setDelegate(RecordingEditDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] RecordingEditDelegate* delegate() const { return delegate_; }
    [[nodiscard]] EditDialog* window() const { return window_; }
    [[nodiscard]] WaitWndController& waitWndController() const { return *waitWndController_; }

    /// Fills the window from an entry, whose artwork key may hold image data.
    void setID3EditDataSource(const Dictionary& entry);
    [[nodiscard]] const Dictionary& ID3EditDataSource() const { return entry_; }
    /// Shows the window and returns when it is closed.
    void runModal();

    /// Normalises the year to the form that is saved.
    void controlTextDidEndEditing();
    void startConverter();
    /// Reads the fields and starts the worker.
    void StartID3Edit();
    void converterSheetDidEnd();
    void updateFile(const QString& path, const Dictionary& tags);

    // ---- called to show the window
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;

public Q_SLOTS:
    void chooseImageForArtwork();
    void doneEditID3();
    void cancelEditID3();

private:
    void awakeFromNib();
    void written(ID3EditSave::Result result);
    void joinWorker();

    QPointer<EditDialog> window_; // a child of the main window, which may be destroyed first
    std::unique_ptr<Ui::ID3EditWnd> ui_;
    Dictionary entry_;
    std::unique_ptr<WaitWndController> waitWndController_;
    RecordingEditDelegate* delegate_ = nullptr;
    bool imageChanged_ = false; ///< by the user; otherwise the file keeps its cover byte for byte
    QString notice_;
    std::thread worker_;
};
