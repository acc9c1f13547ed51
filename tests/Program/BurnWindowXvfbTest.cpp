// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program burns recordings of its library into a disc image: real files, real window, real keys.
#include "Platform/Disc/CDFormat.h"
#include "Source/CDBurn/AudioDataSourceView.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/WndController/LibraryOutlineModel.h"
#include "Source/WndController/MainMenus.h"
#include "tests/Program/MainWindowOnADesktop.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTracks = 10;
constexpr int kSeconds = 180;

class BurnsFromTheLibrary : public MainWindowOnADesktop {
protected:
    static void SetUpTestSuite() {
        sounds = std::make_unique<QTemporaryDir>();
        for (int i = 0; i < kTracks; ++i)
            makeSound(i);
    }
    static void TearDownTestSuite() { sounds.reset(); }
    void SetUp() override {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        ASSERT_TRUE(QDir().mkpath(images()));
        MainWindowOnADesktop::SetUp();
        auto& outline = *controller->window()->findChild<QTreeView*>(u"outlineLibraryView_"_s);
        outline.setCurrentIndex(controller->library().outlineModel().indexOfKey(u"all-record"_s));
        ASSERT_TRUE(waitFor([&] { return controller->menus().window(WindowCommands::Window::CDBurn)->isEnabled(); }));
    }
    [[nodiscard]] QVariantList records() const override {
        QVariantList records;
        for (int i = 0; i < kTracks; ++i) {
            const QString path = sound(i);
            records.append(Dictionary{{AudioRecordEntry::NodeDataKey, path},
                                      {AudioRecordEntry::Title, u"Track %1"_s.arg(i)},
                                      {AudioRecordEntry::SavePath, path},
                                      {AudioRecordEntry::Length, double(kSeconds)}});
        }
        return records;
    }

    [[nodiscard]] QString images() const { return user.folder.filePath(u"Disc images"_s); }
    [[nodiscard]] static QString sound(int number) {
        return sounds->filePath(u"Track %1.%2"_s.arg(number).arg(number == 4 ? u"flac"_s : u"wav"_s));
    }
    /// An audio file: most in the disc's format, one mono, one with more bits.
    static void makeSound(int number) {
        QStringList kind{u"-ac"_s, u"2"_s};
        if (number == 2)
            kind = QStringList{u"-ac"_s, u"1"_s, u"-ar"_s, u"22050"_s};
        if (number == 4)
            kind = QStringList{u"-ac"_s, u"2"_s, u"-ar"_s, u"96000"_s, u"-sample_fmt"_s, u"s32"_s};
        const ToolResult made = runTool(
            u"ffmpeg"_s,
            QStringList{u"-v"_s, u"error"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                        u"sine=frequency=%1:sample_rate=44100:duration=%2"_s.arg(220 * (number + 1)).arg(kSeconds)} +
                kind + QStringList{sound(number)});
        ASSERT_EQ(made.status, 0) << made.errors.constData();
    }
    static bool xdotool(const QStringList& arguments) { return desktop().xdotool(arguments); }
    static void keys(const QString& combination) { EXPECT_TRUE(xdotool({u"key"_s, combination})); }
    /// Whether the pointer is on the widget and has clicked it.
    static bool click(const QWidget& widget) {
        const QPoint place = widget.mapToGlobal(widget.rect().center());
        EXPECT_TRUE(xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y())}));
        return waitFor([&] { return widget.underMouse(); }, 500) && xdotool({u"click"_s, u"1"_s});
    }

    using Step = std::function<bool()>;
    /// Runs the steps in order, each repeatedly until it returns true. The windows run their own loops; the steps
    /// continue inside them.
    void run(const QList<Step>& steps) {
        qsizetype at = 0;
        bool busy = false;
        QTimer hand;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            if (busy || at == steps.size())
                return;
            busy = true;
            if (steps[at]())
                ++at;
            busy = false;
        });
        hand.start(20);
        ASSERT_TRUE(waitFor([&] { return at == steps.size(); }, 120000)) << "stopped at step " << at;
    }
    template <typename W>
    [[nodiscard]] static W* activeModal(const QString& name = {}) {
        auto* widget = qobject_cast<W*>(QApplication::activeModalWidget());
        return widget && widget->isActiveWindow() && (name.isEmpty() || widget->objectName() == name) ? widget
                                                                                                      : nullptr;
    }
    [[nodiscard]] static QDialog* burnWindow() { return activeModal<QDialog>(u"CDBurnWnd"_s); }
    [[nodiscard]] static QDialog* sheet() { return activeModal<QDialog>(u"ProcessWnd"_s); }

    /// Opens the burn window, chooses the image drive, and names the image; afterwards the sheet is open.
    [[nodiscard]] QList<Step> burnInto(const QString& image) {
        return {
            [] {
                keys(u"ctrl+b"_s);
                return true;
            },
            [] {
                QDialog* window = burnWindow();
                if (!window)
                    return false;
                auto* drives = window->findChild<QComboBox*>(u"popDrives_"_s);
                EXPECT_EQ(drives->itemText(drives->count() - 1), u"Disc Image (CUE/BIN)"_s);
                drives->setFocus();
                keys(u"End"_s);
                return true;
            },
            [] {
                QDialog* window = burnWindow();
                if (!window ||
                    window->findChild<QComboBox*>(u"popDrives_"_s)->currentText() != u"Disc Image (CUE/BIN)"_s)
                    return false;
                EXPECT_EQ(window->findChild<QLabel*>(u"lblSummary_"_s)->text(), u" 10 Items     Size: 325 MB"_s);
                EXPECT_EQ(window->findChild<QLabel*>(u"lblState_"_s)->text(), u"Ready to burn"_s);
                return click(*window->findChild<QPushButton*>(u"btnBurn_"_s));
            },
            [image] {
                auto* panel = activeModal<QFileDialog>();
                if (!panel)
                    return false;
                auto* name = panel->findChild<QLineEdit*>(u"fileNameEdit"_s);
                EXPECT_EQ(name->text(), u"Audio CD.cue"_s);
                name->selectAll();
                name->setFocus();
                return xdotool({u"type"_s, image});
            },
            [image] {
                auto* panel = activeModal<QFileDialog>();
                if (!panel || panel->findChild<QLineEdit*>(u"fileNameEdit"_s)->text() != image)
                    return false;
                keys(u"Return"_s);
                return true;
            },
            [] { return sheet() != nullptr; },
        };
    }
    [[nodiscard]] QStringList imageFiles() const {
        return QDir(images()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    static inline std::unique_ptr<QTemporaryDir> sounds;
};

} // namespace

TEST_F(BurnsFromTheLibrary, TenRecordingsBecomeAnImage) {
    QList<int> shown;
    QList<qint64> moments;
    QElapsedTimer clock;
    QList<Step> steps = burnInto(images() + u"/My disc.cue"_s);
    steps.append([&] {
        clock.start();
        QObject::connect(sheet()->findChild<QProgressBar*>(u"progressBar_"_s), &QProgressBar::valueChanged,
                         [&](int value) {
                             shown.append(value);
                             moments.append(clock.elapsed());
                         });
        return true;
    });
    steps.append([] { return !QApplication::activeModalWidget(); }); // the sheet closed, and the window with it
    run(steps);
    EXPECT_EQ(imageFiles(), (QStringList{u"My disc.bin"_s, u"My disc.cue"_s}));
    const auto sectors = kTracks * (kSeconds + 1) * Platform::CDFormat::kSectorsPerSecond; // a second of pre-gap each
    EXPECT_EQ(QFileInfo(images() + u"/My disc.bin"_s).size(), sectors * Platform::CDFormat::kBytesPerSector);
    EXPECT_GE(shown.size(), 2);
    EXPECT_TRUE(std::ranges::is_sorted(shown));
    EXPECT_EQ(shown.value(shown.size() - 1), 9900) << "it never shows a whole";
    qint64 longest = 0;
    for (qsizetype i = 1; i < moments.size(); ++i)
        longest = std::max(longest, moments[i] - moments[i - 1]);
    RecordProperty("moves", int(moments.size()));
    RecordProperty("milliseconds", int(moments.value(moments.size() - 1)));
    RecordProperty("longestPause", int(longest));
}

TEST_F(BurnsFromTheLibrary, ACancelledBurnLeavesNothing) {
    QList<Step> steps = burnInto(images() + u"/My disc"_s);
    steps.append([] {
        const auto* window = sheet();
        const auto* cancel = window ? window->findChild<QPushButton*>(u"btnCancel_"_s) : nullptr;
        if (!cancel || !cancel->isEnabled())
            return false;
        keys(u"Escape"_s);
        return true;
    });
    steps.append([] {
        auto* question = activeModal<QMessageBox>();
        if (!question)
            return false;
        EXPECT_EQ(question->informativeText(), u"Are you sure to end the task?"_s);
        for (QAbstractButton* button : question->buttons())
            if (button->text() == u"OK"_s)
                return click(*button);
        return false;
    });
    steps.append([] { return !QApplication::activeModalWidget(); });
    run(steps);
    EXPECT_TRUE(waitFor([this] { return imageFiles().isEmpty(); })) << qPrintable(imageFiles().join(u' '));
    EXPECT_TRUE(controller->window()->isVisible());
}

TEST_F(BurnsFromTheLibrary, WithoutAPathForTheImageTheWindowStays) {
    QList<Step> steps = burnInto(images()).mid(0, 3);
    steps.append([] {
        if (!activeModal<QFileDialog>())
            return false;
        keys(u"Escape"_s);
        return true;
    });
    steps.append([] {
        if (!burnWindow())
            return false;
        EXPECT_EQ(burnWindow()->findChild<QLabel*>(u"lblState_"_s)->text(), u"Ready to burn"_s);
        keys(u"Escape"_s);
        return true;
    });
    steps.append([] { return !QApplication::activeModalWidget(); });
    run(steps);
    EXPECT_TRUE(imageFiles().isEmpty());
}
