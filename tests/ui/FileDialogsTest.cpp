// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "ui/FileDialogs.h"

#include "tests/support/TestFiles.h"
#include "tests/ui/WidgetTest.h"
#include "ui/QtPlatform.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace orvel::ui {

namespace {

using testing::PutContents;
using testing::WhileModal;

class FileDialogs : public testing::WidgetTest {
protected:
    [[nodiscard]] FileDialog SaveRequest() const {
        return {"Save it", "All Files (*.cpd)|*.cpd", "cpd", folder.Path(), kSaveDialogFlags};
    }

    static void Type(QWidget& dialog, const std::string& name) {
        auto& box = Find<QLineEdit>(dialog, "fileNameEdit");
        box.setText(QString::fromStdString(name));
        QTest::keyClick(&box, Qt::Key_Return);
    }

    // What comes of a name that is typed into the dialog for saving.
    std::filesystem::path SaveAs(const std::string& name) {
        std::filesystem::path path;
        WhileModal([&] { path = QtFileDialogs().Save(SaveRequest()); },
                   [&](QWidget& dialog) { Type(dialog, name); });
        return path;
    }

    testing::TemporaryFolder folder;
};

TEST_F(FileDialogs, ADialogShowsWhatItIsAskedFor) {
    PutContents(folder / "TEST.CPD", "");
    PutContents(folder / "other.txt", "");
    WhileModal([&] { EXPECT_EQ(QtFileDialogs().Save(SaveRequest()), ""); },
               [&](QWidget& window) {
                   auto& dialog = dynamic_cast<QFileDialog&>(window);
                   EXPECT_EQ(dialog.windowTitle(), "Save it");
                   EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
                   EXPECT_EQ(dialog.nameFilters(), QStringList{"All Files (*.cpd)"});
                   EXPECT_EQ(dialog.directory().path().toStdString(), folder.Path().native());
                   const auto* files = Find<QTreeView>(dialog, "treeView").model();
                   QTRY_COMPARE(files->rowCount(Find<QTreeView>(dialog, "treeView").rootIndex()), 1);
                   QTest::keyClick(&dialog, Qt::Key_Escape);
               });
}

TEST_F(FileDialogs, TheDefaultExtensionIsAddedToANameWithoutAny) {
    EXPECT_EQ(SaveAs("new"), folder / "new.cpd");
    EXPECT_EQ(SaveAs("new.old"), folder / "new.old");
    EXPECT_EQ(SaveAs("NEW.CPD"), folder / "NEW.CPD");
}

TEST_F(FileDialogs, AnExistingFileIsTakenOnYesOnly) {
    PutContents(folder / "old.cpd", "");
    for (const bool isYes : {false, true}) {
        std::filesystem::path path;
        WhileModal([&] { path = QtFileDialogs().Save(SaveRequest()); },
                   [&](QWidget& dialog) {
                       WhileModal([&] { Type(dialog, "old"); },
                                  [&](QWidget& question) {
                                      auto& box = dynamic_cast<QMessageBox&>(question);
                                      EXPECT_TRUE(box.text().contains("old.cpd")) << "the completed name";
                                      box.button(isYes ? QMessageBox::Yes : QMessageBox::No)->click();
                                  });
                       if (!isYes) {
                           EXPECT_TRUE(dialog.isVisible());
                           QTest::keyClick(&dialog, Qt::Key_Escape);
                       }
                   });
        EXPECT_EQ(path, isYes ? folder / "old.cpd" : "");
    }
}

TEST_F(FileDialogs, WithoutTheFlagNobodyAsks) {
    PutContents(folder / "old.cpd", "");
    FileDialog request = SaveRequest();
    request.flags = 0;
    std::filesystem::path path;
    WhileModal([&] { path = QtFileDialogs().Save(request); },
               [&](QWidget& dialog) { Type(dialog, "old.cpd"); });
    EXPECT_EQ(path, folder / "old.cpd");
}

TEST_F(FileDialogs, TheFolderOfTheNameMustExist) {
    WhileModal([&] { EXPECT_EQ(QtFileDialogs().Save(SaveRequest()), ""); },
               [&](QWidget& dialog) {
                   WhileModal([&] { Type(dialog, folder / "gone/new.cpd"); },
                              [&](QWidget& complaint) {
                                  EXPECT_EQ(dynamic_cast<QMessageBox&>(complaint).text().toStdString(),
                                            "There is no folder " + (folder / "gone").native() + ".");
                                  QTest::keyClick(&complaint, Qt::Key_Return);
                              });
                   EXPECT_TRUE(dialog.isVisible());
                   QTest::keyClick(&dialog, Qt::Key_Escape);
               });
}

TEST_F(FileDialogs, OpensAFile) {
    PutContents(folder / "TEST.CPD", "");
    std::filesystem::path path;
    const FileDialog request{"Open it", "All Files (*.cpd)|*.cpd", "cpd", folder.Path(), kHideReadOnly};
    WhileModal([&] { path = QtFileDialogs().Open(request); },
               [&](QWidget& dialog) {
                   EXPECT_EQ(dialog.windowTitle(), "Open it");
                   Type(dialog, "TEST.CPD");
               });
    EXPECT_EQ(path, folder / "TEST.CPD");
}

TEST_F(FileDialogs, OpensNothingThatIsNotThere) {
    const FileDialog request{"Open it", "All Files (*.cpd)|*.cpd", "cpd", folder.Path(), kHideReadOnly};
    WhileModal([&] { EXPECT_EQ(QtFileDialogs().Open(request), ""); },
               [&](QWidget& dialog) {
                   WhileModal([&] { Type(dialog, "gone.cpd"); },
                              [](QWidget& complaint) { complaint.close(); });
                   QTest::keyClick(&dialog, Qt::Key_Escape);
               });
}

TEST_F(FileDialogs, BrowsesForAFolder) {
    std::filesystem::path path;
    WhileModal([&] { path = QtFolderBrowser().Browse("Choose"); },
               [&](QWidget& window) {
                   auto& dialog = dynamic_cast<QFileDialog&>(window);
                   EXPECT_EQ(dialog.windowTitle(), "Choose");
                   EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
                   EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
                   Type(dialog, folder.Path());
               });
    EXPECT_EQ(path, folder.Path());
    WhileModal([&] { path = QtFolderBrowser().Browse("Choose"); },
               [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(path, "");
}

} // namespace

} // namespace orvel::ui
