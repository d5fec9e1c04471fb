// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/LaunchFileDialogOptions.h"
#include "ui/qt/util/Translations.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace {

using morvane::ui::installTranslations;

QString allFiles()
{
    return morvane::ui::LaunchFileDialogOptions().nameFilters().value(0);
}

class InstallTranslations : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!MORVANE_HAS_CATALOGUES) {
            GTEST_SKIP() << "built without lrelease of Qt Linguist";
        }
    }
    void TearDown() override { installTranslations(QLocale::c()); }
};

TEST_F(InstallTranslations, eachLanguageHasItsTexts)
{
    const std::pair<const char*, const char*> languages[] = {{"de", "Alle Dateien (*)"},
        {"fr", "Tous les fichiers (*)"}, {"es", "Todos los archivos (*)"}, {"ja", "すべてのファイル (*)"},
        {"zh_CN", "所有文件 (*)"}, {"ar", "جميع الملفات (*)"}};
    for (const auto& [language, text] : languages) {
        EXPECT_TRUE(installTranslations(QLocale(language))) << language;
        EXPECT_EQ(allFiles(), QString::fromUtf8(text)) << language;
    }
}

TEST_F(InstallTranslations, countryDoesNotMatterButTheScriptDoes)
{
    for (const char* const name : {"de_AT", "de_CH", "fr_CA", "es_MX", "ar_EG", "zh_SG"}) {
        EXPECT_TRUE(installTranslations(QLocale(name))) << name;
        EXPECT_NE(allFiles(), "All files (*)") << name;
    }
    for (const char* const name : {"zh_TW", "zh_HK"}) {
        EXPECT_FALSE(installTranslations(QLocale(name))) << name;
        EXPECT_EQ(allFiles(), "All files (*)") << name;
    }
}

TEST_F(InstallTranslations, languageWithoutACatalogueLeavesEnglish)
{
    ASSERT_TRUE(installTranslations(QLocale("de")));
    EXPECT_FALSE(installTranslations(QLocale("fi")));
    EXPECT_EQ(allFiles(), "All files (*)");
}

TEST_F(InstallTranslations, englishNeedsNoCatalogue)
{
    for (const char* const name : {"en_US", "en_GB", "C"}) {
        ASSERT_TRUE(installTranslations(QLocale("de")));
        EXPECT_TRUE(installTranslations(QLocale(name))) << name;
        EXPECT_EQ(allFiles(), "All files (*)") << name;
    }
}

TEST_F(InstallTranslations, lastLanguageReplacesTheOneBefore)
{
    ASSERT_TRUE(installTranslations(QLocale("de")));
    ASSERT_TRUE(installTranslations(QLocale("de")));
    ASSERT_TRUE(installTranslations(QLocale("fr")));
    EXPECT_EQ(allFiles(), "Tous les fichiers (*)");
    ASSERT_TRUE(installTranslations(QLocale("en")));
    EXPECT_EQ(allFiles(), "All files (*)");
}

TEST_F(InstallTranslations, namesOfFilesStayAsTheyAre)
{
    ASSERT_TRUE(installTranslations(QLocale("de")));
    morvane::DefaultSaveFileMessageHandler handler;
    const std::string name = "100%1 %2 \xFF.txt"; // no UTF-8, and what looks like places for names
    handler.filenameToCheck(name);
    EXPECT_EQ(
        handler.okToOverwriteMessage(), "Die Datei " + name + " ist bereits vorhanden. Möchten Sie sie ersetzen?");
    EXPECT_EQ(handler.systemAccessError("%1 voll"),
        "Auf die Datei " + name +
            " kann nicht zugegriffen werden: %1 voll. Möchten Sie es noch einmal versuchen und einen anderen Ort "
            "wählen?");
}

} // namespace
