// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What the user may choose with which options, and what can be read of the choice before the user accepts.
#include "WidgetShellRunTest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellChoice : public WidgetShellRun
{
};

struct Choice
{
    const char* typed;
    FILEOPENDIALOGOPTIONS set;
    FILEOPENDIALOGOPTIONS clear;
    const char* message; ///< empty if the choice is accepted
};

TEST_F(WidgetShellChoice, mustExistAsFarAsTheOptionsSay)
{
    const Choice table[] = {
        {"missing.txt", 0, 0, "missing.txt\nFile not found"},
        {"missing.txt", 0, FOS_PATHMUSTEXIST, "missing.txt\nFile not found"},
        {"missing.txt", 0, FOS_FILEMUSTEXIST, ""},
        {"missing.txt", FOS_NOVALIDATE, 0, ""},
        {"none/missing.txt", 0, 0, "missing.txt\nFile not found"},
        {"none/missing.txt", 0, FOS_FILEMUSTEXIST, "none\nDirectory not found"},
        {"none/missing.txt", 0, FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST, ""},
        {"none/missing.txt", FOS_NOVALIDATE, 0, ""},
        {"a.txt", 0, 0, ""},
    };
    for (const Choice& row : table) {
        SCOPED_TRACE(std::string(row.typed) + " +" + std::to_string(row.set) + " -" + std::to_string(row.clear));
        make(CLSID_FileOpenDialog);
        change(row.set, row.clear);
        dialog->SetFileName(text(row.typed).c_str());
        const bool refused = *row.message != '\0';
        const HRESULT hr = show([&](QFileDialog& window) {
            const FileDialogDriver driver = FileDialogDriver::whenActive(window);
            if (refused) {
                pressAcceptAndReadMessage(driver, row.message);
                driver.pressCancel();
            } else {
                driver.pressAccept();
            }
        });
        EXPECT_EQ(hr, refused ? cancelled : S_OK);
    }
}

TEST_F(WidgetShellChoice, isNotCompletedWhereAFileIsCalledThat)
{
    QFile file(folder.filePath(QStringLiteral("plain")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    dialog->SetDefaultExtension(text("txt").c_str());
    dialog->SetFileName(text("plain").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("plain")));
    dialog->SetFileName(text("a").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(WidgetShellChoice, isNothingWithoutANameAndASelection)
{
    for (const bool picksFolders : {false, true}) {
        change(picksFolders ? FILEOPENDIALOGOPTIONS(FOS_PICKFOLDERS) : 0);
        show([&](QFileDialog& window) {
            auto* item = reinterpret_cast<IShellItem*>(this);
            EXPECT_EQ(dialog->GetCurrentSelection(&item), E_FAIL) << picksFolders;
            EXPECT_EQ(item, nullptr) << picksFolders;
            auto* items = reinterpret_cast<IShellItemArray*>(this);
            EXPECT_EQ(dialog.query<IFileOpenDialog>()->GetSelectedItems(&items), E_FAIL) << picksFolders;
            EXPECT_EQ(items, nullptr) << picksFolders;
            window.reject();
        });
    }
}

TEST_F(WidgetShellChoice, isTheSelectedFolderWhateverNameIsTyped)
{
    dialog->SetFileName(text("a.txt").c_str());
    show([&](QFileDialog& window) {
        FileDialogDriver::whenActive(window).clickFile(QStringLiteral("inner"));
        EXPECT_EQ(FileDialogDriver::whenActive(window).name(), QStringLiteral("a.txt"));
        ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetCurrentSelection(item.put()), S_OK);
        LPWSTR name = nullptr;
        ASSERT_EQ(item->GetDisplayName(SIGDN_NORMALDISPLAY, &name), S_OK);
        EXPECT_EQ(toUtf8(name), "inner");
        shell.coTaskMemFree(name);
        window.reject();
    });
}

TEST_F(WidgetShellChoice, isOfSeveralFilesOnlyWhereThatIsAskedForAndNotForSaving)
{
    for (const CLSID& clsid : {CLSID_FileOpenDialog, CLSID_FileSaveDialog}) {
        for (const bool several : {false, true}) {
            make(clsid);
            change(several ? FILEOPENDIALOGOPTIONS(FOS_ALLOWMULTISELECT) : 0);
            const auto mode = several && clsid == CLSID_FileOpenDialog ? QAbstractItemView::ExtendedSelection
                                                                       : QAbstractItemView::SingleSelection;
            show([mode](QFileDialog& window) {
                EXPECT_EQ(window.findChild<QListView*>(QStringLiteral("listView"))->selectionMode(), mode);
                EXPECT_EQ(window.findChild<QTreeView*>(QStringLiteral("treeView"))->selectionMode(), mode);
                window.reject();
            });
        }
    }
}

TEST_F(WidgetShellChoice, isMadeUnderQtsOwnTextsWhereTheHostsAreEmpty)
{
    const auto textsShown = [this] {
        QStringList texts;
        show([&texts](QFileDialog& window) {
            texts = QStringList{window.windowTitle(), window.labelText(QFileDialog::FileName),
                FileDialogDriver::whenActive(window).acceptButton().text()};
            window.reject();
        });
        return texts;
    };
    const QStringList own = textsShown();
    EXPECT_FALSE(own.contains(QString()));
    dialog->SetTitle(text("").c_str());
    dialog->SetFileNameLabel(nullptr);
    dialog->SetOkButtonLabel(text("").c_str());
    EXPECT_EQ(textsShown(), own);
}

TEST_F(WidgetShellChoice, isAmongTypesThatTheKeyboardReachesWhereThereAreAny)
{
    for (const bool hasTypes : {false, true}) {
        if (hasTypes) {
            setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}});
        }
        for (const bool picksFolders : {false, true}) {
            change(picksFolders ? FILEOPENDIALOGOPTIONS(FOS_PICKFOLDERS) : 0,
                picksFolders ? FILEOPENDIALOGOPTIONS(0) : FILEOPENDIALOGOPTIONS(FOS_PICKFOLDERS));
            show([&](QFileDialog& window) {
                const QComboBox& combo = FileDialogDriver::whenActive(window).typeCombo();
                const bool expected = hasTypes && !picksFolders;
                EXPECT_EQ(combo.isVisible(), expected) << hasTypes << picksFolders;
                const QLabel* const label = window.findChild<QLabel*>(QStringLiteral("fileTypeLabel"));
                EXPECT_EQ(label->isVisible(), expected) << hasTypes << picksFolders;
                EXPECT_EQ(label->buddy(), &combo);
                EXPECT_TRUE(combo.focusPolicy() & Qt::TabFocus);
                window.reject();
            });
        }
    }
}

} // namespace

} // namespace morvane::test
