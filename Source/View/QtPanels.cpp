// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/QtPanels.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <algorithm>

namespace {

QWidget* parentFor(QObject* window) {
    auto* widget = qobject_cast<QWidget*>(window);
    return widget ? widget->window() : QApplication::activeWindow();
}

QString resolved(const QString& path) {
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? path : canonical;
}

std::optional<QString> runModal(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

/// Accepts folders as well as files. Typing a folder's path opens it, as in any file dialog.
class FilesAndFoldersDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override {
        const QStringList chosen = selectedFiles();
        const bool typed = qobject_cast<QLineEdit*>(focusWidget()) != nullptr;
        const auto isFolder = [](const QString& path) { return QFileInfo(path).isDir(); };
        const bool allThere = std::ranges::all_of(chosen, [](const QString& path) { return QFileInfo::exists(path); });
        if (chosen.isEmpty() || !allThere || (typed && chosen.size() == 1 && isFolder(chosen.first())) ||
            std::ranges::none_of(chosen, isFolder)) {
            QFileDialog::accept(); // reports a missing file, or closes
            return;
        }
        QDialog::accept(); // NOLINT(bugprone-parent-virtual-call): QFileDialog would enter the folder instead of taking
                           // it
    }
};

} // namespace

void QtPanels::chooseFolder(QObject* window, const QString& prompt, const QString& startFolder, Chosen done) {
    auto* dialog = new QFileDialog(parentFor(window), Qt::Sheet);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, prompt);
    dialog->setWindowTitle(prompt);
    dialog->setDirectory(startFolder);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, done = std::move(done)](int result) {
        const QStringList chosen = dialog->selectedFiles();
        if (result == QDialog::Accepted && !chosen.isEmpty())
            done(resolved(chosen.last()));
        else
            done(std::nullopt);
    });
    dialog->open();
}

void QtPanels::chooseFilesAndFolders(QObject* window, const QString& prompt, const QString& startFolder,
                                     std::function<void(QStringList paths)> done) {
    auto* dialog = new FilesAndFoldersDialog(parentFor(window), Qt::Sheet);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setLabelText(QFileDialog::Accept, prompt);
    dialog->setWindowTitle(prompt);
    dialog->setDirectory(startFolder);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, done = std::move(done)](int result) {
        QStringList chosen = result == QDialog::Accepted ? dialog->selectedFiles() : QStringList();
        std::ranges::transform(chosen, chosen.begin(), resolved);
        done(chosen);
    });
    dialog->open();
}

std::optional<QString> QtPanels::chooseFile(QObject* window, const QString& title, const QString& startFolder,
                                            const QString& filter) {
    QFileDialog dialog(parentFor(window), title, startFolder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    const auto path = runModal(dialog);
    return path ? std::optional(resolved(*path)) : std::nullopt;
}

std::optional<QString> QtPanels::saveFile(QObject* window, const QString& title, const QString& startPath,
                                          Existing existing) {
    const QFileInfo start(startPath);
    QFileDialog dialog(parentFor(window), title, start.absolutePath());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, existing == Existing::Unasked);
    dialog.setDefaultSuffix(start.suffix());
    dialog.selectFile(start.fileName());
    return runModal(dialog);
}
