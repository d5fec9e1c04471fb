// The file dialogs that consist of widgets: Qt's, and the one that stands in for the native one.
#include "hands/HandsTest.h"

#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "support/FileDialogPage.h"
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
        // Where Qt keeps the widths that a user has left, in any program.
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

    /** What a user does in the file dialog that opens next; cancels it when it is still open then. */
    std::function<void(QFileDialog&)> user(std::function<void(FileDialogPage&)> act)
    {
        return [this, act = std::move(act)](QFileDialog& dialog) {
            activate(dialog);
            const QPointer<QFileDialog> open(&dialog);
            FileDialogPage page(dialog);
            act(page);
            // The first one may be for the suggestions.
            for (int escapes = 0; open && open->isVisible() && escapes < 3; ++escapes) {
                press(Key::Escape);
            }
            if (open && open->isVisible()) {
                ADD_FAILURE() << "Escape does not close the dialog";
                open->reject();
            }
        };
    }
    void replaceName(const FileDialogPage& page, const QString& text)
    {
        click(page.nameEdit());
        press({Key::Control}, 'a');
        type(text);
    }
    /** The suggestions take the next click for themselves. */
    void closeSuggestions(const FileDialogPage& page)
    {
        if (page.nameEdit().completer()->popup()->isVisible()) {
            click(*page.dialog().findChild<QLabel*>(QStringLiteral("lookInLabel")));
        }
    }
    void clickAccept(const FileDialogPage& page)
    {
        closeSuggestions(page);
        click(acceptButton(page));
    }
    void enterName(const FileDialogPage& page, const QString& text)
    {
        replaceName(page, text);
        const QPointer<QFileDialog> open(&page.dialog());
        const bool suggests = page.nameEdit().completer()->popup()->isVisible();
        press(Key::Return);
        if (suggests && open && open->isVisible()) {
            press(Key::Return); // the first one was for the suggestions
        }
    }
    static QAbstractButton& acceptButton(const FileDialogPage& page)
    {
        auto* const box = page.dialog().findChild<QDialogButtonBox*>();
        for (QAbstractButton* const button : box->buttons()) {
            if (box->buttonRole(button) == QDialogButtonBox::AcceptRole) {
                return *button;
            }
        }
        throw std::logic_error("no accept button");
    }
    /** Opens the menu on the accept button and acts in it; returns when it is closed. */
    void inAcceptMenu(const FileDialogPage& page, const std::function<void(QMenu&)>& act)
    {
        auto& opener = *page.dialog().findChild<QToolButton*>(QStringLiteral("acceptMenuArrow"));
        closeSuggestions(page);
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
    static void expectListed(const FileDialogPage& page, const QStringList& names)
    {
        EXPECT_TRUE(page.waitForListed(names));
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
        script.on<QFileDialog>(user([&](FileDialogPage& page) {
            expectListed(page, {"a.txt", "b.txt", "sub"});
            EXPECT_TRUE(waitUntil([&] { return overrideCursors() == idle; })) << "set before the run, " << round;
            replaceName(page, QStringLiteral("sub/"));
            EXPECT_TRUE(waitUntil([&] { return loaded.contains({path("sub")}); })) << "read for the suggestions";
            press(Key::Return);
            EXPECT_TRUE(waitUntil([&] { return model.rootPath() == path("sub"); }));
            settle();
            EXPECT_EQ(overrideCursors(), idle) << "typed, and read already, " << round;
            enterName(page, QStringLiteral("../"));
            expectListed(page, {"a.txt", "b.txt", "sub"});
            EXPECT_TRUE(waitUntil([&] { return overrideCursors() == idle; }));
        }));
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        EXPECT_EQ(overrideCursors(), Cursors({Qt::BusyCursor})) << round;
    }
    QGuiApplication::restoreOverrideCursor();

    ExtendedFileDialog::setUseNativeFileDialog(false);
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogPage& page) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == arrow; })) << "a selection in another folder";
        click(acceptButton(page));
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
    script.on<QFileDialog>(user([&](FileDialogPage& page) {
        EXPECT_TRUE(waitUntil([] { return overrideCursors() == arrow; }));
        dialog.setDirectory(many.path());
        EXPECT_TRUE(waitUntil([&] {
            EXPECT_EQ(overrideCursors().back(), loaded.contains({many.path()}) ? Qt::ArrowCursor : Qt::WaitCursor);
            return loaded.contains({many.path()});
        }));
        dialog.setDirectory(m_folder.path());
        press(Key::Escape); // perhaps before it is read
        EXPECT_FALSE(page.isOpen());
    }));
    EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    EXPECT_EQ(overrideCursors(), Cursors());
}

TEST_F(QtDialogHands, aTypedWildcardFiltersTheDialogOfWidgetsAndIsNeverReturned)
{
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        ExtendedWinFileDialog dialog(m_host, "Choose", folder(), filters, "", mode, false);
        dialog.addCustomButton("Host", [] {}); // so that it consists of widgets everywhere
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogPage& page) {
            expectListed(page, {"a.txt", "b.txt", "sub"});
            enterName(page, QStringLiteral("*.dat"));
            expectListed(page, {"c.dat", "sub"});
            EXPECT_TRUE(page.isOpen());
            EXPECT_EQ(page.currentType(), QStringLiteral("Text (*.dat)"));
            replaceName(page, QStringLiteral("sub/d*"));
            clickAccept(page);
            expectListed(page, {"d.dat"});
            EXPECT_TRUE(page.isOpen());
            clickAccept(page);
            EXPECT_TRUE(page.isOpen()) << "the same once more";
            press(Key::Escape);
        }));
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        ModalScript again;
        again.on<QFileDialog>(user([&](FileDialogPage& page) {
            clickAccept(page); // what was left in the field is a wildcard still
            EXPECT_TRUE(page.isOpen());
            enterName(page, path("c.dat"));
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
    const auto pickSecond = [this](const FileDialogPage& page) {
        inAcceptMenu(page, [this](QMenu& menu) { click(menu, menu.actionGeometry(menu.actions().last()).center()); });
    };
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogPage& page) {
        EXPECT_EQ(acceptButton(page).text(), QStringLiteral("Import"));
        replaceName(page, QStringLiteral("a.txt"));
        EXPECT_EQ(acceptButton(page).text(), QStringLiteral("Import"));
        clickAccept(page);
    }));
    ASSERT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedAcceptMenuOption(), 11);
    EXPECT_EQ(dialog.selectedFiles(), QStringList(path("a.txt")));

    ModalScript closing;
    closing.on<QFileDialog>(user([&](FileDialogPage& page) {
        replaceName(page, QStringLiteral("b.txt"));
        for (QAbstractButton* const button : page.dialog().findChildren<QAbstractButton*>()) {
            if (button->text() == QStringLiteral("Done")) {
                closeSuggestions(page);
                click(*button);
                return;
            }
        }
    }));
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
    EXPECT_EQ(dialog.selectedFiles(), QStringList());

    ModalScript picking;
    picking.on<QFileDialog>(user([&](FileDialogPage& page) {
        replaceName(page, QStringLiteral("missing.txt"));
        pickSecond(page);
        replaceName(page, QStringLiteral("a.txt"));
        clickAccept(page);
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
        // Outside of the list the first filter is selected; an entry with two filters counts as two.
        for (const int start : {-1, 7}) {
            std::vector<std::string> files;
            int filter = -5;
            ModalScript script;
            script.on<QFileDialog>(user([&](FileDialogPage& page) {
                EXPECT_EQ(page.typeCombo().currentIndex(), 0);
                page.pickTypeWithKeys(2);
                enterName(page, QStringLiteral("c.dat"));
            }));
            EXPECT_TRUE(ui::LaunchFileDialog(files, filter, "Open", {"Text (*.txt);;Data (*.dat)", "All (*)"},
                {path("a.txt").toStdString()}, false, false, start));
            EXPECT_EQ(filter, 2);
        }
    }
    // Empty: the directory that was visited last.
    QDir::setCurrent(QStringLiteral("/"));
    QExtendedFileDialog visits(m_host, "", path("sub").toStdString(), "", "", QFileDialog::AcceptOpen);
    QExtendedFileDialog next(m_host, "", "", "", "", QFileDialog::AcceptOpen);
    EXPECT_EQ(next.directory(), QDir(path("sub")));

    // Only Enter takes a wildcard: the button for files that exist stays grey.
    QExtendedFileDialog wildcard(m_host, "Open", folder(), filters, "", QFileDialog::AcceptOpen);
    ModalScript script;
    script.on<QFileDialog>(user([&](FileDialogPage& page) {
        expectListed(page, {"a.txt", "b.txt", "sub"});
        replaceName(page, QStringLiteral("*.dat"));
        EXPECT_FALSE(acceptButton(page).isEnabled());
        press(Key::Return);
        expectListed(page, {"c.dat", "sub"});
    }));
    EXPECT_EQ(wildcard.exec(), QDialog::Rejected);
}

class QtDialogLooksHands : public QtDialogHands
{
protected:
    /** Nothing is cut, no row is there for nothing, and the suggestions hang below the field. */
    void expectGoodLooks(const FileDialogPage& page, bool picksFolders)
    {
        EXPECT_TRUE(waitUntil([&] { return !page.listed().isEmpty() && page.cutParts().isEmpty(); }))
            << page.cutParts().join(QStringLiteral("; ")).toStdString();
        EXPECT_EQ(page.typeCombo().isVisible(), !picksFolders);
        EXPECT_EQ(page.dialog().findChild<QLabel*>(QStringLiteral("fileTypeLabel"))->isVisible(), !picksFolders);
        replaceName(page, QStringLiteral("s"));
        const QWidget& list = *page.nameEdit().completer()->popup();
        ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
        const QRect field(page.nameEdit().mapToGlobal(QPoint(0, 0)), page.nameEdit().size());
        EXPECT_LE(std::abs(list.geometry().top() - field.bottom()), 2);
        EXPECT_EQ(list.geometry().left(), field.left());
        press(Key::Escape);
        EXPECT_TRUE(page.isOpen());
    }
    void expectMenuBesideTheButtons(const FileDialogPage& page)
    {
        inAcceptMenu(page, [&](QMenu& menu) {
            for (const QAbstractButton* const button : page.dialog().findChildren<QAbstractButton*>()) {
                const QRect place(button->mapToGlobal(QPoint(0, 0)), button->size());
                EXPECT_FALSE(button->isVisible() && place.intersects(menu.geometry())) << button->text().toStdString();
            }
            press(Key::Escape);
        });
        EXPECT_TRUE(page.isOpen());
    }
};

TEST_F(QtDialogLooksHands, eachDialogShowsAllOfItselfWhenItOpens)
{
    for (const auto mode : {QFileDialog::ExistingFile, QFileDialog::ExistingFiles, QFileDialog::Directory}) {
        const bool picksFolders = mode == QFileDialog::Directory;
        SCOPED_TRACE(mode);
        QExtendedFileDialog dialog(m_host, "Open", folder(), filters, "topic", QFileDialog::AcceptOpen);
        dialog.setGeometryPersistenceKey(std::to_string(mode));
        dialog.setFileMode(mode);
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogPage& page) { expectGoodLooks(page, picksFolders); }));
        dialog.exec();

        ExtendedWinFileDialog native(m_host, "Open", folder(), filters, "topic", QFileDialog::AcceptOpen, true);
        native.setFileMode(mode);
        native.addCustomButton("Preview", [] {});
        native.addCustomCheckBox("Compress", boost::make_shared<Property<bool>>(true));
        native.addAcceptButtonOption("Open as copy", 1);
        native.addAcceptButtonOption("Open read-only", 2);
        ModalScript second;
        second.on<QFileDialog>(user([&](FileDialogPage& page) {
            expectGoodLooks(page, picksFolders);
            replaceName(page, QStringLiteral("a"));
            expectMenuBesideTheButtons(page);
        }));
        native.exec();
    }
    for (const bool native : {false, true}) {
        ModalScript script;
        script.on<QFileDialog>(user([&](FileDialogPage& page) { expectGoodLooks(page, false); }));
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
