// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/FileDialogs.h"

#include "ui/InFront.h"
#include "ui/TextEdge.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace orvel::ui {

namespace {

// A dialog for saving that keeps the user until the folder of the name exists, too.
class SaveDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    bool mustPathExist = false;

    void accept() override {
        const QStringList files = selectedFiles();
        const QFileInfo folder(QFileInfo(files.value(0)).path());
        if (mustPathExist && !folder.isDir()) {
            QMessageBox box(QMessageBox::NoIcon, windowTitle(),
                            QString("There is no folder %1.").arg(folder.filePath()), QMessageBox::Ok, this);
            box.setTextFormat(Qt::PlainText);
            box.exec();
            return;
        }
        QFileDialog::accept();
    }
};

// "Text Files (*.txt)|*.txt" shows its first part; the toolkit takes the pattern from the brackets.
QString FilterOf(const FileDialog& dialog) {
    const QStringList parts = ToQt(dialog.filter).split('|');
    const QString pattern = "(" + parts.value(1) + ")";
    return parts.value(0).endsWith(pattern) ? parts.value(0) : parts.value(0) + " " + pattern;
}

void SetUp(QFileDialog& window, const FileDialog& dialog) {
    constexpr QSize kSize{760, 480};
    window.resize(kSize);
    window.setOption(QFileDialog::DontUseNativeDialog);
    window.setNameFilter(FilterOf(dialog));
    window.setDefaultSuffix(ToQt(dialog.defaultExtension));
    if (!dialog.initialFolder.empty()) {
        window.setDirectory(PathToQt(dialog.initialFolder));
    }
}

std::filesystem::path Chosen(QFileDialog& window) {
    return window.exec() == QDialog::Accepted ? PathFromQt(window.selectedFiles().value(0))
                                              : std::filesystem::path{};
}

} // namespace

std::filesystem::path QtFileDialogs::Open(const FileDialog& dialog) {
    QFileDialog window(WindowInFront(), ToQt(dialog.title));
    SetUp(window, dialog);
    window.setFileMode(QFileDialog::ExistingFile);
    return Chosen(window);
}

std::filesystem::path QtFileDialogs::Save(const FileDialog& dialog) {
    SaveDialog window(WindowInFront(), ToQt(dialog.title));
    SetUp(window, dialog);
    window.setAcceptMode(QFileDialog::AcceptSave);
    window.setFileMode(QFileDialog::AnyFile);
    window.setOption(QFileDialog::DontConfirmOverwrite, (dialog.flags & kOverwritePrompt) == 0);
    window.mustPathExist = (dialog.flags & kPathMustExist) != 0;
    return Chosen(window);
}

} // namespace orvel::ui
