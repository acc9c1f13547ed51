// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Program/MainWindowOnADesktop.h"

#include "Platform/Foundation/FileManager.h"
#include "RingtoneMaker/CustomSound.h"
#include "Source/Control/FileTags.h"
#include "Source/Model/AudioRecordEntry.h"
#include "Source/View/ElidedLabel.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class ListOnADesktop : public MainWindowOnADesktop {
protected:
    [[nodiscard]] QLineEdit* editor() const { return table().findChild<QLineEdit*>(u"titleEditor"_s); }
    [[nodiscard]] QString titleOf(int row) const {
        return table().model()->index(row, AudioTableModel::Title).data().toString();
    }
    [[nodiscard]] QStringList titles() const {
        QStringList all;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            all += titleOf(row);
        return all;
    }
    [[nodiscard]] QStringList selected() const {
        QStringList all;
        for (const QModelIndex& row : table().selectionModel()->selectedRows(AudioTableModel::Title))
            all += row.data().toString();
        return all;
    }
    [[nodiscard]] bool plays() const { return controller->library().isPlaySoundPlaying(); }
    /// Selects a row with the keyboard: typed letters find its title.
    void choose(const QString& title) {
        table().setFocus();
        // A pause between two letters begins another search.
        ASSERT_TRUE(waitFor(
            [&] {
                keys(u"Home"_s);
                type(title);
                return waitFor([&] { return selected() == QStringList{title}; }, 1000);
            },
            60000))
            << qPrintable(selected().join(u','));
    }
    void remove() {
        bool asked = false;
        whenAsked([&](QMessageBox& box) {
            for (QAbstractButton* button : box.buttons())
                if (button->text() == u"Remove"_s)
                    clickAt(button->mapToGlobal(button->rect().center()));
            asked = true;
        });
        keys(u"Delete"_s);
        ASSERT_TRUE(waitFor(
            [&] { return asked && !QApplication::activeModalWidget() && controller->window()->isActiveWindow(); }));
    }
    void type(const QString& text) const { ASSERT_TRUE(desktop().xdotool({u"type"_s, u"--delay"_s, u"20"_s, text})); }
};

} // namespace

TEST_F(ListOnADesktop, ARecordingIsTitledFoundAndPlayedWithTheKeyboard) {
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 3; }, 60000));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); }, 60000)) << "the title is open";
    type(u"Choir two"_s);
    keys(u"Return"_s);
    const QString path = QFileInfo(user.recording(0)).path() + u"/Choir two.m4a"_s;
    ASSERT_TRUE(waitFor([&] { return titleOf(0) == u"Choir two"_s && QFile::exists(path); }, 60000));
    EXPECT_EQ(FileTags::texts(path).value(AudioRecordEntry::Title), u"Choir two"_s);
    EXPECT_EQ(controller->library().tableViewSelectionAudioPath(), path);

    keys(u"ctrl+f"_s);
    ASSERT_TRUE(waitFor([&] { return outlet("searchField_").hasFocus(); }));
    type(u"rain"_s);
    ASSERT_TRUE(waitFor([&] { return table().model()->rowCount() == 0; }));
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return table().model()->rowCount() == 1 && table().hasFocus(); }));
    keys(u"ctrl+f"_s);
    type(u"two cho"_s);
    keys(u"Return"_s);
    ASSERT_TRUE(waitFor([&] { return table().hasFocus() && controller->library().tableViewShowEnable(); }));
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return controller->library().isPlaySoundPlaying(); }));
    EXPECT_FALSE(record().isStateAudioRecord());
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return !controller->library().isPlaySoundPlaying(); }));
}

TEST_F(ListOnADesktop, SpaceListensAfterTheRecordButtonAndASecondClickRenames) {
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 3; }, 60000));
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); }, 60000));
    keys(u"space"_s);
    ASSERT_TRUE(waitFor([&] { return controller->library().isPlaySoundPlaying(); }));
    EXPECT_FALSE(record().isStateAudioRecord());
    keys(u"Escape"_s);
    ASSERT_TRUE(waitFor([&] { return !editor(); }));
    EXPECT_EQ(titleOf(0), u"Track0"_s);
    clickAt(rowPlace(0));
    ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); })) << "it was selected already";
    type(u"Again"_s);
    keys(u"Return"_s);
    EXPECT_TRUE(waitFor([&] { return titleOf(0) == u"Again"_s; }, 60000));
}

TEST_F(ListOnADesktop, TheKeysOfEachListMoveInItAndSeveralRowsSayHowManyTheyAre) {
    for (int i = 0; i < 4; ++i)
        makeRecording(1.1);
    keys(u"Escape"_s); // the title of the newest one
    const QStringList all = titles();
    ASSERT_EQ(all.size(), 4);
    table().setFocus();
    keys(u"Home"_s);
    ASSERT_TRUE(waitFor([&] { return selected() == all.mid(0, 1); }));
    keys(u"Page_Down"_s);
    ASSERT_TRUE(waitFor([&] { return selected() == all.mid(3, 1); }));
    keys(u"Page_Up"_s);
    ASSERT_TRUE(waitFor([&] { return selected() == all.mid(0, 1); }));
    keys(u"End"_s);
    ASSERT_TRUE(waitFor([&] { return selected() == all.mid(3, 1); }));
    keys(u"shift+Home"_s);
    ASSERT_TRUE(waitFor([&] { return selected().size() == 4; }));
    const auto& line = static_cast<ElidedLabel&>(outlet("lblStatus_"));
    EXPECT_TRUE(waitFor([&] { return line.text().startsWith(u"4 selected, 00:00:"_s); })) << qPrintable(line.text());
    choose(u"Track2"_s);
    EXPECT_EQ(line.text(), user.recording(2));
}

TEST_F(ListOnADesktop, ADeletedRecordingStopsAndTheNextOneIsSelected) {
    for (int i = 0; i < 2; ++i)
        makeRecording(1);
    makeRecording(6); // still plays when it is deleted
    keys(u"Escape"_s);
    const QStringList all = titles();
    const auto row = all.indexOf(u"Track2"_s);
    ASSERT_GE(row, 0);
    choose(u"Track2"_s);
    keys(u"space"_s);
    ASSERT_TRUE(waitFor([&] { return plays(); }));
    remove();
    ASSERT_TRUE(waitFor([&] { return table().model()->rowCount() == 2; }));
    EXPECT_FALSE(controller->display().playSound()) << "the deleted one is let go";
    EXPECT_EQ(selected(), QStringList{titleOf(int(std::min<qsizetype>(row, 1)))});
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return plays(); })) << "Play follows the selection";
}

TEST_F(ListOnADesktop, ABrokenOrAMissingFileIsLetGoAndPlayFollowsTheSelection) {
    makeRecording(1);
    makeRecording(1);
    makeRecording(6);
    keys(u"Escape"_s);
    QFile broken(user.recording(0));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_GT(broken.write("no sound"), 0);
    broken.close();
    const auto& line = static_cast<ElidedLabel&>(outlet("lblStatus_"));
    choose(u"Track0"_s);
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return line.text().contains(u"“Track0.m4a” cannot be played"_s); }))
        << qPrintable(line.text());
    EXPECT_FALSE(controller->display().playSound());
    choose(u"Track2"_s);
    keys(u"space"_s);
    ASSERT_TRUE(waitFor([&] { return plays(); }));
    keys(u"space"_s);
    ASSERT_TRUE(waitFor([&] { return !plays(); }));
    ASSERT_TRUE(QFile::remove(user.recording(2)));
    choose(u"Track1"_s);
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return line.text().startsWith(u"The file is no longer there"_s); }))
        << qPrintable(line.text());
    keys(u"space"_s);
    EXPECT_TRUE(waitFor([&] { return plays(); }));
    EXPECT_EQ(controller->library().playingPath(), user.recording(1));
}

TEST_F(ListOnADesktop, TheSortingIsRememberedAndADoubleClickHitsTheLastRowTwice) {
    for (int i = 0; i < 3; ++i)
        makeRecording(1);
    keys(u"Escape"_s);
    QHeaderView& header = *table().horizontalHeader();
    const auto clickHeader = [&] {
        const int x = header.sectionViewportPosition(AudioTableModel::Title) + 40;
        clickAt(header.viewport()->mapToGlobal(QPoint(x, header.height() / 2)));
    };
    const QStringList ascending{u"Track0"_s, u"Track1"_s, u"Track2"_s};
    const QStringList descending{u"Track2"_s, u"Track1"_s, u"Track0"_s};
    clickHeader();
    ASSERT_TRUE(waitFor([&] { return header.isSortIndicatorShown() && titles() == ascending; }))
        << qPrintable(titles().join(u','));
    QTest::qWait(QApplication::doubleClickInterval());
    clickHeader();
    ASSERT_TRUE(waitFor([&] { return titles() == descending; })) << qPrintable(titles().join(u','));
    restart();
    EXPECT_TRUE(waitFor([&] { return titles() == descending; })) << qPrintable(titles().join(u','));

    table().clearSelection();
    // The window manager may still be moving the new window.
    ASSERT_TRUE(waitFor([&] {
        const QPoint place = rowPlace(2);
        EXPECT_TRUE(desktop().xdotool(
            {u"mousemove"_s, u"0"_s, u"0"_s, u"mousemove"_s, QString::number(place.x()), QString::number(place.y())}));
        return waitFor([&] { return table().viewport()->underMouse() && rowPlace(2) == place; }, 500);
    }));
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(30000);
    clickAt(rowPlace(2), 1, 2);
    ASSERT_TRUE(waitFor([&] { return plays(); }));
    QApplication::setDoubleClickInterval(interval);
    EXPECT_EQ(controller->library().playingPath(), user.recording(0));
}

TEST_F(ListOnADesktop, AnUnfinishedRecordingIsNamedAtEachStartUntilItWasSeen) {
    const QString kept = Platform::FileManager::unfinishedFolder() + u"/Track7.m4a"_s;
    ASSERT_TRUE(QFile(kept).open(QIODevice::WriteOnly));
    const auto isNamed = [&] {
        const auto& line = static_cast<QLabel&>(outlet("noticeField"));
        return line.isVisible() && line.toolTip().contains(kept);
    };
    restart();
    ASSERT_TRUE(waitFor(isNamed));
    EXPECT_EQ(static_cast<QToolButton&>(outlet("helpButton")).text(), u"Show"_s);
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 0.2; }, 60000));
    EXPECT_TRUE(isNamed()) << "it outlives the next recording";
    click("btnSatrtRecord_");
    ASSERT_TRUE(waitFor([&] { return record().jobsInQueue() == 0; }));
    restart();
    ASSERT_TRUE(waitFor(isNamed)) << "nobody has seen it";
    click("dismissNoticeButton");
    ASSERT_TRUE(waitFor([&] { return !outlet("noticeLine").isVisible(); }));
    restart();
    EXPECT_FALSE(outlet("noticeLine").isVisible());
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(ListOnADesktop, TheKeyboardAloneRecordsFindsPlaysTagsAndDeletes) {
    ASSERT_TRUE(desktop().xdotool({u"mousemove"_s, u"1"_s, u"1"_s})); // out of the way
    keys(u"ctrl+r"_s);
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 1; }, 60000));
    keys(u"ctrl+p"_s);
    ASSERT_TRUE(waitFor([&] { return record().state() == RecordState::Paused; }));
    keys(u"ctrl+p"_s);
    ASSERT_TRUE(waitFor([&] { return record().state() == RecordState::Recording; }));
    keys(u"ctrl+n"_s);
    ASSERT_TRUE(waitFor([&] { return MediaLibrary::shareLibrary().records().size() == 1; }, 60000));
    ASSERT_TRUE(waitFor([&] { return record().recordedSeconds() > 3; }, 60000));
    keys(u"ctrl+r"_s);
    ASSERT_TRUE(waitFor([&] { return editor() && editor()->hasFocus(); }, 60000));
    type(u"Rain"_s);
    keys(u"Return"_s);
    ASSERT_TRUE(waitFor([&] { return titles().contains(u"Rain"_s) && table().hasFocus(); }, 60000));

    keys(u"ctrl+f"_s);
    ASSERT_TRUE(waitFor([&] { return outlet("searchField_").hasFocus(); }));
    type(u"rai"_s);
    ASSERT_TRUE(waitFor([&] { return titles() == QStringList{u"Rain"_s}; }));
    keys(u"Return"_s);
    ASSERT_TRUE(waitFor([&] { return table().hasFocus() && selected() == QStringList{u"Rain"_s}; }));
    keys(u"Return"_s);
    ASSERT_TRUE(waitFor([&] { return plays() && controller->display().currentTime() > 0.1; }));
    keys(u"ctrl+Right"_s); // beyond its end
    ASSERT_TRUE(waitFor([&] { return !controller->display().playSound(); }));

    bool tagged = false;
    auto* look = new QTimer(controller); // the tag window runs its own loop
    QObject::connect(look, &QTimer::timeout, controller, [&, look] {
        auto* tags = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!tags || !tags->isActiveWindow())
            return;
        look->stop();
        look->deleteLater();
        auto* artist = tags->findChild<QLineEdit*>(u"artistField_"_s);
        for (int i = 0; i < 10 && !artist->hasFocus(); ++i) {
            const QWidget* before = tags->focusWidget();
            keys(u"Tab"_s);
            (void)waitFor([&] { return tags->focusWidget() != before; }, 2000);
        }
        EXPECT_TRUE(artist->hasFocus());
        keys(u"ctrl+a"_s);
        type(u"Ada"_s);
        EXPECT_TRUE(waitFor([&] { return artist->text() == u"Ada"_s; }));
        tagged = true;
        keys(u"Return"_s);
    });
    look->start(20);
    keys(u"F2"_s);
    ASSERT_TRUE(waitFor([&] { return tagged && !QApplication::activeModalWidget(); }, 60000));
    const QString path = QFileInfo(user.recording(0)).path() + u"/Rain.m4a"_s;
    EXPECT_TRUE(waitFor([&] { return FileTags::texts(path).value(AudioRecordEntry::Artist) == u"Ada"_s; }, 60000));

    // The window manager may give the focus to nobody when the dialog closes.
    ASSERT_TRUE(waitFor([&] {
        if (!controller->window()->isActiveWindow())
            controller->window()->activateWindow();
        return controller->window()->isActiveWindow();
    }));
    const QWidget* focus = controller->window()->focusWidget();
    ASSERT_EQ(focus, &table()) << (focus ? qPrintable(focus->objectName()) : "none");
    bool asked = false;
    whenAsked([&](QMessageBox& box) {
        asked = true;
        for (int i = 0; i < 4; ++i) {
            const auto* button = qobject_cast<QAbstractButton*>(box.focusWidget());
            if (button && button->text() == u"Remove"_s)
                break;
            const QWidget* before = box.focusWidget();
            keys(u"Tab"_s);
            (void)waitFor([&] { return box.focusWidget() != before; }, 2000);
        }
        keys(u"Return"_s);
    });
    keys(u"Delete"_s);
    ASSERT_TRUE(waitFor([&] { return asked && !QApplication::activeModalWidget(); }));
    EXPECT_TRUE(waitFor([&] { return !QFile::exists(path); }));
    EXPECT_EQ(MediaLibrary::shareLibrary().records().size(), 1);
}
