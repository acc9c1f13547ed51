// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Program/MainWindowOnADesktop.h"

#include "Source/Control/FileTags.h"
#include "Source/Model/AudioRecordEntry.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class ListOnADesktop : public MainWindowOnADesktop {
protected:
    [[nodiscard]] QLineEdit* editor() const { return table().findChild<QLineEdit*>(u"titleEditor"_s); }
    [[nodiscard]] QString titleOf(int row) const {
        return table().model()->index(row, AudioTableModel::Title).data().toString();
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
