// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/RunningProgram.h"
#include "Source/Control/ToolControl.h"

#include <QObject>

#include <memory>

/// Brings the program up and carries the commands of its main menu. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    using WindowController = ToolControl::WindowShower;

    /// Makes what the program shows. Outlives the delegate.
    class Windows {
    public:
        virtual ~Windows() = default;
        [[nodiscard]] virtual std::unique_ptr<WindowController> makePreferenceWndController(const QString& file) = 0;
        /// The window is loaded and set up when this returns, but not shown.
        [[nodiscard]] virtual std::unique_ptr<WindowController> makeMainWndController(const QString& file,
                                                                                      AppDelegate& application) = 0;
        virtual void setupSystemStatusBar(AppDelegate& application) = 0;
        virtual void insertTheSystemAudioRecordDevice(WindowController& preferences, QObject* sender) = 0;
        /// Answers a request of another process, but for "show" and what concerns the library.
        [[nodiscard]] virtual Platform::RunningProgram::Reply answer(WindowController& mainWindow,
                                                                     const QByteArray& request) = 0;
        /// Opens an audio file that the desktop or another launch hands over. @return why it cannot be opened; empty
        /// when it was, after its window is closed.
        [[nodiscard]] virtual QString openFile(WindowController& mainWindow, const QString& path) = 0;
        /// Ends a running recording and waits for its files: the program is about to quit.
        virtual void finishRecording(WindowController& mainWindow) = 0;
    };

    AppDelegate(Windows& windows, Platform::RunningProgram& running, QObject* parent = nullptr);
    ~AppDelegate() override;

    /// The launch, in its fixed order. Needs the lock of the running program, for it wipes the temporary folder.
    /// @return false when there is no temporary folder of this user's own, or another program uses it; nothing has been
    /// wiped or shown then, and lastError() says why.
    [[nodiscard]] bool applicationDidFinishLaunching();
    /// Shows the main window and opens an audio file, as "Open with" of a file manager asks for. An alert says why it
    /// cannot be opened. Returns when the file's window is closed.
    void openFile(const QString& path);
    /// Ends what must not be cut off: a recording under way, settings not yet written.
    void applicationWillTerminate();
    /// Ends the program. The recording is finished before this returns and before any event loop ends: a dialog or a
    /// password prompt may stand, and the code behind its loop may take any time. Does not ask the windows as quit()
    /// would; the main window never closes while something records.
    void terminate();

    [[nodiscard]] WindowController* mainWndController() const { return mainWndController_.get(); }
    [[nodiscard]] WindowController* preferenceWndController() const { return preferenceWndController_.get(); }
    [[nodiscard]] QString lastError() const { return lastError_; }

public Q_SLOTS:
    /// Shows the preferences window.
    void perference(QObject* sender = nullptr);
    /// Opens the support page in the browser.
    void support(QObject* sender = nullptr);
    /// Opens the page about the computer-audio add-on in the browser.
    void audioDevice(QObject* sender = nullptr);
    /// Has the preferences controller install the computer-audio device.
    void insertTheSystemAudioRecordDevice(QObject* sender = nullptr);
    void setupSystemStatusBar();

Q_SIGNALS:
    /// Around a change of the property @p key: "mainWndController_".
    void willChangeValueForKey(const QString& key);
    void didChangeValueForKey(const QString& key);

private:
    [[nodiscard]] bool recreateTemporaryFolder();
    [[nodiscard]] Platform::RunningProgram::Reply answer(const QByteArray& request);

    Windows& windows_;
    Platform::RunningProgram& running_;
    QString lastError_;
    std::unique_ptr<WindowController> preferenceWndController_;
    std::unique_ptr<WindowController> mainWndController_;
};
