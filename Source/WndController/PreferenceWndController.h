// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Desktop/Autostart.h"
#include "Platform/Foundation/Dictionary.h"
#include "Source/Control/ToolControl.h"
#include "Source/WndController/ComputerAudioDevice.h"

#include <QObject>

#include <memory>

class KeybordShortcutTextView;
class QComboBox;
class QLineEdit;
class QScrollArea;
class QWidget;
namespace Ui {
class PreferenceWnd;
}

/// The preferences window: folders, splitting, filtering, the computer-audio device, the three shortcuts, notifications
/// and the start with the desktop. Created once and kept, because its shortcut fields own the hot keys. Closing it
/// applies and stores everything. Main thread, except installing and removing the device.
class PreferenceWndController : public QObject, public ToolControl::WindowShower {
    Q_OBJECT
    Q_PROPERTY(bool systemAudioRecordDeviceExist READ systemAudioRecordDeviceExist WRITE setSystemAudioRecordDeviceExist
                   NOTIFY systemAudioRecordDeviceExistChanged)
public:
    /// Loads the window, shows the stored settings and registers the hot keys.
    /// @param autostart null when the program cannot be started with the desktop; the window then hides the switch
    explicit PreferenceWndController(ComputerAudioDevice device, std::unique_ptr<Platform::Autostart> autostart = {},
                                     QObject* parent = nullptr);
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
    /// Gives all three shortcuts their defaults back.
    void useDefaultShortcuts();
    /// Stores the shown settings. @return true: the window may close.
    bool windowShouldClose();

    /// Queries the system at each call.
    [[nodiscard]] bool systemAudioRecordDeviceExist() const;
    /// Queries the system again; the argument is ignored. Any thread.
    void setSystemAudioRecordDeviceExist(bool exist);
    void flushExistSystemAudioRecordDevice();

    // Called to show the window.
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
    void chooseSplitTime() {}  // stored when the window closes
    void chooseFilterTime() {} // stored when the window closes
    /// Any thread; return when the installation or removal is done.
    void insertTheSystemAudioRecordDevice();
    void unInsertTheSystemAudioRecordDevice();

Q_SIGNALS:
    void systemAudioRecordDeviceExistChanged();
    /// It was installed just now.
    void systemAudioRecordDeviceInstalled();

private:
    void awakeFromNib();
    void chooseFolder(QLineEdit* field);
    void applyAutostart();
    void flushLater();
    void showDeviceState();
    void showDeviceWork(const QString& work);
    void showHotKeyWay();
    void fitHeight();
    void makeScrollable();
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] QString whyDeviceStays() const;

    ComputerAudioDevice device_;
    std::unique_ptr<Platform::Autostart> autostart_;
    QString installProblem_; ///< why the last installation failed; a failed removal shows no message
    std::unique_ptr<QWidget> window_;
    QScrollArea* scrollArea_ = nullptr; ///< only when the window does not fit the screen
    std::unique_ptr<Ui::PreferenceWnd> ui_;
};
