// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of every window goes through translation, fits its place in another language, and is mirrored in a
// language that is written from right to left, except for what shows time.
#include "Source/AudioWaveViewController/AudioPlayProgressView.h"
#include "Source/AudioWaveViewController/AudioRecordWaveView.h"
#include "Source/View/RangeTimesView.h"
#include "Source/View/TabularLabel.h"
#include "Source/View/Theme.h"
#include "Source/WndController/MainMenus.h"
#include "Source/WndController/StatusBarItem.h"
#include "tests/Source/WndController/EveryWindow.h"
#include "tests/support/CutOffTexts.h"
#include "tests/support/Screenshot.h"
#include "tests/support/TestLanguage.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

class TranslatedWindows : public testing::Test {
protected:
    TranslatedWindows() { Theme::install(*qApp, nullptr); }
    ~TranslatedWindows() override {
        Theme::apply(Theme::Shade::Light);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
};

/// A text of a window and where it is.
struct Shown {
    QString place;
    QString text;
};

void add(QList<Shown>& all, const QString& place, const QStringList& texts) {
    for (const QString& text : texts)
        if (!text.isEmpty())
            all.append({place, text});
}

void addActions(QList<Shown>& all, const QObject& owner) {
    for (const QAction* action : owner.findChildren<QAction*>())
        add(all, u"action "_s + action->objectName(),
            {action->text(), action->toolTip(), action->statusTip(), action->whatsThis()});
    for (const QMenu* menu : owner.findChildren<QMenu*>())
        add(all, u"menu"_s, {menu->title(), menu->accessibleName()});
}

QList<Shown> textsOf(const QWidget& window) {
    QList<Shown> all;
    QList<const QWidget*> widgets{&window};
    for (const QWidget* each : window.findChildren<QWidget*>())
        widgets.append(each);
    for (const QWidget* each : widgets) {
        const QString place = QString::fromLatin1(each->metaObject()->className()) + u' ' + each->objectName();
        add(all, place,
            {each->windowTitle(), each->toolTip(), each->statusTip(), each->whatsThis(), each->accessibleName(),
             each->accessibleDescription()});
        // What is typed in a line edit is the user's; a spin box contains one.
        if (const auto* edit = qobject_cast<const QLineEdit*>(each))
            add(all, place, {edit->placeholderText()});
        else if (!qobject_cast<const QComboBox*>(each))
            add(all, place, {each->property("text").toString(), each->property("title").toString()});
        if (const auto* box = qobject_cast<const QSpinBox*>(each))
            add(all, place, {box->prefix(), box->suffix(), box->specialValueText()});
        if (const auto* view = qobject_cast<const QAbstractItemView*>(each); view && view->model())
            for (int column = 0; column < view->model()->columnCount(); ++column)
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                    add(all, place, {view->model()->headerData(column, Qt::Horizontal, role).toString()});
    }
    addActions(all, window);
    return all;
}

/// Whether time runs along this widget: from left to right in every language.
bool showsTime(const QWidget& widget) {
    const QWidget* each = &widget;
    return qobject_cast<const AudioRecordWaveView*>(each) || qobject_cast<const AudioPlayProgressView*>(each) ||
           qobject_cast<const AudioTrimEditView*>(each) || qobject_cast<const BalanceView*>(each) ||
           qobject_cast<const SplitEditView*>(each) || qobject_cast<const RangeTimesView*>(each) ||
           each->objectName() == u"audioEditScrollView"_s || qobject_cast<const TabularLabel*>(each);
}

/// Words of tests and names that are the same in every language.
QString withoutNames(QString left) {
    static const QStringList names{u"Sonaphex"_s,
                                   u"Built in Microphone"_s,
                                   u"Korvane System Audio"_s,
                                   u"Fast Burner x"_s,
                                   u"Disc Image CUE BIN"_s,
                                   u"NO Artist"_s,
                                   u"NO Album"_s,
                                   u"Track"_s,
                                   u"tmp"_s};
    for (const QString& name : names)
        left.remove(name);
    return left.simplified();
}

/// The visible texts that have bypassed translation.
QStringList bypassing(const QList<Shown>& all) {
    QStringList found;
    for (const auto& [place, text] : all) {
        const bool isPath = text.startsWith(u'/') || text.endsWith(u".m4a"_s);
        const bool isCommands = text.startsWith(u"sonaphex control "_s);
        if (const QString left = withoutNames(MarkedTexts::unmarked(text)); left.size() > 1 && !isPath && !isCommands)
            found.append(u"%1: “%2” of “%3”"_s.arg(place, left, text));
    }
    return found;
}

} // namespace

TEST_F(TranslatedWindows, NoTextBypassesTranslation) {
    const MarkedTexts marks;
    int seen = 0;
    EveryWindow::lookAtAll([&seen](QWidget& window, const QString& name) {
        const QList<Shown> all = textsOf(window);
        EXPECT_FALSE(all.isEmpty()) << qPrintable(name);
        for (const QString& text : bypassing(all))
            ADD_FAILURE() << qPrintable(name) << ": " << qPrintable(text);
        ++seen;
    });
    EXPECT_EQ(seen, 15);
}

TEST_F(TranslatedWindows, ATextThatBypassesTranslationIsFound) {
    const MarkedTexts marks;
    QWidget window;
    QLabel label(u"Not translated"_s, &window);
    QLabel half(QCoreApplication::translate("Alerts", "Cancel") + u" this"_s, &window);
    QLabel whole(QCoreApplication::translate("Alerts", "Cancel") + u": 12"_s, &window);
    QLabel hint(&window);
    hint.setToolTip(u"Neither is this"_s);
    EXPECT_EQ(bypassing(textsOf(window)).size(), 3) << qPrintable(bypassing(textsOf(window)).join(u'\n'));
}

TEST_F(TranslatedWindows, NoMenuBypassesTranslation) {
    const MarkedTexts marks;
    WindowWorld world;
    world.open();
    QList<Shown> all;
    addActions(all, world.controller->menus());
    StatusBarItem item(*world.controller, nullptr);
    for (const QAction* action : {item.startStopMenu(), item.pauseResumeMenu(), item.startNewRecordMenu()})
        add(all, u"status bar"_s, {action->text(), action->toolTip()});
    EXPECT_GT(all.size(), 50);
    for (const QString& text : bypassing(all))
        ADD_FAILURE() << qPrintable(text);
}

TEST_F(TranslatedWindows, EveryTextFitsInEachLanguage) {
    for (const QString& language : {u"de"_s, u"ja"_s, u"ar"_s, u"fr"_s, u"es"_s}) {
        const TestLanguage texts(language);
        ASSERT_TRUE(texts.isLoaded()) << qPrintable(language);
        QApplication::setLayoutDirection(QLocale(language).textDirection());
        const bool takesPictures = language != u"fr"_s && language != u"es"_s;
        EveryWindow::lookAtAll([&](QWidget& window, const QString& name) {
            EXPECT_EQ(cutOffTexts(window).join(u" | "_s).toStdString(), "") << qPrintable(language + u": "_s + name);
            for (const auto shade : {Theme::Shade::Light, Theme::Shade::Dark}) {
                if (!takesPictures)
                    continue;
                Theme::apply(shade);
                QCoreApplication::processEvents();
                const QString theme = shade == Theme::Shade::Dark ? u"dark"_s : u"light"_s;
                const QImage image = Screenshot::take(window, u"%1-%2-%3"_s.arg(language, name, theme));
                EXPECT_GT(Screenshot::coverage(image, image.pixel(4, 4)), 0.01) << qPrintable(name);
            }
            Theme::apply(Theme::Shade::Light);
        });
    }
}

TEST_F(TranslatedWindows, TheSmallestMainWindowCutsNoTextOff) {
    for (const QString& language : {u"de"_s, u"ja"_s, u"ar"_s, u"fr"_s, u"es"_s}) {
        const TestLanguage texts(language);
        QApplication::setLayoutDirection(QLocale(language).textDirection());
        WindowWorld world;
        world.open({720, 480});
        QCoreApplication::processEvents();
        EXPECT_EQ(cutOffTexts(*world.controller->window()).join(u" | "_s).toStdString(), "") << qPrintable(language);
        Screenshot::take(*world.controller->window(), language + u"-main-small"_s);
    }
}

TEST_F(TranslatedWindows, ArabicMirrorsTheWindowsButNotTheTime) {
    const TestLanguage texts(u"ar"_s);
    ASSERT_TRUE(texts.isLoaded());
    QApplication::setLayoutDirection(Qt::RightToLeft);
    int views = 0;
    EveryWindow::lookAtAll([&views](QWidget& window, const QString& name) {
        EXPECT_TRUE(window.isRightToLeft()) << qPrintable(name);
        for (QWidget* each : window.findChildren<QWidget*>()) {
            bool isWithinTime = false;
            for (const QWidget* above = each; above && above != &window; above = above->parentWidget())
                isWithinTime = isWithinTime || showsTime(*above);
            views += showsTime(*each) ? 1 : 0;
            EXPECT_EQ(each->isRightToLeft(), !isWithinTime)
                << qPrintable(name) << ": " << each->metaObject()->className() << " " << qPrintable(each->objectName());
        }
    });
    EXPECT_GT(views, 10);
}

TEST_F(TranslatedWindows, ArabicPutsTheStartButtonOnTheRight) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    WindowWorld world;
    world.open();
    const QWidget& window = *world.controller->window();
    const auto middleOf = [&](const char* name) {
        const QWidget& widget = world.outlet(name);
        return widget.mapTo(&window, widget.rect().center()).x();
    };
    EXPECT_GT(middleOf("btnSatrtRecord_"), window.width() / 2);
    EXPECT_GT(middleOf("btnSatrtRecord_"), middleOf("btnPauseRecord_"));
    EXPECT_GT(middleOf("outlineLibraryView_"), middleOf("audioTableView_"));
}
