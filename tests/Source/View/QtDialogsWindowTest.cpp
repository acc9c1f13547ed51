// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/QtAlerts.h"
#include "Source/View/QtPanels.h"

#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Calls @p act with the dialog of type T as soon as one is open.
template <typename T>
void whenShown(QObject* context, std::function<void(T*)> act) {
    auto* timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act = std::move(act)] {
        auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->stop();
        act(dialog);
    });
    timer->start(5);
}

void click(QMessageBox* box, const QString& text) {
    for (QAbstractButton* button : box->buttons())
        if (button->text() == text)
            button->click();
}

class QtDialogs : public testing::Test {
protected:
    QtDialogs() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    static void enter(QFileDialog* dialog, const QString& name) {
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
    }
    static void accept(QFileDialog* dialog) { QMetaObject::invokeMethod(dialog, "accept"); }

    QTemporaryDir folder;
    QWidget window;
    QtAlerts alerts;
    QtPanels panels;
};

} // namespace

TEST_F(QtDialogs, AnAlertShowsPlainTextAndReturnsTheButton) {
    whenShown<QMessageBox>(&window, [](QMessageBox* box) {
        EXPECT_EQ(box->text(), u"<b>Title</b> %s"_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->informativeText(), u"Text"_s);
        EXPECT_EQ(box->defaultButton()->text(), u"Yes"_s);
        click(box, u"Maybe"_s);
    });
    EXPECT_EQ(alerts.runModal(u"<b>Title</b> %s"_s, u"Text"_s, {u"Yes"_s, u"Maybe"_s, u"No"_s}), 1);
}

TEST_F(QtDialogs, EnterPressesTheFirstButtonAndEscapeTheLast) {
    whenShown<QMessageBox>(&window, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_EQ(alerts.runModal(u"Title"_s, {}, {u"Yes"_s, u"Maybe"_s, u"No"_s}), 2);
    whenShown<QMessageBox>(&window, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
    EXPECT_EQ(alerts.runModal(u"Title"_s, {}, {u"Yes"_s, u"No"_s}), 0);
}

TEST_F(QtDialogs, AnAlertWithOneButtonReturnsItHoweverItIsClosed) {
    whenShown<QMessageBox>(&window, [](QMessageBox* box) { box->close(); });
    EXPECT_EQ(alerts.runModal(u"Title"_s, {}, {u"OK"_s}), 0);
    whenShown<QMessageBox>(&window, [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_EQ(alerts.runModal(u"Title"_s, {}, {}), 0);
}

TEST_F(QtDialogs, AFolderIsChosenInASheetWithLinksResolved) {
    QDir(folder.path()).mkdir(u"real"_s);
    QFile::link(folder.filePath(u"real"_s), folder.filePath(u"link"_s));
    std::optional<QString> chosen;
    int answers = 0;
    whenShown<QFileDialog>(&window, [this](QFileDialog* dialog) {
        EXPECT_EQ(dialog->labelText(QFileDialog::Accept), u"Choose"_s);
        EXPECT_EQ(QDir(dialog->directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
        EXPECT_TRUE(dialog->testOption(QFileDialog::ShowDirsOnly));
        enter(dialog, folder.filePath(u"link"_s));
        accept(dialog);
    });
    panels.chooseFolder(&window, u"Choose"_s, folder.path(), [&](const std::optional<QString>& path) {
        chosen = path;
        ++answers;
    });
    EXPECT_EQ(answers, 0) << "a sheet does not block";
    ASSERT_TRUE(waitFor([&] { return answers == 1; }));
    EXPECT_EQ(chosen, QFileInfo(folder.filePath(u"real"_s)).canonicalFilePath());
}

TEST_F(QtDialogs, CancellingTheFolderPanelReturnsNothing) {
    int answers = 0;
    whenShown<QFileDialog>(&window, [](QFileDialog* dialog) { dialog->reject(); });
    panels.chooseFolder(&window, u"Choose"_s, folder.path(), [&](const std::optional<QString>& path) {
        EXPECT_FALSE(path);
        ++answers;
    });
    ASSERT_TRUE(waitFor([&] { return answers == 1; }));
}

TEST_F(QtDialogs, FilesAndFoldersCanBeChosenTogether) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"album"_s));
    for (const QString& name : {u"a.wav"_s, u"b.wav"_s})
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QFile::link(folder.filePath(u"a.wav"_s), folder.filePath(u"link.wav"_s)));
    const auto choose = [this](const QStringList& names) {
        std::optional<QStringList> chosen;
        whenShown<QFileDialog>(&window, [&](QFileDialog* dialog) {
            EXPECT_EQ(dialog->labelText(QFileDialog::Accept), u"Select"_s);
            EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
            auto* list = dialog->findChild<QAbstractItemView*>(u"listView"_s);
            list->setFocus();
            // A worker of the dialog supplies the rows.
            EXPECT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) == 4; }));
            list->clearSelection();
            for (int row = 0; row < 4; ++row) {
                const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
                if (names.contains(index.data().toString()))
                    list->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
            }
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->setFocus();
            accept(dialog);
        });
        panels.chooseFilesAndFolders(&window, u"Select"_s, folder.path(),
                                     [&chosen](const QStringList& paths) { chosen = paths; });
        EXPECT_FALSE(chosen) << "a sheet does not block";
        EXPECT_TRUE(waitFor([&] { return chosen.has_value(); }));
        chosen->sort();
        return *chosen;
    };
    const auto at = [this](const QString& name) { return QFileInfo(folder.filePath(name)).canonicalFilePath(); };
    EXPECT_EQ(choose({u"a.wav"_s, u"b.wav"_s}), (QStringList{at(u"a.wav"_s), at(u"b.wav"_s)}));
    EXPECT_EQ(choose({u"album"_s, u"b.wav"_s}), (QStringList{at(u"album"_s), at(u"b.wav"_s)}));
    EXPECT_EQ(choose({u"album"_s}), QStringList{at(u"album"_s)});
    EXPECT_EQ(choose({u"link.wav"_s}), QStringList{at(u"a.wav"_s)}) << "links are resolved";
}

TEST_F(QtDialogs, ATypedFolderIsOpened) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"album"_s));
    std::optional<QStringList> chosen;
    whenShown<QFileDialog>(&window, [&](QFileDialog* dialog) {
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setFocus();
        enter(dialog, folder.filePath(u"album"_s));
        accept(dialog);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(dialog->directory().dirName(), u"album"_s);
        dialog->reject();
    });
    panels.chooseFilesAndFolders(&window, u"Select"_s, folder.path(),
                                 [&chosen](const QStringList& paths) { chosen = paths; });
    ASSERT_TRUE(waitFor([&] { return chosen.has_value(); }));
    EXPECT_TRUE(chosen->isEmpty()) << "Cancel";
}

TEST_F(QtDialogs, AnExistingFileIsChosen) {
    QFile file(folder.filePath(u"cover; $(x) 'é'.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    whenShown<QFileDialog>(&window, [&](QFileDialog* dialog) {
        enter(dialog, file.fileName());
        accept(dialog);
    });
    EXPECT_EQ(panels.chooseFile(&window, u"Choose"_s, folder.path(), u"Images (*.png *.jpg)"_s),
              QFileInfo(file.fileName()).canonicalFilePath());
    whenShown<QFileDialog>(&window, [](QFileDialog* dialog) { dialog->reject(); });
    EXPECT_FALSE(panels.chooseFile(&window, u"Choose"_s, folder.path(), {}));
}

TEST_F(QtDialogs, TheSavePanelAsksBeforeItAcceptsAnExistingFile) {
    whenShown<QFileDialog>(&window, [this](QFileDialog* dialog) {
        EXPECT_EQ(dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"Track1.m4a"_s);
        enter(dialog, folder.filePath(u"Other"_s));
        accept(dialog);
    });
    EXPECT_EQ(panels.saveFile(&window, u"Save"_s, folder.filePath(u"Track1.m4a"_s)), folder.filePath(u"Other.m4a"_s));

    QFile existing(folder.filePath(u"Track1.m4a"_s));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.close();
    bool asked = false;
    whenShown<QFileDialog>(&window, [&](QFileDialog* dialog) {
        whenShown<QMessageBox>(&window, [&asked, dialog](QMessageBox* box) {
            asked = true;
            box->button(QMessageBox::No)->click();
            QTimer::singleShot(0, dialog, &QDialog::reject);
        });
        accept(dialog);
    });
    EXPECT_FALSE(panels.saveFile(&window, u"Save"_s, existing.fileName()));
    EXPECT_TRUE(asked);
}
