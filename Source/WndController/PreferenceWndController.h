// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/ToolControl.h"
#include "Source/WndController/ComputerAudioDevice.h"

#include <QObject>

#include <memory>

class KeybordShortcutTextView;
class QComboBox;
class QLineEdit;
class QWidget;
namespace Ui {
class PreferenceWnd;
}

/// The preferences window: folders, splitting, filtering, the computer-audio device, the three shortcuts. Made once and
/// kept, since its shortcut fields own the hot keys. Closing it applies and stores everything. Main thread, but for
/// installing and removing the device.
class PreferenceWndController : public QObject, public ToolControl::WindowShower {
    Q_OBJECT
    Q_PROPERTY(bool systemAudioRecordDeviceExist READ systemAudioRecordDeviceExist WRITE setSystemAudioRecordDeviceExist
                   NOTIFY systemAudioRecordDeviceExistChanged)
public:
    /// Loads the window and wakes up: shows the stored settings and takes the hot keys.
    explicit PreferenceWndController(ComputerAudioDevice device, QObject* parent = nullptr);
    ~PreferenceWndController() override;

    /// See PreferenceStore.
    [[nodiscard]] static QVariant preferenceValueForKey(const QString& key, const QVariant& defaultObject);
    static void setPreferenceValue(const QVariant& object, const QString& key);

    [[nodiscard]] QWidget* window() const { return window_.get(); }
    [[nodiscard]] KeybordShortcutTextView* startStopShortcut() const;
    [[nodiscard]] KeybordShortcutTextView* pauseResumeShortcut() const;
    [[nodiscard]] KeybordShortcutTextView* startNewRecordShortcut() const;

    void initPerferceInterface();
    void setDefaultShortcut();
    /// Stores what the window shows. @return true: it may close.
    bool windowShouldClose();

    /// Asked of the system at each call.
    [[nodiscard]] bool systemAudioRecordDeviceExist() const;
    /// Looks again, whatever the argument says. From any thread.
    void setSystemAudioRecordDeviceExist(bool exist);
    void flushExistSystemAudioRecordDevice();

    // How windows are shown.
    [[nodiscard]] bool isWindowVisible() const override;
    void showWindow() override;
    void makeKeyAndOrderFront() override;
    void center() override;

public Q_SLOTS:
    void chooseOutAudioPath();
    void chooseOuRingtonePath();
    void showOutAudioPath();
    void showOutRingtonePath();
    void chooseSplitEffect();
    void chooseFilterEffect();
    void chooseSplitTime() {}  // taken when the window closes
    void chooseFilterTime() {} // likewise
    /// From any thread; return when the installation or removal is over.
    void insertTheSystemAudioRecordDevice();
    void unInsertTheSystemAudioRecordDevice();

Q_SIGNALS:
    void systemAudioRecordDeviceExistChanged();

private:
    void awakeFromNib();
    void chooseFolder(QLineEdit* field);
    void flushLater();
    void showDeviceState();
    void showDeviceWork(const QString& work);
    void showHotKeyWay();
    void fitHeight();
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] QString whyDeviceStays() const;

    ComputerAudioDevice device_;
    QString installProblem_; ///< why the last installation failed; a failed removal shows nothing
    std::unique_ptr<QWidget> window_;
    std::unique_ptr<Ui::PreferenceWnd> ui_;
};
