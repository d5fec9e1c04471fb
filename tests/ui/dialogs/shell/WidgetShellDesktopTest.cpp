// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The dialog of a desktop in place of Qt's widgets. The test implements Qt's platform interface to the desktop.
#include "WidgetShellRunTest.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QTimer>
#include <QUrl>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformdialoghelper.h>
#include <qpa/qplatformtheme.h>

namespace morvane::test {

namespace {

using namespace morvane::ui;

/** The dialog that the desktop shows, and its user. */
class DesktopDialog : public QPlatformFileDialogHelper
{
public:
    using Play = std::function<void(DesktopDialog&)>;

    explicit DesktopDialog(Play play) : m_play(std::move(play)) {}

    void userPicks(const QStringList& files)
    {
        m_files.clear();
        for (const QString& file : files) {
            m_files.append(QUrl::fromLocalFile(file));
        }
        Q_EMIT currentChanged(m_files.value(0));
        QCoreApplication::processEvents();
    }
    void userEnters(const QString& folder)
    {
        m_directory = QUrl::fromLocalFile(folder);
        Q_EMIT directoryEntered(m_directory);
        QCoreApplication::processEvents();
    }
    void userPicksType(int position)
    {
        m_filter = options()->nameFilters().value(position);
        Q_EMIT filterSelected(m_filter);
        QCoreApplication::processEvents();
    }
    void userPicksFilter(const QString& filter)
    {
        Q_EMIT filterSelected(filter);
        QCoreApplication::processEvents();
    }
    void userAccepts() { Q_EMIT accept(); }
    void userCancels() { Q_EMIT reject(); }
    QString folder() const { return m_directory.toLocalFile(); }

    void exec() override
    {
        QTimer::singleShot(0, this, [this] { m_play(*this); });
        QTimer::singleShot(15000, this, [this] {
            ADD_FAILURE() << "the desktop's dialog is still open";
            Q_EMIT reject();
        });
        m_loop.exec();
    }
    bool show(Qt::WindowFlags, Qt::WindowModality, QWindow*) override { return true; }
    void hide() override { m_loop.quit(); }

    bool defaultNameFilterDisables() const override { return true; }
    void setDirectory(const QUrl& directory) override { m_directory = directory; }
    QUrl directory() const override { return m_directory; }
    void selectFile(const QUrl& file) override { m_files = {file}; }
    QList<QUrl> selectedFiles() const override { return m_files; }
    void setFilter() override {}
    void selectNameFilter(const QString& filter) override { m_filter = filter; }
    QString selectedNameFilter() const override { return m_filter; }

private:
    const Play m_play;
    QEventLoop m_loop;
    QUrl m_directory;
    QList<QUrl> m_files;
    QString m_filter;
};

/** A desktop whose dialogs are DesktopDialogs. */
class Desktop : public QPlatformTheme
{
public:
    Desktop() : m_before(QGuiApplicationPrivate::platform_theme) { QGuiApplicationPrivate::platform_theme = this; }
    ~Desktop() override { QGuiApplicationPrivate::platform_theme = m_before; }

    bool usePlatformNativeDialog(DialogType type) const override { return type == FileDialog; }
    QPlatformDialogHelper* createPlatformDialogHelper(DialogType type) const override
    {
        return type == FileDialog ? new DesktopDialog([this](DesktopDialog& dialog) { user(dialog); }) : nullptr;
    }

    DesktopDialog::Play user;

private:
    QPlatformTheme* const m_before;
};

class WidgetShellDesktop : public WidgetShellRun
{
protected:
    /** A dialog that needs no widgets, with types. */
    void makePlain(const CLSID& clsid)
    {
        makePlainWithoutTypes(clsid);
        setTypes({{QStringLiteral("Text"), QStringLiteral("*.txt")},
            {QStringLiteral("Data"), QStringLiteral("*.dat;*.csv")}});
    }
    void makePlainWithoutTypes(const CLSID& clsid)
    {
        dialog->Unadvise(cookie);
        ASSERT_EQ(
            plain.coCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid()), S_OK);
        customize = dialog.query<IFileDialogCustomize>();
        ComPtr<IShellItem> item;
        ASSERT_EQ(plain.createItemFromParsingName(
                      toShellString(folder.path()).c_str(), nullptr, IID_IShellItem, item.putVoid()),
            S_OK);
        ASSERT_EQ(dialog->SetFolder(item.get()), S_OK);
        ASSERT_EQ(dialog->Advise(&sink, &cookie), S_OK);
    }
    HRESULT run(const DesktopDialog::Play& play)
    {
        desktop.user = [this, play](DesktopDialog& shown) {
            ++opened;
            play(shown);
        };
        return dialog->Show(nullptr);
    }
    QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

    Desktop desktop;
    WidgetShell plain;
    int opened = 0;
};

TEST_F(WidgetShellDesktop, appearsWhereThereAreNoControls)
{
    makePlain(CLSID_FileOpenDialog);
    const HRESULT hr = run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.folder(), folder.path());
        EXPECT_EQ(shown.options()->acceptMode(), QFileDialogOptions::AcceptOpen);
        EXPECT_EQ(shown.options()->fileMode(), QFileDialogOptions::ExistingFile);
        EXPECT_EQ(shown.options()->nameFilters(),
            QStringList({QStringLiteral("Text (*.txt)"), QStringLiteral("Data (*.dat *.csv)")}));
        shown.userPicks({path("a.txt")});
        shown.userAccepts();
    });
    EXPECT_EQ(hr, S_OK);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(results(), QStringList(QStringLiteral("a.txt")));
    EXPECT_EQ(sink.count("OnSelectionChange"), 1);
    EXPECT_EQ(sink.count("OnFileOk"), 1);
}

TEST_F(WidgetShellDesktop, doesNotAppearWithControls)
{
    makePlain(CLSID_FileOpenDialog);
    customize->AddPushButton(1, text("Button").c_str());
    desktop.user = [this](DesktopDialog&) { ++opened; };
    EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled);
    EXPECT_EQ(opened, 0);
}

TEST_F(WidgetShellDesktop, doesNotAppearForTypesThatItCouldNotTellApart)
{
    makePlain(CLSID_FileOpenDialog);
    ComPtr<IFileDialog> twins;
    ASSERT_EQ(
        plain.coCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, twins.putVoid()),
        S_OK);
    const ShellString name = text("Same");
    const ShellString pattern = text("*.txt");
    const COMDLG_FILTERSPEC types[] = {{name.c_str(), pattern.c_str()}, {name.c_str(), pattern.c_str()}};
    ASSERT_EQ(twins->SetFileTypes(2, types), S_OK);
    desktop.user = [this](DesktopDialog&) { ++opened; };
    ModalScript script;
    script.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
    EXPECT_EQ(twins->Show(nullptr), cancelled);
    EXPECT_EQ(opened, 0);
}

TEST_F(WidgetShellDesktop, givesSeveralFiles)
{
    makePlain(CLSID_FileOpenDialog);
    change(FOS_ALLOWMULTISELECT);
    EXPECT_EQ(run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->fileMode(), QFileDialogOptions::ExistingFiles);
        shown.userPicks({path("a.txt"), path("b.txt")});
        shown.userAccepts();
    }),
        S_OK);
    EXPECT_EQ(results(), QStringList({QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

TEST_F(WidgetShellDesktop, givesNothingWhenCancelled)
{
    makePlain(CLSID_FileSaveDialog);
    EXPECT_EQ(run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->acceptMode(), QFileDialogOptions::AcceptSave);
        EXPECT_FALSE(shown.options()->testOption(QFileDialogOptions::DontConfirmOverwrite));
        EXPECT_FALSE(shown.options()->testOption(QFileDialogOptions::ShowDirsOnly));
        shown.userPicks({path("a.txt")});
        shown.userCancels();
    }),
        cancelled);
    ComPtr<IShellItem> item;
    EXPECT_EQ(dialog->GetResult(item.put()), E_UNEXPECTED);
}

TEST_F(WidgetShellDesktop, tellsOfTypesAndFolders)
{
    makePlain(CLSID_FileOpenDialog);
    run([&](DesktopDialog& shown) {
        sink.log.clear();
        shown.userPicksType(1);
        shown.userPicksType(1);
        shown.userEnters(path("inner"));
        shown.userCancels();
    });
    EXPECT_THAT(sink.log, ::testing::ElementsAre("OnTypeChange 2", "OnFolderChanging inner", "OnFolderChange inner"));
    UINT index = 0;
    dialog->GetFileTypeIndex(&index);
    EXPECT_EQ(index, 2u);
}

TEST_F(WidgetShellDesktop, goesBackFromARefusedFolder)
{
    makePlain(CLSID_FileOpenDialog);
    run([&](DesktopDialog& shown) {
        sink.on["OnFolderChanging"] = [] { return E_ACCESSDENIED; };
        shown.userEnters(path("inner"));
        EXPECT_EQ(shown.folder(), folder.path());
        shown.userCancels();
    });
    EXPECT_EQ(sink.count("OnFolderChange inner"), 0);
}

TEST_F(WidgetShellDesktop, opensAgainWhenItsChoiceIsRefused)
{
    makePlain(CLSID_FileOpenDialog);
    sink.on["OnFileOk"] = [&] { return sink.count("OnFileOk") == 1 ? S_FALSE : S_OK; };
    EXPECT_EQ(run([&](DesktopDialog& shown) {
        shown.userPicks({path(opened == 1 ? "a.txt" : "b.txt")});
        shown.userAccepts();
    }),
        S_OK);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(results(), QStringList(QStringLiteral("b.txt")));
}

TEST_F(WidgetShellDesktop, acceptsNothingBeforeAFileIsPicked)
{
    makePlain(CLSID_FileOpenDialog);
    EXPECT_EQ(run([](DesktopDialog& shown) {
        shown.userAccepts();
        shown.userCancels();
    }),
        cancelled);
    EXPECT_EQ(sink.count("OnFileOk"), 0);
}

TEST_F(WidgetShellDesktop, followsTheHostWhileItIsOpen)
{
    makePlain(CLSID_FileOpenDialog);
    dialog->SetFileName(text("a.txt").c_str());
    run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.selectedFiles(), QList<QUrl>{QUrl::fromLocalFile(path("a.txt"))});
        EXPECT_EQ(dialog->SetFileTypeIndex(2), S_OK);
        EXPECT_EQ(shown.selectedNameFilter(), QStringLiteral("Data (*.dat *.csv)"));
        EXPECT_EQ(dialog->SetFileName(text("b.txt").c_str()), S_OK);
        LPWSTR name = nullptr;
        EXPECT_EQ(dialog->GetFileName(&name), S_OK);
        EXPECT_EQ(toQString(name), QStringLiteral("b.txt"));
        plain.coTaskMemFree(name);
        shown.userCancels();
    });
    EXPECT_EQ(sink.count("OnTypeChange 2"), 0);
}

TEST_F(WidgetShellDesktop, keepsControlsThatComeWhileItIsOpenForTheNextRun)
{
    makePlain(CLSID_FileOpenDialog);
    run([&](DesktopDialog& shown) {
        EXPECT_EQ(customize->AddPushButton(5, text("Preview").c_str()), S_OK);
        EXPECT_EQ(customize->MakeProminent(5), S_OK);
        EXPECT_EQ(customize->AddCheckButton(6, text("Keep").c_str(), TRUE), S_OK);
        EXPECT_EQ(customize->EnableOpenDropDown(7), S_OK);
        EXPECT_EQ(customize->AddControlItem(7, 1, text("Read-only").c_str()), S_OK);
        EXPECT_EQ(dialog->SetOkButtonLabel(text("Take").c_str()), S_OK);
        shown.userCancels();
    });
    EXPECT_EQ(opened, 1);
    ModalScript script;
    script.on<QFileDialog>([](QFileDialog& window) {
        EXPECT_TRUE(window.findChild<QAbstractButton*>(QStringLiteral("customControl5")));
        EXPECT_TRUE(window.findChild<QAbstractButton*>(QStringLiteral("customControl6")));
        window.reject();
    });
    EXPECT_EQ(dialog->Show(nullptr), cancelled);
    EXPECT_EQ(opened, 1) << "the desktop's dialog has no place for controls";
}

TEST_F(WidgetShellDesktop, startsWithTheTypeThatIsSet)
{
    makePlain(CLSID_FileOpenDialog);
    ASSERT_EQ(dialog->SetFileTypeIndex(2), S_OK);
    run([](DesktopDialog& shown) {
        EXPECT_EQ(shown.selectedNameFilter(), QStringLiteral("Data (*.dat *.csv)"));
        shown.userCancels();
    });
    EXPECT_EQ(sink.count("OnTypeChange 2"), 1) << "the one on opening";
}

TEST_F(WidgetShellDesktop, saysWhichFilesAreSelected)
{
    makePlain(CLSID_FileOpenDialog);
    change(FOS_ALLOWMULTISELECT);
    run([&](DesktopDialog& shown) {
        shown.userPicks({path("a.txt"), path("b.txt")});
        ComPtr<IShellItemArray> items;
        ASSERT_EQ(dialog.query<IFileOpenDialog>()->GetSelectedItems(items.put()), S_OK);
        DWORD count = 0;
        EXPECT_EQ(items->GetCount(&count), S_OK);
        EXPECT_EQ(count, 2u);
        shown.userCancels();
    });
}

TEST_F(WidgetShellDesktop, opensWithoutTypesOrPatterns)
{
    makePlainWithoutTypes(CLSID_FileOpenDialog);
    EXPECT_EQ(run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->nameFilters(), QStringList(QStringLiteral("All Files (*)"))) << "Qt's own";
        shown.userPicks({path("a.txt")});
        shown.userAccepts();
    }),
        S_OK);
    setTypes({{QStringLiteral("Everything"), QString()}});
    run([](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->nameFilters(), QStringList(QStringLiteral("Everything (*)")));
        shown.userCancels();
    });
}

TEST_F(WidgetShellDesktop, picksFoldersAndFilesThatNeedNotExist)
{
    makePlainWithoutTypes(CLSID_FileOpenDialog);
    change(FOS_PICKFOLDERS);
    run([](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->fileMode(), QFileDialogOptions::Directory);
        EXPECT_TRUE(shown.options()->testOption(QFileDialogOptions::ShowDirsOnly));
        EXPECT_TRUE(shown.options()->testOption(QFileDialogOptions::DontConfirmOverwrite)) << "an open dialog";
        shown.userCancels();
    });
    change(FOS_NOVALIDATE, FOS_PICKFOLDERS);
    EXPECT_EQ(run([&](DesktopDialog& shown) {
        EXPECT_EQ(shown.options()->fileMode(), QFileDialogOptions::AnyFile);
        shown.userPicks({path("missing.txt")});
        shown.userAccepts();
    }),
        S_OK);
}

TEST_F(WidgetShellDesktop, ignoresATypeThatItWasNotGiven)
{
    makePlain(CLSID_FileOpenDialog);
    run([](DesktopDialog& shown) {
        shown.userPicksFilter(QStringLiteral("Foreign (*.xyz)"));
        shown.userCancels();
    });
    UINT index = 0;
    EXPECT_EQ(dialog->GetFileTypeIndex(&index), S_OK);
    EXPECT_EQ(index, 1u);
    EXPECT_EQ(sink.count("OnTypeChange 1"), 1) << "the one on opening";
}

TEST_F(WidgetShellDesktop, doesNotAppearForTypesWithoutADescriptionOfTheirOwn)
{
    for (const char* const description : {"", "Two  blanks"}) {
        makePlainWithoutTypes(CLSID_FileOpenDialog);
        setTypes({{QString::fromUtf8(description), QStringLiteral("*.txt")}});
        desktop.user = [this](DesktopDialog&) { ++opened; };
        EXPECT_EQ(show([](QFileDialog& window) { window.reject(); }), cancelled) << description;
    }
    EXPECT_EQ(opened, 0);
}

TEST_F(WidgetShellDesktop, closesFromACallback)
{
    for (const char* const callback : {"OnTypeChange", "OnFolderChange", "OnSelectionChange", "OnFileOk"}) {
        makePlain(CLSID_FileOpenDialog);
        opened = 0;
        sink.on.clear();
        EXPECT_EQ(run([&](DesktopDialog& shown) {
            sink.on[callback] = [&] { return dialog->Close(E_ABORT); };
            const std::string name(callback);
            if (name == "OnTypeChange") {
                shown.userPicksType(1);
            } else if (name == "OnFolderChange") {
                shown.userEnters(path("inner"));
            } else {
                shown.userPicks({path("a.txt")});
            }
            if (name == "OnFileOk") {
                shown.userAccepts();
            }
        }),
            E_ABORT)
            << callback;
        EXPECT_EQ(opened, 1) << callback;
    }
}

} // namespace

} // namespace morvane::test
