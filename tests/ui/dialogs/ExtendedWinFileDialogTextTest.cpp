// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::EndsWith;
using ::testing::StartsWith;

class ExtendedWinFileDialogText : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }

    /** What SetFileTypes is told about one filter. */
    std::string typeOf(const QString& filter)
    {
        const auto dialog = openDialog();
        dialog->setNameFilters(QStringList(filter));
        m_shell.clearCalls();
        run(*dialog);
        for (const std::string& call : m_shell.calls()) {
            if (call.rfind("IFileDialog::SetFileTypes(1, ", 0) == 0) {
                return call.substr(29, call.size() - 30);
            }
        }
        return "not set";
    }
};

TEST_F(ExtendedWinFileDialogText, splitsFiltersForTheShell)
{
    const std::vector<std::pair<const char*, const char*>> table = {
        {"Images (*.png *.jpg)", "\"Images\" \"*.png;*.jpg\""},
        {"Mixed (*.a *.b)", "\"Mixed\" \"*.a;*.b\""},
        {"*.dat", "\"File of Type\" \"*.dat\""},
        {"*.dat *.csv", "\"File of Type\" \"*.dat;*.csv\""},
        {"", "\"File of Type\" \"\""},
        {"A (x) (*.a)", "\"A (x)\" \"*.a\""},
        {"No blank(*.a)", "\"File of Type\" \"No;blank(*.a)\""},
        {"Open (*.a", "\"File of Type\" \"Open;(*.a\""},
        {"Tail (*.a) and more", "\"Tail\" \"*.a\""},
        {"Nested (a (b))", "\"Nested (a\" \"b)\""},
        {" (*.a)", "\"\" \"*.a\""},
        {"Empty ()", "\"Empty\" \"\""},
        {"Line\nfeed (*.a)", "\"File of Type\" \"Line\nfeed;(*.a)\""},
        {"Two  blanks (*.a  *.b)", "\"Two  blanks\" \"*.a;;*.b\""},
        {"\xC3\x9C\xF0\x9F\x93\x81 (*.\xF0\x9F\x93\x81)", "\"\xC3\x9C\xF0\x9F\x93\x81\" \"*.\xF0\x9F\x93\x81\""},
    };
    for (const auto& [filter, expected] : table) {
        EXPECT_EQ(typeOf(QString::fromUtf8(filter)), expected) << filter;
    }
}

TEST_F(ExtendedWinFileDialogText, hasTheSameTextsForAFilterListOfMegabytes)
{
    const QString description(1 << 20, QLatin1Char('('));
    const std::string text = typeOf(description + QStringLiteral(" (*.a *.b)"));
    EXPECT_EQ(text, '"' + description.toStdString() + "\" \"*.a;*.b\"");
    const QString blanks = QString(1 << 20, QLatin1Char(' '));
    EXPECT_EQ(typeOf(blanks), "\"File of Type\" \"" + std::string(1 << 20, ';') + '"');
    const QString patterns = QStringLiteral("*.a ").repeated(1 << 18);
    EXPECT_EQ(typeOf(QStringLiteral("A (") + patterns + QLatin1Char(')')),
        "\"A\" \"" + QString(patterns).replace(QLatin1Char(' '), QLatin1Char(';')).toStdString() + '"');
}

TEST_F(ExtendedWinFileDialogText, findsTheExtensionInAMegabyte)
{
    const QString extension(1 << 20, QLatin1Char('x'));
    const auto dialog = saveDialog("All (*);;Long (*." + extension.toStdString() + ')');
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.a"));
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.") + extension);
    });
}

TEST_F(ExtendedWinFileDialogText, takesTenThousandFilters)
{
    std::string filter;
    for (int i = 0; i < 10000; ++i) {
        filter += "Type " + std::to_string(i) + " (*.t" + std::to_string(i) + ") ;; ";
    }
    const auto dialog = saveDialog(filter);
    ASSERT_EQ(dialog->nameFilters().size(), 10001) << "the last piece is a blank";
    dialog->selectNameFilter(QStringLiteral("Type 9999 (*.t9999)"));
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 10000);
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out"));
        user.userPicksType(4322);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.t4321"));
    });
    EXPECT_THAT(m_shell.calls(), Contains(StartsWith("IFileDialog::SetFileTypes(10001, \"Type 0\" \"*.t0\", ")));
    EXPECT_THAT(m_shell.calls(), Contains(EndsWith("\"Type 9999\" \"*.t9999\", \"File of Type\" \"\")")));
}

TEST_F(ExtendedWinFileDialogText, widensEveryTextBeyondAscii)
{
    const std::string odd = "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x93\x81";
    Arguments arguments;
    arguments.caption = odd;
    arguments.filter = odd + " (*." + odd + ')';
    arguments.acceptMenu = true;
    const auto dialog = make(arguments);
    dialog->selectFile(QString::fromStdString(odd));
    dialog->addCustomButton(odd, [] {});
    dialog->addCustomCheckBox(odd, nullptr);
    dialog->addAcceptButtonOption(odd, 1);
    run(*dialog);
    for (const std::string& call :
        {"IFileDialog::SetTitle(\"" + odd + "\")", "IFileDialog::SetFileTypes(1, \"" + odd + "\" \"*." + odd + "\")",
            "IFileDialog::SetFileName(\"" + odd + "\")", "IFileDialogCustomize::AddPushButton(1, \"" + odd + "\")",
            "IFileDialogCustomize::AddCheckButton(2, \"" + odd + "\", 0)",
            "IFileDialogCustomize::AddControlItem(0, 3, \"" + odd + "\")"}) {
        EXPECT_THAT(m_shell.calls(), Contains(call));
    }
}

TEST_F(ExtendedWinFileDialogText, survivesTextThatIsNotUtf8)
{
    Arguments arguments;
    arguments.caption = "a\xFF";
    arguments.directory = "/tmp/\xFF\xFE";
    arguments.filter = "\xC3 (*.a);;\xF0\x9F (*.b)";
    arguments.saving = true;
    const auto dialog = make(arguments);
    EXPECT_EQ(dialog->nameFilters().size(), 2);
    run(*dialog);
    EXPECT_THAT(m_shell.calls(), Contains("IFileDialog::SetTitle(\"a\xEF\xBF\xBD\")"));
}

} // namespace

} // namespace morvane::test
