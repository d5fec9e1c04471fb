// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ExtendedWinFileDialogTest.h"

#include "property/Property.h"
#include "support/ModalScript.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <boost/make_shared.hpp>

#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace morvane::test {

namespace {

using ::testing::IsEmpty;

class ExtendedWinFileDialogNesting : public ExtendedWinFileDialogTest
{
};

TEST_F(ExtendedWinFileDialogNesting, asksNothingOfTheShellWhenItRunsAlready)
{
    const auto dialog = openDialog();
    bool clicked = false;
    dialog->addCustomButton("Again", [&] {
        clicked = true;
        EXPECT_THAT(callsOf([&] { EXPECT_EQ(dialog->exec(), QDialog::Rejected); }), IsEmpty());
    });
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    const auto result = run(*dialog, [](RecordingDialog& user) {
        user.userClicks(0);
        EXPECT_TRUE(user.isShown());
        user.userClicks(0);
        user.userAccepts();
    });
    EXPECT_TRUE(clicked);
    EXPECT_EQ(result, QDialog::Accepted) << "the outer run goes on";
    EXPECT_EQ(dialog->selectedFiles(), QStringList(native(QStringLiteral("/a"))));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
}

TEST_F(ExtendedWinFileDialogNesting, runsAgainAfterAnExceptionOfAnAction)
{
    const auto dialog = openDialog();
    dialog->addCustomButton("Throw", [] { throw std::runtime_error("action"); });
    EXPECT_THROW(run(*dialog, [](RecordingDialog& user) { user.userClicks(0); }), std::runtime_error);
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userAccepts(); }), QDialog::Accepted);
}

TEST_F(ExtendedWinFileDialogNesting, anActionMayRunAnotherDialog)
{
    const auto outer = openDialog();
    const auto inner = saveDialog();
    RecordingDialog* const innerNative = m_shell.dialog();
    outer->addCustomButton("Other", [&] {
        EXPECT_EQ(inner->exec(), QDialog::Rejected);
        EXPECT_FALSE(innerNative->isShown());
    });
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    bool nested = false;
    EXPECT_EQ(run(*outer,
                  [&](RecordingDialog& user) {
                      if (&user == innerNative) {
                          nested = true;
                          user.userCancels();
                          return;
                      }
                      user.userClicks(0);
                      user.userAccepts();
                  }),
        QDialog::Accepted);
    EXPECT_TRUE(nested);
}

TEST_F(ExtendedWinFileDialogNesting, closeEndsTheRunAsAccepted)
{
    const auto dialog = openDialog();
    dialog->addCustomButton("Close", [&] { dialog->close(); });
    EXPECT_EQ(run(*dialog, [](RecordingDialog& user) { user.userClicks(0); }), QDialog::Accepted);
    EXPECT_EQ(m_shell.count("IFileDialog::Close"), 1);
    EXPECT_THAT(m_shell.calls(), ::testing::Contains("IFileDialog::Close(0)"));
}

TEST_F(ExtendedWinFileDialogNesting, closeBeforeAndAfterARunChangesNothing)
{
    const auto dialog = openDialog();
    dialog->close();
    EXPECT_EQ(run(*dialog), QDialog::Rejected);
    dialog->close();
    EXPECT_EQ(run(*dialog), QDialog::Rejected);
}

struct Callback
{
    const char* name;
    std::function<void(RecordingDialog&)> play;
};

void PrintTo(const Callback& c, std::ostream* out)
{
    *out << c.name;
}

class ExtendedWinFileDialogNestingCallback : public ExtendedWinFileDialogTest,
                                             public ::testing::WithParamInterface<Callback>
{
protected:
    // An event reaches the host through an action, a property of the host, or the filter index.
    Dialog makeDialog(const std::function<void()>& act)
    {
        m_shell.script.announcesOpening = false;
        Dialog dialog = saveDialog("A (*.a);;B (*.b)");
        const auto checked = boost::make_shared<Property<bool>>(false);
        dialog->addCustomButton("Act", act);
        dialog->addCustomCheckBox("Check", checked);
        checked->signalPropertyChanged.connect(act);
        dialog->currentFilterIndex()->signalPropertyChanged.connect(act);
        return dialog;
    }
};

TEST_P(ExtendedWinFileDialogNestingCallback, mayCloseTheDialog)
{
    Dialog dialog;
    int heard = 0;
    dialog = makeDialog([&] {
        ++heard;
        dialog->close();
    });
    EXPECT_EQ(run(*dialog, GetParam().play), QDialog::Accepted);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(m_shell.calls().back(), "IFileDialog::Unadvise(1)");
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
}

TEST_P(ExtendedWinFileDialogNestingCallback, cannotRunTheDialogASecondTime)
{
    Dialog dialog;
    int heard = 0;
    dialog = makeDialog([&] {
        ++heard;
        EXPECT_THAT(callsOf([&] { EXPECT_EQ(dialog->exec(), QDialog::Rejected); }), IsEmpty());
    });
    m_shell.script.results = QStringList(native(QStringLiteral("/a")));
    const auto play = [](RecordingDialog& user) {
        GetParam().play(user);
        user.userAccepts();
    };
    EXPECT_EQ(run(*dialog, play), QDialog::Accepted) << "the outer run goes on";
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(dialog->selectedFiles(), QStringList(native(QStringLiteral("/a"))));
}

TEST_P(ExtendedWinFileDialogNestingCallback, mayDestroyTheParent)
{
    int heard = 0;
    const Dialog dialog = makeDialog([&] {
        ++heard;
        m_parent.reset();
    });
    run(*dialog, GetParam().play);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(dialog->parent(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Callbacks, ExtendedWinFileDialogNestingCallback,
    ::testing::Values(Callback{"button", [](RecordingDialog& user) { user.userClicks(0); }},
        Callback{"checkBox", [](RecordingDialog& user) { user.userToggles(1); }},
        Callback{"type", [](RecordingDialog& user) { user.userPicksType(2); }},
        Callback{"typeWithName",
            [](RecordingDialog& user) {
                user.userTypesName(QStringLiteral("out.a"));
                user.userPicksType(2);
            }}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(ExtendedWinFileDialogNesting, closeWorksWhileTheDialogOpens)
{
    const auto dialog = saveDialog("A (*.a);;B (*.b)");
    dialog->currentFilterIndex()->setValue(7); // the Shell selects its last type and reports that when it opens
    dialog->currentFilterIndex()->signalPropertyChanged.connect([&] { dialog->close(); });
    EXPECT_EQ(run(*dialog, [](RecordingDialog&) { FAIL() << "the dialog is closed before the user sees it"; }),
        QDialog::Accepted);
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 2);
}

TEST_F(ExtendedWinFileDialogNesting, showsNoOwnerOnceTheParentIsGone)
{
    const auto dialog = openDialog();
    run(*dialog, [&](RecordingDialog& user) {
        EXPECT_EQ(user.owner(), reinterpret_cast<HWND>(m_parent->winId()));
        m_parent.reset();
    });
    EXPECT_EQ(dialog->parent(), nullptr);
    run(*dialog, [](RecordingDialog& user) { EXPECT_EQ(user.owner(), nullptr); });
}

/** The same events in a dialog with a modal loop. */
class ExtendedWinFileDialogNestingLoop : public ExtendedWinFileDialogTest
{
protected:
    static void click(QFileDialog& window, const char* label)
    {
        for (auto* const button : window.findChildren<QAbstractButton*>()) {
            if (button->text() == QLatin1String(label)) {
                QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
                return;
            }
        }
        ADD_FAILURE() << "no button " << label;
        window.reject();
    }

    ui::WidgetShell m_widgets{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_widgetsOverride{m_widgets};
};

TEST_F(ExtendedWinFileDialogNestingLoop, anActionMayShowAMessageBox)
{
    const auto dialog = openDialog();
    int answer = 0;
    dialog->addCustomButton("Ask", [&] {
        answer = QMessageBox::question(m_parent.get(), QStringLiteral("Title"), QStringLiteral("Sure?"));
        dialog->close();
    });
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& window) { click(window, "Ask"); });
    user.on<QMessageBox>([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    EXPECT_EQ(answer, QMessageBox::Yes);
    EXPECT_TRUE(user.finished());
}

TEST_F(ExtendedWinFileDialogNestingLoop, refusesToRunWithinItself)
{
    const auto dialog = openDialog();
    bool refused = false;
    dialog->addCustomButton("Again", [&] { refused = dialog->exec() == QDialog::Rejected; });
    dialog->addCustomButton("Close", [&] { dialog->close(); });
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog& window) {
        click(window, "Again");
        EXPECT_TRUE(window.isVisible());
        click(window, "Close");
    });
    EXPECT_EQ(dialog->exec(), QDialog::Accepted);
    EXPECT_TRUE(refused);
}

TEST_F(ExtendedWinFileDialogNestingLoop, endsWhenTheParentIsDestroyed)
{
    m_parent->show();
    const auto dialog = saveDialog("A (*.a);;B (*.b)");
    dialog->addCustomCheckBox("Check", boost::make_shared<Property<bool>>(false));
    ModalScript user;
    user.on<QFileDialog>([&](QFileDialog&) { m_parent.reset(); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_THAT(dialog->selectedFiles(), IsEmpty());
    EXPECT_EQ(dialog->parent(), nullptr);
    user.on<QFileDialog>([](QFileDialog& window) { window.reject(); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected) << "without owner it can be shown again";
    EXPECT_TRUE(user.finished());
}

TEST_F(ExtendedWinFileDialogNestingLoop, anObserverOfACheckBoxMayDestroyTheParent)
{
    m_parent->show();
    const auto dialog = openDialog();
    const auto checked = boost::make_shared<Property<bool>>(false);
    dialog->addCustomCheckBox("Check", checked);
    checked->signalPropertyChanged.connect([&] { m_parent.reset(); });
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& window) { click(window, "Check"); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_TRUE(checked->value());
    EXPECT_EQ(dialog->parent(), nullptr);
}

TEST_F(ExtendedWinFileDialogNestingLoop, anObserverOfTheTypeMayDestroyTheParent)
{
    m_parent->show();
    const auto dialog = saveDialog("A (*.a);;B (*.b)");
    dialog->currentFilterIndex()->signalPropertyChanged.connect([&] { m_parent.reset(); });
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& window) {
        QTest::keyClick(window.findChild<QComboBox*>(QStringLiteral("fileTypeCombo")), Qt::Key_Down);
    });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_EQ(dialog->currentFilterIndex()->value(), 2);
    EXPECT_EQ(dialog->parent(), nullptr);
}

TEST_F(ExtendedWinFileDialogNestingLoop, anActionMayDestroyTheParent)
{
    m_parent->show();
    const auto dialog = openDialog();
    dialog->addCustomButton("Destroy", [&] { m_parent.reset(); });
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& window) { click(window, "Destroy"); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_EQ(dialog->parent(), nullptr);
}

} // namespace

} // namespace morvane::test
