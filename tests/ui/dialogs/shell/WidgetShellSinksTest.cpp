// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The common decision of all event sinks of a host, and its effect on a choice.
#include "WidgetShellRunTest.h"

#include <QPushButton>
#include <QTimer>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellSinks : public WidgetShellRun
{
protected:
    void SetUp() override
    {
        WidgetShellRun::SetUp();
        make(CLSID_FileSaveDialog);
        dialog->SetFileName(text("a.txt").c_str());
        ASSERT_EQ(dialog->Advise(&second, &secondCookie), S_OK);
    }
    void TearDown() override
    {
        dialog->Unadvise(secondCookie);
        EXPECT_EQ(second.references, 1u);
        WidgetShellRun::TearDown();
    }
    /** Presses accept, rejects the overwrite question if it is asked, and cancels the dialog if it is still open. */
    HRESULT acceptAndRefuse(bool& asked)
    {
        asked = false;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&asked] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = true;
                box->reject();
            }
        });
        answer.start(1);
        return show([](QFileDialog& window) {
            FileDialogDriver::whenActive(window).pressAccept();
            window.reject();
        });
    }

    LoggingSink second{shell};
    DWORD secondCookie = 0;
};

struct Answer
{
    HRESULT result;
    FDE_OVERWRITE_RESPONSE response;
};

struct Decision
{
    const char* name;
    Answer first;
    Answer second;
    bool secondIsHeard;
    bool userIsAsked;
    HRESULT outcome;
};

TEST_F(WidgetShellSinks, decideAboutReplacingByTheFirstThatDoes)
{
    const Decision table[] = {
        {"nobody decides", {S_OK, FDEOR_DEFAULT}, {S_OK, FDEOR_DEFAULT}, true, true, cancelled},
        {"the second accepts", {S_OK, FDEOR_DEFAULT}, {S_OK, FDEOR_ACCEPT}, true, false, S_OK},
        {"the second refuses", {S_OK, FDEOR_DEFAULT}, {S_OK, FDEOR_REFUSE}, true, false, cancelled},
        {"the first accepts", {S_OK, FDEOR_ACCEPT}, {S_OK, FDEOR_REFUSE}, false, false, S_OK},
        {"the first refuses", {S_OK, FDEOR_REFUSE}, {S_OK, FDEOR_ACCEPT}, false, false, cancelled},
        {"the first fails", {E_FAIL, FDEOR_REFUSE}, {S_OK, FDEOR_ACCEPT}, true, false, S_OK},
        {"the second fails", {S_OK, FDEOR_DEFAULT}, {E_NOTIMPL, FDEOR_ACCEPT}, true, true, cancelled},
    };
    for (const Decision& row : table) {
        sink.overwriteResponse = row.first.response;
        sink.on["OnOverwrite"] = [&row] { return row.first.result; };
        second.overwriteResponse = row.second.response;
        second.on["OnOverwrite"] = [&row] { return row.second.result; };
        second.log.clear();
        bool asked = false;
        EXPECT_EQ(acceptAndRefuse(asked), row.outcome) << row.name;
        EXPECT_EQ(asked, row.userIsAsked) << row.name;
        EXPECT_EQ(second.count("OnOverwrite a.txt"), row.secondIsHeard ? 1 : 0) << row.name;
    }
}

TEST_F(WidgetShellSinks, askNothingMoreWhenOneHasTakenTheWindowAway)
{
    sink.on["OnOverwrite"] = [] {
        qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
        return S_OK;
    };
    bool asked = false;
    EXPECT_EQ(acceptAndRefuse(asked), cancelled);
    EXPECT_FALSE(asked);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellSinks, mayLeaveBeforeTheirTurn)
{
    sink.on["OnFolderChange"] = [this] { return dialog->Unadvise(secondCookie); };
    show([](QFileDialog& window) { window.reject(); });
    EXPECT_THAT(second.log, ::testing::ElementsAre(::testing::StartsWith("OnFolderChanging ")));
}

TEST_F(WidgetShellSinks, hearOfNoTypeWhereThereIsNone)
{
    show([](QFileDialog& window) { window.reject(); });
    EXPECT_FALSE(sink.log.empty());
    EXPECT_THAT(sink.log, ::testing::Not(::testing::Contains(::testing::StartsWith("OnTypeChange"))));
}

TEST_F(WidgetShellSinks, keepTheUserInTheFolderWhereTheyAreAndHearOfTheWayBack)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("inner/most")));
    const QString inner = folder.filePath(QStringLiteral("inner"));
    const std::string base = QFileInfo(folder.path()).fileName().toStdString();
    show([&](QFileDialog& window) {
        EXPECT_EQ(window.acceptMode(), QFileDialog::AcceptSave);
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.enterFolder(inner);
        sink.on["OnFolderChanging"] = [] { return S_FALSE; };
        driver.enterFolder(inner + QStringLiteral("/most"));
        EXPECT_EQ(window.directory().path(), inner);
        sink.on.clear();
        driver.enterFolder(folder.path());
        EXPECT_EQ(window.directory().path(), folder.path());
        window.reject();
    });
    EXPECT_EQ(sink.count("OnFolderChange inner"), 1);
    EXPECT_EQ(sink.count("OnFolderChange most"), 0);
    EXPECT_EQ(sink.count("OnFolderChange " + base), 2) << "on opening and on coming back";
}

TEST_F(WidgetShellSinks, hearNothingAfterTheChoice)
{
    change(0, FOS_OVERWRITEPROMPT);
    ComPtr<IShellItem> inner;
    const ShellString path = toShellString(folder.filePath(QStringLiteral("inner")));
    ASSERT_EQ(shell.createItemFromParsingName(path.c_str(), nullptr, IID_IShellItem, inner.putVoid()), S_OK);
    const HRESULT hr = show([&](QFileDialog& window) {
        QObject::connect(&window, &QDialog::accepted, &window, [&] { dialog->SetFolder(inner.get()); });
        FileDialogDriver::whenActive(window).pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(sink.log.back(), "OnFileOk");
}

TEST_F(WidgetShellSinks, areToldOfASelectionOnce)
{
    sink.on["OnFileOk"] = [] { return S_FALSE; };
    change(0, FOS_OVERWRITEPROMPT);
    show([this](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.clickFile(QStringLiteral("b.txt"));
        EXPECT_TRUE(QTest::qWaitFor([this] { return sink.count("OnSelectionChange") > 0; }));
        QCoreApplication::processEvents();
        const int told = sink.count("OnSelectionChange");
        driver.pressAccept();
        driver.pressAccept();
        EXPECT_EQ(sink.count("OnSelectionChange"), told) << "not again with each choice";
        window.reject();
    });
    EXPECT_EQ(sink.count("OnFileOk"), 2);
}

TEST_F(WidgetShellSinks, decideAboutOneChoiceAtATime)
{
    change(0, FOS_OVERWRITEPROMPT);
    for (const HRESULT answer : {S_FALSE, S_OK}) {
        int decisions = 0;
        show([&](QFileDialog& window) {
            sink.on["OnFileOk"] = [&] {
                if (++decisions == 1) { // as if the sink ran an event loop
                    FileDialogDriver::whenActive(window).typeName(QStringLiteral("other.txt"));
                    FileDialogDriver::whenActive(window).pressAccept();
                }
                return answer;
            };
            FileDialogDriver::whenActive(window).pressAccept();
            EXPECT_EQ(window.isVisible(), answer != S_OK);
            window.reject();
        });
        EXPECT_EQ(decisions, 1);
        ComPtr<IShellItem> item;
        EXPECT_EQ(dialog->GetResult(item.put()), answer == S_OK ? S_OK : E_UNEXPECTED);
        if (item) {
            LPWSTR name = nullptr;
            ASSERT_EQ(item->GetDisplayName(SIGDN_NORMALDISPLAY, &name), S_OK);
            EXPECT_EQ(toQString(name), "a.txt");
            shell.coTaskMemFree(name);
        }
        dialog->SetFileName(text("a.txt").c_str());
    }
}

TEST_F(WidgetShellSinks, findNoResultOfARunThatIsClosedAfterItsChoice)
{
    change(0, FOS_OVERWRITEPROMPT);
    const HRESULT hr = show([this](QFileDialog& window) {
        QObject::connect(&window, &QDialog::accepted, &window, [this] { EXPECT_EQ(dialog->Close(E_ABORT), S_OK); });
        FileDialogDriver::whenActive(window).pressAccept();
    });
    EXPECT_EQ(hr, E_ABORT);
    EXPECT_EQ(sink.count("OnFileOk"), 1);
    ComPtr<IShellItem> item;
    EXPECT_EQ(dialog->GetResult(item.put()), E_UNEXPECTED);
}

TEST_F(WidgetShellSinks, leaveTheQuestionToABoxThatShowsTheNameAsItIs)
{
    const QString name = QStringLiteral("&lt;b&gt;bold.txt");
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    dialog->SetFileName(toShellString(name).c_str());
    dialog->SetTitle(text("Save it").c_str());
    show([&name](QFileDialog& window) {
        ModalScript script;
        script.on<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.text().count(name), 1) << box.text().toStdString();
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Save it"));
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
            EXPECT_EQ(box.parentWidget(), &window);
            box.reject();
        });
        FileDialogDriver::whenActive(window).pressAccept();
        EXPECT_TRUE(script.finished());
        EXPECT_FALSE(window.findChild<QMessageBox*>()) << "gone after its answer";
        window.reject();
    });
}

} // namespace

} // namespace morvane::test
