// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/ShellText_p.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

namespace {

using namespace morvane::ui;

class WidgetShellItem : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("sub"))); }

    HRESULT make(const QString& name, ComPtr<IShellItem>& item)
    {
        return shell.createItemFromParsingName(toShellString(name).c_str(), nullptr, IID_IShellItem, item.putVoid());
    }
    QString displayName(IShellItem& item, SIGDN form)
    {
        LPWSTR text = nullptr;
        const HRESULT hr = item.GetDisplayName(form, &text);
        const QString name = SUCCEEDED(hr) ? toQString(text) : QStringLiteral("failed");
        shell.coTaskMemFree(text);
        return name;
    }
    void makeFile(const QString& name)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    WidgetShell shell;
    QTemporaryDir folder;
};

TEST_F(WidgetShellItem, hasEveryFormOfItsName)
{
    makeFile(QStringLiteral("sub/a b.txt"));
    ComPtr<IShellItem> item;
    ASSERT_EQ(make(folder.filePath(QStringLiteral("sub/a b.txt")), item), S_OK);
    const QString path = QDir::toNativeSeparators(folder.filePath(QStringLiteral("sub/a b.txt")));
    EXPECT_EQ(displayName(*item, SIGDN_FILESYSPATH), path);
    EXPECT_EQ(displayName(*item, SIGDN_DESKTOPABSOLUTEPARSING), path);
    EXPECT_EQ(displayName(*item, SIGDN_NORMALDISPLAY), QStringLiteral("a b.txt"));
    EXPECT_EQ(displayName(*item, SIGDN_PARENTRELATIVEPARSING), QStringLiteral("a b.txt"));
    EXPECT_EQ(displayName(*item, SIGDN_URL), QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()));
    EXPECT_EQ(displayName(*item, static_cast<SIGDN>(12345)), QStringLiteral("failed"));
}

TEST_F(WidgetShellItem, isAFileAndNothingWithinTheProgram)
{
    ComPtr<IShellItem> item;
    ASSERT_TRUE(QFile::exists(QStringLiteral(":/qt-project.org")));
    EXPECT_TRUE(FAILED(make(QStringLiteral(":/qt-project.org"), item)));
}

#ifndef Q_OS_WIN // on Windows, a backslash is always a separator
TEST_F(WidgetShellItem, takesABackslashForASeparatorUnlessThereIsSuchAFile)
{
    const QString name = folder.filePath(QStringLiteral("sub\\file"));
    makeFile(QStringLiteral("sub/file"));
    ComPtr<IShellItem> item;
    ASSERT_EQ(make(name, item), S_OK);
    EXPECT_EQ(displayName(*item, SIGDN_FILESYSPATH), folder.filePath(QStringLiteral("sub/file")));
    makeFile(QStringLiteral("sub\\file"));
    ASSERT_EQ(make(name, item), S_OK);
    EXPECT_EQ(displayName(*item, SIGDN_FILESYSPATH), name);
}
#endif

TEST_F(WidgetShellItem, knowsFoldersFromFiles)
{
    makeFile(QStringLiteral("file"));
    ComPtr<IShellItem> item;
    SFGAOF attributes = 0;
    ASSERT_EQ(make(folder.path(), item), S_OK);
    EXPECT_EQ(item->GetAttributes(SFGAO_FOLDER, &attributes), S_OK);
    ASSERT_EQ(make(folder.filePath(QStringLiteral("file")), item), S_OK);
    EXPECT_EQ(item->GetAttributes(SFGAO_FOLDER | SFGAO_FILESYSTEM, &attributes), S_FALSE);
    EXPECT_EQ(attributes, static_cast<SFGAOF>(SFGAO_FILESYSTEM));
}

TEST_F(WidgetShellItem, hasAParentUnlessItIsTheRoot)
{
    ComPtr<IShellItem> item;
    ComPtr<IShellItem> parent;
    ASSERT_EQ(make(folder.filePath(QStringLiteral("sub")), item), S_OK);
    ASSERT_EQ(item->GetParent(parent.put()), S_OK);
    EXPECT_EQ(displayName(*parent, SIGDN_FILESYSPATH), QDir::toNativeSeparators(folder.path()));
    ASSERT_EQ(make(QDir::rootPath(), item), S_OK);
    EXPECT_TRUE(FAILED(item->GetParent(parent.put())));
    EXPECT_EQ(displayName(*item, SIGDN_NORMALDISPLAY), QDir::toNativeSeparators(QDir::rootPath()));
}

TEST_F(WidgetShellItem, isEqualToAnotherItemOfTheSamePath)
{
    ComPtr<IShellItem> item;
    ComPtr<IShellItem> same;
    ComPtr<IShellItem> other;
    ASSERT_EQ(make(folder.filePath(QStringLiteral("sub")), item), S_OK);
    ASSERT_EQ(make(folder.filePath(QStringLiteral("./sub/")), same), S_OK);
    ASSERT_EQ(make(folder.path(), other), S_OK);
    int order = 5;
    EXPECT_EQ(item->Compare(same.get(), SICHINT_CANONICAL, &order), S_OK);
    EXPECT_EQ(order, 0);
    EXPECT_EQ(item->Compare(other.get(), SICHINT_CANONICAL, &order), S_FALSE);
    EXPECT_NE(order, 0);
}

TEST_F(WidgetShellItem, understandsBothSeparatorsAndMixturesOfThem)
{
    const QString forward = folder.filePath(QStringLiteral("sub"));
    for (QString name : {forward, QString(forward).replace(QLatin1Char('/'), QLatin1Char('\\')),
             folder.path() + QLatin1String("\\sub"), forward + QLatin1Char('\\')}) {
        ComPtr<IShellItem> item;
        ASSERT_EQ(make(name, item), S_OK) << name.toStdString();
        EXPECT_EQ(displayName(*item, SIGDN_FILESYSPATH), QDir::toNativeSeparators(forward));
    }
}

TEST_F(WidgetShellItem, refusesEmptyAndMissingNames)
{
    ComPtr<IShellItem> item;
    EXPECT_EQ(make(QString(), item), E_INVALIDARG);
    EXPECT_EQ(shell.createItemFromParsingName(nullptr, nullptr, IID_IShellItem, item.putVoid()), E_INVALIDARG);
    EXPECT_EQ(make(folder.filePath(QStringLiteral("none")), item), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(make(folder.filePath(QString(5000, QLatin1Char('x'))), item), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(item);
}

TEST_F(WidgetShellItem, refusesOtherInterfaces)
{
    void* object = this;
    EXPECT_EQ(shell.createItemFromParsingName(toShellString(folder.path()).c_str(), nullptr, IID_IFileDialog, &object),
        E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST(WidgetShellItemApartment, refusesAnotherKindOfApartment)
{
    WidgetShell shell;
    ASSERT_EQ(shell.coInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
    EXPECT_EQ(shell.coInitializeEx(nullptr, COINIT_MULTITHREADED), RPC_E_CHANGED_MODE);
    shell.coUninitialize();
    shell.coUninitialize(); // one call too many
    EXPECT_EQ(shell.coInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    shell.coUninitialize();
}

} // namespace
