// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include <QDir>

namespace morvane::test {

namespace {

using ::testing::ElementsAre;

class ExtendedWinFileDialogEvents : public ExtendedWinFileDialogTest
{
protected:
    void SetUp() override { m_shell.script.announcesOpening = false; }

    /** Runs with the sink's two interfaces at hand. */
    void runWithSink(const std::function<void(RecordingDialog&, IFileDialogEvents&, IFileDialogControlEvents&)>& act,
        const std::string& filter = "")
    {
        const auto dialog = openDialog(filter);
        run(*dialog, [&](RecordingDialog& shown) {
            shown.fire([&](IFileDialogEvents& events) {
                ui::ComPtr<IFileDialogControlEvents> controls;
                EXPECT_EQ(events.QueryInterface(IID_IFileDialogControlEvents, controls.putVoid()), S_OK);
                act(shown, events, *controls);
                return S_OK;
            });
        });
    }
};

TEST_F(ExtendedWinFileDialogEvents, answersEachCallback)
{
    bool called = false;
    runWithSink([&](RecordingDialog& dialog, IFileDialogEvents& events, IFileDialogControlEvents& controls) {
        FDE_SHAREVIOLATION_RESPONSE violation = FDESVR_DEFAULT;
        FDE_OVERWRITE_RESPONSE overwrite = FDEOR_DEFAULT;
        auto* const customize = &dialog.controls();
        EXPECT_EQ(events.OnFileOk(&dialog), E_NOTIMPL);
        EXPECT_EQ(events.OnFolderChanging(&dialog, nullptr), E_NOTIMPL);
        EXPECT_EQ(events.OnFolderChange(&dialog), S_OK);
        EXPECT_EQ(events.OnSelectionChange(&dialog), E_NOTIMPL);
        EXPECT_EQ(events.OnShareViolation(&dialog, nullptr, &violation), E_NOTIMPL);
        EXPECT_EQ(events.OnTypeChange(&dialog), S_OK);
        EXPECT_EQ(events.OnOverwrite(&dialog, nullptr, &overwrite), E_NOTIMPL);
        EXPECT_EQ(controls.OnItemSelected(customize, 0, 0), E_NOTIMPL);
        EXPECT_EQ(controls.OnButtonClicked(customize, 99), S_OK);
        EXPECT_EQ(controls.OnCheckButtonToggled(customize, 99, TRUE), S_OK);
        EXPECT_EQ(controls.OnControlActivating(customize, 99), E_NOTIMPL);
        EXPECT_EQ(violation, FDESVR_DEFAULT);
        EXPECT_EQ(overwrite, FDEOR_DEFAULT);
        called = true;
    });
    EXPECT_TRUE(called);
}

TEST_F(ExtendedWinFileDialogEvents, callbacksWithoutActionMakeNoShellCall)
{
    runWithSink([&](RecordingDialog& dialog, IFileDialogEvents& events, IFileDialogControlEvents& controls) {
        const Calls calls = callsOf([&] {
            events.OnFileOk(&dialog);
            events.OnFolderChanging(&dialog, nullptr);
            events.OnSelectionChange(&dialog);
            controls.OnItemSelected(&dialog.controls(), 0, 0);
            controls.OnControlActivating(&dialog.controls(), 0);
        });
        EXPECT_TRUE(calls.empty());
    });
}

TEST_F(ExtendedWinFileDialogEvents, theSinkAnswersForItsInterfacesOnly)
{
    runWithSink([&](RecordingDialog&, IFileDialogEvents& events, IFileDialogControlEvents& controls) {
        ui::ComPtr<IUnknown> unknown;
        ui::ComPtr<IFileDialogEvents> back;
        EXPECT_EQ(events.QueryInterface(IID_IUnknown, unknown.putVoid()), S_OK);
        EXPECT_EQ(unknown.get(), static_cast<IUnknown*>(&events));
        EXPECT_EQ(controls.QueryInterface(IID_IFileDialogEvents, back.putVoid()), S_OK);
        EXPECT_EQ(back.get(), &events);
        void* none = &events;
        EXPECT_EQ(events.QueryInterface(IID_IFileDialog, &none), E_NOINTERFACE);
        EXPECT_EQ(none, nullptr);
    });
}

TEST_F(ExtendedWinFileDialogEvents, theSinkCountsItsReferences)
{
    runWithSink([&](RecordingDialog&, IFileDialogEvents& events, IFileDialogControlEvents& controls) {
        const ULONG now = events.AddRef();
        EXPECT_EQ(controls.AddRef(), now + 1);
        EXPECT_EQ(controls.Release(), now);
        EXPECT_EQ(events.Release(), now - 1);
    });
}

TEST_F(ExtendedWinFileDialogEvents, followsTheFolder)
{
    const auto dialog = openDialog();
    QDir(QString::fromStdString(folder())).mkdir(QStringLiteral("in\u00FCner"));
    const QString inner = path(QStringLiteral("in\u00FCner"));
    run(*dialog, [&](RecordingDialog& user) {
        EXPECT_THAT(callsOf([&] { user.userEntersFolder(inner); }),
            ElementsAre(
                "IFileDialog::GetFolder()", "IShellItem::GetDisplayName(SIGDN_FILESYSPATH)", "CoTaskMemFree(text)"));
        EXPECT_EQ(dialog->directory().path(), inner) << "in step while the dialog runs";
    });
    EXPECT_EQ(dialog->directory().path(), inner);
}

TEST_F(ExtendedWinFileDialogEvents, keepsTheFolderThatItCannotRead)
{
    Arguments arguments;
    arguments.directory = folder();
    const auto dialog = make(arguments);
    for (const char* const failing : {"IFileDialog::GetFolder", "IShellItem::GetDisplayName"}) {
        m_shell.failNothing();
        m_shell.failCalls(failing);
        run(*dialog, [&](RecordingDialog& user) { user.userEntersFolder(QStringLiteral("/elsewhere")); });
        EXPECT_EQ(dialog->directory().path().toStdString(), folder()) << failing;
    }
}

TEST_F(ExtendedWinFileDialogEvents, knowsTheFolderThatTheDialogOpensIn)
{
    m_shell.script.announcesOpening = true;
    const auto dialog = openDialog();
    EXPECT_EQ(dialog->directory().path(), QDir(QString()).path());
    run(*dialog);
    EXPECT_EQ(dialog->directory().path(), QDir::currentPath());
}

TEST_F(ExtendedWinFileDialogEvents, tellsObserversOfTheTypeWhileTheDialogRuns)
{
    const auto dialog = openDialog("A (*.a);;B (*.b);;C (*.c)");
    std::vector<int> seen;
    dialog->currentFilterIndex()->signalValueChanged.connect([&](const int& index) { seen.push_back(index); });
    run(*dialog, [](RecordingDialog& user) {
        user.userPicksType(3);
        user.userPicksType(2);
        user.userPicksType(2);
        user.userPicksType(1);
    });
    EXPECT_THAT(seen, ElementsAre(3, 2, 1));
}

TEST_F(ExtendedWinFileDialogEvents, adviseAndUnadviseANewSinkForEachRun)
{
    const auto dialog = openDialog();
    m_shell.script.keepsSinks = true;
    run(*dialog);
    run(*dialog);
    ASSERT_EQ(m_shell.keptSinks(), 2);
    EXPECT_NE(m_shell.kept()[0].get(), m_shell.kept()[1].get());
    m_shell.releaseKeptSinks();
}

TEST_F(ExtendedWinFileDialogEvents, aSinkThatIsKeptTooLongDoesNothing)
{
    m_shell.script.keepsSinks = true;
    auto dialog = saveDialog("A (*.a);;B (*.b)");
    int clicks = 0;
    dialog->addCustomButton("Button", [&] { ++clicks; });
    ui::ComPtr<IFileDialog> native = ui::ComPtr<IFileDialog>::share(m_shell.dialog());
    run(*dialog);
    const auto fireAll = [&] {
        for (const auto& sink : m_shell.kept()) {
            ui::ComPtr<IFileDialogControlEvents> controls;
            ASSERT_EQ(sink->QueryInterface(IID_IFileDialogControlEvents, controls.putVoid()), S_OK);
            EXPECT_EQ(sink->OnFolderChange(native.get()), S_OK);
            EXPECT_EQ(sink->OnTypeChange(native.get()), S_OK);
            EXPECT_EQ(controls->OnButtonClicked(nullptr, 0), S_OK);
            EXPECT_EQ(controls->OnCheckButtonToggled(nullptr, 0, TRUE), S_OK);
            EXPECT_EQ(sink->OnFileOk(nullptr), E_NOTIMPL);
        }
    };
    fireAll();
    dialog.reset();
    fireAll();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(m_shell.keptSinks(), 1);
    m_shell.releaseKeptSinks();
    native.reset();
}

} // namespace

} // namespace morvane::test
