// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The save flow, on the native dialog and on the Qt dialog, used with keyboard and mouse.
#include "hands/HandsTest.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

namespace morvane::test {

namespace {

/** The parameter says whether it is the native dialog. */
class SaveFlowHands : public HandsTest, public ::testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        HandsTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        ASSERT_TRUE(m_directory.isValid());
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        m_window = new QWidget;
        m_window->resize(300, 100);
        show(*m_window);
    }
    void TearDown() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(true);
        delete m_window;
        HandsTest::TearDown();
    }

    using Texts = std::vector<std::string>;
    using Handler = std::unique_ptr<SaveFileMessageHandlerInterface>;

    std::unique_ptr<SaveFileDialog> makeFlow(const Texts& writers, int selected = 0, Handler handler = nullptr)
    {
        return std::make_unique<SaveFileDialog>(m_window.data(), "Save data", m_directory.path().toStdString(), "",
            writers, selected, "", std::move(handler));
    }

    QString path(const char* name) const { return m_directory.filePath(QString::fromUtf8(name)); }
    void makeFile(const char* name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old content");
    }

    /** Replaces the name by typing @p text, and presses Return. */
    void enter(QFileDialog& dialog, const char* text)
    {
        activate(dialog);
        const FileDialogDriver driver(dialog);
        click(driver.nameEdit());
        press({Key::Control}, 'a');
        press(Key::Delete);
        type(QString::fromUtf8(text));
        press(Key::Return);
    }
    void pickType(QFileDialog& dialog, int steps)
    {
        activate(dialog);
        const FileDialogDriver driver(dialog);
        click(driver.typeCombo());
        for (int step = 0; step < steps; ++step) {
            press(Key::Down);
        }
        press(Key::Return);
    }
    /** Answers with the keyboard and waits until the box is closed. */
    void answer(QMessageBox& box, Key key)
    {
        const QPointer<QMessageBox> open(&box);
        activate(box);
        press(key);
        EXPECT_TRUE(waitUntil([&] { return !open || !open->isVisible(); }));
    }
    void answerYes(QMessageBox& box)
    {
        const QPointer<QMessageBox> open(&box);
        activate(box);
        click(*box.button(QMessageBox::Yes));
        EXPECT_TRUE(waitUntil([&] { return !open || !open->isVisible(); }));
    }

    QTemporaryDir m_directory;
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_override{m_shell};
    QPointer<QWidget> m_window;
};

std::string nameOfDialog(const ::testing::TestParamInfo<bool>& info)
{
    return info.param ? "native" : "qt";
}

INSTANTIATE_TEST_SUITE_P(, SaveFlowHands, ::testing::Bool(), &nameOfDialog);

/** Destroys the window in one of its operations. */
class LeavingHandler : public DefaultSaveFileMessageHandler
{
public:
    LeavingHandler(QPointer<QWidget>& window, int operation, int& asked)
        : m_window(window), m_operation(operation), m_asked(asked)
    {
    }
    std::string filenameToCheck(const std::string& name) override { return leave(0), name; }
    std::string okToOverwriteMessage() override { return leave(1), "Replace it?"; }
    std::string unableToOverwriteMessage() override { return leave(2), "Try again?"; }

private:
    void leave(int operation)
    {
        ++m_asked;
        if (operation == m_operation) {
            delete m_window;
        }
    }

    QPointer<QWidget>& m_window;
    const int m_operation;
    int& m_asked;
};

TEST_P(SaveFlowHands, endsWithoutAQuestionWhenTheHandlerDestroysTheParentOnceTheNameIsChosen)
{
    makeFile("old.dat");
    int asked = 0;
    const auto flow = makeFlow({"Data (*.dat)"}, 0, std::make_unique<LeavingHandler>(m_window, 0, asked));
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) { enter(dialog, "old"); });
    EXPECT_FALSE(flow->launch());
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(asked, 1);
}

TEST_P(SaveFlowHands, endsWithoutAQuestionWhenTheHandlerDestroysTheParentBeforeTheOneAboutReplacing)
{
    makeFile("old.dat");
    int asked = 0;
    const auto flow = makeFlow({"Data (*.dat)"}, 0, std::make_unique<LeavingHandler>(m_window, 1, asked));
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) { enter(dialog, "old"); });
    EXPECT_FALSE(flow->launch());
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(asked, 2);
}

TEST_P(SaveFlowHands, endsWithoutAQuestionWhenTheHandlerDestroysTheParentBeforeTheOneAboutAnotherPlace)
{
    int asked = 0;
    const auto flow = makeFlow({"Data (*.dat)"}, 0, std::make_unique<LeavingHandler>(m_window, 2, asked));
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) { enter(dialog, "/sys/refused"); });
    EXPECT_FALSE(flow->launch());
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(asked, 2);
}

TEST_P(SaveFlowHands, comesBackAfterNoAsThePersonLeftIt)
{
    ASSERT_TRUE(QDir(m_directory.path()).mkdir(QStringLiteral("sub")));
    makeFile("sub/old.csv");
    makeFile("sub/odd.name.txt");
    const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)", "Page (*.html)"});
    const auto expectState = [this](QFileDialog& dialog, const char* name) {
        const FileDialogDriver driver(dialog);
        EXPECT_EQ(driver.name(), QString::fromUtf8(name));
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        EXPECT_EQ(dialog.directory().absolutePath(), path("sub"));
    };
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) {
        pickType(dialog, 1);
        enter(dialog, "sub/");
        enter(dialog, "old");
    });
    user.on<QMessageBox>([this](QMessageBox& box) { answer(box, Key::Return); });
    user.on<QFileDialog>([&](QFileDialog& dialog) {
        activate(dialog);
        expectState(dialog, "old");
        press(Key::Return); // the same once more
    });
    user.on<QMessageBox>([this](QMessageBox& box) { answer(box, Key::Escape); });
    user.on<QFileDialog>([&](QFileDialog& dialog) {
        activate(dialog);
        expectState(dialog, "old");
        enter(dialog, "odd.name.txt");
    });
    user.on<QMessageBox>([this](QMessageBox& box) { answer(box, Key::Return); });
    user.on<QFileDialog>([&](QFileDialog& dialog) {
        activate(dialog);
        expectState(dialog, "odd.name.txt");
        enter(dialog, "new");
    });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(flow->selectedFilename(), path("sub/new.csv").toStdString());
    EXPECT_EQ(flow->selectedWriter(), 1);
}

TEST_P(SaveFlowHands, comesBackAfterNoWithItsWriterAlsoWhenAWildcardWasTypedBefore)
{
    makeFile("old.log");
    const auto flow = makeFlow({"Text (*.txt)", "Table (*.csv)"});
    ModalScript user;
    user.on<QFileDialog>([this](QFileDialog& dialog) {
        pickType(dialog, 1);
        enter(dialog, "*.log");
        EXPECT_TRUE(FileDialogDriver(dialog).waitForListed({QStringLiteral("old.log")}));
        enter(dialog, "old.log");
    });
    user.on<QMessageBox>([this](QMessageBox& box) { answer(box, Key::Return); });
    user.on<QFileDialog>([this](QFileDialog& dialog) {
        activate(dialog);
        const FileDialogDriver driver(dialog);
        EXPECT_EQ(driver.name(), QStringLiteral("old.log"));
        EXPECT_EQ(driver.typeCombo().currentIndex(), 1);
        press(Key::Return);
    });
    user.on<QMessageBox>([this](QMessageBox& box) { answerYes(box); });
    EXPECT_TRUE(flow->launch());
    EXPECT_EQ(QDir::fromNativeSeparators(QString::fromStdString(flow->selectedFilename())), path("old.log"));
    EXPECT_EQ(flow->selectedWriter(), 1);
}

TEST_P(SaveFlowHands, takesTheExtensionOfTheWriterAndNotThatOfATypedWildcard)
{
    for (const char* const wildcard : {"*.log", "*", "*.txt"}) {
        SCOPED_TRACE(wildcard);
        const auto flow = makeFlow({"Text (*.txt)", "Text (*.csv)"}, 1);
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& dialog) {
            enter(dialog, wildcard);
            enter(dialog, "*.dat *.bin"); // after the first, another type may read like this one
            EXPECT_TRUE(GetParam() || FileDialogDriver(dialog).name() == QStringLiteral("*.dat *.bin"));
            enter(dialog, "new");
        });
        EXPECT_TRUE(flow->launch());
        EXPECT_EQ(flow->selectedFilename(), path("new.csv").toStdString());
        EXPECT_EQ(flow->selectedWriter(), 1);
    }
}

TEST_P(SaveFlowHands, startsWithTheSelectedWriterWhateverBlanksTheTextsHave)
{
    const Texts writers = {"Text (*.txt)", "  Long   table  ( *.csv   *.tsv ) ", "Page\t(*.html)", "Page (*.html)"};
    const char* const names[] = {"new.txt", "new.tsv", "new.html", "new.html"};
    for (int writer = 0; writer < 4; ++writer) {
        const auto flow = makeFlow(writers, writer);
        EXPECT_EQ(flow->selectedWriter(), writer) << "before it is shown";
        ModalScript user;
        user.on<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(FileDialogDriver(dialog).typeCombo().currentIndex(), writer);
            enter(dialog, "new");
        });
        EXPECT_TRUE(flow->launch());
        EXPECT_EQ(flow->selectedWriter(), writer);
        EXPECT_EQ(flow->selectedFilename(), path(names[writer]).toStdString());
    }
}

TEST_P(SaveFlowHands, givesTheNameAsItWasTypedWhenThereIsNoFilter)
{
    SaveFileDialog flow(m_window.data(), "Save data", m_directory.path().toStdString(), "", std::string(), "");
    ModalScript user;
    for (const char* const wildcard : {"", "*.log"}) {
        user.on<QFileDialog>([this, wildcard](QFileDialog& dialog) {
            if (*wildcard) {
                enter(dialog, wildcard);
            }
            enter(dialog, "new");
        });
        EXPECT_TRUE(flow.launch());
        EXPECT_EQ(flow.selectedFilename(), path("new").toStdString());
    }
}

} // namespace

} // namespace morvane::test
