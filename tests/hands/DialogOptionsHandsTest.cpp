// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The options that a host adds to a file dialog, used with keyboard and mouse.
#include "hands/HandsTest.h"

#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/QtPrinters.h"
#include "support/RecordingSettings.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <boost/make_shared.hpp>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>

#include "e2e/Eventually.h"

namespace morvane::test {

namespace {

class NotEmpty : public ValidatorInterface<std::string>
{
public:
    ValidationResult validate(const std::string& value) const override
    {
        return value.empty() ? ValidationResult("a comment is needed") : ValidationResult();
    }
};

/** The one function of a host, and the values that it shares with the controls. */
struct Options
{
    boost::shared_ptr<Property<int>> encoding = boost::make_shared<Property<int>>(0);
    boost::shared_ptr<Property<int>> unit = boost::make_shared<Property<int>>(1);
    boost::shared_ptr<Property<std::string>> comment = boost::make_shared<Property<std::string>>("before");
    boost::shared_ptr<Property<bool>> keep = boost::make_shared<Property<bool>>(false);
    std::vector<std::string> previews;

    void addTo(ui::FileDialogCustomization& dialog)
    {
        dialog.addCustomComboBox("&Encoding:", {"UTF-8", "UTF-16", "Latin 1"}, encoding);
        dialog.addCustomRadioButtons("&Unit:", {"mm", "cm", "m"}, unit);
        dialog.addCustomLineEdit("Co&mment:", comment);
        dialog.addCustomCheckBox("&Keep", keep);
        dialog.addCustomButton("&Preview", [this] { previews.push_back(comment->value()); });
    }
    void reset()
    {
        encoding->setValue(0);
        unit->setValue(1);
        comment->setValue("before");
        keep->setValue(false);
        previews.clear();
    }
};

/** The widgets of an open dialog. */
class Shown
{
public:
    explicit Shown(QFileDialog& dialog) : m_driver(dialog) {}

    // The identifiers are those of the header: label, control, entries.
    QComboBox& encoding() const { return *m_driver.customList(QStringLiteral("customControl1")); }
    QLineEdit& comment() const { return *m_driver.customEdit(QStringLiteral("customControl11")); }
    QAbstractButton& unit(const char* label) const { return *m_driver.control(QString::fromLatin1(label)); }
    QAbstractButton& keep() const { return *m_driver.control(QStringLiteral("&Keep")); }
    QAbstractButton& preview() const { return *m_driver.control(QStringLiteral("&Preview")); }
    QLineEdit& name() const { return m_driver.nameEdit(); }
    QAbstractButton& accept() const { return m_driver.acceptButton(); }

private:
    FileDialogDriver m_driver;
};

/** The parameter says whether it is the native dialog. */
class DialogOptionsHands : public HandsTest, public ::testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        HandsTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        for (const char* const name : {"a.dat", "b.dat"}) {
            QFile file(path(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        m_window.resize(300, 100);
        show(m_window);
        m_options.addTo(*m_dialog.customization());
    }
    void TearDown() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(true);
        HandsTest::TearDown();
    }

    std::string folder() const { return m_folder.path().toStdString(); }
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    /** Acts in the next dialog, which must then be closed. */
    void onDialog(ModalScript& user, const std::function<void(Shown&)>& act)
    {
        user.on<QFileDialog>([this, act](QFileDialog& dialog) {
            const QPointer<QFileDialog> open(&dialog);
            activate(dialog);
            Shown shown(dialog);
            act(shown);
            if (open && open->isVisible()) {
                ADD_FAILURE() << "the dialog is still open";
                dialog.reject();
            }
        });
    }
    int use(const std::function<void(Shown&)>& act)
    {
        ModalScript user;
        onDialog(user, act);
        const int result = m_dialog.exec();
        EXPECT_TRUE(user.finished());
        return result;
    }
    /** Reads the next message, closes it with Return and comes back to the dialog. */
    void onMessage(ModalScript& user, const char* text)
    {
        user.on<QMessageBox>([this, text](QMessageBox& box) {
            EXPECT_EQ(box.text(), QString::fromLatin1(text));
            const QPointer<QMessageBox> open(&box);
            activate(box);
            press(Key::Return);
            EXPECT_TRUE(eventually([&] { return !open || !open->isVisible(); }));
        });
    }
    void enterName(const char* name)
    {
        press({Key::Alt}, 'n');
        press({Key::Control}, 'a');
        type(QString::fromLatin1(name));
        press(Key::Return);
    }
    static void expectFocus(const QWidget& widget)
    {
        EXPECT_TRUE(eventually([&] { return widget.hasFocus(); })) << widget.objectName().toStdString();
    }
    template <typename T>
    static void expectValue(const Property<T>& property, const T& value)
    {
        EXPECT_TRUE(eventually([&] { return property.value() == value; })) << property.value();
    }
    void useKeysAlone(Shown& shown);
    void useTheMouse(Shown& shown);
    void pickSecond(QComboBox& box);
    void expectOptions(int encoding, int unit, const char* comment, bool keep)
    {
        EXPECT_EQ(m_options.encoding->value(), encoding);
        EXPECT_EQ(m_options.unit->value(), unit);
        EXPECT_EQ(m_options.comment->value(), comment);
        EXPECT_EQ(m_options.keep->value(), keep);
    }

    QTemporaryDir m_folder;
    RecordingSettings m_settings;
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_shellOverride{m_shell};
    QWidget m_window;
    Options m_options;

private:
    static bool selectNative()
    {
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        return true;
    }

    const bool m_selected = selectNative();

protected:
    ExtendedFileDialog m_dialog{m_window, "Files", folder(), "Data (*.dat)", "", QFileDialog::AcceptOpen};
};

void DialogOptionsHands::useKeysAlone(Shown& shown)
{
    press({Key::Alt}, 'e');
    expectFocus(shown.encoding());
    press(Key::Down);
    expectValue(*m_options.encoding, 1);
    press(Key::End);
    expectValue(*m_options.encoding, 2);
    press(Key::Home);
    expectValue(*m_options.encoding, 0);
    type(QStringLiteral("l"));
    expectValue(*m_options.encoding, 2);
    press(Key::Tab);
    expectFocus(shown.unit("cm"));
    press(Key::Down);
    expectFocus(shown.unit("m"));
    expectValue(*m_options.unit, 2);
    press(Key::Tab);
    expectFocus(shown.comment());
    type(QStringLiteral("night run"));
    expectValue(*m_options.comment, std::string("night run"));
    press(Key::Tab);
    expectFocus(shown.keep());
    press(Key::Space);
    expectValue(*m_options.keep, true);
    press(Key::Tab);
    expectFocus(shown.preview());
    press(Key::Space);
    EXPECT_EQ(m_options.previews, std::vector<std::string>{"night run"});
    press({Key::Shift}, Key::Tab);
    expectFocus(shown.keep());
}

TEST_P(DialogOptionsHands, keysAloneReachAndSetEveryOption)
{
    for (int time = 0; time < 2; ++time) {
        m_options.reset();
        EXPECT_EQ(use([this](Shown& shown) {
            useKeysAlone(shown);
            enterName("a.dat");
        }),
            QDialog::Accepted);
        expectOptions(2, 2, "night run", true);
        EXPECT_EQ(QFileInfo(m_dialog.selectedFiles().value(0)).fileName(), QStringLiteral("a.dat"));
    }
}

TEST_P(DialogOptionsHands, mnemonicsReachEveryOption)
{
    EXPECT_EQ(use([this](Shown& shown) {
        press({Key::Alt}, 'u');
        expectFocus(shown.unit("cm"));
        press(Key::Up);
        expectValue(*m_options.unit, 0);
        press({Key::Alt}, 'm');
        expectFocus(shown.comment());
        type(QStringLiteral("x"));
        press({Key::Alt}, 'p');
        EXPECT_TRUE(eventually([&] { return !m_options.previews.empty(); }));
        EXPECT_EQ(m_options.previews, std::vector<std::string>{"x"}) << "the text that was typed a moment before";
        press({Key::Alt}, 'k');
        expectValue(*m_options.keep, true);
        press({Key::Alt}, 'k');
        expectValue(*m_options.keep, false);
        press({Key::Alt}, 'e');
        expectFocus(shown.encoding());
        press(Key::Escape);
    }),
        QDialog::Rejected);
    expectOptions(0, 0, "x", false);
}

/** Picks from the open list. A list ignores clicks as long as the one that has opened it may become a double click. */
void DialogOptionsHands::pickSecond(QComboBox& box)
{
    click(box);
    QAbstractItemView& list = *box.view();
    ASSERT_TRUE(eventually([&] { return list.isVisible(); }));
    settle();
    EXPECT_TRUE(eventually([&] {
        if (list.isVisible()) {
            // The row may be wider than the list.
            const QRect row = list.visualRect(list.model()->index(1, 0));
            click(*list.viewport(), QPoint(list.viewport()->width() / 2, row.center().y()));
        }
        return !list.isVisible();
    }));
}

void DialogOptionsHands::useTheMouse(Shown& shown)
{
    pickSecond(shown.encoding());
    expectValue(*m_options.encoding, 1);
    click(shown.unit("mm"), QPoint(8, shown.unit("mm").height() / 2));
    expectValue(*m_options.unit, 0);
    click(shown.comment());
    press({Key::Control}, 'a');
    type(QStringLiteral("by hand"));
    click(shown.keep(), QPoint(8, shown.keep().height() / 2));
    expectValue(*m_options.keep, true);
    EXPECT_EQ(m_options.comment->value(), "by hand");
    click(shown.preview());
    EXPECT_EQ(m_options.previews, std::vector<std::string>{"by hand"});
    click(shown.name());
    type(QStringLiteral("b.dat"));
    if (shown.name().completer()->popup()->isVisible()) {
        press(Key::Escape); // the suggestions for the name
    }
    click(shown.accept());
}

TEST_P(DialogOptionsHands, theMouseSetsEveryOption)
{
    for (int time = 0; time < 2; ++time) {
        m_options.reset();
        EXPECT_EQ(use([this](Shown& shown) {
            press({Key::Alt}, 'n');
            press({Key::Control}, 'a');
            press(Key::Delete);
            useTheMouse(shown);
        }),
            QDialog::Accepted);
        expectOptions(1, 0, "by hand", true);
    }
}

TEST_P(DialogOptionsHands, escapeKeepsTheValuesAndTheNextRunShowsThem)
{
    EXPECT_EQ(use([this](Shown& shown) {
        useKeysAlone(shown);
        press({Key::Alt}, 'm');
        type(QStringLiteral("typed last"));
        press(Key::Escape);
    }),
        QDialog::Rejected);
    expectOptions(2, 2, "typed last", true);
    EXPECT_EQ(use([this](Shown& shown) {
        EXPECT_EQ(shown.encoding().currentText(), QStringLiteral("Latin 1"));
        EXPECT_TRUE(shown.unit("m").isChecked());
        EXPECT_EQ(shown.comment().text(), QStringLiteral("typed last"));
        EXPECT_TRUE(shown.keep().isChecked());
        press({Key::Alt}, 'e');
        press(Key::Up);
        enterName("b.dat");
    }),
        QDialog::Accepted);
    expectOptions(1, 2, "typed last", true);
}

TEST_P(DialogOptionsHands, escapeInAnOpenListClosesTheListAlone)
{
    EXPECT_EQ(use([this](Shown& shown) {
        press({Key::Alt}, 'e');
        press({Key::Alt}, Key::Down);
        QAbstractItemView& list = *shown.encoding().view();
        ASSERT_TRUE(eventually([&] { return list.isVisible(); }));
        press(Key::Down);
        press(Key::Escape);
        EXPECT_TRUE(eventually([&] { return !list.isVisible(); }));
        EXPECT_EQ(shown.encoding().currentIndex(), 0);
        enterName("a.dat");
    }),
        QDialog::Accepted);
    expectOptions(0, 1, "before", false);
}

TEST_P(DialogOptionsHands, theWheelChangesOnlyTheListThatHasTheFocus)
{
    EXPECT_EQ(use([this](Shown& shown) {
        wheel(shown.encoding(), Turn::Down);
        EXPECT_EQ(shown.encoding().currentIndex(), 0);
        press({Key::Alt}, 'e');
        wheel(shown.encoding(), Turn::Down);
        expectValue(*m_options.encoding, 1);
        press(Key::Escape);
    }),
        QDialog::Rejected);
    EXPECT_EQ(m_options.encoding->value(), 1);
}

TEST_P(DialogOptionsHands, aRefusalIsReadAndTheNextChoiceIsTaken)
{
    m_dialog.setAcceptanceCheck([](const QStringList& paths) {
        const bool isA = QFileInfo(paths.value(0)).fileName() == QLatin1String("a.dat");
        return isA ? ValidationResult("a.dat is in use") : ValidationResult();
    });
    ModalScript user;
    onDialog(user, [&](Shown& shown) {
        for (int time = 0; time < 2; ++time) {
            onMessage(user, "a.dat is in use");
            enterName("a.dat");
            EXPECT_TRUE(eventually([&] { return shown.name().window()->isActiveWindow(); }));
            EXPECT_EQ(shown.name().text(), QStringLiteral("a.dat"));
        }
        enterName("b.dat");
    });
    EXPECT_EQ(m_dialog.exec(), QDialog::Accepted);
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(QFileInfo(m_dialog.selectedFiles().value(0)).fileName(), QStringLiteral("b.dat"));
}

TEST_P(DialogOptionsHands, escapeAfterARefusalCancels)
{
    m_dialog.setAcceptanceCheck([](const QStringList&) { return ValidationResult("never"); });
    ModalScript user;
    onDialog(user, [&](Shown& shown) {
        onMessage(user, "never");
        enterName("a.dat");
        EXPECT_TRUE(eventually([&] { return shown.name().window()->isActiveWindow(); }));
        press(Key::Escape);
    });
    EXPECT_EQ(m_dialog.exec(), QDialog::Rejected);
    m_dialog.setAcceptanceCheck({});
    EXPECT_EQ(use([this](Shown&) { enterName("a.dat"); }), QDialog::Accepted) << "once more";
}

TEST_P(DialogOptionsHands, returnInALineEditAcceptsUnlessItsTextIsRejected)
{
    m_options.comment->setValidator(boost::make_shared<NotEmpty>());
    ModalScript user;
    onDialog(user, [&](Shown& shown) {
        press({Key::Alt}, 'n');
        type(QStringLiteral("a.dat"));
        if (shown.name().completer()->popup()->isVisible()) {
            press(Key::Escape); // the suggestions for the name
        }
        press({Key::Alt}, 'm');
        press(Key::Delete);
        onMessage(user, "a comment is needed");
        press(Key::Return);
        EXPECT_TRUE(eventually([&] { return shown.comment().text() == QLatin1String("before"); }));
        press({Key::Control}, 'a');
        type(QStringLiteral("after"));
        press(Key::Return);
    });
    EXPECT_EQ(m_dialog.exec(), QDialog::Accepted);
    EXPECT_TRUE(user.finished());
    EXPECT_EQ(m_options.comment->value(), "after");
}

TEST_P(DialogOptionsHands, theSaveFlowTakesTheSameFunction)
{
    Options options;
    SaveFileDialog flow(&m_window, "Save", folder(), "", "Data (*.dat)", "");
    options.addTo(*flow.customization());
    for (int time = 0; time < 2; ++time) {
        ModalScript user;
        onDialog(user, [&](Shown& shown) {
            press({Key::Alt}, 'e');
            press(Key::Down);
            press({Key::Alt}, 'm');
            type(QStringLiteral("run %1").arg(time));
            press({Key::Alt}, 'n');
            expectFocus(shown.name());
            press({Key::Control}, 'a');
            type(QStringLiteral("a"));
            if (GetParam()) {
                user.on<QMessageBox>([this](QMessageBox& box) {
                    activate(box);
                    press({Key::Alt}, 'y');
                });
            }
            press(Key::Return);
        });
        if (!GetParam()) {
            user.on<QMessageBox>([this](QMessageBox& box) {
                activate(box);
                press({Key::Alt}, 'y');
            });
        }
        EXPECT_TRUE(flow.launch());
        EXPECT_TRUE(user.finished());
        EXPECT_EQ(QFileInfo(QString::fromStdString(flow.selectedFilename())).fileName(), QStringLiteral("a.dat"));
        EXPECT_EQ(options.encoding->value(), time + 1);
        EXPECT_EQ(options.comment->value(), "run " + std::to_string(time));
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogOptionsHands, ::testing::Bool(),
    [](const auto& tested) { return std::string(tested.param ? "native" : "qt"); });

} // namespace

} // namespace morvane::test
