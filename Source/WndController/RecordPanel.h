// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class AudioWaveViewController;
class ConvertingTipView;
class QComboBox;
class RecordStateController;
struct RecordNotice;
namespace Ui {
class MainWnd;
}

/// Connects the transport buttons, the two sources, the notices and the live display to the recording side: it shows
/// the recorder's state and forwards the user's actions. It makes no decisions. Main thread.
class RecordPanel : public QObject {
    Q_OBJECT
public:
    RecordPanel(Ui::MainWnd& ui, RecordStateController& record, AudioWaveViewController& display,
                QObject* parent = nullptr);

    /// Initial tool tips of the four transport buttons.
    void initToopTip();
    /// Shows the converting notice when recordings have been waiting for half a second, and hides it when none is left.
    /// Called at each change of the queue and at each tick of the display's clock.
    void showFileConvertTipView();
    [[nodiscard]] ConvertingTipView& fileConvertingTipView() { return *fileConvertingTipView_; }

private:
    void showState();
    void showDisplay();
    void showHealth();
    /// The sentence in the display; empty when there is sound and nothing is waited for.
    [[nodiscard]] QString hint() const;
    void showDevices();
    void showDeviceToolTip();
    void showNotices();
    void help(const RecordNotice& notice);
    /// Whether sound is being written at this moment.
    [[nodiscard]] bool isRecording() const;

    Ui::MainWnd& ui_;
    RecordStateController& record_;
    AudioWaveViewController& display_;
    ConvertingTipView* fileConvertingTipView_; ///< a child of the library's pane
    QTimer conversion_;                        ///< runs during the first half second of a conversion
    bool conversionLasts_ = false;
    bool wasRecording_ = false; ///< the state that is shown
};
