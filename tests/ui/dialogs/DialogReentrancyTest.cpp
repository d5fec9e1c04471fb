// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// For each dialog, native and Qt: nested dialogs, and the end of the application while a dialog is open.
#include "support/ActiveWindow.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>

#include <ostream>

namespace morvane::test {

namespace {

/** Runs a dialog as a host does; whether the user accepted. */
struct Dialog
{
    const char* name;
    bool (*run)(QWidget& parent);
};

bool runQt(QWidget& parent)
{
    QExtendedFileDialog dialog(parent, "Outer", "", "All (*)", "", QFileDialog::AcceptOpen);
    return dialog.exec() == QDialog::Accepted;
}

bool runNative(QWidget& parent)
{
    ExtendedWinFileDialog dialog(parent, "Outer", "", "All (*)", "", QFileDialog::AcceptOpen, false);
    return dialog.exec() == QDialog::Accepted;
}

bool launchKind(bool native)
{
    ExtendedFileDialog::setUseNativeFileDialog(native);
    std::vector<std::string> files;
    int filter = 0;
    return ui::LaunchFileDialog(files, filter, "Outer", {"All (*)"}, {}, false, false, 0);
}

bool saveKind(QWidget& parent, bool native)
{
    ExtendedFileDialog::setUseNativeFileDialog(native);
    SaveFileDialog dialog(&parent, "Outer", "", "report", std::string("Data (*.dat)"), "");
    return dialog.launch();
}

const Dialog dialogs[] = {
    {"qt", &runQt},
    {"native", &runNative},
    {"launcherQt", [](QWidget&) { return launchKind(false); }},
    {"launcherNative", [](QWidget&) { return launchKind(true); }},
    {"saveQt", [](QWidget& parent) { return saveKind(parent, false); }},
    {"saveNative", [](QWidget& parent) { return saveKind(parent, true); }},
};

void PrintTo(const Dialog& dialog, std::ostream* out)
{
    *out << dialog.name;
}

class DialogReentrancy : public ::testing::Test
{
protected:
    DialogReentrancy() { m_parent->show(); }
    ~DialogReentrancy() override
    {
        delete m_parent;
        ExtendedFileDialog::setUseNativeFileDialog(true);
    }

    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_override{m_shell};
    QPointer<QWidget> m_parent{new QWidget};
    ModalScript m_user;
};

class DialogReentrancyOfEach : public DialogReentrancy, public ::testing::WithParamInterface<Dialog>
{
};

class DialogReentrancyNested : public DialogReentrancy, public ::testing::WithParamInterface<std::tuple<Dialog, Dialog>>
{
};

} // namespace

TEST_P(DialogReentrancyOfEach, endsAsCancelledWhenTheApplicationQuits)
{
    m_user.on<QFileDialog>([](QFileDialog&) { QCoreApplication::quit(); });
    bool accepted = true;
    QTimer::singleShot(0, [&] { accepted = GetParam().run(*m_parent); });
    QApplication::exec();
    EXPECT_FALSE(accepted);
    EXPECT_TRUE(m_user.finished());
    delete m_parent; // the dialogs that it owns exist until here
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(DialogReentrancyOfEach, endsAsCancelledWhenAllWindowsClose)
{
    m_user.on<QFileDialog>([](QFileDialog&) { QApplication::closeAllWindows(); });
    EXPECT_FALSE(GetParam().run(*m_parent));
    EXPECT_TRUE(m_user.finished());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogReentrancyOfEach, ::testing::ValuesIn(dialogs),
    [](const auto& tested) { return tested.param.name; });

TEST_P(DialogReentrancyNested, theInnerOneEndsFirstAndTheOuterOneGoesOn)
{
    const auto& [outer, inner] = GetParam();
    bool innerAccepted = true;
    bool outerAlive = false;
    m_user.on<QFileDialog>([&, run = inner.run](QFileDialog& window) {
        const QPointer<QFileDialog> outerWindow(&window);
        innerAccepted = run(window);
        outerAlive = outerWindow && outerWindow->isVisible() && QApplication::activeModalWidget() == outerWindow;
        if (outerWindow) {
            outerWindow->reject();
        }
    });
    m_user.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
    EXPECT_FALSE(outer.run(*m_parent));
    EXPECT_FALSE(innerAccepted);
    EXPECT_TRUE(outerAlive);
    EXPECT_TRUE(m_user.finished());
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogReentrancyNested,
    ::testing::Combine(::testing::ValuesIn(dialogs), ::testing::ValuesIn(dialogs)), [](const auto& tested) {
        return std::string(std::get<1>(tested.param).name) + "_in_" + std::get<0>(tested.param).name;
    });

TEST_F(DialogReentrancy, theParentMayGoWhileADialogIsOpen)
{
    for (const bool native : {true, false}) {
        SCOPED_TRACE(native);
        ExtendedFileDialog::setUseNativeFileDialog(native);
        auto* const parent = new QWidget;
        ExtendedFileDialog dialog(*parent, "Open", "", "All (*)", "", QFileDialog::AcceptOpen);
        m_user.on<QFileDialog>([&](QFileDialog&) { delete parent; });
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        EXPECT_EQ(dialog.selectedFiles(), QStringList());
        dialog.selectFile(QStringLiteral("x"));
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setNameFilters(QStringList(QStringLiteral("All (*)")));
        dialog.selectNameFilter(QStringLiteral("All (*)"));
        dialog.setDirectory(QStringLiteral("/"));
        dialog.setDontConfirmOverwrite(true);
        dialog.setShowDirectoriesOnly(true);
        dialog.directory();
        dialog.nameFilters();
        dialog.selectedNameFilter();
        if (!native) {
            EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        }
    }
    EXPECT_TRUE(m_user.finished());
}

TEST_F(DialogReentrancy, theActiveWindowMayGoWhileTheLauncherIsOpen)
{
    for (const bool native : {true, false}) {
        SCOPED_TRACE(native);
        auto* const window = new QWidget;
        window->show();
        setActiveWindow(*window);
        m_user.on<QFileDialog>([&](QFileDialog&) { delete window; });
        EXPECT_FALSE(launchKind(native));
    }
    EXPECT_TRUE(m_user.finished());
}

TEST_F(DialogReentrancy, aDialogMayBeDeletedInItsOwnSlots)
{
    const char* const notifications[] = {SIGNAL(directoryEntered(QString)), SIGNAL(filterSelected(QString)),
        SIGNAL(currentChanged(QString)), SIGNAL(finished(int)), SIGNAL(rejected())};
    for (const char* const notification : notifications) {
        SCOPED_TRACE(notification);
        const QPointer<QExtendedFileDialog> dialog(
            new QExtendedFileDialog(*m_parent, "Open", "", "All (*)", "", QFileDialog::AcceptOpen));
        QObject::connect(dialog, notification, dialog, SLOT(deleteLater()));
        m_user.on<QExtendedFileDialog>([](QExtendedFileDialog& window) {
            Q_EMIT window.directoryEntered(QStringLiteral("/"));
            Q_EMIT window.filterSelected(QStringLiteral("All (*)"));
            Q_EMIT window.currentChanged(QStringLiteral("/x"));
            QTimer::singleShot(0, &window, &QDialog::reject);
        });
        EXPECT_EQ(dialog->exec(), QDialog::Rejected);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(dialog.isNull());
    }
    EXPECT_TRUE(m_user.finished());
}

TEST_F(DialogReentrancy, quittingEndsTheOuterAndTheInnerDialog)
{
    bool innerAccepted = true;
    bool outerAccepted = true;
    m_user.on<QFileDialog>([&](QFileDialog& window) { innerAccepted = runNative(window); });
    m_user.on<QFileDialog>([](QFileDialog&) { QCoreApplication::quit(); });
    QTimer::singleShot(0, [&] { outerAccepted = runQt(*m_parent); });
    QApplication::exec();
    EXPECT_FALSE(innerAccepted);
    EXPECT_FALSE(outerAccepted);
    EXPECT_TRUE(m_user.finished());
}

TEST_F(DialogReentrancy, quittingAtTheQuestionOfTheSaveFlowSavesNothing)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("old.dat")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ExtendedFileDialog::setUseNativeFileDialog(false);
    SaveFileDialog dialog(m_parent, "Save", directory.path().toStdString(), "old.dat", std::string("Data (*.dat)"), "");
    m_user.on<QFileDialog>([](QFileDialog& window) { FileDialogDriver(window).click(QDialogButtonBox::Save); });
    m_user.on<QMessageBox>([](QMessageBox&) { QCoreApplication::quit(); });
    bool mayBeWritten = true;
    QTimer::singleShot(0, [&] { mayBeWritten = dialog.launch(); });
    QApplication::exec();
    EXPECT_FALSE(mayBeWritten);
    EXPECT_TRUE(m_user.finished());
}

} // namespace morvane::test
