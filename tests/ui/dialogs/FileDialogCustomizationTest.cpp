// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What a host adds to a file dialog, with one function for the native dialog and for Qt's, for opening and for saving.
#include "support/ActiveWindow.h"
#include "support/FileDialogDriver.h"
#include "support/ModalScript.h"
#include "support/RecordingSettings.h"

#include "host/InstanceOverride.h"
#include "property/Property.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"
#include "ui/qt/dialogs/QExtendedFileDialog.h"
#include "ui/qt/dialogs/SaveFileDialog.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <boost/make_shared.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

#include <stdexcept>

namespace morvane::test {

namespace {

using Place = ui::FileDialogCustomization::Place;

class NotEmpty : public ValidatorInterface<std::string>
{
public:
    ValidationResult validate(const std::string& value) const override
    {
        return value.empty() ? ValidationResult("a comment is needed") : ValidationResult();
    }
};

/** The values that the host shares with the controls of its one function. */
struct Options
{
    boost::shared_ptr<Property<int>> encoding = boost::make_shared<Property<int>>(0);
    boost::shared_ptr<Property<int>> unit = boost::make_shared<Property<int>>(1);
    boost::shared_ptr<Property<std::string>> comment = boost::make_shared<Property<std::string>>("before");
    boost::shared_ptr<Property<bool>> keep = boost::make_shared<Property<bool>>(false);
    int clicks = 0;

    // The identifiers are those of the header: label, control, entries.
    const QString encodingBox = QStringLiteral("customControl1");
    const QString unitBox = QStringLiteral("customControl5");
    const QString commentEdit = QStringLiteral("customControl9");

    void addTo(ui::FileDialogCustomization& dialog)
    {
        dialog.addCustomComboBox("&Encoding:", {"UTF-8", "UTF-16"}, encoding);
        dialog.addCustomRadioButtons("Unit:", {"mm", "m"}, unit);
        dialog.addCustomLineEdit("Co&mment:", comment);
        dialog.addCustomCheckBox("Keep", keep);
        dialog.addCustomButton("Count", [this] { ++clicks; });
    }
};

/** The facade on the native dialog made of widgets (true) and on Qt's dialog (false). */
class FileDialogCustomization : public ::testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        ExtendedFileDialog::setUseNativeFileDialog(GetParam());
        for (const char* const name : {"a.dat", "b.dat"}) {
            QFile file(path(QLatin1String(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        QDir(m_folder.path()).mkdir(QStringLiteral("inner"));
        m_parent->show();
    }
    void TearDown() override { ExtendedFileDialog::setUseNativeFileDialog(true); }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    std::unique_ptr<ExtendedFileDialog> makeDialog(QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen)
    {
        return std::make_unique<ExtendedFileDialog>(
            *m_parent, "Files", m_folder.path().toStdString(), "Data (*.dat)", "", mode);
    }
    /** Cancels when @p act has not closed the dialog. */
    int use(ExtendedFileDialog& dialog, const std::function<void(FileDialogDriver&)>& act)
    {
        m_user.on<QFileDialog>(FileDialogDriver::playing(act));
        return dialog.exec();
    }
    void expectMessage(const std::string& part)
    {
        m_user.on<QMessageBox>([part](QMessageBox& box) {
            EXPECT_THAT(box.text().toStdString(), ::testing::HasSubstr(part));
            QTest::keyClick(&box, Qt::Key_Return);
        });
    }

    QTemporaryDir m_folder;
    RecordingSettings m_settings;
    InstanceOverride<ApplicationSettings> m_settingsOverride{m_settings};
    ui::WidgetShell m_shell{ui::WidgetShell::Appearance::AlwaysWidgets};
    ui::ShellOverride m_shellOverride{m_shell};
    std::unique_ptr<QWidget> m_parent = std::make_unique<QWidget>();
    ModalScript m_user;
    Options m_options;
};

TEST_P(FileDialogCustomization, theUserChangesThePropertiesByKeysAndMouse)
{
    const auto dialog = makeDialog();
    m_options.addTo(*dialog->customization());
    EXPECT_EQ(use(*dialog,
                  [&](FileDialogDriver& user) {
                      user.chooseEntry(m_options.encodingBox, 1);
                      EXPECT_TRUE(waitUntil([&] { return m_options.encoding->value() == 1; }));
                      user.clickControl(QStringLiteral("mm"));
                      EXPECT_TRUE(waitUntil([&] { return m_options.unit->value() == 0; }));
                      user.typeText(m_options.commentEdit, QStringLiteral("typed"));
                      EXPECT_TRUE(waitUntil([&] { return m_options.comment->value() == "typed"; }));
                      user.toggleControl(QStringLiteral("Keep"));
                      EXPECT_TRUE(m_options.keep->value());
                      user.clickControl(QStringLiteral("Count"));
                      user.clickControl(QStringLiteral("Count"));
                      EXPECT_EQ(m_options.clicks, 2);
                      user.typeText(m_options.commentEdit, QStringLiteral("and at once"));
                      user.typeName(QStringLiteral("a.dat"));
                      user.pressAccept();
                  }),
        QDialog::Accepted);
    EXPECT_EQ(m_options.comment->value(), "and at once");
    EXPECT_EQ(QFileInfo(dialog->selectedFiles().value(0)).fileName(), QStringLiteral("a.dat"));
}

TEST_P(FileDialogCustomization, theControlsFollowTheProperties)
{
    const auto dialog = makeDialog();
    m_options.addTo(*dialog->customization());
    use(*dialog, [&](FileDialogDriver& user) {
        EXPECT_EQ(user.customList(m_options.encodingBox)->currentIndex(), 0);
        m_options.encoding->setValue(1);
        EXPECT_EQ(user.customList(m_options.encodingBox)->currentIndex(), 1);
        EXPECT_TRUE(user.control(QStringLiteral("m"))->isChecked());
        m_options.unit->setValue(0);
        EXPECT_TRUE(user.control(QStringLiteral("mm"))->isChecked());
        EXPECT_FALSE(user.control(QStringLiteral("m"))->isChecked());
        m_options.comment->setValue("by the host");
        EXPECT_EQ(user.customEdit(m_options.commentEdit)->text(), QStringLiteral("by the host"));
        m_options.keep->setValue(true);
        EXPECT_TRUE(user.control(QStringLiteral("Keep"))->isChecked());
    });
}

TEST_P(FileDialogCustomization, aSecondRunShowsWhatTheFirstHasLeftAndWhatWasAddedBetween)
{
    const auto dialog = makeDialog();
    m_options.addTo(*dialog->customization());
    use(*dialog, [&](FileDialogDriver& user) {
        user.clickControl(QStringLiteral("mm"));
        user.typeText(m_options.commentEdit, QStringLiteral("typed"));
    });
    const auto more = boost::make_shared<Property<std::string>>("more");
    dialog->beginCustomGroup("More");
    dialog->addCustomLineEdit("First:", more);
    dialog->addCustomLineEdit("Second:", nullptr);
    dialog->endCustomGroup();
    m_options.encoding->setValue(1);
    use(*dialog, [&](FileDialogDriver& user) {
        EXPECT_TRUE(user.control(QStringLiteral("mm"))->isChecked());
        EXPECT_EQ(user.customEdit(m_options.commentEdit)->text(), QStringLiteral("typed"));
        EXPECT_EQ(user.customList(m_options.encodingBox)->currentIndex(), 1);
        EXPECT_EQ(user.customEdit(QStringLiteral("customControl14"))->text(), QStringLiteral("more"));
        user.clickControl(QStringLiteral("m"));
        EXPECT_TRUE(waitUntil([&] { return m_options.unit->value() == 1; }));
    });
}

TEST_P(FileDialogCustomization, mnemonicsReachLists)
{
    const auto dialog = makeDialog();
    m_options.addTo(*dialog->customization());
    use(*dialog, [&](FileDialogDriver& user) {
        setActiveWindow(user.dialog());
        QTest::keyClick(&user.dialog(), Qt::Key_E, Qt::AltModifier);
        EXPECT_EQ(user.dialog().focusWidget(), user.customList(m_options.encodingBox));
        QTest::keyClick(&user.dialog(), Qt::Key_M, Qt::AltModifier);
        EXPECT_EQ(user.dialog().focusWidget(), user.customEdit(m_options.commentEdit));
    });
}

TEST_P(FileDialogCustomization, anEntryIsHiddenOrDisabledAlone)
{
    const auto dialog = makeDialog();
    QWidget* const list = dialog->addCustomComboBox("List:", {"One", "Two", "Three"}, m_options.encoding);
    QWidget* const radio = dialog->addCustomRadioButtons("Radio:", {"mm", "cm", "m"}, m_options.unit);
    dialog->customEntry(list, 1)->setEnabled(false);
    dialog->customEntry(radio, 0)->hide();
    use(*dialog, [&](FileDialogDriver& user) {
        QComboBox* const box = user.customList(QStringLiteral("customControl1"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down);
        EXPECT_TRUE(waitUntil([&] { return m_options.encoding->value() == 2; })) << "the second one is skipped";
        EXPECT_FALSE(user.control(QStringLiteral("mm")));
        EXPECT_TRUE(user.control(QStringLiteral("cm")));
        dialog->customEntry(radio, 0)->show();
        EXPECT_TRUE(user.control(QStringLiteral("mm")));
        dialog->customEntry(list, 0)->hide();
        EXPECT_EQ(box->count(), 2);
        EXPECT_EQ(box->currentText(), QStringLiteral("Three")) << "still the chosen one";
        list->hide();
        EXPECT_FALSE(box->isVisible());
        list->show();
        EXPECT_TRUE(box->isVisible());
    });
}

TEST_P(FileDialogCustomization, theCheckKeepsTheDialogOpenAndSaysWhy)
{
    const auto dialog = makeDialog();
    int checks = 0;
    dialog->setAcceptanceCheck([&](const QStringList& paths) {
        ++checks;
        const bool isA = QFileInfo(paths.value(0)).fileName() == QLatin1String("a.dat");
        return isA ? ValidationResult("a.dat is in use") : ValidationResult();
    });
    EXPECT_EQ(use(*dialog,
                  [&](FileDialogDriver& user) {
                      expectMessage("a.dat is in use");
                      user.typeName(QStringLiteral("a.dat"));
                      user.pressAccept();
                      EXPECT_TRUE(user.isOpen());
                      EXPECT_EQ(user.name(), QStringLiteral("a.dat")) << "to be corrected";
                      user.typeName(QStringLiteral("b.dat"));
                      user.pressEnter();
                  }),
        QDialog::Accepted);
    EXPECT_EQ(checks, 2);
    EXPECT_TRUE(m_user.finished());
    dialog->setAcceptanceCheck({});
    EXPECT_EQ(use(*dialog,
                  [](FileDialogDriver& user) {
                      user.typeName(QStringLiteral("a.dat"));
                      user.pressAccept();
                  }),
        QDialog::Accepted);
}

TEST_P(FileDialogCustomization, aTextThatIsRejectedKeepsTheDialogOpen)
{
    const auto dialog = makeDialog();
    m_options.comment->setValidator(boost::make_shared<NotEmpty>());
    m_options.addTo(*dialog->customization());
    EXPECT_EQ(use(*dialog,
                  [&](FileDialogDriver& user) {
                      expectMessage("a comment is needed");
                      user.typeName(QStringLiteral("a.dat"));
                      user.typeText(m_options.commentEdit, QString());
                      EXPECT_EQ(user.customEdit(m_options.commentEdit)->text(), QString()) << "still typing";
                      user.pressAccept();
                      EXPECT_EQ(user.customEdit(m_options.commentEdit)->text(), QStringLiteral("before"));
                      EXPECT_TRUE(user.isOpen());
                      user.pressAccept();
                  }),
        QDialog::Accepted);
    EXPECT_EQ(m_options.comment->value(), "before");
    EXPECT_TRUE(m_user.finished());
}

TEST_P(FileDialogCustomization, anExceptionOfAnActionEndsTheDialogAndReachesTheCaller)
{
    const auto dialog = makeDialog();
    dialog->addCustomButton("Fail", [] { throw std::runtime_error("no"); });
    EXPECT_THROW(
        use(*dialog, [](FileDialogDriver& user) { user.clickControl(QStringLiteral("Fail")); }), std::runtime_error);
    EXPECT_EQ(use(*dialog, [](FileDialogDriver&) {}), QDialog::Rejected) << "usable again";
}

TEST_P(FileDialogCustomization, theParentMayGoInAnAction)
{
    const auto dialog = makeDialog();
    dialog->addCustomButton("Go", [this] { m_parent.reset(); });
    dialog->addCustomCheckBox("Keep", m_options.keep);
    m_user.on<QFileDialog>(
        [](QFileDialog& window) { FileDialogDriver::whenActive(window).clickControl(QStringLiteral("Go")); });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_EQ(dialog->customization() == nullptr, !GetParam());
    m_options.keep->setValue(true);
    dialog->addCustomText("nothing to see");
    dialog->setMemoryKey("key");
}

TEST_P(FileDialogCustomization, theParentMayGoInAnObserver)
{
    const auto dialog = makeDialog();
    dialog->addCustomCheckBox("Keep", m_options.keep);
    dialog->addCustomComboBox("List:", {"One", "Two"}, m_options.encoding);
    m_options.encoding->signalValueChanged.connect([this](const int&) { m_parent.reset(); });
    m_user.on<QFileDialog>([](QFileDialog& window) {
        const auto user = FileDialogDriver::whenActive(window);
        user.chooseEntry(QStringLiteral("customControl2"), 1);
    });
    EXPECT_EQ(dialog->exec(), QDialog::Rejected);
    EXPECT_EQ(m_options.encoding->value(), 1);
}

TEST_P(FileDialogCustomization, theAcceptButtonAndTheNameFieldHaveOtherTexts)
{
    const auto dialog = makeDialog();
    dialog->setAcceptButtonText("&Import");
    dialog->setFileNameLabel("Measurement:");
    use(*dialog, [](FileDialogDriver& user) {
        EXPECT_EQ(user.acceptButton().text(), QStringLiteral("&Import"));
        EXPECT_EQ(user.dialog().labelText(QFileDialog::FileName), QStringLiteral("Measurement:"));
    });
}

TEST_P(FileDialogCustomization, placesAreInTheSidebarOfThisDialogOnly)
{
    const QString inner = path(QStringLiteral("inner"));
    const auto dialog = makeDialog();
    dialog->addPlace(inner.toStdString(), Place::Top);
    dialog->addPlace(m_folder.path().toStdString(), Place::Bottom);
    dialog->addPlace(inner.toStdString() + "/missing", Place::Top);
    for (int run = 0; run < 2; ++run) {
        use(*dialog, [&](FileDialogDriver& user) {
            const QList<QUrl> urls = user.dialog().sidebarUrls();
            EXPECT_EQ(urls.first(), QUrl::fromLocalFile(inner));
            EXPECT_EQ(urls.last(), QUrl::fromLocalFile(m_folder.path()));
            EXPECT_EQ(urls.count(QUrl::fromLocalFile(inner)), 1);
        });
    }
    const auto other = makeDialog();
    use(*other, [&](FileDialogDriver& user) {
        EXPECT_FALSE(user.dialog().sidebarUrls().contains(QUrl::fromLocalFile(inner)));
    });
}

TEST_P(FileDialogCustomization, folderAndSizeAreKeptUnderAKey)
{
    const auto open = [this](const char* key, const std::function<void(FileDialogDriver&)>& act) {
        const auto dialog = makeDialog(QFileDialog::AcceptSave);
        dialog->setMemoryKey(key);
        use(*dialog, act);
    };
    const QSize size(900, 640);
    open("export", [&](FileDialogDriver& user) {
        user.dialog().resize(size);
        user.enterFolder(path(QStringLiteral("inner")));
        user.typeName(QStringLiteral("new.dat"));
        user.pressAccept();
    });
    open("export", [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), path(QStringLiteral("inner")));
        EXPECT_EQ(user.dialog().size(), size);
        user.enterFolder(m_folder.path());
    });
    open("export", [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), path(QStringLiteral("inner"))) << "the last one was cancelled";
    });
    open("import", [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), m_folder.path());
        EXPECT_NE(user.dialog().size(), size);
    });
    const auto cleared = makeDialog(QFileDialog::AcceptSave);
    cleared->setMemoryKey("export");
    cleared->clearMemory();
    use(*cleared, [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), m_folder.path());
        EXPECT_NE(user.dialog().size(), size);
    });
}

TEST_P(FileDialogCustomization, aKeptFolderThatHasGoneIsNotUsed)
{
    const QString inner = path(QStringLiteral("inner"));
    for (const bool gone : {false, true}) {
        const auto dialog = makeDialog(QFileDialog::AcceptSave);
        dialog->setMemoryKey("export");
        if (gone) {
            QDir().rmdir(inner);
        }
        use(*dialog, [&](FileDialogDriver& user) {
            EXPECT_EQ(user.dialog().directory().path(), m_folder.path());
            if (!gone) {
                user.enterFolder(inner);
                user.typeName(QStringLiteral("new.dat"));
                user.pressAccept();
            }
        });
    }
}

TEST_P(FileDialogCustomization, aKeptFolderIsForTheFirstRunOfADialog)
{
    const auto dialog = makeDialog(QFileDialog::AcceptSave);
    dialog->setMemoryKey("export");
    use(*dialog, [&](FileDialogDriver& user) {
        user.enterFolder(path(QStringLiteral("inner")));
        user.typeName(QStringLiteral("new.dat"));
        user.pressAccept();
    });
    use(*dialog, [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), path(QStringLiteral("inner")));
        user.enterFolder(m_folder.path());
    });
    use(*dialog, [&](FileDialogDriver& user) {
        EXPECT_EQ(user.dialog().directory().path(), m_folder.path()) << "as the user has left it";
    });
}

TEST_P(FileDialogCustomization, nothingIsAddedWhileTheDialogIsOpen)
{
    const auto dialog = makeDialog();
    use(*dialog, [&](FileDialogDriver&) {
        EXPECT_THROW(dialog->addCustomText("x"), std::logic_error);
        EXPECT_THROW(dialog->addCustomComboBox("x", {"One"}, nullptr), std::logic_error);
    });
    EXPECT_TRUE(dialog->addCustomText("between two runs"));
}

TEST_P(FileDialogCustomization, aCheckThatIsSetWhileTheDialogIsOpenSaysWhyItRefuses)
{
    const auto dialog = makeDialog();
    EXPECT_EQ(use(*dialog,
                  [&](FileDialogDriver& user) {
                      dialog->setAcceptanceCheck([](const QStringList&) { return ValidationResult("not now"); });
                      expectMessage("not now");
                      user.typeName(QStringLiteral("a.dat"));
                      user.pressAccept();
                      EXPECT_TRUE(user.isOpen());
                  }),
        QDialog::Rejected);
    EXPECT_TRUE(m_user.finished());
}

TEST_P(FileDialogCustomization, aRefusalHasTheTitleOfTheDialogAndItsReasonIsNoMarkup)
{
    const auto dialog = makeDialog();
    dialog->setAcceptanceCheck([](const QStringList&) { return ValidationResult("<b>no</b>"); });
    use(*dialog, [&](FileDialogDriver& user) {
        m_user.on<QMessageBox>([&user](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Files"));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.parentWidget(), &user.dialog()) << "above the dialog";
            QTest::keyClick(&box, Qt::Key_Return);
        });
        user.typeName(QStringLiteral("a.dat"));
        user.pressAccept();
    });
    EXPECT_TRUE(m_user.finished());
}

TEST_P(FileDialogCustomization, theSaveFlowTakesTheSameFunction)
{
    SaveFileDialog flow(m_parent.get(), "Save", m_folder.path().toStdString(), "", "Data (*.dat)", "");
    m_options.addTo(*flow.customization());
    flow.customization()->setAcceptanceCheck([](const QStringList& paths) {
        return paths.value(0).contains(QLatin1String("bad")) ? ValidationResult("no bad names") : ValidationResult();
    });
    m_user.on<QFileDialog>(FileDialogDriver::playing([&](FileDialogDriver& user) {
        user.clickControl(QStringLiteral("mm"));
        user.typeText(m_options.commentEdit, QStringLiteral("night run"));
        expectMessage("no bad names");
        user.typeName(QStringLiteral("bad"));
        user.pressAccept();
        user.typeName(QStringLiteral("good"));
        user.pressAccept();
    }));
    EXPECT_TRUE(flow.launch());
    EXPECT_EQ(flow.selectedFilename(), path(QStringLiteral("good.dat")).toStdString());
    EXPECT_EQ(m_options.unit->value(), 0);
    EXPECT_EQ(m_options.comment->value(), "night run");
    EXPECT_TRUE(m_user.finished());
}

std::string nameOfDialog(const ::testing::TestParamInfo<bool>& tested)
{
    return tested.param ? "native" : "qt";
}

INSTANTIATE_TEST_SUITE_P(Dialogs, FileDialogCustomization, ::testing::Bool(), nameOfDialog);

TEST(FileDialogCustomizationOfQt, anExceptionOfAnObserverOfAShownDialogDoesNotPassThroughQt)
{
    QWidget parent;
    QExtendedFileDialog dialog(parent, QFileDialog::AcceptOpen);
    const auto comment = boost::make_shared<Property<std::string>>();
    comment->signalValueChanged.connect([](const std::string&) { throw std::runtime_error("no"); });
    dialog.customization()->addCustomLineEdit("Comment:", comment);
    dialog.show();
    QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("customControl1")), QStringLiteral("x"));
    EXPECT_FALSE(dialog.isVisible());
    ModalScript user;
    user.on<QFileDialog>([](QFileDialog& shown) { shown.reject(); });
    EXPECT_EQ(dialog.exec(), QDialog::Rejected) << "an exception of a run before has no receiver";
}

TEST(FileDialogCustomizationOfQt, aDialogWithoutAdditionsHasNoStrip)
{
    QWidget parent;
    QExtendedFileDialog dialog(parent, QFileDialog::AcceptOpen);
    dialog.customization();
    dialog.show();
    EXPECT_FALSE(dialog.findChild<QWidget*>(QStringLiteral("customControls")));
    dialog.reject();
}

} // namespace

} // namespace morvane::test
