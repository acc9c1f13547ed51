// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/Preferences/PreferenceStore.h"
#include "Source/Record/RecordStateController.h"
#include "Source/WndController/AudioTableModel.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "Source/WndController/LibraryPresenter.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/MainWndController.h"
#include "Source/WndController/RecordPanel.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/fakes/FakeAudioHardware.h"
#include "tests/fakes/FakeMediaFiles.h"
#include "tests/support/Environment.h"
#include "tests/support/WaitFor.h"

#include <QTest>

/// The main window with real engines on test devices.
struct WindowWorld : LibraryWorld {
    static constexpr AudioObjectID kMicrophone = 10;
    static constexpr AudioObjectID kComputer = 20;

    explicit WindowWorld(bool withComputerAudio = true) {
        auto& services = Platform::services();
        services.audioHardware = &hardware;
        services.mediaFiles = &media;
        hardware.list.push_back({kMicrophone, QStringLiteral("Built-in Microphone"), QStringLiteral("mic")});
        if (withComputerAudio)
            hardware.list.push_back({kComputer, QStringLiteral("Korvane System Audio"), QStringLiteral("korvane")});
        g_strTmpPath = folder.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
        PreferenceStore::setPreferenceValue(folder.filePath(QStringLiteral("music")),
                                            PreferenceStore::PreferenceSavePathKey);
        PreferenceStore::setPreferenceValue(0, PreferenceStore::PreferenceFilterKey);
        library = std::make_unique<MediaLibrary>();
    }
    /// Creates recorder and window with the current doubles, and shows the window.
    MainWndController& open(QSize size = {900, 600}) {
        record = std::make_unique<RecordStateController>();
        record->awakeFromNib();
        controller = std::make_unique<MainWndController>(*record, *library);
        controller->window()->resize(size);
        ToolControl::showWindowNib(*controller);
        (void)QTest::qWaitForWindowExposed(controller->window(), 30000);
        return *controller;
    }
    template <typename W = QWidget>
    [[nodiscard]] W& outlet(const char* name) const {
        return *controller->window()->findChild<W*>(QString::fromLatin1(name));
    }
    /// A real mouse click in the middle of a widget.
    void click(const char* name, Qt::MouseButton button = Qt::LeftButton) const {
        QWidget& widget = outlet(name);
        QTest::mouseClick(widget.window()->windowHandle(), button, {},
                          widget.mapTo(widget.window(), widget.rect().center()));
    }
    void selectNode(const QString& key) const {
        auto& outline = outlet<QAbstractItemView>("outlineLibraryView_");
        outline.selectionModel()->setCurrentIndex(controller->library().outlineModel().indexOfKey(key),
                                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    EnvironmentScope dataFolder{"XDG_DATA_HOME", folder.filePath(QStringLiteral("data")).toUtf8()};
    FakeAudioHardware hardware;
    FakeMediaFiles media;
    std::unique_ptr<MediaLibrary> library;
    std::unique_ptr<RecordStateController> record;
    std::unique_ptr<MainWndController> controller;
};
