// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// A dialog with one of each control and addition, on a Shell that fails each of its calls in turn.
#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"
#include "testing/QuestionScript.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <map>
#include <set>

namespace morvane::test {

namespace {

using Place = ui::FileDialogCustomization::Place;
using Names = std::set<std::string>;

/** What the host and the user see in the scenario, by name. */
using Outcome = std::map<std::string, QString>;

/** What the host shares with the controls. */
struct Shared
{
    boost::shared_ptr<Property<int>> encoding = boost::make_shared<Property<int>>(0);
    boost::shared_ptr<Property<int>> unit = boost::make_shared<Property<int>>(1);
    boost::shared_ptr<Property<std::string>> comment = boost::make_shared<Property<std::string>>("before");
    boost::shared_ptr<Property<bool>> keep = boost::make_shared<Property<bool>>(false);
    int clicks = 0;
    std::string commentAtClick;
    QStringList checked;
};

class ExtendedWinFileDialogControlFault : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override
    {
        makeFile(QStringLiteral("a.dat"));
        makeFile(QStringLiteral("b.dat"));
    }

    Outcome play();
    void addTo(ExtendedWinFileDialog& dialog, Shared& shared);
    void use(RecordingDialog& user, ExtendedWinFileDialog& dialog, Shared& shared, Outcome& outcome);
    void accept(RecordingDialog& user, const char* name);
    static void choose(RecordingDialog& user, const QString& label, const QString& entry);
    static QString chosen(RecordingDialog& user, const QString& label);
    static QString typed(RecordingDialog& user, const QString& label);

    QWidget* m_list = nullptr;
    QWidget* m_radio = nullptr;
};

/** By its text, as a person chooses: an entry that is missing cannot be chosen. */
void ExtendedWinFileDialogControlFault::choose(RecordingDialog& user, const QString& label, const QString& entry)
{
    const auto list = user.controls().listOf(label);
    const auto items = list ? user.controls().itemsOf(*list) : std::vector<std::pair<DWORD, QString>>();
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.second == entry; });
    if (found != items.end()) {
        user.userChooses(label, static_cast<int>(found - items.begin()));
    }
}

QString ExtendedWinFileDialogControlFault::chosen(RecordingDialog& user, const QString& label)
{
    const auto list = user.controls().listOf(label);
    const auto selected = list ? user.controls().selectedIn(*list) : std::nullopt;
    for (const auto& [item, text] : list ? user.controls().itemsOf(*list) : std::vector<std::pair<DWORD, QString>>()) {
        if (selected == item) {
            return text;
        }
    }
    return {};
}

QString ExtendedWinFileDialogControlFault::typed(RecordingDialog& user, const QString& label)
{
    const auto edit = user.controls().editBoxOf(label);
    return edit ? user.controls().textOf(*edit) : QString();
}

void ExtendedWinFileDialogControlFault::addTo(ExtendedWinFileDialog& dialog, Shared& shared)
{
    m_list = dialog.addCustomComboBox("Encoding:", {"UTF-8", "UTF-16", "Latin 1"}, shared.encoding);
    dialog.beginCustomGroup("Import");
    m_radio = dialog.addCustomRadioButtons("Unit:", {"mm", "m"}, shared.unit);
    dialog.addCustomText("Some words");
    dialog.addCustomLineEdit("Comment:", shared.comment);
    dialog.endCustomGroup();
    dialog.addCustomSeparator();
    dialog.addCustomCheckBox("Keep", shared.keep);
    dialog.addCustomButton("Count", [&shared] {
        ++shared.clicks;
        shared.commentAtClick = shared.comment->value();
    });
    dialog.customEntry(m_list, 1)->setEnabled(false);
    m_radio->hide();
    m_radio->show();
    dialog.setAcceptButtonText("Import");
    dialog.setFileNameLabel("Measurement:");
    dialog.addPlace(folder(), Place::Bottom);
    dialog.setMemoryKey("key");
    dialog.clearMemory();
    dialog.setAcceptanceCheck([&shared](const QStringList& paths) {
        shared.checked += paths;
        return paths.value(0).endsWith(QLatin1String("a.dat")) ? ValidationResult("a.dat is in use")
                                                               : ValidationResult();
    });
}

void ExtendedWinFileDialogControlFault::accept(RecordingDialog& user, const char* name)
{
    user.userTypesName(path(QString::fromLatin1(name)));
    user.userAccepts();
}

void ExtendedWinFileDialogControlFault::use(
    RecordingDialog& user, ExtendedWinFileDialog& dialog, Shared& shared, Outcome& outcome)
{
    const QString encoding = QStringLiteral("Encoding:");
    const QString comment = QStringLiteral("Comment:");
    outcome["initial encoding"] = chosen(user, encoding);
    outcome["initial unit"] = chosen(user, QStringLiteral("Unit:"));
    outcome["initial comment"] = typed(user, comment);
    shared.encoding->setValue(2);
    outcome["followed encoding"] = chosen(user, encoding);
    shared.comment->setValue("by the host");
    outcome["followed comment"] = typed(user, comment);
    shared.keep->setValue(true);
    const auto box = user.controls().idOf(QStringLiteral("Keep"));
    outcome["followed keep"] = box && user.controls().isChecked(*box) ? QStringLiteral("on") : QString();
    choose(user, encoding, QStringLiteral("UTF-16"));
    outcome["disabled entry"] = chosen(user, encoding);
    choose(user, encoding, QStringLiteral("UTF-8"));
    choose(user, QStringLiteral("Unit:"), QStringLiteral("mm"));
    user.userTypes(comment, QStringLiteral("typed"));
    user.userClicks(QStringLiteral("Count"));
    user.userToggles(QStringLiteral("Keep"));
    m_radio->setEnabled(false);
    choose(user, QStringLiteral("Unit:"), QStringLiteral("m"));
    dialog.customEntry(m_list, 1)->hide();
    outcome["accept"] = user.acceptButtonText();
    outcome["name label"] = user.fileNameLabel();
    outcome["places"] = user.places().join(QLatin1Char(' '));
    accept(user, "a.dat");
    accept(user, "b.dat");
}

Outcome ExtendedWinFileDialogControlFault::play()
{
    Outcome outcome;
    Shared shared;
    QuestionScript questions;
    const auto dialog = openDialog("Data (*.dat);;All (*)");
    addTo(*dialog, shared);
    const auto code = [](QDialog::DialogCode result) { return QString::number(result); };
    outcome["code"] = code(run(*dialog, [&](RecordingDialog& user) { use(user, *dialog, shared, outcome); }));
    outcome["files"] = dialog->selectedFiles().join(QLatin1Char(' '));
    outcome["refusals"] = questions.asked().join(QLatin1Char(' '));
    outcome["checked"] = shared.checked.join(QLatin1Char(' '));
    outcome["clicks"] = QString::number(shared.clicks);
    outcome["at click"] = QString::fromStdString(shared.commentAtClick);
    outcome["encoding"] = QString::number(shared.encoding->value());
    outcome["unit"] = QString::number(shared.unit->value());
    outcome["comment"] = QString::fromStdString(shared.comment->value());
    outcome["keep"] = QString::number(shared.keep->value());
    // The dialog still answers, and the values stay when the user cancels.
    outcome["again"] = code(run(*dialog, [](RecordingDialog& user) {
        user.userTypes(QStringLiteral("Comment:"), QStringLiteral("again"));
        user.userCancels();
    }));
    outcome["cancelled comment"] = QString::fromStdString(shared.comment->value());
    outcome["closed"] = code(run(*dialog, [&](RecordingDialog&) { dialog->close(); }));
    return outcome;
}

/** The calls whose failure may change an outcome. The names that are not here never change. */
Names reasonsFor(const std::string& what)
{
    const Names object{"CoInitializeEx", "CoCreateInstance"};
    const Names running{"IFileDialog::Show"};
    const Names events{"QISearch", "IFileDialog::Advise"};
    const Names controls{"IFileDialog::QueryInterface"};
    // The group of a label that is not ended takes in what follows, and is no label then.
    const Names list{"IFileDialogCustomize::AddComboBox", "IFileDialogCustomize::AddControlItem",
        "IFileDialogCustomize::StartVisualGroup", "IFileDialogCustomize::EndVisualGroup"};
    const Names radio{"IFileDialogCustomize::AddRadioButtonList", "IFileDialogCustomize::AddControlItem",
        "IFileDialogCustomize::AddText"};
    const Names edit{
        "IFileDialogCustomize::AddEditBox", "IFileDialogCustomize::AddText", "IFileDialogCustomize::StartVisualGroup"};
    const Names selecting{"IFileDialogCustomize::SetSelectedControlItem"};
    const Names reading{"IFileDialogCustomize::GetEditBoxText"};
    const Names checkBox{"IFileDialogCustomize::AddCheckButton"};
    const Names results{"IFileDialog::GetResult", "IFileDialog::GetOptions", "IShellItem::GetDisplayName"};
    const std::map<std::string, std::vector<Names>> table{
        {"code", {object, running}},
        {"closed", {object, running, {"IFileDialog::Close"}}},
        {"files", {object, running, events, results}},
        {"refusals", {object, running, events, results}},
        {"checked", {object, running, events, results}},
        {"clicks", {object, running, events, controls, {"IFileDialogCustomize::AddPushButton"}}},
        {"at click", {object, running, events, controls, edit, reading, {"IFileDialogCustomize::AddPushButton"}}},
        {"initial encoding", {object, running, controls, list, selecting}},
        {"initial unit", {object, running, controls, radio, selecting}},
        {"initial comment", {object, running, controls, edit}},
        {"followed encoding", {object, running, controls, list, selecting}},
        {"followed comment", {object, running, controls, edit, {"IFileDialogCustomize::SetEditBoxText"}}},
        {"followed keep", {object, running, controls, checkBox, {"IFileDialogCustomize::SetCheckButtonState"}}},
        {"disabled entry", {object, running, controls, list, selecting, {"IFileDialogCustomize::SetControlItemState"}}},
        {"encoding", {object, running, events, controls, list, selecting}},
        {"unit", {object, running, events, controls, radio, {"IFileDialogCustomize::SetControlState"}}},
        {"comment", {object, running, controls, edit, reading}},
        {"keep", {object, running, events, controls, checkBox, {"IFileDialogCustomize::SetCheckButtonState"}}},
        {"cancelled comment", {object, running, controls, edit, reading}},
        {"accept", {object, running, {"IFileDialog::SetOkButtonLabel"}}},
        {"name label", {object, running, {"IFileDialog::SetFileNameLabel"}}},
        {"places", {object, running, {"SHCreateItemFromParsingName", "IFileDialog::AddPlace"}}},
    };
    Names reasons;
    const auto found = table.find(what);
    for (const Names& some : found == table.end() ? std::vector<Names>() : found->second) {
        reasons.insert(some.begin(), some.end());
    }
    return reasons;
}

/** The properties never get a value that neither the host nor the user has set. */
void expectValidValues(Outcome outcome)
{
    using ::testing::AnyOf;
    EXPECT_THAT(outcome["encoding"].toStdString(), AnyOf("0", "2"));
    EXPECT_THAT(outcome["unit"].toStdString(), AnyOf("0", "1"));
    EXPECT_THAT(outcome["comment"].toStdString(), AnyOf("before", "by the host", "typed"));
    EXPECT_THAT(outcome["cancelled comment"].toStdString(), AnyOf("before", "by the host", "typed", "again"));
}

TEST_F(ExtendedWinFileDialogControlFault, theScenarioSucceedsWithoutFailures)
{
    Outcome outcome = play();
    EXPECT_EQ(outcome["code"], QStringLiteral("1"));
    EXPECT_EQ(outcome["files"], nativePath(QStringLiteral("b.dat")));
    EXPECT_EQ(outcome["refusals"], QStringLiteral("a.dat is in use"));
    EXPECT_EQ(outcome["checked"], nativePath(QStringLiteral("a.dat ")) + nativePath(QStringLiteral("b.dat")));
    EXPECT_EQ(outcome["clicks"], QStringLiteral("1"));
    EXPECT_EQ(outcome["at click"], QStringLiteral("typed"));
    EXPECT_EQ(outcome["initial encoding"], QStringLiteral("UTF-8"));
    EXPECT_EQ(outcome["initial unit"], QStringLiteral("m"));
    EXPECT_EQ(outcome["initial comment"], QStringLiteral("before"));
    EXPECT_EQ(outcome["followed encoding"], QStringLiteral("Latin 1"));
    EXPECT_EQ(outcome["followed comment"], QStringLiteral("by the host"));
    EXPECT_EQ(outcome["followed keep"], QStringLiteral("on"));
    EXPECT_EQ(outcome["disabled entry"], QStringLiteral("Latin 1"));
    EXPECT_EQ(outcome["encoding"], QStringLiteral("0"));
    EXPECT_EQ(outcome["unit"], QStringLiteral("0")) << "a disabled list takes no choice";
    EXPECT_EQ(outcome["comment"], QStringLiteral("typed"));
    EXPECT_EQ(outcome["keep"], QStringLiteral("0"));
    EXPECT_EQ(outcome["again"], QStringLiteral("0"));
    EXPECT_EQ(outcome["cancelled comment"], QStringLiteral("again"));
    EXPECT_EQ(outcome["closed"], QStringLiteral("1"));
    EXPECT_EQ(outcome["accept"], QStringLiteral("Import"));
    EXPECT_EQ(outcome["name label"], QStringLiteral("Measurement:"));
    EXPECT_EQ(outcome["places"].toStdString(), folder());
}

TEST_F(ExtendedWinFileDialogControlFault, eachCallMayFailOnce)
{
    const Outcome normal = play();
    const std::vector<std::string> names = m_shell.callNames();
    ASSERT_GE(Names(names.begin(), names.end()).size(), 44u) << "the scenario has become poor";
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(std::to_string(i + 1) + ": " + names[i]);
        m_shell.clearCalls();
        m_shell.failNothing();
        m_shell.failCall(static_cast<int>(i) + 1);
        m_expectedApartments -= names[i] == "CoInitializeEx" ? 1 : 0;
        const Outcome outcome = play();
        // A timer reads the edit box while a message is open, so the calls are not the same each time.
        const std::vector<std::string> made = m_shell.callNames();
        const std::string failed = i < made.size() ? made[i] : std::string();
        SCOPED_TRACE(failed);
        EXPECT_EQ(m_shell.liveObjects(), 0);
        EXPECT_EQ(m_shell.liveStrings(), 0);
        EXPECT_EQ(m_shell.apartments(), m_expectedApartments);
        expectValidValues(outcome);
        for (const auto& [what, value] : normal) {
            const auto found = outcome.find(what);
            if (reasonsFor(what).count(failed) == 0) {
                EXPECT_EQ(found == outcome.end() ? QStringLiteral("(nothing)") : found->second, value) << what;
            }
        }
    }
    m_shell.failNothing();
}

/** A Shell on which a kind of call never succeeds, as with Wine, where some are not implemented. */
TEST_F(ExtendedWinFileDialogControlFault, eachKindOfCallMayAlwaysFail)
{
    play();
    const std::vector<std::string> names = m_shell.callNames();
    for (const std::string& name : Names(names.begin(), names.end())) {
        SCOPED_TRACE(name);
        m_shell.failNothing();
        m_shell.failCalls(name, E_NOTIMPL);
        m_expectedApartments -= name == "CoInitializeEx" ? 1 : 0;
        const Outcome outcome = play();
        EXPECT_EQ(m_shell.liveObjects(), 0);
        EXPECT_EQ(m_shell.liveStrings(), 0);
        EXPECT_EQ(m_shell.apartments(), m_expectedApartments);
        expectValidValues(outcome);
    }
    m_shell.failNothing();
}

} // namespace

} // namespace morvane::test
