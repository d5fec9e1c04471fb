// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "contract/ShellContract.h"

#include <QFile>

namespace morvane::test {

void ShellContract::SetUp()
{
    driver = GetParam().make();
    const std::string test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    if (const char* const difference = driver->differenceIn(test.substr(0, test.find('/')))) {
        GTEST_SKIP() << difference;
    }
    sink = std::make_unique<LoggingSink>(shell());
    ASSERT_TRUE(folder.isValid());
    for (const char* const name : {"a.txt", "b.txt", "c.dat"}) {
        makeFile(QLatin1String(name));
    }
    QDir(folder.path()).mkdir(QStringLiteral("inner"));
    // Qt itself may have joined before.
    ASSERT_TRUE(SUCCEEDED(shell().coInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)));
}

void ShellContract::TearDown()
{
    if (IsSkipped()) {
        return;
    }
    if (dialog && cookie != 0) {
        dialog->Unadvise(cookie);
    }
    EXPECT_EQ(sink->references, 1u) << "the dialog holds a sink that it was told to let go";
    customize.reset();
    dialog.reset();
    shell().coUninitialize();
    EXPECT_EQ(driver->leaks(), 0);
}

ui::ComPtr<IFileDialog> ShellContract::makeDialog(const CLSID& clsid)
{
    ui::ComPtr<IFileDialog> made;
    EXPECT_EQ(shell().coCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, made.putVoid()), S_OK);
    return made;
}

void ShellContract::prepare(const CLSID& clsid)
{
    dialog = makeDialog(clsid);
    customize = dialog.query<IFileDialogCustomize>();
    ASSERT_TRUE(customize);
    ASSERT_EQ(dialog->SetFolder(itemFor(folder.path()).get()), S_OK);
    ASSERT_EQ(dialog->Advise(sink.get(), &cookie), S_OK);
    setTypes();
}

void ShellContract::setTypes()
{
    const ui::ShellString texts[] = {ui::toShellString(QStringLiteral("Text")),
        ui::toShellString(QStringLiteral("*.txt")), ui::toShellString(QStringLiteral("Data")),
        ui::toShellString(QStringLiteral("*.dat;*.csv"))};
    const COMDLG_FILTERSPEC types[] = {{texts[0].c_str(), texts[1].c_str()}, {texts[2].c_str(), texts[3].c_str()}};
    ASSERT_EQ(dialog->SetFileTypes(2, types), S_OK);
}

ui::ComPtr<IShellItem> ShellContract::itemFor(const QString& path)
{
    ui::ComPtr<IShellItem> item;
    const ui::ShellString name = ui::toShellString(QDir::toNativeSeparators(path));
    EXPECT_EQ(shell().createItemFromParsingName(name.c_str(), nullptr, IID_IShellItem, item.putVoid()), S_OK);
    return item;
}

QString ShellContract::pathOf(IShellItem* item)
{
    LPWSTR text = nullptr;
    EXPECT_EQ(item->GetDisplayName(SIGDN_FILESYSPATH, &text), S_OK);
    const QString path = QDir::fromNativeSeparators(ui::toQString(text));
    shell().coTaskMemFree(text);
    return path;
}

QString ShellContract::result()
{
    //! [item]
    ui::ComPtr<IShellItem> item;
    const HRESULT hr = dialog->GetResult(item.put());
    return SUCCEEDED(hr) ? pathOf(item.get()) : QStringLiteral("failed: %1").arg(static_cast<unsigned>(hr), 0, 16);
    //! [item]
}

QStringList ShellContract::results()
{
    QStringList paths;
    ui::ComPtr<IShellItemArray> items;
    EXPECT_EQ(dialog.query<IFileOpenDialog>()->GetResults(items.put()), S_OK);
    DWORD count = 0;
    EXPECT_EQ(items->GetCount(&count), S_OK);
    for (DWORD i = 0; i < count; ++i) {
        ui::ComPtr<IShellItem> item;
        EXPECT_EQ(items->GetItemAt(i, item.put()), S_OK);
        paths.append(pathOf(item.get()));
    }
    return paths;
}

QString ShellContract::fileName()
{
    LPWSTR text = nullptr;
    EXPECT_EQ(dialog->GetFileName(&text), S_OK);
    const QString name = ui::toQString(text);
    shell().coTaskMemFree(text);
    return name;
}

void ShellContract::setFileName(const QString& name)
{
    EXPECT_EQ(dialog->SetFileName(ui::toShellString(name).c_str()), S_OK);
}

FILEOPENDIALOGOPTIONS ShellContract::options()
{
    FILEOPENDIALOGOPTIONS read = 0;
    EXPECT_EQ(dialog->GetOptions(&read), S_OK);
    return read;
}

void ShellContract::changeOptions(FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS clear)
{
    EXPECT_EQ(dialog->SetOptions((options() | set) & ~clear), S_OK);
}

UINT ShellContract::typeIndex()
{
    UINT index = 99;
    EXPECT_EQ(dialog->GetFileTypeIndex(&index), S_OK);
    return index;
}

void ShellContract::makeFile(const QString& name)
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
}

void PrintTo(const NamedShellDriver& driver, std::ostream* out)
{
    *out << driver.name;
}

} // namespace morvane::test
