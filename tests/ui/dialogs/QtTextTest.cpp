// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Texts of Qt where the dialogs take UTF-8, and reading a dialog that is const.

#include "property/Property.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/SaveFileQtDialog.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"
#include "ui/qt/util/Fonts.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ui::FileDialogCustomization;

// What a host may write for a text. The first ones are UTF-8 as before.
static_assert(!ui::isQtText<std::string>);
static_assert(!ui::isQtText<char[5]>);
static_assert(!ui::isQtText<const char*>);
static_assert(!ui::isQtText<int>);
static_assert(!ui::isQtText<std::nullptr_t>);
static_assert(!ui::isQtText<QStringList>);
static_assert(ui::isQtText<QString>);
static_assert(ui::isQtText<QLatin1String>);
static_assert(ui::isQtTextList<QStringList>);
static_assert(!ui::isQtTextList<std::vector<std::string>>);
static_assert(!ui::isQtTextList<QString>);
static_assert(!ui::isQtTextList<std::string>);

// A type that cannot be a text is still no argument.
static_assert(!std::is_constructible_v<SaveFileDialog, QWidget*, int, QString, QString, QString, int>);

struct Both
{
    operator std::string() const { return "as before"; }
    operator QString() const { return "of Qt"; }
};
static_assert(!ui::isQtText<Both>);

const char* const greek = "Άνοιγμα";
const QString greekText = QString::fromUtf8(greek);

class QtText : public ::testing::Test
{
protected:
    QtText() { ui::Shell::setInstance(&m_shell); }
    ~QtText() override
    {
        ui::Shell::setInstance(nullptr);
        ExtendedFileDialog::setUseNativeFileDialog(true);
    }

    /** What the Shell was told while @p make made a dialog and it ran. */
    template <typename Make>
    std::vector<std::string> callsOf(Make make)
    {
        const std::size_t before = m_shell.calls().size();
        make();
        return {m_shell.calls().begin() + static_cast<std::ptrdiff_t>(before), m_shell.calls().end()};
    }

    RecordingShell m_shell;
    QWidget m_parent;
    QTemporaryDir m_folder;
};

template <typename Text, typename Texts, typename Dialog>
void addEverything(Dialog& dialog, const Text& text, const Texts& entries)
{
    dialog.addCustomButton(text, [] {});
    dialog.addCustomCheckBox(text, boost::make_shared<Property<bool>>(true));
    dialog.addCustomComboBox(text, entries, boost::make_shared<Property<int>>(0));
    dialog.addCustomRadioButtons(text, entries, boost::make_shared<Property<int>>(1));
    dialog.addCustomLineEdit(text, boost::make_shared<Property<std::string>>("typed"));
    dialog.addCustomText(text);
    dialog.beginCustomGroup(text);
    dialog.endCustomGroup();
    dialog.setAcceptButtonText(text);
    dialog.setFileNameLabel(text);
    dialog.addPlace(text, FileDialogCustomization::Place::Top);
    dialog.setMemoryKey(text);
}

TEST_F(QtText, reachesTheDialogAsTheSameTextInUtf8)
{
    const std::string filter = "Δεδομένα (*.dat)";
    const std::string folder = m_folder.path().toStdString();
    const std::vector<std::string> entries = {greek, "B"};
    const QStringList qtEntries = {greekText, "B"};

    const auto utf8 = callsOf([&] {
        ExtendedWinFileDialog dialog(m_parent, greek, folder, filter, greek, QFileDialog::AcceptSave, true);
        addEverything(dialog, std::string(greek), entries);
        dialog.addAcceptButtonOption(greek, 3);
        dialog.exec();
    });
    const auto qt = callsOf([&] {
        ExtendedWinFileDialog dialog(m_parent, greekText, m_folder.path(), QString::fromStdString(filter), greekText,
            QFileDialog::AcceptSave, true);
        addEverything(dialog, greekText, qtEntries);
        dialog.addAcceptButtonOption(greekText, 3);
        dialog.exec();
    });
    EXPECT_EQ(utf8, qt);
    EXPECT_THAT(qt, Contains(::testing::HasSubstr(greek)).Times(::testing::Ge(10)));
}

TEST_F(QtText, isTheSameForEachKindOfDialog)
{
    const QStringList entries = {greekText, "B"};
    const auto facade = callsOf([&] {
        ExtendedFileDialog dialog(m_parent, greekText, "", "A (*.a)", "", QFileDialog::AcceptOpen);
        addEverything(dialog, greekText, entries);
        dialog.exec();
    });
    const auto object = callsOf([&] {
        ExtendedFileDialog dialog(m_parent, greek, "", "A (*.a)", "", QFileDialog::AcceptOpen);
        addEverything(*dialog.customization(), greekText, entries);
        dialog.exec();
    });
    EXPECT_EQ(facade, object);

    const QExtendedFileDialog widgets(m_parent, greekText, "", QString("A (*.a)"), "", QFileDialog::AcceptOpen);
    EXPECT_EQ(widgets.windowTitle(), greekText);
    EXPECT_EQ(widgets.nameFilters(), QStringList("A (*.a)"));
}

TEST_F(QtText, mayStandBesideOtherKindsOfText)
{
    const std::string folder = m_folder.path().toStdString();
    const ExtendedFileDialog dialog(m_parent, greekText, folder, "A (*.a)", {}, QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog.directory(), QDir(m_folder.path()));
    EXPECT_EQ(dialog.nameFilters(), QStringList("A (*.a)"));
    const ExtendedFileDialog other(m_parent, {}, m_folder.path(), {"B (*.b)"}, "", QFileDialog::AcceptOpen);
    EXPECT_EQ(other.directory(), QDir(m_folder.path()));
    EXPECT_EQ(other.nameFilters(), QStringList("B (*.b)"));
}

TEST_F(QtText, maybeInAListInBraces)
{
    const auto chosen = boost::make_shared<Property<int>>(0);
    const auto braced = callsOf([&] {
        ExtendedFileDialog dialog(m_parent, "c", "", "", "", QFileDialog::AcceptOpen);
        dialog.addCustomComboBox(greekText, {"A", greekText}, chosen);
        dialog.addCustomComboBox("", QStringList({"A", greekText}), chosen);
        dialog.addCustomRadioButtons(greekText, std::vector<std::string>({"A", greek}), chosen);
    });
    const auto utf8 = callsOf([&] {
        ExtendedFileDialog dialog(m_parent, "c", "", "", "", QFileDialog::AcceptOpen);
        dialog.addCustomComboBox(greek, {"A", greek}, chosen);
        dialog.addCustomComboBox({}, {"A", greek}, chosen);
        dialog.addCustomRadioButtons(greek, {"A", greek}, chosen);
    });
    EXPECT_EQ(braced, utf8);
}

// Every call here compiled before there were overloads. They must stay calls with UTF-8.
TEST_F(QtText, leavesCallsWithLiteralsStringsAndBracesAsTheyWere)
{
    const std::string text = greek;
    const char* const pointer = greek;
    ExtendedFileDialog facade(m_parent, {}, {}, {}, {}, QFileDialog::AcceptOpen);
    ExtendedFileDialog mixed(m_parent, text, pointer, {"A (*.a)"}, "", QFileDialog::AcceptSave);
    ExtendedWinFileDialog native(m_parent, "c", {}, text, {3, 'x'}, QFileDialog::AcceptOpen, true);
    QExtendedFileDialog widgets(m_parent, pointer, std::string(), "A (*.a)", {}, QFileDialog::AcceptOpen);
    QExtendedFileDialog shortForm(m_parent, QFileDialog::AcceptOpen);
    facade.addCustomButton("b", {});
    facade.addCustomButton({}, boost::function<void()>());
    facade.addCustomCheckBox({"c"}, nullptr);
    facade.addCustomComboBox({}, {}, nullptr);
    facade.addCustomComboBox({}, {"a"}, nullptr);
    facade.addCustomComboBox({"l"}, {"a", text, pointer}, {});
    facade.addCustomRadioButtons(pointer, {text, text}, nullptr);
    facade.addCustomLineEdit({'l', 'm'}, nullptr);
    facade.addCustomText(text + "!");
    facade.beginCustomGroup({pointer, 1});
    facade.endCustomGroup();
    facade.setAcceptButtonText({});
    facade.setFileNameLabel(pointer);
    facade.addPlace({}, FileDialogCustomization::Place::Top);
    facade.setMemoryKey("");
    native.addAcceptButtonOption({}, 1);
    EXPECT_EQ(mixed.nameFilters(), QStringList("A (*.a)"));

    facade.addCustomText(Both());
    EXPECT_THAT(m_shell.calls(), Contains(::testing::HasSubstr("as before")));
    SaveFileDialog(nullptr, "c", "", "n", {}, "");
    SaveFileDialog(nullptr, {}, {}, {}, {}, {});
    SaveFileDialog(nullptr, text, pointer, {"n"}, "A (*.a)", "", nullptr);
    SaveFileDialog(nullptr, "c", "", "n", {"A (*.a)", text}, 1, "");
    SaveFileDialog(nullptr, "c", {}, "n", {"A (*.a)"}, 0, "", {});
    SaveFileDialog(nullptr, "c", "", "n", std::vector<std::string>{"A (*.a)"}, 0, {}, nullptr);
}

template <typename Dialog>
void expectSameInEachShape(QWidget& parent, const QString& folder)
{
    const QStringList writers = {"A (*.a)", "B (*.b)"};
    const auto handler = [] { return std::make_unique<DefaultSaveFileMessageHandler>(); };
    const Dialog plain(&parent, greekText, folder, "n", "A (*.a)", "");
    const Dialog handled(&parent, "c", folder, "n", QString("A (*.a)"), {}, handler());
    const Dialog listed(&parent, greekText, folder, "n", writers, 1, "");
    const Dialog braced(&parent, greekText, {}, "n", {"A (*.a)", greekText}, 0, "", handler());
    const Dialog onlyList(&parent, "c", "", "n", writers, 1, "");
    const Dialog vector(&parent, greekText, "", "n", std::vector<std::string>{"A (*.a)"}, 0, "");
    EXPECT_EQ(plain.selectedFilter(), "A (*.a)");
    EXPECT_EQ(handled.selectedFilter(), "A (*.a)");
    EXPECT_EQ(listed.selectedFilter(), "B (*.b)");
    EXPECT_EQ(listed.selectedWriter(), 1);
    EXPECT_EQ(braced.selectedFilter(), "A (*.a)");
    EXPECT_EQ(onlyList.selectedFilter(), "B (*.b)");
    EXPECT_EQ(vector.selectedFilter(), "A (*.a)");
    EXPECT_EQ(plain.selectedFilename(), "");
}

TEST_F(QtText, isTakenByEachShapeOfTheSaveDialogs)
{
    expectSameInEachShape<SaveFileQtDialog>(m_parent, m_folder.path());
    expectSameInEachShape<SaveFileWinDialog>(m_parent, m_folder.path());
    expectSameInEachShape<SaveFileDialog>(m_parent, m_folder.path());
    ExtendedFileDialog::setUseNativeFileDialog(false);
    expectSameInEachShape<SaveFileDialog>(m_parent, m_folder.path());
}

TEST_F(QtText, keepsNullCharacters)
{
    EXPECT_EQ(ui::utf8Text(QString::fromLatin1("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(ui::utf8Text(QString()), std::string());
    EXPECT_THAT(ui::utf8Texts(ui::BracedTexts{"a", greekText}), ElementsAre("a", greek));
    EXPECT_THAT(ui::utf8Texts(QStringList()), ::testing::IsEmpty());
}

TEST_F(QtText, aConstDialogCanBeRead)
{
    for (const bool native : {true, false}) {
        ExtendedFileDialog::setUseNativeFileDialog(native);
        ExtendedFileDialog dialog(
            m_parent, "c", m_folder.path(), QString("A (*.a);;B (*.b)"), "", QFileDialog::AcceptSave);
        dialog.selectNameFilter("B (*.b)");
        const ExtendedFileDialog& constant = dialog;
        EXPECT_EQ(constant.directory(), dialog.directory()) << native;
        EXPECT_EQ(constant.nameFilters(), QStringList({"A (*.a)", "B (*.b)"})) << native;
        EXPECT_EQ(constant.selectedNameFilter(), "B (*.b)") << native;
        EXPECT_EQ(constant.selectedFiles(), dialog.selectedFiles()) << native;
    }
}

TEST_F(QtText, aConstNativeDialogTellsWhatTheShellReports)
{
    m_shell.script.results = QStringList("/home/a.dat");
    m_shell.script.showResult = S_OK;
    ExtendedWinFileDialog dialog(m_parent, "c", "", "A (*.a)", "", QFileDialog::AcceptOpen, false);
    dialog.exec();
    const ExtendedWinFileDialog& constant = dialog;
    EXPECT_EQ(constant.selectedFiles(), dialog.selectedFiles());
    EXPECT_EQ(constant.selectedFiles().size(), 1);
    EXPECT_EQ(constant.directory(), dialog.directory());
    EXPECT_EQ(constant.nameFilters(), dialog.nameFilters());
    EXPECT_EQ(constant.selectedNameFilter(), "A (*.a)");
    EXPECT_EQ(constant.parent(), &m_parent);
}

int warnings = 0;

TEST_F(QtText, isTakenAsTheFileOfAFont)
{
    warnings = 0;
    const auto old = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        warnings += text.contains(greekText) ? 1 : 0;
    });
    ui::addFontToDatabase("/nowhere/" + greekText);
    QFile(m_folder.filePath(greekText)).open(QIODevice::WriteOnly);
    ui::addFontsToDatabase(m_folder.path());
    qInstallMessageHandler(old);
    EXPECT_EQ(warnings, 2);
}

} // namespace

} // namespace morvane::test
