// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The file dialogs made of widgets: Qt's, and the replacement of the native dialog.
#include "hands/HandsTest.h"

#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/OverrideCursors.h"
#include "support/RecordingSettings.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"

#include <boost/make_shared.hpp>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QFile>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace morvane::test {

namespace {

using Cursors = std::vector<Qt::CursorShape>;

const std::string filters = "Text (*.txt);;Data (*.dat);;All files (*)";

class QtDialogHands : public HandsTest
{
protected:
    void SetUp() override
    {
        HandsTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        for (const char* const name : {"a.txt", "b.txt", "c.dat", "sub/d.dat"}) {
            QDir(m_folder.path()).mkdir(QStringLiteral("sub"));
            QFile file(m_folder.filePath(QLatin1String(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        // Qt stores here the widths that a user has set in any program.
        QSettings(QSettings::UserScope, QStringLiteral("QtProject")).remove(QStringLiteral("FileDialog"));
        m_host.setGeometry(40, 40, 200, 80);
        show(m_host);
    }
    void TearDown() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(true);
        EXPECT_EQ(overrideCursors(), Cursors()) << "a cursor was left behind";
        HandsTest::TearDown();
    }

    std::string folder() const { return m_folder.path().toStdString(); }
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /** Acts in the file dialog that opens next, and then cancels the dialog if it is still open. */
    std::function<void(QFileDialog&)> user(std::function<void(FileDialogDriver&)> act)
    {
        return [this, act = std::move(act)](QFileDialog& dialog) {
            activate(dialog);
            const QPointer<QFileDialog> open(&dialog);
            FileDialogDriver driver(dialog);
            act(driver);
            // The first Escape may only close the suggestions.
            for (int escapes = 0; open && open->isVisible() && escapes < 3; ++escapes) {
                press(Key::Escape);
            }
            if (open && open->isVisible()) {
                ADD_FAILURE() << "Escape does not close the dialog";
                open->reject();
            }
        };
    }
    void replaceName(const FileDialogDriver& driver, const QString& text)
    {
        click(driver.nameEdit());
        press({Key::Control}, 'a');
        type(text);
    }
    /** The next click only closes the suggestions. */
    void closeSuggestions(const FileDialogDriver& driver)
    {
        if (driver.nameEdit().completer()->popup()->isVisible()) {
            click(*driver.dialog().findChild<QLabel*>(QStringLiteral("lookInLabel")));
        }
    }
    void clickAccept(const FileDialogDriver& driver)
    {
        closeSuggestions(driver);
        click(driver.acceptButton());
    }
    void enterName(const FileDialogDriver& driver, const QString& text)
    {
        replaceName(driver, text);
        const QPointer<QFileDialog> open(&driver.dialog());
        const bool suggests = driver.nameEdit().completer()->popup()->isVisible();
        press(Key::Return);
        if (suggests && open && open->isVisible()) {
            press(Key::Return); // the first Return only closed the suggestions
        }
    }
    /** Opens the menu on the accept button and acts in it; returns when it is closed. */
    void inAcceptMenu(const FileDialogDriver& driver, const std::function<void(QMenu&)>& act)
    {
        auto& opener = *driver.dialog().findChild<QToolButton*>(QStringLiteral("acceptMenuArrow"));
        closeSuggestions(driver);
        bool opened = false;
        QTimer poll; // the menu runs a loop of its own
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (!opened && opener.menu()->isVisible()) {
                opened = true;
                act(*opener.menu());
            }
        });
        poll.start(5);
        click(opener);
        EXPECT_TRUE(opened);
    }
    static void expectListed(const FileDialogDriver& driver, const QStringList& names)
    {
        EXPECT_TRUE(driver.waitForListed(names));
    }

    QWidget m_host;
    QTemporaryDir m_folder;
    RecordingSettings m_settings;
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
};

const Cursors arrow = {Qt::ArrowCursor};

TEST_F(QtDialogHands, theCursorIsAnArrowWhileNothingIsReadAndTheHostsStackIsAsItWasAfterwards)
{
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    const Cursors idle = {Qt::BusyCursor, Qt::ArrowCursor};
    QExtendedFileDialog dialog(m_host, "Open", "/", filters, "", QFileDialog::AcceptOpen);
    auto& model = *dialog.findChild<QFileSystemModel*>();
    QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
    for (int round = 0; round < 2; ++round) {
        dialog.setDirectory(m_folder.path());
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
            expectListed(driver, {"a.txt", "b.txt", "sub"});
            EXPECT_TRUE(waitUntil([&] { return overrideCursors() == idle; })) << "set before the run, " << round;
            replaceName(driver, QStringLiteral("sub/"));
            EXPECT_TRUE(waitUntil([&] { return loaded.contains({path("sub")}); })) << "read for the suggestions";
            press(Key::Return);
            EXPECT_TRUE(waitUntil([&] { return model.rootPath() == path("sub"); }));
            settle();
            EXPECT_EQ(overrideCursors(), idle) << "typed, and read already, " << round;
            enterName(driver, QStringLiteral("../"));
            expectListed(driver, {"a.txt", "b.txt", "sub"});
            EXPECT_TRUE(waitUntil([&] { return overrideCursors() == idle; }));
        }));
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor})) << round;
    }
    QGuiApplication::restoreOverrideCursor();

    ExtendedFileDialog::setUseNativeFileDialog(false);
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == arrow; })) << "a selection in another folder";
        click(driver.acceptButton());
    }));
    std::vector<std::string> files;
    int filter = 0;
    EXPECT_TRUE(
        ui::LaunchFileDialog(files, filter, "Open", {"All (*)"}, {path("sub/d.dat").toStdString()}, false, false, 0));
    EXPECT_EQ(files, std::vector<std::string>({path("sub/d.dat").toStdString()}));
}

TEST_F(QtDialogHands, theCursorWaitsWhileAFolderIsRead)
{
    QTemporaryDir many;
    for (int number = 0; number < 20000; ++number) {
        QFile file(many.filePath(QString::number(number)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QExtendedFileDialog dialog(m_host, "Open", folder(), filters, "", QFileDialog::AcceptOpen);
    QSignalSpy loaded(dialog.findChild<QFileSystemModel*>(), &QFileSystemModel::directoryLoaded);
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == arrow; }));
        dialog.setDirectory(many.path());
        EXPECT_TRUE(waitUntil([&] {
            EXPECT_EQ(overrideCursors().back(), loaded.contains({many.path()}) ? Qt::ArrowCursor : Qt::WaitCursor);
            return loaded.contains({many.path()});
        }));
        dialog.setDirectory(m_folder.path());
        press(Key::Escape); // perhaps before the folder is read
        EXPECT_FALSE(driver.isOpen());
    }));
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QtDialogHands, aTypedWildcardFiltersTheDialogOfWidgetsAndIsNeverReturned)
{
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        ExtendedWinFileDialog dialog(m_host, "Choose", folder(), filters, "", mode, false);
        dialog.addCustomButton("Host", [] {}); // a dialog with a button consists of widgets on every desktop
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
            expectListed(driver, {"a.txt", "b.txt", "sub"});
            enterName(driver, QStringLiteral("*.dat"));
            expectListed(driver, {"c.dat", "sub"});
            EXPECT_TRUE(driver.isOpen());
            EXPECT_EQ(driver.currentType(), QStringLiteral("Text (*.dat)"));
            replaceName(driver, QStringLiteral("sub/d*"));
            clickAccept(driver);
            expectListed(driver, {"d.dat"});
            EXPECT_TRUE(driver.isOpen());
            clickAccept(driver);
            EXPECT_TRUE(driver.isOpen()) << "the same once more";
            press(Key::Escape);
        }));
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        ModalScript again;
        again.on<QFileDialog>(user([&](FileDialogDriver& driver) {
            clickAccept(driver); // the text that is still in the field is a wildcard
            EXPECT_TRUE(driver.isOpen());
            enterName(driver, path("c.dat"));
            if (mode == QFileDialog::AcceptSave) {
                press(Key::Tab);
                press(Key::Return);
            }
        }));
        if (mode == QFileDialog::AcceptSave) {
            again.on<QMessageBox>([this](QMessageBox& box) {
                activate(box);
                click(*box.button(QMessageBox::Yes));
            });
        }
        EXPECT_EQ(dialog.exec(), QDialog::Accepted);
        EXPECT_EQ(dialog.selectedFiles(), QStringList(path("c.dat")));
    }
}

TEST_F(QtDialogHands, theAcceptButtonSaysWhatItDoesAndClosingChoosesNothing)
{
    ExtendedWinFileDialog dialog(m_host, "Export", folder(), filters, "", QFileDialog::AcceptOpen, true);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.addAcceptButtonOption("Import", 11);
    dialog.addAcceptButtonOption("Import and close", 22);
    dialog.addCustomButton("Done", [&] { dialog.close(); });
    const auto pickSecond = [this](const FileDialogDriver& driver) {
        inAcceptMenu(driver, [this](QMenu& menu) { click(menu, menu.actionGeometry(menu.actions().last()).center()); });
    };
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        EXPECT_EQ(driver.acceptButton().text(), QStringLiteral("Import"));
        replaceName(driver, QStringLiteral("a.txt"));
        EXPECT_EQ(driver.acceptButton().text(), QStringLiteral("Import"));
        clickAccept(driver);
    }));
    ASSERT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedAcceptMenuOption(), 11);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path("a.txt")));

    ModalScript closing;
    closing.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        replaceName(driver, QStringLiteral("b.txt"));
        for (QAbstractButton* const button : driver.dialog().findChildren<QAbstractButton*>()) {
            if (button->text() == QStringLiteral("Done")) {
                closeSuggestions(driver);
                click(*button);
                return;
            }
        }
    }));
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList());

    ModalScript picking;
    picking.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        replaceName(driver, QStringLiteral("missing.txt"));
        pickSecond(driver);
        replaceName(driver, QStringLiteral("a.txt"));
        clickAccept(driver);
    }));
    picking.on<QMessageBox>([this](QMessageBox& box) {
        activate(box);
        press(Key::Return);
    });
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedAcceptMenuOption(), 11) << "what the pressed button says, not what was refused before";
}

TEST_F(QtDialogHands, whatTheHeadersSayOfFiltersAndDirectoriesHappens)
{
    for (const bool native : {false, true}) {
        SCOPED_TRACE(native);
        ExtendedFileDialog::setUseNativeFileDialog(native);
        // An index outside of the list selects the first filter; an entry with two filters counts as two.
        for (const int start : {-1, 7}) {
            std::vector<std::string> files;
            int filter = -5;
            ModalScript script;
            script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
                EXPECT_EQ(driver.typeCombo().currentIndex(), 0);
                driver.pickTypeWithKeys(2);
                enterName(driver, QStringLiteral("c.dat"));
            }));
            EXPECT_TRUE(ui::LaunchFileDialog(files, filter, "Open", {"Text (*.txt);;Data (*.dat)", "All (*)"},
                {path("a.txt").toStdString()}, false, false, start));
            EXPECT_EQ(filter, 2);
        }
    }
    // An empty directory means the directory that was visited last.
    QDir::setCurrent(QStringLiteral("/"));
    QExtendedFileDialog visits(m_host, "", path("sub").toStdString(), "", "", QFileDialog::AcceptOpen);
    QExtendedFileDialog next(m_host, "", "", "", "", QFileDialog::AcceptOpen);
    EXPECT_EQ(next.directory(), QDir(path("sub")));

    // Only Enter applies a wildcard: the accept button stays disabled, because it needs an existing file.
    QExtendedFileDialog wildcard(m_host, "Open", folder(), filters, "", QFileDialog::AcceptOpen);
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogDriver& driver) {
        expectListed(driver, {"a.txt", "b.txt", "sub"});
        replaceName(driver, QStringLiteral("*.dat"));
        EXPECT_FALSE(driver.acceptButton().isEnabled());
        press(Key::Return);
        expectListed(driver, {"c.dat", "sub"});
    }));
    EXPECT_EQ(wildcard.exec(), QDialog::Rejected);
}

class QtDialogHandsLooks : public QtDialogHands
{
protected:
    /** Nothing is cut off, the types are shown only for files, and the suggestions open below the field. */
    void expectGoodLooks(const FileDialogDriver& driver, bool picksFolders)
    {
        EXPECT_TRUE(waitUntil([&] { return !driver.listed().isEmpty() && driver.cutParts().isEmpty(); }))
            << driver.cutParts().join(QStringLiteral("; ")).toStdString();
        EXPECT_EQ(driver.typeCombo().isVisible(), !picksFolders);
        EXPECT_EQ(driver.dialog().findChild<QLabel*>(QStringLiteral("fileTypeLabel"))->isVisible(), !picksFolders);
        replaceName(driver, QStringLiteral("s"));
        const QWidget& list = *driver.nameEdit().completer()->popup();
        ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
        const QRect field(driver.nameEdit().mapToGlobal(QPoint(0, 0)), driver.nameEdit().size());
        EXPECT_LE(std::abs(list.geometry().top() - field.bottom()), 2);
        EXPECT_EQ(list.geometry().left(), field.left());
        press(Key::Escape);
        EXPECT_TRUE(driver.isOpen());
    }
    void expectMenuBesideTheButtons(const FileDialogDriver& driver)
    {
        inAcceptMenu(driver, [&](QMenu& menu) {
            for (const QAbstractButton* const button : driver.dialog().findChildren<QAbstractButton*>()) {
                const QRect place(button->mapToGlobal(QPoint(0, 0)), button->size());
                EXPECT_FALSE(button->isVisible() && place.intersects(menu.geometry())) << button->text().toStdString();
            }
            press(Key::Escape);
        });
        EXPECT_TRUE(driver.isOpen());
    }
};

TEST_F(QtDialogHandsLooks, eachDialogShowsAllOfItselfWhenItOpens)
{
    for (const auto mode : {QFileDialog::ExistingFile, QFileDialog::ExistingFiles, QFileDialog::Directory}) {
        const bool picksFolders = mode == QFileDialog::Directory;
        SCOPED_TRACE(mode);
        QExtendedFileDialog dialog(m_host, "Open", folder(), filters, "topic", QFileDialog::AcceptOpen);
        dialog.setGeometryPersistenceKey(std::to_string(mode));
        dialog.setFileMode(mode);
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogDriver& driver) { expectGoodLooks(driver, picksFolders); }));
        dialog.exec();

        ExtendedWinFileDialog native(m_host, "Open", folder(), filters, "topic", QFileDialog::AcceptOpen, true);
        native.setFileMode(mode);
        native.addCustomButton("Preview", [] {});
        native.addCustomCheckBox("Compress", boost::make_shared<Property<bool>>(true));
        native.addAcceptButtonOption("Open as copy", 1);
        native.addAcceptButtonOption("Open read-only", 2);
        ModalScript second;
        second.on<QFileDialog>(user([&](FileDialogDriver& driver) {
            expectGoodLooks(driver, picksFolders);
            replaceName(driver, QStringLiteral("a"));
            expectMenuBesideTheButtons(driver);
        }));
        native.exec();
    }
    for (const bool native : {false, true}) {
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogDriver& driver) { expectGoodLooks(driver, false); }));
        if (native) {
            ExtendedWinFileDialog(m_host, "Save", folder(), filters, "", QFileDialog::AcceptSave, false).exec();
        } else {
            QExtendedFileDialog dialog(m_host, "Save", folder(), filters, "", QFileDialog::AcceptSave);
            dialog.setGeometryPersistenceKey("saving");
            dialog.exec();
        }
    }
}

} // namespace

} // namespace morvane::test
