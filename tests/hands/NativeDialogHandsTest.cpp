// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The native dialog and the launcher, used with keyboard and mouse.
#include "hands/HandsTest.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/RecordingSettings.h"

#include "host/InstanceOverride.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialogOptions.h"
#include "ui/qt/dialogs/SaveFileDialog.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "e2e/Eventually.h"

#include <algorithm>

namespace morvane::test {

namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAreArray;

class NativeDialogHands : public HandsTest
{
protected:
    NativeDialogHands()
    {
        for (const char* const name : {"a.dat", "b b.dat", "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x93\x81.csv", "old.txt"}) {
            QFile file(path(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    ~NativeDialogHands() override { ExtendedFileDialog::setUseNativeFileDialog(true); }

    QString folder() const { return m_folder.path(); }
    QString path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    std::string text(const char* name) const { return path(name).toStdString(); }
    static QAbstractItemView& view(const FileDialogDriver& driver)
    {
        const bool details = driver.dialog().viewMode() == QFileDialog::Detail;
        return *driver.dialog().findChild<QAbstractItemView*>(details ? "treeView" : "listView");
    }

    /** Acts in the next dialog as soon as it accepts keys. */
    void onDialog(ModalScript& user, const std::function<void(FileDialogDriver&)>& act)
    {
        user.on<QFileDialog>([this, act](QFileDialog& dialog) {
            const QPointer<QFileDialog> open(&dialog);
            ASSERT_TRUE(eventually([&] { return dialog.isActiveWindow(); }));
            settle();
            FileDialogDriver driver(dialog);
            act(driver);
            if (open && open->isVisible()) {
                ADD_FAILURE() << "the dialog is still open, with " << driver.name().toStdString();
                dialog.reject();
            }
        });
    }
    /** Clicks on the files, the second and later ones with Control. */
    void pick(FileDialogDriver& driver, const std::vector<const char*>& names)
    {
        for (const char* const name : names) {
            const QString label = QString::fromUtf8(name);
            ASSERT_TRUE(eventually([&] { return driver.listed().contains(label) && isSorted(view(driver)); })) << name;
            settle();
            const QModelIndex index = indexOf(view(driver), label);
            if (name == names.front()) {
                click(view(driver), index);
            } else {
                screen().click(onScreen(view(driver), index), Key::Control);
                settle();
            }
        }
    }
    void pressAccept(FileDialogDriver& driver)
    {
        const bool saving = driver.dialog().acceptMode() == QFileDialog::AcceptSave;
        QAbstractButton* const button = driver.button(saving ? QDialogButtonBox::Save : QDialogButtonBox::Open);
        ASSERT_TRUE(eventually([&] { return button->isEnabled(); })) << driver.name().toStdString();
        click(*button);
    }
    void enterName(FileDialogDriver& driver, const QString& name)
    {
        click(driver.nameEdit());
        press({Key::Control}, 'a');
        type(name);
    }
    /** Selects a row in the list of types. */
    void pickType(FileDialogDriver& driver, int row)
    {
        click(driver.typeCombo());
        QAbstractItemView& list = *driver.typeCombo().view();
        ASSERT_TRUE(eventually([&] { return list.isVisible(); }));
        press(Key::Home);
        for (int step = 0; step < row; ++step) {
            press(Key::Down);
        }
        press(Key::Return);
        ASSERT_TRUE(eventually([&] { return !list.isVisible(); }));
        settle();
    }
    void answerQuestion(ModalScript& user, QMessageBox::StandardButton answer)
    {
        user.on<QMessageBox>([this, answer](QMessageBox& box) {
            ASSERT_TRUE(eventually([&] { return box.isActiveWindow(); }));
            click(*box.button(answer));
        });
    }

private:
    /** The view adds the names while it reads the folder, and sorts them a moment later. */
    static bool isSorted(const QAbstractItemView& files)
    {
        QStringList names;
        for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
            names.append(files.model()->index(row, 0, files.rootIndex()).data().toString());
        }
        return std::is_sorted(names.begin(), names.end(),
            [](const QString& left, const QString& right) { return QString::localeAwareCompare(left, right) < 0; });
    }
    static QModelIndex indexOf(QAbstractItemView& files, const QString& label)
    {
        for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
            const QModelIndex index = files.model()->index(row, 0, files.rootIndex());
            if (index.data().toString() == label) {
                files.scrollTo(index);
                return index;
            }
        }
        return {};
    }

    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/Mess reihe XXXXXX")};
    RecordingSettings m_settings;
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
};

const char* const csv = "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x93\x81.csv";

class NativeDialogHandsReadme : public NativeDialogHands, public ::testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        NativeDialogHands::SetUp();
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
    }

    /** What a person does in each dialog that the button of the sample opens, and the files that are listed then. */
    struct Click
    {
        std::function<void(FileDialogDriver&)> act;
        std::vector<const char*> listed;
    };

    void clickThrough(const std::vector<Click>& clicks)
    {
        QWidget window;
        auto* const button = new QPushButton(QStringLiteral("&Open"));
        auto* const list = new QListWidget;
        auto* const type = new QLabel;
        // The sample of the README.
#include "OpenFilesSnippet.inc"
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(button);
        layout->addWidget(list);
        layout->addWidget(type);
        window.resize(480, 320);
        show(window);
        for (const Click& step : clicks) {
            ModalScript user;
            onDialog(user, [&](FileDialogDriver& driver) {
                if (list->count() == 0) {
                    driver.dialog().setDirectory(folder()); // there is no earlier choice where it could start
                }
                step.act(driver);
            });
            click(*button);
            EXPECT_TRUE(user.finished());
            EXPECT_THAT(textsOf(*list), UnorderedElementsAreArray(pathsOf(step.listed)));
            EXPECT_EQ(type->text(), QStringLiteral("Measurements (*.dat *.csv)"));
        }
    }

private:
    static std::vector<QString> textsOf(const QListWidget& list)
    {
        std::vector<QString> texts;
        for (int row = 0; row < list.count(); ++row) {
            texts.push_back(list.item(row)->text());
        }
        return texts;
    }
    std::vector<QString> pathsOf(const std::vector<const char*>& names) const
    {
        std::vector<QString> paths;
        for (const char* const name : names) {
            paths.push_back(path(name));
        }
        return paths;
    }
};

TEST_P(NativeDialogHandsReadme, opensAFileTenTimesInARow)
{
    std::vector<Click> clicks;
    for (const char* const name : {"b b.dat", csv, "a.dat"}) {
        clicks.push_back({[this, name](FileDialogDriver& driver) {
                              pick(driver, {name});
                              pressAccept(driver);
                          },
            {name}});
        // The dialog starts with the file that was chosen before.
        clicks.push_back({[this](FileDialogDriver& driver) { pressAccept(driver); }, {name}});
        clicks.push_back({[this](FileDialogDriver&) { press(Key::Return); }, {name}});
    }
    clicks.push_back(clicks.front());
    clickThrough(clicks);
}

TEST_P(NativeDialogHandsReadme, opensThreeFilesTenTimesInARow)
{
    const std::vector<const char*> files{"a.dat", "b b.dat", csv};
    const Click three{[this, files](FileDialogDriver& driver) {
                          pick(driver, files);
                          pressAccept(driver);
                      },
        files};
    clickThrough(std::vector<Click>(10, three));
}

TEST_P(NativeDialogHandsReadme, goesOnWhenTheFileHasGoneMeanwhile)
{
    clickThrough({{[this](FileDialogDriver& driver) {
                       pick(driver, {"a.dat"});
                       pressAccept(driver);
                       ASSERT_TRUE(QFile::rename(path("a.dat"), path("moved.dat")));
                   },
                      {"a.dat"}},
        {[this](FileDialogDriver& driver) {
             pick(driver, {"moved.dat"});
             pressAccept(driver);
         },
            {"moved.dat"}},
        {[this](FileDialogDriver& driver) {
             enterName(driver, QStringLiteral("b b.dat"));
             press(Key::Return);
         },
            {"b b.dat"}}});
}

INSTANTIATE_TEST_SUITE_P(Dialogs, NativeDialogHandsReadme, ::testing::Bool(),
    [](const auto& tested) { return std::string(tested.param ? "native" : "qt"); });

class NativeDialogHandsLauncher : public NativeDialogHands, public ::testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        NativeDialogHands::SetUp();
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        show(m_window);
    }
    bool launch(const std::vector<const char*>& selection, bool save, bool several)
    {
        std::vector<std::string> start;
        for (const char* const name : selection) {
            start.push_back(text(name));
        }
        return ui::LaunchFileDialog(
            files, filter, "Launch", {"All files (*.*)", "Data (*.dat)"}, start, save, several, 0);
    }
    std::vector<std::string> paths(const std::vector<const char*>& names) const
    {
        std::vector<std::string> result;
        for (const char* const name : names) {
            result.push_back(text(name));
        }
        return result;
    }

    QWidget m_window;
    std::vector<std::string> files;
    int filter = -1;
};

TEST_P(NativeDialogHandsLauncher, startsWithSeveralFilesAndOpensThemByTheButtonAlone)
{
    ModalScript user;
    onDialog(user, [this](FileDialogDriver& driver) { pressAccept(driver); });
    EXPECT_TRUE(launch({"a.dat", "b b.dat", csv}, false, true));
    EXPECT_THAT(files, UnorderedElementsAreArray(paths({"a.dat", "b b.dat", csv})));
}

TEST_P(NativeDialogHandsLauncher, givesTheFileThatWasPickedToBeSavedWhereSeveralAreAllowed)
{
    for (int time = 0; time < 2; ++time) {
        ModalScript user;
        onDialog(user, [this, &user](FileDialogDriver& driver) {
            pick(driver, {"b b.dat"});
            if (GetParam()) {
                answerQuestion(user, QMessageBox::Yes);
            }
            pressAccept(driver);
        });
        EXPECT_TRUE(launch({"a.dat"}, true, true));
        EXPECT_TRUE(user.finished());
        EXPECT_THAT(files, ElementsAre(text("b b.dat")));
    }
}

TEST_P(NativeDialogHandsLauncher, givesTheSeveralFilesThatItStartedWithToBeSaved)
{
    ModalScript user;
    onDialog(user, [this, &user](FileDialogDriver& driver) {
        if (GetParam()) {
            answerQuestion(user, QMessageBox::Yes);
            answerQuestion(user, QMessageBox::Yes);
        }
        pressAccept(driver);
    });
    EXPECT_TRUE(launch({"b b.dat", "a.dat"}, true, true));
    EXPECT_THAT(files, UnorderedElementsAreArray(paths({"b b.dat", "a.dat"})));
}

TEST_P(NativeDialogHandsLauncher, opensFilesWithQuotesInTheirNames)
{
    const char* const said = "he said \"hi\".dat";
    const char* const quoted = "\"q\".dat";
    for (const char* const name : {said, quoted}) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    for (const char* const name : {said, quoted, said}) {
        ModalScript user;
        onDialog(user, [this, name](FileDialogDriver& driver) {
            pick(driver, {name});
            pressAccept(driver);
        });
        EXPECT_TRUE(launch({name}, false, true));
        EXPECT_THAT(files, ElementsAre(text(name)));
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, NativeDialogHandsLauncher, ::testing::Bool(),
    [](const auto& tested) { return std::string(tested.param ? "native" : "qt"); });

using NativeDialogHandsSave = NativeDialogHands;

TEST_F(NativeDialogHandsSave, opensWithTheNameAsItWasGiven)
{
    QWidget window;
    show(window);
    ExtendedWinFileDialog dialog(window, "Save", folder().toStdString(),
        "All files (*.*);;Data (*.dat);;Everything (*)", "", QFileDialog::AcceptSave, false);
    dialog.selectFile(QStringLiteral("report2.txt"));
    ModalScript user;
    onDialog(user, [this](FileDialogDriver& driver) {
        EXPECT_EQ(driver.name(), QStringLiteral("report2.txt"));
        pickType(driver, 1);
        EXPECT_EQ(driver.name(), QStringLiteral("report2.dat")) << "a type that was picked";
        pickType(driver, 0);
        EXPECT_EQ(driver.name(), QStringLiteral("report2.dat")) << "a wildcard is no extension";
        pickType(driver, 2);
        EXPECT_EQ(driver.name(), QStringLiteral("report2"));
        enterName(driver, QStringLiteral("report2.raw"));
        pressAccept(driver);
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path("report2.raw")));
}

TEST_F(NativeDialogHandsSave, comesBackWithTheNameAsItWasTypedWhenItIsNotToBeReplaced)
{
    QWidget window;
    show(window);
    SaveFileDialog dialog(&window, "Save", folder().toStdString(), "new.dat", "Data (*.dat);;Text (*.txt)", "");
    for (int time = 0; time < 2; ++time) {
        ModalScript user;
        onDialog(user, [this](FileDialogDriver& driver) {
            enterName(driver, QStringLiteral("old.txt"));
            pressAccept(driver);
        });
        answerQuestion(user, QMessageBox::No);
        onDialog(user, [this](FileDialogDriver& driver) {
            EXPECT_EQ(driver.name(), QStringLiteral("old.txt"));
            enterName(driver, QStringLiteral("free.txt"));
            press(Key::Return);
        });
        EXPECT_TRUE(dialog.launch());
        EXPECT_EQ(dialog.selectedFilename(), text("free.txt"));
    }
}

} // namespace

} // namespace morvane::test
