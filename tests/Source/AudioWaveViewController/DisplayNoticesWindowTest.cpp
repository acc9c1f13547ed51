// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The notices in the display.
#include "tests/Source/AudioWaveViewController/LiveDisplay.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {
class NoticesOfTheDisplay : public LiveDisplay {};
} // namespace

TEST_F(NoticesOfTheDisplay, NoticesStayUntilTheyAreDismissed) {
    auto* line = field<QWidget>("noticeLine");
    EXPECT_FALSE(line->isVisible());
    controller.setNotices({{u"first"_s}, {u"12 frames were lost"_s}});
    EXPECT_TRUE(line->isVisible());
    EXPECT_TRUE(field<QLabel>("noticeField")->toolTip().contains(u"first"_s));
    QStringList dismissed;
    QObject::connect(&controller, &AudioWaveViewController::noticeDismissed,
                     [&](const RecordNotice& notice) { dismissed.append(notice.text); });
    field<QToolButton>("dismissNoticeButton")->click();
    EXPECT_EQ(dismissed, QStringList{u"12 frames were lost"_s});
    ASSERT_TRUE(line->isVisible()) << "the other one was not seen";
    EXPECT_EQ(field<QLabel>("noticeField")->text(), u"first"_s);
    field<QToolButton>("dismissNoticeButton")->click();
    EXPECT_EQ(dismissed.size(), 2);
    EXPECT_FALSE(line->isVisible());
}

TEST_F(NoticesOfTheDisplay, EachOfSeveralNoticesIsShownAndAnswered) {
    panel->resize(560, 116);
    auto* next = field<QToolButton>("nextNoticeButton");
    auto* help = field<QToolButton>("helpButton");
    const auto shown = [&] { return field<QLabel>("noticeField")->text(); };
    RecordNotice disk{.text = u"disk"_s, .help = RecordNotice::Help::FreeSpace, .event = u"disk"_s};
    const RecordNotice gone{.text = u"gone"_s, .help = RecordNotice::Help::ChooseDevice, .event = u"gone"_s};
    const RecordNotice lost{.text = u"lost"_s, .event = u"lost"_s};
    QStringList asked;
    QObject::connect(&controller, &AudioWaveViewController::helpRequested,
                     [&](const RecordNotice& notice) { asked.append(notice.text); });
    controller.setNotices({disk});
    EXPECT_FALSE(next->isVisible()) << "there is no other one";
    controller.setNotices({disk, gone, lost});
    EXPECT_EQ(shown(), u"lost"_s);
    EXPECT_EQ(next->text(), u"1/3"_s);
    EXPECT_FALSE(help->isVisible());
    next->click();
    EXPECT_EQ(shown(), u"gone"_s);
    help->click();
    // With the keyboard.
    next->setFocus(Qt::TabFocusReason);
    QTest::keyClick(next, Qt::Key_Space);
    EXPECT_EQ(shown(), u"disk"_s);
    EXPECT_EQ(next->text(), u"3/3"_s);
    help->click();
    EXPECT_EQ(asked, (QStringList{u"gone"_s, u"disk"_s}));
    // What is shown stays in its place while it is updated, and when another one goes.
    controller.setNotices({disk, gone, {.text = u"more lost"_s, .event = u"lost"_s}});
    EXPECT_EQ(shown(), u"disk"_s);
    disk.text = u"less room"_s;
    controller.setNotices({gone, lost, disk});
    EXPECT_EQ(shown(), u"less room"_s);
    controller.setNotices({gone, disk});
    EXPECT_EQ(shown(), u"less room"_s);
    controller.showNextNotice();
    ASSERT_EQ(shown(), u"gone"_s);
    controller.setNotices({gone, disk, {u"new"_s}});
    EXPECT_EQ(shown(), u"new"_s) << "a new one is shown at once";
    controller.setNotices({disk, {u"new"_s}});
    EXPECT_EQ(shown(), u"new"_s);
}

TEST_F(NoticesOfTheDisplay, ANarrowPanelLeavesTheRoomToTheWords) {
    const QString text = u"The disk is nearly full: about 45 minutes left."_s;
    panel->resize(272, 116);
    controller.setNotices({{u"other"_s}, {.text = text, .help = RecordNotice::Help::FreeSpace, .event = u"disk"_s}});
    QCoreApplication::processEvents();
    EXPECT_EQ(field<QToolButton>("helpButton")->toolButtonStyle(), Qt::ToolButtonIconOnly);
    EXPECT_EQ(field<QToolButton>("helpButton")->toolTip(), u"Free Space …"_s);
    EXPECT_EQ(field<QLabel>("noticeField")->text().simplified(), text);
    const QString hint = u"Waiting for the first sound of computer audio"_s;
    controller.setNotices({});
    controller.setHint(hint);
    QCoreApplication::processEvents();
    EXPECT_EQ(field<QLabel>("hintField")->text().simplified(), hint);
    panel->resize(560, 116);
    controller.setNotices({{.text = text, .help = RecordNotice::Help::FreeSpace, .event = u"disk"_s}});
    QCoreApplication::processEvents();
    EXPECT_EQ(field<QToolButton>("helpButton")->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

TEST_F(NoticesOfTheDisplay, ALongNoticeTakesTwoLinesWithoutResizingTheWindow) {
    QWidget* panel = controller.view();
    panel->resize(272, 116);
    controller.setNotices({});
    QCoreApplication::processEvents();
    EXPECT_LE(panel->minimumSizeHint().height(), 116);
    controller.setNotices({{u"The disk is nearly full: about 3 h 10 min left."_s}});
    QCoreApplication::processEvents();
    EXPECT_LE(panel->minimumSizeHint().height(), 116) << "the list below would jump";
    EXPECT_EQ(field<QLabel>("noticeField")->text().simplified(), u"The disk is nearly full: about 3 h 10 min left."_s);
    EXPECT_EQ(field<QLabel>("noticeField")->text().count(u'\n'), 1);
    const QString endless = u"95232 frames were lost "_s.repeated(9);
    controller.setNotices({{endless}});
    EXPECT_EQ(field<QLabel>("noticeField")->text().count(u'\n'), 1);
    EXPECT_TRUE(field<QLabel>("noticeField")->text().endsWith(QChar(0x2026)));
    EXPECT_EQ(field<QLabel>("noticeField")->toolTip(), endless);
}

TEST_F(NoticesOfTheDisplay, AnAnswerIsOfferedAndThePathStandsLastWithoutItsMiddle) {
    panel->resize(420, 116);
    auto* help = field<QToolButton>("helpButton");
    const RecordNotice kept{.text = u"An earlier recording could not be finished. It is kept at"_s,
                            .path = QDir::homePath() + u"/.local/share/com.korvane.Sonaphex/Unfinished/Track0.m4a"_s,
                            .help = RecordNotice::Help::Show};
    controller.setNotices({{u"first"_s}, kept});
    QCoreApplication::processEvents();
    const QStringList lines = field<QLabel>("noticeField")->text().split(u'\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(u"An earlier recording"_s)) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[1].startsWith(u"~/"_s)) << qPrintable(lines[1]);
    EXPECT_TRUE(lines[1].endsWith(u"/Track0.m4a"_s)) << qPrintable(lines[1]);
    EXPECT_TRUE(lines[1].contains(QChar(0x2026)));
    EXPECT_TRUE(field<QLabel>("noticeField")->toolTip().contains(kept.sentence()));
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->text(), u"Show"_s);
    RecordNotice asked;
    QObject::connect(&controller, &AudioWaveViewController::helpRequested,
                     [&](const RecordNotice& notice) { asked = notice; });
    help->click();
    EXPECT_EQ(asked, kept);
    controller.setNotices({{u"nothing helps"_s}});
    EXPECT_FALSE(help->isVisible());
}
