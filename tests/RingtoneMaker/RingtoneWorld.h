// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RingtoneMaker/RingtoneMakerViewController.h"
#include "Source/Preferences/PreferenceStore.h"
#include "Source/Record/RecordingNames.h"
#include "Source/View/EditDialog.h"
#include "Source/View/Theme.h"
#include "tests/Source/WndController/LibraryWorld.h"
#include "tests/fakes/FakeSourceFiles.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QTest>

#include <cmath>

/// The ringtone maker's window with recordings that are computed by functions, and an owner that records its calls.
struct RingtoneWorld : LibraryWorld, RingtoneMakerViewControllerDelegate {
    RingtoneWorld() {
        Platform::services().mediaFiles = &media;
        g_strTmpPath = folder.filePath(QStringLiteral("tmp"));
        QDir().mkpath(g_strTmpPath);
        Theme::install(*qApp, nullptr);
        maker.setDelegate(this);
    }
    ~RingtoneWorld() override { Theme::apply(Theme::Shade::Light); }

    QString nextRingtoneMakerFilePath() override {
        return target.isNull() ? RecordingNames::nextRingtoneMakerFilePath(folder.filePath(QStringLiteral("made")))
                               : target;
    }
    void addRingtoneFile(const QString& path, const Dictionary& tags) override {
        paths.append(path);
        entries.append(tags);
    }

    /// A recording of this many seconds that sounds like speech: noise that swells and fades.
    QString recording(const QString& name, double seconds) {
        const QString path = folder.filePath(name);
        auto& source = media.addSource(path, seconds, [](int, std::int64_t frame) {
            const double t = double(frame) / 44100;
            return float((0.15 + 0.8 * std::fabs(std::sin(t * 0.21) * std::sin(t * 1.7 + 1))) *
                         std::sin(t * t * 37 + t * 611));
        });
        source.sparse = true;
        sounds.lengths.insert(path, seconds);
        return path;
    }
    void open(double seconds, const QString& title = QStringLiteral("Track2")) {
        const QString path = recording(title + QStringLiteral(".m4a"), seconds);
        maker.openFile(path, entry(QStringLiteral("key"), title, path, seconds));
    }
    void show(QSize size = {860, 460}) {
        maker.window()->resize(size);
        maker.window()->show();
        (void)QTest::qWaitForWindowExposed(maker.window(), 30000);
        maker.window()->activateWindow();
        (void)QTest::qWaitForWindowActive(maker.window(), 30000);
    }
    [[nodiscard]] bool outlineDone() {
        return waitFor([this] { return !maker.generatingWave(); });
    }
    template <typename W = QWidget>
    [[nodiscard]] W& outlet(const char* name) const {
        return *maker.window()->findChild<W*>(QString::fromLatin1(name));
    }
    /// Sends mouse events, in view coordinates, to the window as the desktop does.
    void press(QWidget& view, QPoint at) const { mouse(&QTest::mousePress, view, at); }
    void release(QWidget& view, QPoint at) const { mouse(&QTest::mouseRelease, view, at); }
    void moveTo(QWidget& view, QPoint at) const {
        QTest::mouseMove(view.window()->windowHandle(), view.mapTo(view.window(), at));
        QCoreApplication::processEvents();
    }
    void drag(QWidget& view, QPoint from, QPoint to) const {
        const QPoint global = view.mapTo(view.window(), QPoint(0, 0)); // the view may move between the two events
        auto* const window = view.window()->windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, global + from);
        for (const double share : {0.3, 0.7, 1.0})
            QTest::mouseMove(window, global + from + ((QPointF(to - from)) * share).toPoint());
        QTest::mouseRelease(window, Qt::LeftButton, {}, global + to);
        QCoreApplication::processEvents();
    }

    FakeSourceFiles media;
    QString target; ///< null: the next free name in "made"
    QStringList paths;
    QList<Dictionary> entries;
    RingtoneMakerViewController maker;

private:
    using Send = void (*)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    static void mouse(Send send, QWidget& view, QPoint at) {
        send(view.window()->windowHandle(), Qt::LeftButton, {}, view.mapTo(view.window(), at), -1);
    }
};
