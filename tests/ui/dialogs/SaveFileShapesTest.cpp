// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The ways to construct the three save-file classes, and the dialogs that they make.
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/SaveFileQtDialog.h"
#include "ui/qt/dialogs/SaveFileWinDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <type_traits>

static_assert(std::is_base_of_v<QObject, SaveFileQtDialog>);
static_assert(std::is_base_of_v<QObject, SaveFileWinDialog>);
static_assert(!std::is_base_of_v<QObject, SaveFileDialog>);
static_assert(std::has_virtual_destructor_v<SaveFileDialog>);
static_assert(!std::is_copy_constructible_v<SaveFileDialog>);

namespace morvane::test {

namespace {

using Handler = std::unique_ptr<SaveFileMessageHandlerInterface>;
using Texts = std::vector<std::string>;

class CountingHandler : public DefaultSaveFileMessageHandler
{
public:
    explicit CountingHandler(int& asked) : m_asked(asked) {}
    std::string filenameToCheck(const std::string& filename) override
    {
        ++m_asked;
        return DefaultSaveFileMessageHandler::filenameToCheck(filename);
    }

private:
    int& m_asked;
};

template <typename Flow>
class SaveFileShapes : public ::testing::Test
{
protected:
    std::string directory() const { return m_folder.path().toStdString(); }

    /** Accepts the dialog unchanged and returns the name. */
    std::string accept(Flow& flow)
    {
        ModalScript user;
        user.on<QFileDialog>([](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Save data"));
            EXPECT_TRUE(dialog.findChild<QWidget*>(QStringLiteral("buttonBox")));
            FileDialogDriver(dialog).click(QDialogButtonBox::Save);
        });
        EXPECT_TRUE(flow.launch());
        EXPECT_TRUE(user.finished());
        return QFileInfo(QString::fromStdString(flow.selectedFilename())).fileName().toStdString();
    }

    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_override{m_shell};
    QTemporaryDir m_folder;
    QWidget m_parent;
    const std::string m_filter = "Text (*.txt);;Table (*.csv)";
    const Texts m_writers{"Text (*.txt)", "Table (*.csv)", "Page (*.html)"};
};

struct FlowNames
{
    template <typename Flow>
    static std::string GetName(int)
    {
        return std::is_same_v<Flow, SaveFileDialog>     ? "facade"
               : std::is_same_v<Flow, SaveFileQtDialog> ? "qt"
                                                        : "native";
    }
};

using Flows = ::testing::Types<SaveFileDialog, SaveFileQtDialog, SaveFileWinDialog>;
TYPED_TEST_SUITE(SaveFileShapes, Flows, FlowNames);

TYPED_TEST(SaveFileShapes, aFilterText)
{
    TypeParam flow(&this->m_parent, "Save data", this->directory(), "report", this->m_filter, "");
    EXPECT_EQ(this->accept(flow), "report.txt");
    EXPECT_EQ(flow.selectedFilter(), "Text (*.txt)");
    EXPECT_EQ(flow.selectedWriter(), 0);
}

TYPED_TEST(SaveFileShapes, aFilterTextAndAHandler)
{
    int asked = 0;
    TypeParam flow(&this->m_parent, "Save data", this->directory(), "report", this->m_filter, "",
        Handler(new CountingHandler(asked)));
    EXPECT_EQ(this->accept(flow), "report.txt");
    EXPECT_EQ(asked, 1);
}

TYPED_TEST(SaveFileShapes, writers)
{
    TypeParam flow(&this->m_parent, "Save data", this->directory(), "report", this->m_writers, 2, "");
    EXPECT_EQ(flow.selectedWriter(), 2);
    EXPECT_EQ(this->accept(flow), "report.html");
    EXPECT_EQ(flow.selectedFilter(), "Page (*.html)");
    EXPECT_EQ(flow.selectedWriter(), 2);
}

TYPED_TEST(SaveFileShapes, writersAndAHandler)
{
    int asked = 0;
    TypeParam flow(&this->m_parent, "Save data", this->directory(), "report", this->m_writers, 1, "",
        Handler(new CountingHandler(asked)));
    EXPECT_EQ(this->accept(flow), "report.csv");
    EXPECT_EQ(asked, 1);
}

TYPED_TEST(SaveFileShapes, noHandlerMeansTheDefaultOne)
{
    QFile file(this->m_folder.filePath(QStringLiteral("report.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    TypeParam flow(&this->m_parent, "Save data", this->directory(), "report", this->m_writers, 0, "", Handler());
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& dialog) { FileDialogDriver(dialog).click(QDialogButtonBox::Save); });
    user.on<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().endsWith(QStringLiteral("report.txt already exists. Do you want to replace it?")));
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(flow.launch());
}

/** Gives access to the protected dialog. */
template <typename Flow>
class Opened : public Flow
{
public:
    using Flow::dialog;
    using Flow::Flow;
};

TEST(SaveFileShapesQtSetUp, makesASaveDialogThatLeavesTheQuestionToTheFlow)
{
    QWidget parent;
    const QTemporaryDir folder;
    Opened<SaveFileQtDialog> flow(
        &parent, "Save data", folder.path().toStdString(), "report", Texts{"A (*.a)", "B (*.b)"}, 1, "");
    ASSERT_TRUE(flow.dialog());
    EXPECT_EQ(flow.dialog()->parentWidget(), &parent);
    EXPECT_EQ(flow.dialog()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(flow.dialog()->options(), QFileDialog::DontConfirmOverwrite | QFileDialog::DontUseNativeDialog);
    EXPECT_EQ(flow.dialog()->nameFilters(), QStringList({QStringLiteral("A (*.a)"), QStringLiteral("B (*.b)")}));
    EXPECT_EQ(flow.dialog()->selectedNameFilter(), QStringLiteral("B (*.b)"));
    EXPECT_EQ(flow.dialog()->directory().path(), folder.path());
}

TEST(SaveFileShapesWinSetUp, makesANativeDialogOfTheParent)
{
    ui::WidgetShell shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    const ui::ShellOverride guard(shell);
    QWidget parent;
    const QTemporaryDir folder;
    Opened<SaveFileWinDialog> flow(
        &parent, "Save data", folder.path().toStdString(), "report", Texts{"A (*.a)", "B (*.b)", "B (*.b)"}, 2, "");
    ASSERT_TRUE(flow.dialog());
    EXPECT_EQ(flow.dialog()->parent(), &parent);
    EXPECT_EQ(flow.dialog()->nameFilters().size(), 3);
    EXPECT_EQ(flow.dialog()->currentFilterIndex()->value(), 2) << "the first of equal filters";
    EXPECT_EQ(flow.dialog()->directory().path(), folder.path());
}

TEST(SaveFileShapesWinSetUp, leavesItsDialogAlive)
{
    ui::WidgetShell shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    const ui::ShellOverride guard(shell);
    QWidget parent;
    ExtendedWinFileDialog* dialog = nullptr;
    {
        Opened<SaveFileWinDialog> flow(&parent, "Save data", "", "report", "A (*.a)", "");
        dialog = flow.dialog();
    }
    EXPECT_EQ(dialog->parent(), &parent);
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("A (*.a)"));
}

} // namespace

} // namespace morvane::test
