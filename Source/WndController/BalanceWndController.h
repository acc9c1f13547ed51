// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Control/BalanceSave.h"
#include "Source/Control/ToolControl.h"
#include "Source/View/BalanceView.h"
#include "Source/View/EditDialog.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <array>
#include <atomic>
#include <memory>
#include <thread>

class AudioOutline;
class CustomSound;
class QAbstractSlider;
class QDoubleSpinBox;
class RecordingEditDelegate;
namespace Ui {
class BalanceWnd;
}

/// The balance window: mixes the kept tracks of a recording anew with two gains and a delay, plays the result while
/// they are changed, and saves it in place of the mix or into a new file. Created once and reused. Main thread;
/// measuring and saving run on workers.
class BalanceWndController : public QObject, public ToolControl::WindowShower {
    Q_OBJECT
public:
    /// @p mainWindow may be null.
    explicit BalanceWndController(QWidget* mainWindow = nullptr, QObject* parent = nullptr);
    /// Cancels a running save: the recording stays as it was.
    ~BalanceWndController() override;

    void setDelegate(RecordingEditDelegate* delegate) { delegate_ = delegate; }
    [[nodiscard]] EditDialog* window() const { return window_; }
    [[nodiscard]] CustomSound* sound() const { return sound_.get(); }
    [[nodiscard]] const BalanceSettings& settings() const { return settings_; }
    [[nodiscard]] bool isSaving() const { return saver_.joinable(); }
    /// Whether the loudest point of the present settings is known.
    [[nodiscard]] bool isMeasured() const { return peak_ >= 0; }

    /// Loads a recording by its entry. @return why its tracks cannot be mixed; empty on success
    [[nodiscard]] QString setEntry(const Dictionary& entry);
    /// Shows the window and returns when it is closed.
    void runModal();

    // ---- called to show the window
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;

public Q_SLOTS:
    void togglePlay();
    /// Sets the gains and the delay to 0.
    void reset();
    /// Lowers both gains until nothing is clipped.
    void lowerToFit();
    void saveAudio();
    void saveAsAudio();
    /// Stops a running save, else closes the window.
    void cancel();

private:
    void awakeFromNib();
    void bind(QAbstractSlider* slider, QDoubleSpinBox* field, double BalanceSettings::*value, double steps);
    void keyPressed(QKeyEvent& event);
    void setSettings(const BalanceSettings& settings);
    void settingsChanged();
    void showSettings();
    void openSound();
    void showPlayButton(bool playing);
    void follow();
    void stop();
    void measure();
    void showLoudness();
    [[nodiscard]] double tooLoud() const;
    [[nodiscard]] bool refuse();
    void save(const QString& path, bool replace, bool lowersToFit);
    void saved(BalanceSave::Result result);
    void showSaving(bool saving);
    void joinWorkers();
    [[nodiscard]] QString mixPath() const;

    QPointer<EditDialog> window_; // a child of the main window, which may be destroyed first
    std::unique_ptr<Ui::BalanceWnd> ui_;
    Dictionary entry_;
    RecordingTracks::Tracks tracks_;
    BalanceSettings settings_;
    std::shared_ptr<BalanceControls> controls_;
    std::unique_ptr<CustomSound> sound_;
    std::array<std::unique_ptr<AudioOutline>, 2> outlines_;
    QTimer clock_;
    QTimer measureSoon_; ///< a drag changes the settings many times a second
    double peak_ = -1;   ///< of the present settings; negative when not known
    std::atomic<int> measurement_{0};
    std::thread measurer_;
    std::thread saver_;
    std::atomic<bool> cancelled_{false};
    BalanceSave::Task task_;
    bool showing_ = false; ///< the controls are being set, not changed by the user
    RecordingEditDelegate* delegate_ = nullptr;
};
