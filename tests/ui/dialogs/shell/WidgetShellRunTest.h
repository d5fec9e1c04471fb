// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/LoggingSink.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

namespace morvane::test {

/** A dialog of the WidgetShell in a folder with some files and the folder inner, and a user in front of it. */
class WidgetShellRun : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* const name : {"a.txt", "b.txt", "c.dat", "d.TXT"}) {
            QFile file(folder.filePath(QLatin1String(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        QDir(folder.path()).mkdir(QStringLiteral("inner"));
        make(CLSID_FileOpenDialog);
    }
    void TearDown() override
    {
        dialog->Unadvise(cookie);
        EXPECT_EQ(sink.references, 1u);
    }

    /** Makes the file .hidden. A dot hides it, but not on Windows. */
    void makeHiddenFile()
    {
        const QString path = folder.filePath(QStringLiteral(".hidden"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
#ifdef Q_OS_WIN
        ASSERT_TRUE(SetFileAttributesW(ui::toShellString(path).c_str(), FILE_ATTRIBUTE_HIDDEN));
#endif
    }
    void make(const CLSID& clsid)
    {
        if (dialog) {
            dialog->Unadvise(cookie);
        }
        ASSERT_EQ(
            shell.coCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid()), S_OK);
        customize = dialog.query<IFileDialogCustomize>();
        ui::ComPtr<IShellItem> item;
        ASSERT_EQ(shell.createItemFromParsingName(
                      ui::toShellString(folder.path()).c_str(), nullptr, IID_IShellItem, item.putVoid()),
            S_OK);
        ASSERT_EQ(dialog->SetFolder(item.get()), S_OK);
        ASSERT_EQ(dialog->Advise(&sink, &cookie), S_OK);
    }
    void setTypes(const std::vector<std::pair<QString, QString>>& types)
    {
        std::vector<ui::ShellString> texts;
        for (const auto& [description, patterns] : types) {
            texts.push_back(ui::toShellString(description));
            texts.push_back(ui::toShellString(patterns));
        }
        std::vector<COMDLG_FILTERSPEC> specs;
        for (std::size_t i = 0; i < texts.size(); i += 2) {
            specs.push_back({texts[i].c_str(), texts[i + 1].c_str()});
        }
        ASSERT_EQ(dialog->SetFileTypes(static_cast<UINT>(specs.size()), specs.data()), S_OK);
    }
    void change(FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS clear = 0)
    {
        FILEOPENDIALOGOPTIONS options = 0;
        dialog->GetOptions(&options);
        ASSERT_EQ(dialog->SetOptions((options | set) & ~clear), S_OK);
    }
    HRESULT show(const std::function<void(QFileDialog&)>& play, HWND owner = nullptr)
    {
        ModalScript script;
        script.on<QFileDialog>(play);
        return dialog->Show(owner);
    }
    QStringList results()
    {
        QStringList paths;
        ui::ComPtr<IShellItemArray> items;
        if (FAILED(dialog.query<IFileOpenDialog>()->GetResults(items.put()))) {
            return paths;
        }
        DWORD count = 0;
        items->GetCount(&count);
        for (DWORD i = 0; i < count; ++i) {
            ui::ComPtr<IShellItem> item;
            items->GetItemAt(i, item.put());
            LPWSTR text = nullptr;
            item->GetDisplayName(SIGDN_NORMALDISPLAY, &text);
            paths.append(ui::toQString(text));
            shell.coTaskMemFree(text);
        }
        return paths;
    }
    static QStringList shownFiles(QFileDialog& window)
    {
        auto* const view = window.findChild<QListView*>(QStringLiteral("listView"));
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
        }
        names.sort();
        return names;
    }
    static void pressAcceptAndReadMessage(const FileDialogDriver& driver, const std::string& part)
    {
        ModalScript script;
        script.on<QMessageBox>([&part](QMessageBox& box) {
            EXPECT_THAT(box.text().toStdString(), ::testing::HasSubstr(part));
            box.accept();
        });
        driver.pressAccept();
        EXPECT_TRUE(script.finished()) << "no message was shown";
    }
    ui::ShellString text(const char* utf8)
    {
        return ui::toShellString(QString::fromUtf8(utf8));
    }

    static constexpr HRESULT cancelled = static_cast<HRESULT>(0x800704C7);

    ui::WidgetShell shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    QTemporaryDir folder;
    LoggingSink sink{shell};
    ui::ComPtr<IFileDialog> dialog;
    ui::ComPtr<IFileDialogCustomize> customize;
    DWORD cookie = 0;
};

} // namespace morvane::test
