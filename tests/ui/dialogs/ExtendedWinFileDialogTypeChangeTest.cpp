// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "host/InvalidPropertyValueException.h"

#include <boost/make_shared.hpp>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

const char* const filters = "Data (*.dat);;All (*);;Images (*.png *.jpg);;Archive (*.tar.gz);;*.raw;;A (x) (*.a);; ;;"
                            "All files (*.*);;All (*.* *.dat);;Headers (*.h*)";

struct TypeCase
{
    const char* name;
    UINT type;
    const char* typed;
    const char* result;
};

void PrintTo(const TypeCase& c, std::ostream* out)
{
    *out << c.name;
}

class ExtendedWinFileDialogTypeChange : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }
};

class ExtendedWinFileDialogTypeChangeTypedName : public ExtendedWinFileDialogTypeChange,
                                                 public ::testing::WithParamInterface<TypeCase>
{
};

TEST_P(ExtendedWinFileDialogTypeChangeTypedName, getsTheExtensionOfThePickedType)
{
    const TypeCase& c = GetParam();
    const auto dialog = saveDialog(filters);
    // The list begins elsewhere, so that picking any type is a change.
    dialog->currentFilterIndex()->setValue(c.type == 1 ? 2 : 1);
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QString::fromUtf8(c.typed));
        user.userPicksType(c.type);
        EXPECT_EQ(user.fileName(), QString::fromUtf8(c.result));
    });
    EXPECT_EQ(dialog->currentFilterIndex()->value(), static_cast<int>(c.type));
}

INSTANTIATE_TEST_SUITE_P(Names, ExtendedWinFileDialogTypeChangeTypedName,
    ::testing::Values(TypeCase{"otherExtension", 1, "out.txt", "out.dat"}, TypeCase{"noExtension", 1, "out", "out.dat"},
        TypeCase{"trailingDot", 1, "out.", "out.dat"}, TypeCase{"lastOfTwo", 1, "out.tar.gz", "out.tar.dat"},
        TypeCase{"sameExtension", 1, "out.dat", "out.dat"}, TypeCase{"dropped", 2, "out.dat", "out"},
        TypeCase{"lastOfTwoDropped", 2, "out.tar.gz", "out.tar"}, TypeCase{"nothingToDrop", 2, "out", "out"},
        TypeCase{"bothPatterns", 3, "out.dat", "out.png *.jpg"},
        TypeCase{"doubleExtension", 4, "out.dat", "out.tar.gz"}, TypeCase{"bareType", 5, "out.dat", "out"},
        TypeCase{"nestedParentheses", 6, "out.dat", "out.a"}, TypeCase{"emptyType", 7, "out.dat", "out"},
        TypeCase{"bareWildcard", 8, "out.txt", "out.txt"}, TypeCase{"bareWildcardNoExtension", 8, "out", "out"},
        TypeCase{"bareWildcardFirst", 9, "out.txt", "out.txt"}, TypeCase{"wildcardWithin", 10, "out.txt", "out.h*"},
        TypeCase{"folderPart", 1, "sub.dir/out", "sub.dir/out.dat"},
        TypeCase{"absolute", 1, "/x/y.z/out.txt", "/x/y.z/out.dat"},
        TypeCase{"beyondAscii", 1, "\xC3\xBC\xF0\x9F\x93\x81.txt", "\xC3\xBC\xF0\x9F\x93\x81.dat"}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(ExtendedWinFileDialogTypeChange, asksAndTellsTheShellInThisOrder)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.dat"));
        EXPECT_THAT(callsOf([&] { user.userPicksType(2); }),
            ElementsAre("IFileDialog::GetFileTypeIndex()", "IFileDialog::GetFileName()", "CoTaskMemFree(text)",
                "IFileDialog::SetFileName(\"out\")"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, bringsTheExtensionBackWithTheType)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.dat"));
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("out"));
        user.userPicksType(1);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.dat"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, readsOnlyTheIndexInAnOpenDialog)
{
    const auto dialog = openDialog("Data (*.dat);;All (*)");
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.dat"));
        EXPECT_THAT(callsOf([&] { user.userPicksType(2); }), ElementsAre("IFileDialog::GetFileTypeIndex()"));
        EXPECT_EQ(user.fileName(), QStringLiteral("out.dat"));
    });
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("All (*)"));
}

TEST_F(ExtendedWinFileDialogTypeChange, leavesAnEmptyNameEmpty)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    run(*dialog, [&](RecordingDialog& user) {
        EXPECT_THAT(callsOf([&] { user.userPicksType(2); }),
            ElementsAre("IFileDialog::GetFileTypeIndex()", "IFileDialog::GetFileName()", "CoTaskMemFree(text)"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, leavesANameThatItCannotReadAlone)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    m_shell.failCalls("IFileDialog::GetFileName");
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.dat"));
        m_shell.clearCalls();
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.dat"));
    });
    EXPECT_EQ(m_shell.count("IFileDialog::SetFileName"), 0);
}

TEST_F(ExtendedWinFileDialogTypeChange, keepsTheIndexThatItCannotRead)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    m_shell.failCalls("IFileDialog::GetFileTypeIndex");
    run(*dialog, [](RecordingDialog& user) { user.userPicksType(2); });
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 1);
}

TEST_F(ExtendedWinFileDialogTypeChange, leavesTheNameAloneOutsideTheList)
{
    for (const UINT type : {0u, 3u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        const auto dialog = saveDialog("Data (*.dat);;All (*)");
        run(*dialog, [&](RecordingDialog& user) {
            user.userTypesName(QStringLiteral("out.dat"));
            m_shell.clearCalls();
            user.userPicksType(type);
            EXPECT_EQ(user.fileName(), QStringLiteral("out.dat"));
        });
        EXPECT_EQ(m_shell.count("IFileDialog::SetFileName"), 0);
        EXPECT_EQ(dialog->currentFilterIndex()->value(), static_cast<int>(type));
        EXPECT_EQ(dialog->selectedNameFilter(), QString());
    }
}

TEST_F(ExtendedWinFileDialogTypeChange, goesByTheFiltersThatAreSetNow)
{
    const auto dialog = saveDialog("Data (*.dat);;All (*)");
    run(*dialog, [&](RecordingDialog& user) {
        dialog->setNameFilters({QStringLiteral("A (*.a)"), QStringLiteral("B (*.b)")});
        user.userTypesName(QStringLiteral("out.dat"));
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.b"));
        dialog->setNameFilters({});
        user.userPicksType(1);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.b"));
    });
}

struct OpeningCase
{
    const char* name;
    const char* filters;
    int type;
    const char* given;
    const char* opened;
};

void PrintTo(const OpeningCase& c, std::ostream* out)
{
    *out << c.name;
}

class ExtendedWinFileDialogTypeChangeOpening : public ExtendedWinFileDialogTest,
                                               public ::testing::WithParamInterface<OpeningCase>
{
};

TEST_P(ExtendedWinFileDialogTypeChangeOpening, announcesATypeThatNobodyHasPicked)
{
    const OpeningCase& c = GetParam();
    const auto dialog = saveDialog(c.filters);
    dialog->selectFile(QString::fromUtf8(c.given));
    dialog->currentFilterIndex()->setValue(c.type);
    run(*dialog, [&](RecordingDialog& user) { EXPECT_EQ(user.fileName(), QString::fromUtf8(c.opened)); });
    EXPECT_EQ(m_shell.count("IFileDialog::SetFileName"), std::string(c.given) == c.opened ? 1 : 2);
}

INSTANTIATE_TEST_SUITE_P(Names, ExtendedWinFileDialogTypeChangeOpening,
    ::testing::Values(OpeningCase{"wildcard", "All files (*.*);;Data (*.dat)", 1, "report2.txt", "report2.txt"},
        OpeningCase{"wildcardWithoutExtension", "All files (*.*);;Data (*.dat)", 1, "report2", "report2"},
        OpeningCase{"otherExtension", "Data (*.dat);;All (*)", 1, "out.txt", "out.txt"},
        OpeningCase{"everything", "All (*);;Data (*.dat)", 1, "out.txt", "out.txt"},
        OpeningCase{"secondType", "All (*);;Data (*.dat)", 2, "out.txt", "out.txt"},
        OpeningCase{"version", "Data (*.dat)", 1, "release 1.2", "release 1.2"},
        OpeningCase{"trailingDot", "Data (*.dat)", 1, "out.", "out."},
        OpeningCase{"hidden", "Data (*.dat)", 1, ".profile", ".profile"},
        OpeningCase{"noExtension", "Data (*.dat);;All (*)", 1, "out", "out.dat"},
        OpeningCase{"noExtensionSecondType", "All (*);;Data (*.dat)", 2, "out", "out.dat"},
        OpeningCase{"doubleExtension", "Archive (*.tar.gz)", 1, "out", "out.tar.gz"},
        OpeningCase{"severalPatterns", "Images (*.png *.jpg)", 1, "image", "image"},
        OpeningCase{"noType", "Data (*.dat);;All (*)", 0, "out.txt", "out.txt"},
        OpeningCase{"outsideTheList", "Data (*.dat);;All (*)", 9, "out.txt", "out.txt"}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(ExtendedWinFileDialogTypeChange, leavesTheNameAsTheUserLeftItForTheNextRun)
{
    m_shell.script.announcesOpening = true;
    for (const char* const typed : {"old.txt", "old", "old."}) {
        const auto dialog = saveDialog("Data (*.dat);;All (*)");
        dialog->selectFile(QStringLiteral("out.dat"));
        for (int i = 0; i < 3; ++i) {
            run(*dialog, [&](RecordingDialog& user) {
                EXPECT_EQ(user.fileName(), QString::fromUtf8(i == 0 ? "out.dat" : typed));
                user.userTypesName(QString::fromUtf8(typed));
                user.userAccepts();
            });
        }
    }
}

TEST_F(ExtendedWinFileDialogTypeChange, rewritesInTheNextRunWhatTheUserPicksThere)
{
    m_shell.script.announcesOpening = true;
    const auto dialog = saveDialog("Data (*.dat);;Text (*.txt)");
    run(*dialog, [](RecordingDialog& user) {
        user.userPicksType(2);
        user.userTypesName(QStringLiteral("old.raw"));
        user.userAccepts();
    });
    run(*dialog, [](RecordingDialog& user) {
        EXPECT_EQ(user.fileName(), QStringLiteral("old.raw"));
        user.userPicksType(1);
        EXPECT_EQ(user.fileName(), QStringLiteral("old.dat"));
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("old.txt"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, isNoneWhenTheTypeIsAnnouncedOnceMore)
{
    const auto dialog = saveDialog("Data (*.dat);;Text (*.txt)");
    run(*dialog, [](RecordingDialog& user) {
        user.userPicksType(2);
        user.userTypesName(QStringLiteral("out.raw"));
        user.fire([&](IFileDialogEvents& sink) { return sink.OnTypeChange(&user); });
        EXPECT_EQ(user.fileName(), QStringLiteral("out.raw"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, goesByTheShellsTypeWhateverTheHostHasSetMeanwhile)
{
    m_shell.script.announcesOpening = true;
    const auto dialog = saveDialog("Data (*.dat);;Text (*.txt)");
    run(*dialog, [&](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("out.dat"));
        dialog->currentFilterIndex()->setValue(2);
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("out.txt"));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, leavesAListOfNamesAlone)
{
    const auto dialog = saveDialog("Data (*.dat);;Text (*.txt)");
    dialog->setFileMode(QFileDialog::ExistingFiles);
    run(*dialog, [](RecordingDialog& user) {
        user.userTypesName(QStringLiteral("\"a.dat\" \"b.dat\""));
        user.userPicksType(2);
        EXPECT_EQ(user.fileName(), QStringLiteral("\"a.dat\" \"b.dat\""));
    });
}

TEST_F(ExtendedWinFileDialogTypeChange, aRejectedFilterIndexLeavesTheOperationAsAnException)
{
    class RejectTwo : public ValidatorInterface<int>
    {
    public:
        ValidationResult validate(const int& v) const override
        {
            return v == 2 ? ValidationResult("two") : ValidationResult();
        }
    };
    const auto dialog = openDialog("A (*.a);;B (*.b)");
    dialog->currentFilterIndex()->setValidator(boost::make_shared<RejectTwo>());
    EXPECT_THROW(dialog->selectNameFilter(QStringLiteral("B (*.b)")), InvalidPropertyValueException);
    EXPECT_THROW(run(*dialog, [](RecordingDialog& user) { user.userPicksType(2); }), InvalidPropertyValueException);
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 1);
}

} // namespace

} // namespace morvane::test
