// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The owner of the dialog, and outside events that end a run.
#include "WidgetShellRunTest.h"

#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace morvane::test {

namespace {

class WidgetShellOwnerRun : public WidgetShellRun
{
};

using namespace morvane::ui;

TEST_F(WidgetShellOwnerRun, theOwnerIsFoundByItsHandle)
{
    QWidget owner;
    owner.show();
    show(
        [&owner](QFileDialog& window) {
            EXPECT_EQ(window.parentWidget(), &owner);
            window.reject();
        },
        reinterpret_cast<HWND>(owner.winId()));
}

TEST_F(WidgetShellOwnerRun, aHandleOfNoWindowMeansNoOwner)
{
    show(
        [](QFileDialog& window) {
            EXPECT_EQ(window.parentWidget(), nullptr);
            window.reject();
        },
        reinterpret_cast<HWND>(static_cast<WId>(0x7FFF1234)));
}

TEST_F(WidgetShellOwnerRun, anOwnerThatGoesEndsTheRun)
{
    customize->AddPushButton(1, text("Button").c_str());
    auto owner = std::make_unique<QWidget>();
    EXPECT_EQ(show([&owner](QFileDialog&) { owner.reset(); }, reinterpret_cast<HWND>(owner->winId())), cancelled);
    EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled);
}

TEST_F(WidgetShellOwnerRun, anOwnerThatGoesDuringACallbackEndsTheRun)
{
    customize->AddPushButton(1, text("Leave").c_str());
    setTypes({{QStringLiteral("T"), QStringLiteral("*.txt")}, {QStringLiteral("D"), QStringLiteral("*.dat")}});
    dialog->SetFileName(text("a.txt").c_str());
    const std::pair<const char*, std::function<void(const FileDialogDriver&)>> ways[] = {
        {"OnButtonClicked", [](const FileDialogDriver& driver) { driver.clickControl(QStringLiteral("Leave")); }},
        {"OnFileOk", [](const FileDialogDriver& driver) { driver.pressAccept(); }},
        {"OnFolderChange", [](const FileDialogDriver&) {}},
        {"OnFolderChanging", [](const FileDialogDriver&) {}},
    };
    for (const auto& [callback, act] : ways) {
        auto owner = std::make_unique<QWidget>();
        const HWND handle = reinterpret_cast<HWND>(owner->winId());
        sink.on.clear();
        sink.on[callback] = [&owner] {
            owner.reset();
            return S_OK;
        };
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&poll, act = act] {
            if (auto* const window = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                poll.stop();
                const FileDialogDriver driver = FileDialogDriver::whenActive(*window);
                act(driver);
            }
        });
        poll.start(1);
        EXPECT_NE(dialog->Show(handle), E_FAIL) << callback;
    }
}

/** An owner that is destroyed in a callback, which an action of the user in the open dialog causes. */
class WidgetShellOwner : public WidgetShellRun
{
protected:
    void SetUp() override
    {
        WidgetShellRun::SetUp();
        owner = std::make_unique<QWidget>();
    }

    HRESULT runAndLose(const char* callback, const std::function<void(QFileDialog&)>& act)
    {
        const auto lose = [this, callback, act](QFileDialog& window) {
            sink.on[callback] = [this] {
                owner.reset();
                return S_OK;
            };
            act(window);
        };
        const HRESULT hr = show(lose, reinterpret_cast<HWND>(owner->winId()));
        EXPECT_FALSE(owner) << callback;
        sink.on.clear();
        EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled) << "it can be shown again";
        return hr;
    }
    void enterInner(QFileDialog& window)
    {
        window.setDirectory(folder.filePath(QStringLiteral("inner")));
        QCoreApplication::processEvents();
    }
    void loseWhileAMessageIsOpen(QFileDialog& window)
    {
        ModalScript script;
        script.on<QMessageBox>([this](QMessageBox&) { owner.reset(); });
        FileDialogDriver::whenActive(window).pressAccept();
        EXPECT_TRUE(script.finished()) << "no message was shown";
    }

    std::unique_ptr<QWidget> owner;
};

TEST_F(WidgetShellOwner, endsTheRunWhereverItGoesInAChangeOfTheFolder)
{
    for (const char* const callback : {"OnFolderChanging", "OnFolderChange"}) {
        owner = std::make_unique<QWidget>();
        EXPECT_EQ(runAndLose(callback, [this](QFileDialog& window) { enterInner(window); }), cancelled) << callback;
    }
}

TEST_F(WidgetShellOwner, endsTheRunWhenTheFolderChangesAsTheUserAccepts)
{
    dialog->SetFileName(text("a.txt").c_str());
    const auto accept = [this](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        window.setDirectory(folder.filePath(QStringLiteral("inner"))); // the sink is told when the button is pressed
        driver.pressAccept();
    };
    EXPECT_EQ(runAndLose("OnFolderChange", accept), cancelled);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellOwner, endsTheRunWhenTheTypeChanges)
{
    setTypes({{QStringLiteral("T"), QStringLiteral("*.txt")}, {QStringLiteral("D"), QStringLiteral("*.dat")}});
    const auto pick = [](QFileDialog& window) {
        QTest::keyClick(&FileDialogDriver::whenActive(window).typeCombo(), Qt::Key_Down);
        QCoreApplication::processEvents();
    };
    EXPECT_EQ(runAndLose("OnTypeChange", pick), cancelled);
}

TEST_F(WidgetShellOwner, endsTheRunWhenAnItemOfTheAcceptButtonIsPicked)
{
    customize->EnableOpenDropDown(0);
    customize->AddControlItem(0, 10, text("Item").c_str());
    dialog->SetFileName(text("a.txt").c_str());
    const auto pick = [](QFileDialog& window) {
        FileDialogDriver::whenActive(window).pickAcceptItem(QStringLiteral("Item"));
    };
    EXPECT_EQ(runAndLose("OnItemSelected", pick), cancelled);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
    owner = std::make_unique<QWidget>();
    dialog->SetFileName(text("a.txt").c_str());
    const auto pickWithKeys = [](QFileDialog& window) {
        QPointer<QToolButton> arrow(FileDialogDriver::whenActive(window).acceptButton().findChild<QToolButton*>());
        QTimer::singleShot(0, arrow, [arrow] {
            QTest::keyClick(arrow->menu(), Qt::Key_Down);
            QTest::keyPress(arrow->menu(), Qt::Key_Return);
        });
        QTest::mousePress(arrow, Qt::LeftButton); // the menu is open until this returns
    };
    EXPECT_EQ(runAndLose("OnItemSelected", pickWithKeys), cancelled);
    EXPECT_EQ(sink.count("OnItemSelected 0 10"), 2);
}

TEST_F(WidgetShellOwner, endsTheRunInTheQuestionOfTheSink)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text("a.txt").c_str());
    for (const auto response : {FDEOR_ACCEPT, FDEOR_REFUSE, FDEOR_DEFAULT}) {
        owner = std::make_unique<QWidget>();
        sink.overwriteResponse = response;
        EXPECT_EQ(
            runAndLose("OnOverwrite", [](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }),
            cancelled)
            << response;
    }
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellOwner, endsTheRunWhileAMessageOrAQuestionIsOpen)
{
    for (const auto& [clsid, name] :
        {std::pair(CLSID_FileOpenDialog, "missing.txt"), {CLSID_FileSaveDialog, "a.txt"}}) {
        make(clsid);
        owner = std::make_unique<QWidget>();
        dialog->SetFileName(text(name).c_str());
        EXPECT_EQ(runAndLose("", [this](QFileDialog& window) { loseWhileAMessageIsOpen(window); }), cancelled) << name;
        EXPECT_EQ(sink.count("OnFileOk"), 0) << name;
    }
}

TEST_F(WidgetShellOwner, isNotNeededToCloseTheDialog)
{
    customize->AddPushButton(1, text("Leave").c_str());
    const HRESULT hr = show(
        [this](QFileDialog& window) {
            sink.on["OnButtonClicked"] = [this] {
                owner.reset();
                return dialog->Close(E_ABORT);
            };
            FileDialogDriver::whenActive(window).clickControl(QStringLiteral("Leave"));
        },
        reinterpret_cast<HWND>(owner->winId()));
    EXPECT_EQ(hr, E_ABORT);
}

TEST_F(WidgetShellOwnerRun, quittingTheApplicationEndsTheRun)
{
    HRESULT hr = S_OK;
    QTimer::singleShot(0, [&] { hr = show([](QFileDialog&) { QCoreApplication::quit(); }); });
    QApplication::exec();
    EXPECT_EQ(hr, cancelled);
}

} // namespace

} // namespace morvane::test
