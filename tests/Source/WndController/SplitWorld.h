// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SplitEditView.h"
#include "Source/WndController/SplitWndController.h"
#include "tests/Platform/Media/MediaTestSupport.h"
#include "tests/Source/WndController/EditWorld.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>
#include <QTableView>

/// The split window with a real recording: 12 s with silences from 2 to 3, from 5 to 5.5 and from 8 to 9.2 s.
struct SplitWorld : EditWorld {
    static constexpr int kRate = 44100;

    SplitWorld() { controller.setDelegate(this); }

    Dictionary splitRecording(const QString& title) {
        auto sound = MediaTest::tones(12 * kRate);
        for (const auto& [from, to] : {std::pair(2.0, 3.0), {5.0, 5.5}, {8.0, 9.2}})
            for (auto& plane : sound)
                std::fill(plane.begin() + std::ptrdiff_t(from * kRate), plane.begin() + std::ptrdiff_t(to * kRate),
                          0.0F);
        const QString path = at(title + QStringLiteral(".m4a"));
        MediaTest::writeFile(path, kAudioFileM4AType, std::move(sound));
        sounds.lengths.insert(path, 12);
        return entry(title, title, path, 12);
    }
    /// Opens the window with that recording and waits until its silences are found.
    void open(const Dictionary& recording) {
        path = recording.value(AudioRecordEntry::SavePath).toString();
        controller.setRecording(recording);
        controller.window()->restoreSize();
        ToolControl::showWindowNib(controller);
        (void)QTest::qWaitForWindowExposed(controller.window(), 30000);
        EXPECT_TRUE(waitFor([&] { return controller.isSearched(); }, 60000));
        EXPECT_TRUE(waitFor([&] { return !bar().outline().isEmpty(); }, 60000));
        bar().setFocus();
    }

    [[nodiscard]] SplitEditView& bar() const { return *controller.window()->findChild<SplitEditView*>(); }
    template <typename Widget>
    [[nodiscard]] Widget& outlet(const char* name) const {
        return *controller.window()->findChild<Widget*>(QString::fromLatin1(name));
    }
    [[nodiscard]] QSlider& length() const { return outlet<QSlider>("lengthSlider_"); }
    [[nodiscard]] QSlider& level() const { return outlet<QSlider>("levelSlider_"); }
    [[nodiscard]] QTableView& table() const { return outlet<QTableView>("partsView_"); }
    [[nodiscard]] QString found() const { return outlet<QLabel>("lblFound_").text(); }
    [[nodiscard]] QAbstractButton& button(const char* name) const { return outlet<QAbstractButton>(name); }
    void click(const char* name) const {
        QTest::mouseClick(controller.window()->windowHandle(), Qt::LeftButton, {},
                          button(name).mapTo(controller.window(), button(name).rect().center()));
    }
    void key(Qt::Key code, Qt::KeyboardModifiers keys = {}) const {
        QTest::keyClick(controller.window()->windowHandle(), code, keys);
    }
    /// A point of the bar in the window.
    [[nodiscard]] QPoint inWindow(const QPointF& place) const {
        return bar().mapTo(controller.window(), place.toPoint());
    }
    [[nodiscard]] QPointF onWave(double seconds) const {
        return {bar().xOf(std::llround(seconds * kRate)), bar().waveRect().center().y()};
    }
    void drag(const QPointF& from, const QPointF& to) const {
        QWindow* const handle = controller.window()->windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, inWindow(from));
        QTest::mouseMove(handle, inWindow((from + to) / 2));
        QTest::mouseMove(handle, inWindow(to));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, inWindow(to));
    }
    /// The cuts in seconds.
    [[nodiscard]] std::vector<double> cuts() const {
        std::vector<double> seconds;
        for (const std::int64_t cut : bar().cuts())
            seconds.push_back(double(cut) / kRate);
        return seconds;
    }

    void removeRecording(const Dictionary& entry) override { removed.append(entry); }
    void showFile(const QString& shown) override { shownPath = shown; }

    SplitWndController controller;
    QString path;
    QList<Dictionary> removed;
    QString shownPath;
};
