// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Unusual actions of a host on a dialog of widgets: before it runs, while it runs, and the places where it is run.
#include "WidgetShellRunTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>

#include <memory>
#include <set>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellHost : public WidgetShellRun
{
protected:
    ComPtr<IShellItem> itemFor(const QString& path)
    {
        ComPtr<IShellItem> item;
        EXPECT_EQ(shell.createItemFromParsingName(toShellString(path).c_str(), nullptr, IID_IShellItem, item.putVoid()),
            S_OK);
        return item;
    }
    QString folderOfDialog()
    {
        ComPtr<IShellItem> item;
        EXPECT_EQ(dialog->GetFolder(item.put()), S_OK);
        LPWSTR name = nullptr;
        EXPECT_EQ(item->GetDisplayName(SIGDN_FILESYSPATH, &name), S_OK);
        const QString path = QDir::fromNativeSeparators(toQString(name));
        shell.coTaskMemFree(name);
        return path;
    }
    QString inner() const { return folder.filePath(QStringLiteral("inner")); }
};

TEST_F(WidgetShellHost, showsNothingFromAnotherThread)
{
    HRESULT hr = S_OK;
    const std::unique_ptr<QThread> thread(QThread::create([&] { hr = dialog->Show(nullptr); }));
    thread->start();
    ASSERT_TRUE(thread->wait(10000));
    EXPECT_EQ(hr, E_UNEXPECTED);
    EXPECT_TRUE(sink.log.empty());
    EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled) << "it is not taken for running";
}

TEST_F(WidgetShellHost, findsNoPropertiesInASaveDialog)
{
    make(CLSID_FileSaveDialog);
    const auto save = dialog.query<IFileSaveDialog>();
    ASSERT_TRUE(save);
    EXPECT_EQ(static_cast<IFileDialog*>(save.get()), dialog.get());
    EXPECT_EQ(save->SetSaveAsItem(itemFor(inner()).get()), E_NOTIMPL);
    EXPECT_EQ(save->SetProperties(nullptr), E_NOTIMPL);
    EXPECT_EQ(save->SetCollectedProperties(nullptr, FALSE), E_NOTIMPL);
    EXPECT_EQ(save->ApplyProperties(nullptr, nullptr, nullptr, nullptr), E_NOTIMPL);
    auto* store = reinterpret_cast<IPropertyStore*>(this);
    EXPECT_EQ(save->GetProperties(&store), E_NOTIMPL);
    EXPECT_EQ(store, nullptr);
    EXPECT_EQ(save->GetProperties(nullptr), E_POINTER);
}

TEST_F(WidgetShellHost, findsTheInterfacesOfASaveDialog)
{
    make(CLSID_FileSaveDialog);
    EXPECT_TRUE(dialog.query<IUnknown>());
    EXPECT_TRUE(dialog.query<IModalWindow>());
    EXPECT_FALSE(dialog.query<IFileOpenDialog>());
    EXPECT_EQ(dialog->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(WidgetShellHost, goesToTheDefaultFolderWhenItsOwnHasGone)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("short-lived")));
    const QString gone = folder.filePath(QStringLiteral("short-lived"));
    ASSERT_EQ(dialog->SetFolder(itemFor(gone).get()), S_OK);
    ASSERT_TRUE(QDir().rmdir(gone));
    EXPECT_EQ(folderOfDialog(), QDir::currentPath());
    ASSERT_EQ(dialog->SetDefaultFolder(itemFor(inner()).get()), S_OK);
    EXPECT_EQ(folderOfDialog(), inner());
    show([&](QFileDialog& window) {
        EXPECT_EQ(window.directory().path(), inner());
        window.reject();
    });
}

TEST_F(WidgetShellHost, staysWhenSentToAFileOrToAFolderThatHasGone)
{
    show([&](QFileDialog& window) {
        EXPECT_EQ(dialog->SetFolder(itemFor(folder.filePath(QStringLiteral("a.txt"))).get()), S_OK);
        EXPECT_EQ(window.directory().path(), folder.path());
        window.reject();
    });
    EXPECT_EQ(folderOfDialog(), folder.path());
}

TEST_F(WidgetShellHost, maySendTheUserElsewhere)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("elsewhere")));
    show([&](QFileDialog& window) {
        sink.log.clear();
        sink.on["OnFolderChanging"] = [&] {
            const bool first = sink.count("OnFolderChanging elsewhere") == 0;
            return first ? dialog->SetFolder(itemFor(folder.filePath(QStringLiteral("elsewhere"))).get()) : S_OK;
        };
        FileDialogDriver::whenActive(window).enterFolder(inner());
        window.reject();
    });
    EXPECT_EQ(sink.count("OnFolderChange elsewhere"), 1);
    EXPECT_EQ(sink.count("OnFolderChange inner"), 0);
    EXPECT_EQ(folderOfDialog(), folder.filePath(QStringLiteral("elsewhere")));
}

TEST_F(WidgetShellHost, setsTypesAndTextsWhileItRuns)
{
    setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}, {QStringLiteral("Data"), QStringLiteral("*.dat")}});
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        EXPECT_EQ(dialog->SetFileTypeIndex(2), S_OK);
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shownFiles(window) == (QStringList{QStringLiteral("c.dat"), QStringLiteral("inner")});
        }));
        EXPECT_EQ(dialog->SetTitle(text("Other").c_str()), S_OK);
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Other"));
        EXPECT_EQ(dialog->SetOkButtonLabel(text("Take").c_str()), S_OK);
        EXPECT_EQ(driver.acceptButton().text(), QStringLiteral("Take"));
        EXPECT_EQ(dialog->SetFileNameLabel(text("Called").c_str()), S_OK);
        EXPECT_EQ(window.labelText(QFileDialog::FileName), QStringLiteral("Called"));
        EXPECT_EQ(dialog->SetFolder(itemFor(inner()).get()), S_OK);
        driver.enterFolder(folder.path());
        EXPECT_EQ(sink.count("OnFolderChange inner"), 1);
        window.reject();
    });
    EXPECT_EQ(sink.count("OnTypeChange 2"), 0);
}

TEST_F(WidgetShellHost, takesThePatternsOfATypeApartWhateverIsBetweenThem)
{
    setTypes({{QStringLiteral("Odd"), QStringLiteral(" *.dat ; ;;*.TXT;")}});
    show([&](QFileDialog& window) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == 5; }));
        window.reject();
    });
}

TEST_F(WidgetShellHost, seesHiddenFilesWhenItAsksForThem)
{
    makeHiddenFile();
    for (const bool shown : {false, true}) {
        change(shown ? FILEOPENDIALOGOPTIONS(FOS_FORCESHOWHIDDEN) : 0);
        show([&](QFileDialog& window) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window).size() == (shown ? 6 : 5); }));
            EXPECT_EQ(shownFiles(window).contains(QStringLiteral(".hidden")), shown);
            window.reject();
        });
    }
}

TEST_F(WidgetShellHost, hasNoTypesWhileItPicksFolders)
{
    change(FOS_PICKFOLDERS, FOS_FILEMUSTEXIST);
    setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")}, {QStringLiteral("Data"), QStringLiteral("*.dat")}});
    show([&](QFileDialog& window) {
        EXPECT_FALSE(FileDialogDriver::whenActive(window).typeCombo().isVisible());
        const QStringList folders(QStringLiteral("inner"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window) == folders; })) << "and no files";
        EXPECT_EQ(dialog->SetFileTypeIndex(2), S_OK);
        QCoreApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitFor([&] { return shownFiles(window) == folders; })) << "whatever the patterns";
        window.reject();
    });
}

TEST_F(WidgetShellHost, picksNoFolderThatIsAFileOrMissing)
{
    change(FOS_PICKFOLDERS, FOS_FILEMUSTEXIST);
    dialog->SetDefaultExtension(text("txt").c_str()); // has no effect on folders
    for (const char* const typed : {"a.txt", "missing"}) {
        dialog->SetFileName(text(typed).c_str());
        const HRESULT hr = show([&](QFileDialog& window) {
            const FileDialogDriver driver = FileDialogDriver::whenActive(window);
            pressAcceptAndReadMessage(driver, std::string(typed) + "\nDirectory not found");
            driver.pressCancel();
        });
        EXPECT_EQ(hr, cancelled) << typed;
    }
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellHost, picksAFolderInASaveDialogWithoutAskingToReplaceIt)
{
    make(CLSID_FileSaveDialog);
    change(FOS_PICKFOLDERS);
    dialog->SetDefaultExtension(text("txt").c_str());
    dialog->SetFileName(text("inner").c_str());
    EXPECT_EQ(show([](QFileDialog& window) { FileDialogDriver::whenActive(window).pressAccept(); }), S_OK);
    EXPECT_EQ(sink.count("OnOverwrite inner"), 0);
}

TEST_F(WidgetShellHost, findsTheTypedNameWhereNothingIsSelected)
{
    show([&](QFileDialog& window) {
        FileDialogDriver::whenActive(window).typeName(QStringLiteral("b.txt"));
        window.findChild<QListView*>(QStringLiteral("listView"))->clearSelection();
        ComPtr<IShellItem> item;
        ASSERT_EQ(dialog->GetCurrentSelection(item.put()), S_OK);
        int order = 5;
        EXPECT_EQ(
            item->Compare(itemFor(folder.filePath(QStringLiteral("b.txt"))).get(), SICHINT_CANONICAL, &order), S_OK);
        window.reject();
    });
}

TEST_F(WidgetShellHost, opensAFolderAmongTheTypedNames)
{
    change(FOS_ALLOWMULTISELECT);
    show([&](QFileDialog& window) {
        const FileDialogDriver driver = FileDialogDriver::whenActive(window);
        driver.typeName(QStringLiteral("\"a.txt\" \"inner\""));
        driver.pressAccept();
        EXPECT_EQ(window.directory().path(), inner());
        EXPECT_EQ(driver.name(), QString());
        window.reject();
    });
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

/** The labels of the custom controls in their row, in reading order; no two controls may overlap. */
QStringList labelsInRow(QFileDialog& window)
{
    QCoreApplication::processEvents(); // the layout
    auto* const row = window.findChild<QWidget*>(QStringLiteral("customControls"));
    std::map<std::pair<int, int>, QAbstractButton*> places;
    for (auto* const button : row->findChildren<QAbstractButton*>()) {
        for (const auto& other : places) {
            EXPECT_FALSE(other.second->geometry().intersects(button->geometry()))
                << button->text().toStdString() << " covers " << other.second->text().toStdString();
        }
        places[{button->geometry().center().y(), button->x()}] = button;
    }
    QStringList labels;
    for (const auto& place : places) {
        labels.append(place.second->text());
    }
    return labels;
}

TEST_F(WidgetShellHost, movesAProminentButtonOutOfTheRowAndBack)
{
    for (DWORD id = 1; id <= 5; ++id) {
        ASSERT_EQ(customize->AddPushButton(id, toShellString(QString::number(id)).c_str()), S_OK);
    }
    show([&](QFileDialog& window) {
        auto* const row = window.findChild<QWidget*>(QStringLiteral("customControls"));
        const auto isInRow = [&](int id) {
            return row->isAncestorOf(FileDialogDriver::whenActive(window).control(QString::number(id)));
        };
        EXPECT_EQ(labelsInRow(window), QStringLiteral("1 2 3 4 5").split(QLatin1Char(' ')));
        EXPECT_EQ(customize->MakeProminent(1), S_OK);
        EXPECT_FALSE(isInRow(1));
        EXPECT_EQ(labelsInRow(window), QStringLiteral("2 3 4 5").split(QLatin1Char(' ')));
        EXPECT_EQ(customize->MakeProminent(3), S_OK);
        EXPECT_TRUE(isInRow(1));
        EXPECT_FALSE(isInRow(3));
        EXPECT_EQ(labelsInRow(window), QStringLiteral("2 4 5 1").split(QLatin1Char(' '))) << "at the end";
        ASSERT_EQ(customize->AddPushButton(6, text("6").c_str()), S_OK);
        EXPECT_EQ(labelsInRow(window), QStringLiteral("2 4 5 1 6").split(QLatin1Char(' ')));
        FileDialogDriver::whenActive(window).clickControl(QStringLiteral("1"));
        window.reject();
    });
    EXPECT_EQ(sink.count("OnButtonClicked 1"), 1);
}

TEST_F(WidgetShellHost, leavesAProminentCheckButtonInItsRow)
{
    ASSERT_EQ(customize->AddPushButton(1, text("Button").c_str()), S_OK);
    ASSERT_EQ(customize->AddCheckButton(2, text("Check").c_str(), FALSE), S_OK);
    ASSERT_EQ(customize->MakeProminent(1), S_OK);
    show([&](QFileDialog& window) {
        EXPECT_EQ(customize->MakeProminent(2), S_OK);
        EXPECT_EQ(labelsInRow(window), QStringLiteral("Check Button").split(QLatin1Char(' ')))
            << "and the button comes back";
        window.reject();
    });
}

TEST_F(WidgetShellHost, knowsNoStatesOfControlsButEnabledAndVisible)
{
    ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
    ASSERT_EQ(customize->AddControlItem(0, 1, text("Item").c_str()), S_OK);
    const auto strange = static_cast<CDCONTROLSTATEF>(0xF0 | CDCS_VISIBLE);
    ASSERT_EQ(customize->SetControlState(0, strange), S_OK);
    ASSERT_EQ(customize->SetControlItemState(0, 1, strange), S_OK);
    CDCONTROLSTATEF state = CDCS_INACTIVE;
    EXPECT_EQ(customize->GetControlState(0, &state), S_OK);
    EXPECT_EQ(state, CDCS_VISIBLE);
    EXPECT_EQ(customize->GetControlItemState(0, 1, &state), S_OK);
    EXPECT_EQ(state, CDCS_VISIBLE);
}

TEST_F(WidgetShellHost, hearsOfTheFirstOfTwoExceptions)
{
    struct First
    {
    };
    struct Second
    {
    };
    ASSERT_EQ(customize->AddPushButton(1, text("Button").c_str()), S_OK);
    EXPECT_THROW(show([&](QFileDialog& window) {
        sink.on["OnFolderChanging"] = []() -> HRESULT { throw First(); };
        sink.on["OnButtonClicked"] = [&]() -> HRESULT {
            EXPECT_EQ(dialog->SetFolder(itemFor(inner()).get()), S_OK);
            throw Second();
        };
        FileDialogDriver::whenActive(window).clickControl(QStringLiteral("Button"));
    }),
        First);
}

TEST_F(WidgetShellHost, hidesTheRowWithItsLastControl)
{
    ASSERT_EQ(customize->AddPushButton(1, text("Button").c_str()), S_OK);
    show([&](QFileDialog& window) {
        auto* const row = window.findChild<QWidget*>(QStringLiteral("customControls"));
        EXPECT_TRUE(row->isVisible());
        EXPECT_EQ(customize->SetControlState(1, CDCS_ENABLED), S_OK);
        EXPECT_FALSE(row->isVisible());
        EXPECT_EQ(customize->SetControlState(1, CDCS_ENABLEDVISIBLE), S_OK);
        EXPECT_TRUE(row->isVisible());
        EXPECT_EQ(customize->MakeProminent(1), S_OK);
        EXPECT_FALSE(row->isVisible()) << "the button has left it";
        window.reject();
    });
}

TEST_F(WidgetShellHost, hidesTheArrowWithItsDropDown)
{
    ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
    ASSERT_EQ(customize->AddControlItem(0, 1, text("Item").c_str()), S_OK);
    show([&](QFileDialog& window) {
        auto* const arrow = window.findChild<QWidget*>(QStringLiteral("acceptMenuArrow"));
        FileDialogDriver::whenActive(window).typeName(
            QStringLiteral("a.txt")); // without a name nothing can be accepted
        EXPECT_TRUE(arrow->isVisible());
        EXPECT_TRUE(arrow->isEnabled());
        EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("customControls"))->isVisible())
            << "not a control there";
        EXPECT_EQ(customize->SetControlItemState(0, 1, CDCS_ENABLED), S_OK);
        EXPECT_FALSE(arrow->isVisible()) << "no item that can be seen";
        EXPECT_EQ(customize->SetControlItemState(0, 1, CDCS_VISIBLE), S_OK);
        EXPECT_TRUE(arrow->isVisible());
        EXPECT_EQ(customize->SetControlState(0, CDCS_VISIBLE), S_OK);
        EXPECT_FALSE(arrow->isEnabled());
        EXPECT_EQ(customize->SetControlState(0, CDCS_INACTIVE), S_OK);
        EXPECT_FALSE(arrow->isVisible());
        window.reject();
    });
}

} // namespace

} // namespace morvane::test
