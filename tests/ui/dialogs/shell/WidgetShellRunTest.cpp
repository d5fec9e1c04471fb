#include "contract/LoggingSink.h"
#include "contract/WidgetUser.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/ComPtr.h"
#include "ui/qt/dialogs/shell/WidgetShell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

namespace {

using namespace morvane::ui;
using morvane::test::LoggingSink;
using morvane::test::ModalScript;
using morvane::test::WidgetUser;

const HRESULT cancelled = HRESULT_FROM_WIN32(ERROR_CANCELLED);

class WidgetShellRun : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* const name : {"a.txt", "b.txt", "c.dat", "d.TXT"}) {
            QFile file(folder.filePath(QLatin1String(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        QDir(folder.path()).mkdir(QStringLiteral("inner"));
        make(CLSID_FileOpenDialog);
    }
    void TearDown() override
    {
        dialog->Unadvise(cookie);
        EXPECT_EQ(sink.references, 1u);
    }

    void make(const CLSID& clsid)
    {
        if (dialog) {
            dialog->Unadvise(cookie);
        }
        ASSERT_EQ(
            shell.coCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid()), S_OK);
        customize = dialog.query<IFileDialogCustomize>();
        ComPtr<IShellItem> item;
        ASSERT_EQ(shell.createItemFromParsingName(
                      toShellString(folder.path()).c_str(), nullptr, IID_IShellItem, item.putVoid()),
            S_OK);
        ASSERT_EQ(dialog->SetFolder(item.get()), S_OK);
        ASSERT_EQ(dialog->Advise(&sink, &cookie), S_OK);
    }
    void setTypes(const std::vector<std::pair<QString, QString>>& types)
    {
        std::vector<ShellString> texts;
        for (const auto& [description, patterns] : types) {
            texts.push_back(toShellString(description));
            texts.push_back(toShellString(patterns));
        }
        std::vector<COMDLG_FILTERSPEC> specs;
        for (std::size_t i = 0; i < texts.size(); i += 2) {
            specs.push_back({texts[i].c_str(), texts[i + 1].c_str()});
        }
        ASSERT_EQ(dialog->SetFileTypes(static_cast<UINT>(specs.size()), specs.data()), S_OK);
    }
    void change(FILEOPENDIALOGOPTIONS set, FILEOPENDIALOGOPTIONS clear = 0)
    {
        FILEOPENDIALOGOPTIONS options = 0;
        dialog->GetOptions(&options);
        ASSERT_EQ(dialog->SetOptions((options | set) & ~clear), S_OK);
    }
    HRESULT show(const std::function<void(QFileDialog&)>& play, HWND owner = nullptr)
    {
        ModalScript script;
        script.on<QFileDialog>(play);
        return dialog->Show(owner);
    }
    QStringList results()
    {
        QStringList paths;
        ComPtr<IShellItemArray> items;
        if (FAILED(dialog.query<IFileOpenDialog>()->GetResults(items.put()))) {
            return paths;
        }
        DWORD count = 0;
        items->GetCount(&count);
        for (DWORD i = 0; i < count; ++i) {
            ComPtr<IShellItem> item;
            items->GetItemAt(i, item.put());
            LPWSTR text = nullptr;
            item->GetDisplayName(SIGDN_NORMALDISPLAY, &text);
            paths.append(toQString(text));
            shell.coTaskMemFree(text);
        }
        return paths;
    }
    static QStringList shownFiles(QFileDialog& window)
    {
        auto* const view = window.findChild<QListView*>(QStringLiteral("listView"));
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
        }
        names.sort();
        return names;
    }
    static void controlClick(QFileDialog& window, const QString& name)
    {
        QAbstractItemView* view = window.findChild<QListView*>(QStringLiteral("listView"));
        view = view->isVisible() ? view : window.findChild<QTreeView*>(QStringLiteral("treeView"));
        view->setFocus();
        const auto find = [&] {
            return view->model()->match(view->model()->index(0, 0, view->rootIndex()), 0, name).value(0);
        };
        ASSERT_TRUE(QTest::qWaitFor([&] { return !view->visualRect(find()).isEmpty(); }));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, view->visualRect(find()).center());
        EXPECT_TRUE(view->selectionModel()->isSelected(find())) << name.toStdString();
    }
    static void pressAcceptAndReadMessage(WidgetUser& user, const std::string& part)
    {
        ModalScript script;
        script.on<QMessageBox>([&part](QMessageBox& box) {
            EXPECT_THAT(box.text().toStdString(), ::testing::HasSubstr(part));
            box.accept();
        });
        user.pressAccept();
        EXPECT_TRUE(script.finished()) << "no message was shown";
    }
    ShellString text(const char* utf8) { return toShellString(QString::fromUtf8(utf8)); }

    WidgetShell shell{WidgetShell::Appearance::AlwaysWidgets};
    QTemporaryDir folder;
    LoggingSink sink{shell};
    ComPtr<IFileDialog> dialog;
    ComPtr<IFileDialogCustomize> customize;
    DWORD cookie = 0;
};

TEST_F(WidgetShellRun, textsReachTheWindow)
{
    dialog->SetTitle(text("Pick  a <b>file</b>").c_str());
    dialog->SetOkButtonLabel(text("Ta&ke").c_str());
    dialog->SetFileNameLabel(text("Called:").c_str());
    show([](QFileDialog& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Pick  a <b>file</b>"));
        EXPECT_EQ(WidgetUser(window).acceptButton()->text(), QStringLiteral("Ta&ke"));
        EXPECT_EQ(window.labelText(QFileDialog::FileName), QStringLiteral("Called:"));
        window.reject();
    });
}

TEST_F(WidgetShellRun, anEmptyTitleLeavesQtsOwn)
{
    dialog->SetTitle(text("").c_str());
    show([](QFileDialog& window) {
        EXPECT_FALSE(window.windowTitle().isEmpty());
        window.reject();
    });
}

TEST_F(WidgetShellRun, typesAreChosenByPositionWhateverTheirTexts)
{
    const QString odd = QString::fromUtf8("A  (x)  größer");
    setTypes({{odd, QStringLiteral("*.txt")}, {odd, QStringLiteral("*.dat")}, {QString(), QStringLiteral("*.*")},
        {QStringLiteral("Empty"), QString()}});
    show([&](QFileDialog& window) {
        WidgetUser user(window);
        ASSERT_EQ(user.typeCombo()->count(), 4);
        EXPECT_EQ(user.typeCombo()->itemText(1), odd);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shownFiles(window) == (QStringList{QStringLiteral("a.txt"), QStringLiteral("b.txt"),
                                             QStringLiteral("d.TXT"), QStringLiteral("inner")});
        }));
        user.pickType(2);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shownFiles(window) == (QStringList{QStringLiteral("c.dat"), QStringLiteral("inner")});
        }));
        UINT index = 0;
        dialog->GetFileTypeIndex(&index);
        EXPECT_EQ(index, 2u);
        user.pickType(3);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        user.pickType(4);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        window.reject();
    });
    EXPECT_EQ(sink.count("OnTypeChange 2"), 1);
}

TEST_F(WidgetShellRun, switchingTypesLeavesTheTypedSuffixAlone)
{
    make(CLSID_FileSaveDialog);
    setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}, {QStringLiteral("Data"), QStringLiteral("*.dat")}});
    show([&](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("name.old"));
        user.pickType(2);
        user.pickType(1);
        EXPECT_EQ(user.nameEdit()->text(), QStringLiteral("name.old"));
        window.reject();
    });
}

TEST_F(WidgetShellRun, severalFilesAreChosenByTheirQuotedNames)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("\"a.txt\" \"c.dat\""));
        user.pressAccept();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("c.dat")}));
    ComPtr<IShellItem> single;
    EXPECT_EQ(dialog->GetResult(single.put()), E_FAIL);
}

TEST_F(WidgetShellRun, severalFilesAreChosenInTheList)
{
    change(FOS_ALLOWMULTISELECT);
    const HRESULT hr = show([&](QFileDialog& window) {
        WidgetUser user(window);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        controlClick(window, QStringLiteral("a.txt"));
        controlClick(window, QStringLiteral("b.txt"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return sink.count("OnSelectionChange") > 0; }));
        ComPtr<IShellItem> selected;
        EXPECT_EQ(dialog->GetCurrentSelection(selected.put()), S_OK);
        EXPECT_EQ(user.nameEdit()->text(), QStringLiteral("\"a.txt\" \"b.txt\""));
        user.pressAccept();
        window.reject();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(results(), (QStringList{QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

TEST_F(WidgetShellRun, aMissingFileIsRefusedWithAMessage)
{
    const HRESULT hr = show([](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("missing.txt"));
        pressAcceptAndReadMessage(user, "missing.txt");
        user.pressCancel();
    });
    EXPECT_EQ(hr, cancelled);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellRun, aMissingFolderIsRefusedOnlyWhenItMustExist)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text("none/new.txt").c_str());
    const HRESULT hr = show([](QFileDialog& window) {
        WidgetUser user(window);
        pressAcceptAndReadMessage(user, "none");
        user.pressCancel();
    });
    EXPECT_EQ(hr, cancelled);
    change(0, FOS_PATHMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
}

TEST_F(WidgetShellRun, picksFoldersAndTheOpenOneWhenNoneIsNamed)
{
    change(FOS_PICKFOLDERS, FOS_FILEMUSTEXIST);
    EXPECT_EQ(show([](QFileDialog& window) {
        WidgetUser user(window);
        user.typeName(QStringLiteral("inner"));
        user.pressAccept();
    }),
        S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("inner")));
    dialog->SetFileName(text("").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
    EXPECT_EQ(results(), QStringList(QFileInfo(folder.path()).fileName()));
}

TEST_F(WidgetShellRun, theDefaultExtensionCompletesNamesWithoutOne)
{
    make(CLSID_FileSaveDialog);
    dialog->SetDefaultExtension(text("log").c_str());
    for (const auto& [typed, got] : {std::pair("new", "new.log"), {"new.txt", "new.txt"}}) {
        dialog->SetFileName(text(typed).c_str());
        ASSERT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
        ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
        LPWSTR name = nullptr;
        item->GetDisplayName(SIGDN_NORMALDISPLAY, &name);
        EXPECT_EQ(toUtf8(name), got);
        shell.coTaskMemFree(name);
    }
}

#ifndef _WIN32
TEST_F(WidgetShellRun, aNameMayBeginWithAColon)
{
    make(CLSID_FileSaveDialog);
    dialog->SetFileName(text(":notes").c_str());
    ASSERT_EQ(show([](QFileDialog& window) { WidgetUser(window).pressAccept(); }), S_OK);
    ComPtr<IShellItem> item;
    ASSERT_EQ(dialog->GetResult(item.put()), S_OK);
    LPWSTR name = nullptr;
    item->GetDisplayName(SIGDN_FILESYSPATH, &name);
    EXPECT_EQ(toQString(name), folder.filePath(QStringLiteral(":notes")));
    shell.coTaskMemFree(name);
}
#endif

TEST_F(WidgetShellRun, enterInTheNameFieldAccepts)
{
    dialog->SetFileName(text("a.txt").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { QTest::keyClick(WidgetUser(window).nameEdit(), Qt::Key_Return); }), S_OK);
    EXPECT_EQ(results(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(WidgetShellRun, theOwnerIsFoundByItsHandle)
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

TEST_F(WidgetShellRun, aHandleOfNoWindowMeansNoOwner)
{
    show(
        [](QFileDialog& window) {
            EXPECT_EQ(window.parentWidget(), nullptr);
            window.reject();
        },
        reinterpret_cast<HWND>(static_cast<WId>(0x7FFF1234)));
}

TEST_F(WidgetShellRun, anOwnerThatGoesEndsTheRun)
{
    customize->AddPushButton(1, text("Button").c_str());
    auto owner = std::make_unique<QWidget>();
    EXPECT_EQ(show([&owner](QFileDialog&) { owner.reset(); }, reinterpret_cast<HWND>(owner->winId())), cancelled);
    EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled);
}

TEST_F(WidgetShellRun, anOwnerThatGoesDuringACallbackEndsTheRun)
{
    customize->AddPushButton(1, text("Leave").c_str());
    setTypes({{QStringLiteral("T"), QStringLiteral("*.txt")}, {QStringLiteral("D"), QStringLiteral("*.dat")}});
    dialog->SetFileName(text("a.txt").c_str());
    const std::pair<const char*, std::function<void(WidgetUser&)>> ways[] = {
        {"OnButtonClicked", [](WidgetUser& user) { user.clickButton(1, QStringLiteral("Leave")); }},
        {"OnFileOk", [](WidgetUser& user) { user.pressAccept(); }},
        {"OnFolderChange", [](WidgetUser&) {}},
        {"OnFolderChanging", [](WidgetUser&) {}},
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
                WidgetUser user(*window);
                act(user);
            }
        });
        poll.start(1);
        EXPECT_NE(dialog->Show(handle), E_FAIL) << callback;
    }
}

TEST_F(WidgetShellRun, quittingTheApplicationEndsTheRun)
{
    HRESULT hr = S_OK;
    QTimer::singleShot(0, [&] { hr = show([](QFileDialog&) { QCoreApplication::quit(); }); });
    QApplication::exec();
    EXPECT_EQ(hr, cancelled);
}

TEST_F(WidgetShellRun, controlsAppearAndFollowTheirState)
{
    customize->AddPushButton(1, text("First").c_str());
    customize->AddPushButton(2, text("Second").c_str());
    customize->AddCheckButton(3, text("Third").c_str(), TRUE);
    customize->SetControlState(2, CDCS_ENABLED);
    show([&](QFileDialog& window) {
        WidgetUser user(window);
        EXPECT_TRUE(user.control(QStringLiteral("First")));
        EXPECT_FALSE(user.control(QStringLiteral("Second")));
        EXPECT_TRUE(user.control(QStringLiteral("Third"))->isChecked());
        customize->SetControlState(1, CDCS_VISIBLE);
        EXPECT_FALSE(user.control(QStringLiteral("First"))->isEnabled());
        customize->SetControlState(2, CDCS_ENABLEDVISIBLE);
        EXPECT_TRUE(user.control(QStringLiteral("Second"))->isEnabled());
        customize->SetCheckButtonState(3, FALSE);
        EXPECT_FALSE(user.control(QStringLiteral("Third"))->isChecked());
        customize->AddPushButton(4, text("Late").c_str());
        EXPECT_TRUE(user.control(QStringLiteral("Late")));
        customize->SetControlLabel(4, text("Later").c_str());
        EXPECT_TRUE(user.control(QStringLiteral("Later")));
        window.reject();
    });
}

TEST_F(WidgetShellRun, theProminentButtonStandsWithTheDialogsOwn)
{
    customize->AddPushButton(1, text("Plain").c_str());
    customize->AddPushButton(2, text("Help").c_str());
    ASSERT_EQ(customize->MakeProminent(2), S_OK);
    show([](QFileDialog& window) {
        auto* const box = window.findChild<QDialogButtonBox*>();
        WidgetUser user(window);
        EXPECT_TRUE(box->isAncestorOf(user.control(QStringLiteral("Help"))));
        EXPECT_FALSE(box->isAncestorOf(user.control(QStringLiteral("Plain"))));
        window.reject();
    });
}

TEST_F(WidgetShellRun, theArrowOfTheAcceptButtonIsThereWhileThereIsAnItem)
{
    customize->EnableOpenDropDown(0);
    show([&](QFileDialog& window) {
        auto* const arrow = WidgetUser(window).acceptButton()->findChild<QToolButton*>();
        ASSERT_TRUE(arrow);
        EXPECT_FALSE(arrow->isVisible());
        customize->AddControlItem(0, 1, text("Open as copy").c_str());
        EXPECT_TRUE(arrow->isVisible());
        customize->RemoveControlItem(0, 1);
        EXPECT_FALSE(arrow->isVisible());
        window.reject();
    });
}

TEST_F(WidgetShellRun, otherKindsOfControlsAreNotImplemented)
{
    EXPECT_EQ(customize->AddMenu(1, text("x").c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->AddComboBox(1), E_NOTIMPL);
    EXPECT_EQ(customize->AddRadioButtonList(1), E_NOTIMPL);
    EXPECT_EQ(customize->AddEditBox(1, text("x").c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->AddSeparator(1), E_NOTIMPL);
    EXPECT_EQ(customize->AddText(1, text("x").c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->StartVisualGroup(1, text("x").c_str()), E_NOTIMPL);
    EXPECT_EQ(customize->EndVisualGroup(), E_NOTIMPL);
}

} // namespace
