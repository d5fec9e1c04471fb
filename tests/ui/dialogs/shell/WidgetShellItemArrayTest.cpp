// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The names and attributes of items and of what several files have in common.
#include "WidgetShellRunTest.h"

#include <QProcess>
#include <QUrl>

#include <utility>
#include <vector>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellItemArrayAttributes : public WidgetShellRun
{
protected:
    void makeFile(const char* name)
    {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    ComPtr<IShellItem> itemFor(const char* name)
    {
        ComPtr<IShellItem> item;
        const ShellString path = toShellString(folder.filePath(QLatin1String(name)));
        EXPECT_EQ(shell.createItemFromParsingName(path.c_str(), nullptr, IID_IShellItem, item.putVoid()), S_OK);
        return item;
    }
    ComPtr<IShellItemArray> chosen(const QString& typed)
    {
        change(FOS_ALLOWMULTISELECT);
        dialog->SetFileName(toShellString(typed).c_str());
        EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
        ComPtr<IShellItemArray> items;
        EXPECT_EQ(dialog.query<IFileOpenDialog>()->GetResults(items.put()), S_OK);
        return items;
    }
};

TEST_F(WidgetShellItemArrayAttributes, ofAnItemTellWhatItIs)
{
    makeHiddenFile();
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("a.txt")), folder.filePath(QStringLiteral("link"))));
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("inner")), folder.filePath(QStringLiteral("door"))));
    constexpr SFGAOF folderBits = SFGAO_FOLDER | SFGAO_FILESYSANCESTOR;
    std::vector<std::pair<const char*, SFGAOF>> table = {
        {"a.txt", SFGAO_STREAM}, {"inner", folderBits}, {".hidden", SFGAO_STREAM | SFGAO_HIDDEN}};
#ifndef Q_OS_WIN // on Windows, Qt makes shortcuts, which are links only for Explorer
    table.emplace_back("link", SFGAO_STREAM | SFGAO_LINK);
    table.emplace_back("door", folderBits | SFGAO_LINK);
#endif
    for (const auto& [name, expected] : table) {
        SFGAOF read = 0;
        EXPECT_EQ(itemFor(name)->GetAttributes(~SFGAOF(0), &read), S_FALSE) << name;
        EXPECT_EQ(read, expected | SFGAO_FILESYSTEM) << name;
        EXPECT_EQ(itemFor(name)->GetAttributes(expected, &read), S_OK) << name;
    }
}

TEST_F(WidgetShellItemArrayAttributes, ofAFileThatCannotBeWrittenSaySo)
{
    makeFile("fixed");
    const auto change = [this](const char* flag) {
        return QProcess::execute(QStringLiteral("chattr"), {flag, folder.filePath(QStringLiteral("fixed"))});
    };
    if (change("+i") != 0) {
        GTEST_SKIP() << "this file system has no immutable files, or nobody may make them so";
    }
    SFGAOF read = 0;
    EXPECT_EQ(itemFor("fixed")->GetAttributes(SFGAO_READONLY, &read), S_OK);
    EXPECT_EQ(change("-i"), 0);
    EXPECT_EQ(read, SFGAO_READONLY);
    EXPECT_EQ(itemFor("fixed")->GetAttributes(SFGAO_READONLY, &read), S_FALSE);
}

TEST_F(WidgetShellItemArrayAttributes, ofAnItemThatHasGoneAreThoseOfAFile)
{
    makeFile("short-lived");
    const auto item = itemFor("short-lived");
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("short-lived"))));
    SFGAOF read = 0;
    EXPECT_EQ(item->GetAttributes(SFGAO_STREAM | SFGAO_READONLY | SFGAO_FOLDER, &read), S_FALSE);
    EXPECT_EQ(read, SFGAO_STREAM);
}

TEST_F(WidgetShellItemArrayAttributes, ofSeveralFilesAreThoseOfAllOrOfAny)
{
    makeHiddenFile();
    const auto items = chosen(QStringLiteral("\"a.txt\" \".hidden\""));
    constexpr SFGAOF mask = SFGAO_STREAM | SFGAO_HIDDEN;
    SFGAOF read = 0;
    EXPECT_EQ(items->GetAttributes(SIATTRIBFLAGS_AND, mask, &read), S_FALSE);
    EXPECT_EQ(read, SFGAO_STREAM);
    EXPECT_EQ(items->GetAttributes(SIATTRIBFLAGS_OR, mask, &read), S_OK);
    EXPECT_EQ(read, mask);
    EXPECT_EQ(items->GetAttributes(SIATTRIBFLAGS_OR, mask | SFGAO_FOLDER, &read), S_FALSE);
    EXPECT_EQ(read, mask);
}

TEST_F(WidgetShellItemArrayAttributes, areReadIntoAPlaceOnly)
{
    EXPECT_EQ(chosen(QStringLiteral("a.txt"))->GetAttributes(SIATTRIBFLAGS_OR, SFGAO_STREAM, nullptr), E_POINTER);
}

TEST_F(WidgetShellItemArrayAttributes, comeWithEachFormOfTheName)
{
    const QString path = QDir::toNativeSeparators(folder.filePath(QStringLiteral("a.txt")));
    const std::pair<SIGDN, QString> table[] = {{SIGDN_NORMALDISPLAY, QStringLiteral("a.txt")},
        {SIGDN_PARENTRELATIVEPARSING, QStringLiteral("a.txt")}, {SIGDN_PARENTRELATIVEEDITING, QStringLiteral("a.txt")},
        {SIGDN_PARENTRELATIVEFORADDRESSBAR, QStringLiteral("a.txt")}, {SIGDN_PARENTRELATIVE, QStringLiteral("a.txt")},
        {SIGDN_PARENTRELATIVEFORUI, QStringLiteral("a.txt")}, {SIGDN_DESKTOPABSOLUTEPARSING, path},
        {SIGDN_DESKTOPABSOLUTEEDITING, path}, {SIGDN_FILESYSPATH, path},
        {SIGDN_URL, QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}};
    const auto item = itemFor("a.txt");
    for (const auto& [form, expected] : table) {
        LPWSTR name = nullptr;
        EXPECT_EQ(item->GetDisplayName(form, &name), S_OK) << form;
        EXPECT_EQ(toQString(name), expected) << form;
        shell.coTaskMemFree(name);
    }
    auto* none = reinterpret_cast<WCHAR*>(this);
    EXPECT_EQ(item->GetDisplayName(static_cast<SIGDN>(12345), &none), E_INVALIDARG);
    EXPECT_EQ(none, nullptr);
}

TEST_F(WidgetShellItemArrayAttributes, areNeededByNoRelativeName)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    ComPtr<IShellItem> item;
    const HRESULT hr = shell.createItemFromParsingName(text("inner").c_str(), nullptr, IID_IShellItem, item.putVoid());
    QDir::setCurrent(before);
    ASSERT_EQ(hr, S_OK);
    int order = 5;
    EXPECT_EQ(item->Compare(itemFor("inner").get(), SICHINT_CANONICAL, &order), S_OK);
}

} // namespace

} // namespace morvane::test
