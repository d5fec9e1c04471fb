// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The appearance of the dialog when it opens.
#include "WidgetShellRunTest.h"

#include "support/FileDialogDriver.h"

#include <QSettings>

namespace morvane::test {

namespace {

using namespace morvane::ui;

class WidgetShellLooks : public WidgetShellRun
{
protected:
    void SetUp() override
    {
        WidgetShellRun::SetUp();
        // Qt stores here the widths that a user has set in any program.
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).remove(QStringLiteral("FileDialog"));
    }
    static void expectWhole(QFileDialog& window)
    {
        const FileDialogDriver driver(window);
        EXPECT_TRUE(waitUntil([&] { return !driver.listed().isEmpty() && driver.cutParts().isEmpty(); }))
            << driver.cutParts().join(QStringLiteral("; ")).toStdString();
        window.reject();
    }
};

TEST_F(WidgetShellLooks, placesAndColumnsAreWholeInEachMode)
{
    for (const CLSID& clsid : {CLSID_FileOpenDialog, CLSID_FileSaveDialog}) {
        for (const FILEOPENDIALOGOPTIONS options : {FILEOPENDIALOGOPTIONS(0),
                 FILEOPENDIALOGOPTIONS(FOS_ALLOWMULTISELECT), FILEOPENDIALOGOPTIONS(FOS_PICKFOLDERS)}) {
            make(clsid);
            change(options);
            show(expectWhole);
        }
    }
}

TEST_F(WidgetShellLooks, placesAndColumnsAreWholeWithControlsOfTheHost)
{
    ASSERT_EQ(customize->EnableOpenDropDown(0), S_OK);
    ASSERT_EQ(customize->AddControlItem(0, 1, text("Open as a copy of it").c_str()), S_OK);
    ASSERT_EQ(customize->AddPushButton(2, text("Button").c_str()), S_OK);
    ASSERT_EQ(customize->AddCheckButton(3, text("Check box").c_str(), TRUE), S_OK);
    show(expectWhole);
    show(expectWhole); // with the widths that Qt has stored after the first run
}

} // namespace

} // namespace morvane::test
