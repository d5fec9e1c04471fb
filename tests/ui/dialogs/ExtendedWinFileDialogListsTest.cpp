// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Lists, line edits, texts and groups; the acceptance check, the labels, the places and the memory.
#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"
#include "testing/QuestionScript.h"

#include <boost/make_shared.hpp>

#include <QTest>

#include <stdexcept>

namespace morvane::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;
using Place = ui::FileDialogCustomization::Place;

const std::vector<std::string> encodings{"UTF-8", "UTF-16", "Latin 1"};

boost::shared_ptr<Property<int>> number(int value)
{
    return boost::make_shared<Property<int>>(value);
}

boost::shared_ptr<Property<std::string>> words(const std::string& value)
{
    return boost::make_shared<Property<std::string>>(value);
}

/** Rejects one value, with a reason. */
template <typename T>
class RejectOne : public ValidatorInterface<T>
{
public:
    explicit RejectOne(T rejected) : m_rejected(std::move(rejected)) {}
    ValidationResult validate(const T& value) const override
    {
        return value == m_rejected ? ValidationResult("not this one") : ValidationResult();
    }

private:
    T m_rejected;
};

class ExtendedWinFileDialogLists : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }

    int selectedPosition(const QString& label)
    {
        const auto list = shown().controls().listOf(label);
        const auto items = shown().controls().itemsOf(list.value());
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (shown().controls().selectedIn(*list) == items[i].first) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }
    QString textIn(const QString& label)
    {
        return shown().controls().textOf(shown().controls().editBoxOf(label).value());
    }
};

TEST_F(ExtendedWinFileDialogLists, aComboBoxIsInAGroupOfItsOwnThatIsItsLabel)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { EXPECT_TRUE(dialog->addCustomComboBox("Encoding:", encodings, number(1))); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::StartVisualGroup(0, \"Encoding:\")",
            "IFileDialogCustomize::AddComboBox(1)", "IFileDialogCustomize::AddControlItem(1, 2, \"UTF-8\")",
            "IFileDialogCustomize::AddControlItem(1, 3, \"UTF-16\")",
            "IFileDialogCustomize::AddControlItem(1, 4, \"Latin 1\")", customizeQuery,
            "IFileDialogCustomize::SetSelectedControlItem(1, 3)", "IFileDialogCustomize::EndVisualGroup()"));
}

TEST_F(ExtendedWinFileDialogLists, aListWithoutALabelHasNoGroupAndOneWithoutAPropertyNoSelection)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { dialog->addCustomRadioButtons("", {"One"}, nullptr); }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::AddRadioButtonList(0)",
            "IFileDialogCustomize::AddControlItem(0, 1, \"One\")"));
}

TEST_F(ExtendedWinFileDialogLists, inAGroupOfTheHostALabelIsAText)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] {
        dialog->beginCustomGroup("Options");
        dialog->addCustomLineEdit("Comment:", words("none"));
        dialog->addCustomText("Some words");
        dialog->addCustomSeparator();
        dialog->endCustomGroup();
    }),
        ElementsAre(customizeQuery, "IFileDialogCustomize::StartVisualGroup(0, \"Options\")", customizeQuery,
            "IFileDialogCustomize::AddText(1, \"Comment:\")", "IFileDialogCustomize::AddEditBox(2, \"none\")",
            customizeQuery, "IFileDialogCustomize::AddText(3, \"Some words\")", customizeQuery,
            "IFileDialogCustomize::AddSeparator(4)", customizeQuery, "IFileDialogCustomize::EndVisualGroup()"));
}

TEST_F(ExtendedWinFileDialogLists, theUserChangesThePropertiesAndTheyChangeTheControls)
{
    const auto dialog = openDialog();
    const auto encoding = number(0);
    const auto unit = number(2);
    const auto keep = boost::make_shared<Property<bool>>(false);
    dialog->addCustomComboBox("Encoding:", encodings, encoding);
    dialog->addCustomRadioButtons("Unit:", {"mm", "cm", "m"}, unit);
    dialog->addCustomCheckBox("Keep", keep);
    run(*dialog, [&](RecordingDialog& shown) {
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Encoding:"), 2));
        EXPECT_EQ(encoding->value(), 2);
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Unit:"), 0));
        EXPECT_EQ(unit->value(), 0);
        encoding->setValue(1);
        EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), 1);
        unit->setValue(1);
        EXPECT_EQ(selectedPosition(QStringLiteral("Unit:")), 1);
        keep->setValue(true);
        EXPECT_TRUE(shown.controls().isChecked(*shown.controls().idOf(QStringLiteral("Keep"))));
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Unit:"), 2)) << "again by hand";
        EXPECT_EQ(unit->value(), 2);
    });
    unit->setValue(0);
    EXPECT_EQ(selectedPosition(QStringLiteral("Unit:")), 0) << "for the next run";
}

TEST_F(ExtendedWinFileDialogLists, aChangeByTheUserIsNotSentBack)
{
    const auto dialog = openDialog();
    dialog->addCustomComboBox("Encoding:", encodings, number(0));
    dialog->addCustomCheckBox("Keep", boost::make_shared<Property<bool>>(false));
    m_shell.clearCalls();
    run(*dialog, [&](RecordingDialog& shown) {
        shown.userChooses(QStringLiteral("Encoding:"), 2);
        shown.userToggles(QStringLiteral("Keep"));
    });
    EXPECT_EQ(m_shell.count("IFileDialogCustomize::SetSelectedControlItem"), 0);
    EXPECT_EQ(m_shell.count("IFileDialogCustomize::SetCheckButtonState"), 0);
}

TEST_F(ExtendedWinFileDialogLists, aValueThatNamesNoEntryChangesNothingOnTheScreen)
{
    const auto dialog = openDialog();
    const auto encoding = number(-1);
    dialog->addCustomComboBox("Encoding:", encodings, encoding);
    run(*dialog, [&](RecordingDialog& shown) {
        EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), -1);
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Encoding:"), 1));
        encoding->setValue(3);
        EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), 1);
        encoding->setValue(0);
        EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), 0);
    });
}

TEST_F(ExtendedWinFileDialogLists, aRejectedChoiceIsPutBack)
{
    const auto dialog = openDialog();
    const auto encoding = number(0);
    encoding->setValidator(boost::make_shared<RejectOne<int>>(2));
    dialog->addCustomComboBox("Encoding:", encodings, encoding);
    run(*dialog, [&](RecordingDialog& shown) {
        for (int again = 0; again < 2; ++again) {
            EXPECT_TRUE(shown.userChooses(QStringLiteral("Encoding:"), 2));
            EXPECT_EQ(encoding->value(), 0);
            EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), 0);
        }
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Encoding:"), 1));
        EXPECT_EQ(encoding->value(), 1);
    });
}

TEST_F(ExtendedWinFileDialogLists, aRejectedTickIsPutBackAndTheExceptionPasses)
{
    const auto dialog = openDialog();
    const auto keep = boost::make_shared<Property<bool>>(false);
    keep->setValidator(boost::make_shared<RejectOne<bool>>(true));
    dialog->addCustomCheckBox("Keep", keep);
    run(*dialog, [&](RecordingDialog& shown) {
        EXPECT_THROW(shown.userToggles(QStringLiteral("Keep")), InvalidPropertyValueException);
        EXPECT_FALSE(shown.controls().isChecked(*shown.controls().idOf(QStringLiteral("Keep"))));
    });
}

TEST_F(ExtendedWinFileDialogLists, anObserverMayReplaceWhatTheUserHasChosen)
{
    const auto dialog = openDialog();
    const auto encoding = number(0);
    dialog->addCustomComboBox("Encoding:", encodings, encoding);
    encoding->signalValueChanged.connect([&](const int& value) { encoding->setValue(value == 2 ? 1 : value); });
    run(*dialog, [&](RecordingDialog& shown) {
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Encoding:"), 2));
        EXPECT_EQ(encoding->value(), 1);
        EXPECT_EQ(selectedPosition(QStringLiteral("Encoding:")), 1);
    });
}

TEST_F(ExtendedWinFileDialogLists, aTextIsThereBeforeAnActionIsCalledAndWhenTheUserAccepts)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    const auto comment = words("before");
    QString seenByAction;
    dialog->addCustomLineEdit("Comment:", comment);
    dialog->addCustomButton("Look", [&] { seenByAction = QString::fromStdString(comment->value()); });
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& shown) {
                      EXPECT_EQ(textIn(QStringLiteral("Comment:")), QStringLiteral("before"));
                      EXPECT_TRUE(shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("first \u00FC")));
                      EXPECT_TRUE(shown.userClicks(QStringLiteral("Look")));
                      EXPECT_EQ(seenByAction, QStringLiteral("first \u00FC"));
                      comment->setValue("by the host");
                      EXPECT_EQ(textIn(QStringLiteral("Comment:")), QStringLiteral("by the host"));
                      EXPECT_TRUE(shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("second")));
                      shown.userTypesName(path(QStringLiteral("a.dat")));
                      shown.userAccepts();
                      EXPECT_EQ(comment->value(), "second");
                  }),
        QDialog::Accepted);
}

TEST_F(ExtendedWinFileDialogLists, aTextStaysWhenTheUserCancels)
{
    const auto dialog = openDialog();
    const auto comment = words("");
    dialog->addCustomLineEdit("Comment:", comment);
    run(*dialog, [&](RecordingDialog& shown) {
        shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("typed"));
        shown.userCancels();
    });
    EXPECT_EQ(comment->value(), "typed");
}

TEST_F(ExtendedWinFileDialogLists, aRejectedTextKeepsTheDialogOpenAndIsPutBack)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    const auto comment = words("good");
    comment->setValidator(boost::make_shared<RejectOne<std::string>>("bad"));
    dialog->addCustomLineEdit("Comment:", comment);
    QuestionScript user;
    user.answers(QStringLiteral("not this one"), QMessageBox::Ok);
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& shown) {
                      shown.userTypesName(path(QStringLiteral("a.dat")));
                      shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("bad"));
                      shown.userAccepts();
                      EXPECT_EQ(comment->value(), "good");
                      EXPECT_EQ(textIn(QStringLiteral("Comment:")), QStringLiteral("good"));
                      EXPECT_TRUE(user.isFinished());
                      shown.userAccepts();
                  }),
        QDialog::Accepted);
    EXPECT_TRUE(user.isFinished()) << "no second message";
}

TEST_F(ExtendedWinFileDialogLists, aRejectedTextIsPutBackWithoutAMessageWhenTheUserGoesOn)
{
    const auto dialog = openDialog();
    const auto comment = words("good");
    comment->setValidator(boost::make_shared<RejectOne<std::string>>("bad"));
    dialog->addCustomLineEdit("Comment:", comment);
    dialog->addCustomButton("Look", [] {});
    QuestionScript user;
    run(*dialog, [&](RecordingDialog& shown) {
        shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("bad"));
        shown.userEntersFolder(QString::fromStdString(folder()));
        EXPECT_EQ(textIn(QStringLiteral("Comment:")), QStringLiteral("bad")) << "still being typed";
        shown.userClicks(QStringLiteral("Look"));
        EXPECT_EQ(textIn(QStringLiteral("Comment:")), QStringLiteral("good"));
    });
    EXPECT_TRUE(user.isFinished());
}

TEST_F(ExtendedWinFileDialogLists, aTextThatTheHostHasSetIsNotCheckedUnlessTheUserTypes)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    const auto comment = words("bad");
    comment->setValidator(boost::make_shared<RejectOne<std::string>>("bad"));
    dialog->addCustomLineEdit("Comment:", comment);
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& shown) {
                      shown.userTypesName(path(QStringLiteral("a.dat")));
                      shown.userAccepts();
                  }),
        QDialog::Accepted);
}

TEST_F(ExtendedWinFileDialogLists, aTextEndsAtANullCharacterAndThePropertyKeepsIt)
{
    const auto dialog = openDialog();
    const std::string value("a\0b", 3);
    const auto comment = words(value);
    dialog->addCustomLineEdit("Comment:", comment);
    run(*dialog);
    EXPECT_EQ(comment->value(), value) << "the user has not changed it";
}

TEST_F(ExtendedWinFileDialogLists, anExceptionOfAnObserverWhileTypingLeavesExec)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    const auto comment = words("");
    comment->signalValueChanged.connect([](const std::string&) { throw std::runtime_error("no"); });
    dialog->addCustomLineEdit("Comment:", comment);
    EXPECT_THROW(run(*dialog,
                     [&](RecordingDialog& shown) {
                         shown.userTypes(QStringLiteral("Comment:"), QStringLiteral("typed"));
                         // The event loop of a real dialog: the text is read between two events.
                         QTest::qWait(300);
                         EXPECT_EQ(m_shell.count("IFileDialog::Close"), 1);
                     }),
        std::runtime_error);
    EXPECT_EQ(run(*dialog), QDialog::Rejected) << "usable again";
}

TEST_F(ExtendedWinFileDialogLists, aProxyWidgetChangesItsControlAndTheLabel)
{
    const auto dialog = openDialog();
    QWidget* const list = dialog->addCustomComboBox("Encoding:", encodings, number(0));
    QWidget* const group = dialog->beginCustomGroup("Group");
    QWidget* const edit = dialog->addCustomLineEdit("Comment:", words(""));
    dialog->endCustomGroup();
    const auto& controls = shown().controls();
    const auto state = [&](DWORD id) { return controls.state(id); };
    list->hide();
    EXPECT_EQ(state(1), CDCS_ENABLED);
    EXPECT_EQ(state(0), CDCS_ENABLED) << "the label";
    list->setEnabled(false);
    list->show();
    EXPECT_EQ(state(1), CDCS_VISIBLE);
    EXPECT_EQ(state(0), CDCS_VISIBLE);
    edit->setEnabled(false);
    EXPECT_EQ(state(7), CDCS_VISIBLE);
    EXPECT_EQ(state(6), CDCS_VISIBLE) << "the label";
    EXPECT_EQ(state(5), CDCS_ENABLEDVISIBLE) << "the group";
    group->hide();
    EXPECT_EQ(state(5), CDCS_ENABLED);
}

TEST_F(ExtendedWinFileDialogLists, entriesAreDisabledAndHiddenOneByOne)
{
    const auto dialog = openDialog();
    QWidget* const list = dialog->addCustomRadioButtons("Unit:", {"mm", "cm", "m"}, number(0));
    QWidget* const second = dialog->customEntry(list, 1);
    ASSERT_TRUE(second);
    EXPECT_EQ(dialog->customEntry(list, 1), second);
    run(*dialog, [&](RecordingDialog& shown) {
        second->setEnabled(false);
        EXPECT_FALSE(shown.userChooses(QStringLiteral("Unit:"), 1));
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Unit:"), 2));
        second->setEnabled(true);
        dialog->customEntry(list, 2)->hide();
        EXPECT_EQ(shown.controls().itemState(1, 4), CDCS_ENABLED);
        EXPECT_TRUE(shown.userChooses(QStringLiteral("Unit:"), 1));
    });
}

TEST_F(ExtendedWinFileDialogLists, thereAreEntriesOnlyInLists)
{
    const auto dialog = openDialog();
    QWidget* const list = dialog->addCustomComboBox("", encodings, nullptr);
    EXPECT_FALSE(dialog->customEntry(list, -1));
    EXPECT_FALSE(dialog->customEntry(list, 3));
    EXPECT_FALSE(dialog->customEntry(dialog->addCustomText("words"), 0));
    EXPECT_FALSE(dialog->customEntry(nullptr, 0));
    const QWidget stranger;
    EXPECT_FALSE(dialog->customEntry(&stranger, 0));
}

TEST_F(ExtendedWinFileDialogLists, groupsAreNotNestedAndEndOnce)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] { EXPECT_THROW(dialog->endCustomGroup(), std::logic_error); }), ElementsAre());
    dialog->beginCustomGroup("Group");
    EXPECT_THAT(callsOf([&] { EXPECT_THROW(dialog->beginCustomGroup("Inner"), std::logic_error); }), ElementsAre());
    dialog->endCustomGroup();
    EXPECT_THROW(dialog->endCustomGroup(), std::logic_error);
    EXPECT_TRUE(dialog->beginCustomGroup("Next"));
}

TEST_F(ExtendedWinFileDialogLists, tooManyEntriesAreRefusedBeforeAnythingIsAdded)
{
    const auto dialog = openDialog();
    const std::vector<std::string> most(32766, "x");
    const std::vector<std::string> tooMany(32767, "x");
    EXPECT_THAT(callsOf([&] { EXPECT_THROW(dialog->addCustomComboBox("", tooMany, nullptr), std::length_error); }),
        ElementsAre());
    EXPECT_THROW(dialog->addCustomComboBox("Label", most, nullptr), std::length_error);
    EXPECT_TRUE(dialog->addCustomComboBox("", most, nullptr));
    EXPECT_THROW(dialog->addCustomText("one more"), std::length_error);
    EXPECT_THROW(dialog->addCustomSeparator(), std::length_error);
}

TEST_F(ExtendedWinFileDialogLists, tooLongTextsAreRefusedBeforeAnythingIsAdded)
{
    const auto dialog = openDialog();
    const std::string longest(32767, 'x');
    const std::string umlauts = QString(32767, QChar(0xFC)).toStdString();
    EXPECT_TRUE(dialog->addCustomText(longest));
    EXPECT_TRUE(dialog->addCustomLineEdit("", words(umlauts)));
    EXPECT_THAT(callsOf([&] {
        EXPECT_THROW(dialog->addCustomText(longest + "x"), std::length_error);
        EXPECT_THROW(dialog->addCustomLineEdit("", words(longest + "x")), std::length_error);
        EXPECT_THROW(dialog->addCustomLineEdit(longest + "x", words("")), std::length_error);
        EXPECT_THROW(dialog->addCustomComboBox("", {longest + "x"}, number(0)), std::length_error);
        EXPECT_THROW(dialog->beginCustomGroup(longest + "x"), std::length_error);
    }),
        ElementsAre());
    EXPECT_THROW(dialog->endCustomGroup(), std::logic_error) << "the refused group is not open";
}

TEST_F(ExtendedWinFileDialogLists, nothingIsAddedWhileTheDialogIsOpen)
{
    const auto dialog = openDialog();
    run(*dialog, [&](RecordingDialog&) {
        EXPECT_THROW(dialog->addCustomComboBox("", encodings, nullptr), std::logic_error);
        EXPECT_THROW(dialog->addCustomRadioButtons("", encodings, nullptr), std::logic_error);
        EXPECT_THROW(dialog->addCustomLineEdit("", nullptr), std::logic_error);
        EXPECT_THROW(dialog->addCustomText("x"), std::logic_error);
        EXPECT_THROW(dialog->addCustomSeparator(), std::logic_error);
        EXPECT_THROW(dialog->beginCustomGroup("x"), std::logic_error);
        EXPECT_THROW(dialog->endCustomGroup(), std::logic_error);
    });
    EXPECT_TRUE(dialog->addCustomText("between two runs"));
}

TEST_F(ExtendedWinFileDialogLists, theCheckMayRefuseAndSaysWhy)
{
    makeFile(QStringLiteral("a.dat"));
    makeFile(QStringLiteral("b.dat"));
    const auto dialog = openDialog();
    QStringList checked;
    dialog->setAcceptanceCheck([&](const QStringList& paths) {
        checked += paths;
        return paths.first().endsWith(QLatin1String("a.dat")) ? ValidationResult("a.dat is in use")
                                                              : ValidationResult();
    });
    QuestionScript user;
    user.answers(QStringLiteral("a.dat is in use"), QMessageBox::Ok);
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& shown) {
                      shown.userTypesName(path(QStringLiteral("a.dat")));
                      shown.userAccepts();
                      shown.userTypesName(path(QStringLiteral("b.dat")));
                      shown.userAccepts();
                  }),
        QDialog::Accepted);
    EXPECT_TRUE(user.isFinished());
    EXPECT_EQ(checked, (QStringList{nativePath(QStringLiteral("a.dat")), nativePath(QStringLiteral("b.dat"))}));
    EXPECT_EQ(dialog->selectedFiles(), QStringList(nativePath(QStringLiteral("b.dat"))));
}

TEST_F(ExtendedWinFileDialogLists, aRefusalWithoutAReasonHasAGeneralText)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    dialog->setAcceptanceCheck([](const QStringList&) { return ValidationResult(std::string()); });
    QuestionScript user;
    user.answers(QStringLiteral("not accepted"), QMessageBox::Ok);
    EXPECT_EQ(run(*dialog,
                  [&](RecordingDialog& shown) {
                      shown.userTypesName(path(QStringLiteral("a.dat")));
                      shown.userAccepts();
                  }),
        QDialog::Rejected);
    EXPECT_TRUE(user.isFinished());
}

TEST_F(ExtendedWinFileDialogLists, theCheckMayCloseTheDialogOrRemoveItself)
{
    makeFile(QStringLiteral("a.dat"));
    const auto dialog = openDialog();
    const auto acceptA = [&](RecordingDialog& shown) {
        shown.userTypesName(path(QStringLiteral("a.dat")));
        shown.userAccepts();
    };
    dialog->setAcceptanceCheck([&](const QStringList&) {
        dialog->close();
        return ValidationResult("nobody reads this");
    });
    QuestionScript user;
    EXPECT_EQ(run(*dialog, acceptA), QDialog::Accepted);
    EXPECT_TRUE(dialog->selectedFiles().isEmpty());
    dialog->setAcceptanceCheck([&](const QStringList&) {
        dialog->setAcceptanceCheck({});
        return ValidationResult();
    });
    EXPECT_EQ(run(*dialog, acceptA), QDialog::Accepted);
    EXPECT_EQ(run(*dialog, acceptA), QDialog::Accepted);
    EXPECT_TRUE(user.asked().isEmpty());
}

TEST_F(ExtendedWinFileDialogLists, theCheckGetsEveryTypedNameOfASaveDialog)
{
    const auto dialog = saveDialog();
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QStringList checked;
    dialog->setAcceptanceCheck([&](const QStringList& paths) {
        checked = paths;
        return ValidationResult();
    });
    m_shell.script.results = QStringList{path(QStringLiteral("a.dat")), path(QStringLiteral("b.dat"))};
    EXPECT_EQ(run(*dialog, [](RecordingDialog& shown) { shown.userAccepts(); }), QDialog::Accepted);
    EXPECT_EQ(checked.size(), 2);
    EXPECT_EQ(checked, dialog->selectedFiles());
}

TEST_F(ExtendedWinFileDialogLists, textsOfTheDialogReachTheShellUnlessTheyAreEmpty)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] {
        dialog->setAcceptButtonText("&Import");
        dialog->setFileNameLabel("Measurement:");
        dialog->setAcceptButtonText("");
        dialog->setFileNameLabel("");
    }),
        ElementsAre("IFileDialog::SetOkButtonLabel(\"&Import\")", "IFileDialog::SetFileNameLabel(\"Measurement:\")"));
    EXPECT_EQ(shown().acceptButtonText(), QStringLiteral("&Import"));
    EXPECT_EQ(shown().fileNameLabel(), QStringLiteral("Measurement:"));
}

TEST_F(ExtendedWinFileDialogLists, placesReachTheShellIfTheyExist)
{
    const auto dialog = openDialog();
    dialog->addPlace(folder(), Place::Top);
    dialog->addPlace(folder() + "/missing", Place::Bottom);
    EXPECT_EQ(shown().places(), QStringList(QString::fromStdString(folder())));
    EXPECT_EQ(m_shell.count("IFileDialog::AddPlace"), 1);
}

TEST_F(ExtendedWinFileDialogLists, aMemoryTakesPrecedenceOverTheStartFolder)
{
    makeFile(QStringLiteral("a.dat"));
    Arguments arguments;
    arguments.directory = QDir::rootPath().toStdString();
    const auto first = make(arguments);
    first->setMemoryKey("import");
    EXPECT_EQ(run(*first,
                  [&](RecordingDialog& shown) {
                      EXPECT_EQ(shown.folder(), QDir::rootPath());
                      shown.userEntersFolder(QString::fromStdString(folder()));
                      shown.userTypesName(QStringLiteral("a.dat"));
                      shown.userAccepts();
                  }),
        QDialog::Accepted);
    EXPECT_EQ(m_shell.count("IFileDialog::SetFolder"), 0);
    const auto folderOfNext = [&](const char* key, bool clears) {
        const auto next = make(arguments);
        next->setMemoryKey(key);
        if (clears) {
            next->clearMemory();
        }
        QString opened;
        run(*next, [&](RecordingDialog& shown) { opened = shown.folder(); });
        return opened;
    };
    EXPECT_EQ(folderOfNext("import", false), QString::fromStdString(folder()));
    EXPECT_EQ(folderOfNext("export", false), QDir::rootPath()) << "another key";
    EXPECT_EQ(folderOfNext("import", true), QDir::rootPath()) << "it was cleared";
}

TEST_F(ExtendedWinFileDialogLists, withoutAKeyTheMemoryOfThePlatformIsLeftAlone)
{
    const auto dialog = openDialog();
    EXPECT_THAT(callsOf([&] {
        dialog->setMemoryKey("");
        dialog->clearMemory();
    }),
        ElementsAre());
}

TEST_F(ExtendedWinFileDialogLists, withoutADialogEverythingIsSafe)
{
    m_shell.failCalls("CoCreateInstance");
    const auto dialog = openDialog();
    const auto encoding = number(0);
    QWidget* const list = dialog->addCustomComboBox("Encoding:", encodings, encoding);
    dialog->customEntry(list, 0)->hide();
    list->hide();
    dialog->beginCustomGroup("Group");
    dialog->addCustomLineEdit("Comment:", words("x"));
    dialog->addCustomText("x");
    dialog->addCustomSeparator();
    dialog->endCustomGroup();
    encoding->setValue(1);
    dialog->setAcceptButtonText("x");
    dialog->setFileNameLabel("x");
    dialog->addPlace(folder(), Place::Top);
    dialog->setMemoryKey("x");
    dialog->clearMemory();
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
}

} // namespace

} // namespace morvane::test
