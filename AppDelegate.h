// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/RunningProgram.h"
#include "Source/Control/ToolControl.h"

#include <QObject>

#include <memory>

/// Starts the program and handles the commands of its main menu. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    using WindowController = ToolControl::WindowShower;

    /// Creates the program's windows. Outlives the delegate.
    class Windows {
    public:
        virtual ~Windows() = default;
        [[nodiscard]] virtual std::unique_ptr<WindowController> makePreferenceWndController(const QString& file) = 0;
        /// Creates and sets up the main window without showing it.
        [[nodiscard]] virtual std::unique_ptr<WindowController> makeMainWndController(const QString& file,
                                                                                      AppDelegate& application) = 0;
        virtual void setupSystemStatusBar(AppDelegate& application) = 0;
        virtual void insertTheSystemAudioRecordDevice(WindowController& preferences, QObject* sender) = 0;
        /// Answers a request of another process, except "show" and library requests.
        [[nodiscard]] virtual Platform::RunningProgram::Reply answer(WindowController& mainWindow,
                                                                     const QByteArray& request) = 0;
        /// Opens an audio file from the desktop or another launch; returns after its window is closed. @return why it
        /// cannot be opened; empty on success.
        [[nodiscard]] virtual QString openFile(WindowController& mainWindow, const QString& path) = 0;
        /// Ends a running recording and waits for its files: the program is about to quit.
        virtual void finishRecording(WindowController& mainWindow) = 0;
    };

    AppDelegate(Windows& windows, Platform::RunningProgram& running, QObject* parent = nullptr);
    ~AppDelegate() override;

    /// The launch, in its fixed order. Does not show the main window when @p hidden. Needs the lock of the running
    /// program, because it empties the temporary folder.
    /// @return false when this user has no private temporary folder, or another program uses it; then nothing was
    /// removed or shown, and lastError() holds the reason.
    [[nodiscard]] bool applicationDidFinishLaunching(bool hidden = false);
    /// Shows the main window in front of the windows of other programs.
    /// @param token see Platform::Activation::setToken()
    void activate(const QByteArray& token);
    /// Runs an action of the desktop file ("StartStop", "PauseResume", "Split", "Show"), if its button is enabled.
    /// Ignores unknown actions.
    void performAction(const QString& action, const QByteArray& token);
    /// Shows the main window and opens an audio file, for "Open with" of a file manager. An alert shows why it cannot
    /// be opened. Returns when the file's window is closed.
    void openFile(const QString& path);
    /// Finishes work that must not be interrupted: a running recording, settings that are not written yet.
    void applicationWillTerminate();
    /// Ends the program. Finishes the recording before it returns and before any event loop ends: a dialog or a
    /// password prompt may be open, and the code behind its loop may take any time. Does not ask the windows as quit()
    /// would; the main window refuses to close during a recording.
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
    /// Makes the preferences controller install the computer-audio device.
    void insertTheSystemAudioRecordDevice(QObject* sender = nullptr);
    void setupSystemStatusBar();

Q_SIGNALS:
    /// Called before and after a change of the property @p key: "mainWndController_".
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
