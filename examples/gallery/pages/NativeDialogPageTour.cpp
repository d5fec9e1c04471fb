// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/ChosenFilesTable.h"
#include "pages/FileDialogForm.h"
#include "pages/ImportOptions.h"
#include "pages/NativeDialogPage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace gallery {

using tour::expect;
using tour::OpenFileDialog;

namespace {

const QString measurements = QStringLiteral("archive run-001.dat run-002.dat run-003.dat");

void clickControl(const QString& text)
{
    tour::click(*OpenFileDialog().control(text));
}

/** Whether the dialog shows the control Preview, and whether it is enabled. */
QString expectPreview(bool visible, bool enabled)
{
    const OpenFileDialog open;
    const QAbstractButton* const box = open ? open.control(QStringLiteral("Preview")) : nullptr;
    return expect(box && box->isVisible() == visible && box->isEnabled() == enabled,
        "the check box does not have the requested state");
}

/** The list or line edit with this accessible name in the open dialog; null if there is none. */
template <typename Field>
Field* field(const QString& name)
{
    const OpenFileDialog open;
    const auto fields = open ? open.dialog->findChildren<Field*>() : QList<Field*>();
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&name](Field* one) { return one->accessibleName() == name; });
    return found == fields.end() ? nullptr : *found;
}

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

TourStep menuStep(const QString& name)
{
    // The menu has its own event loop, in which the next step runs.
    return {name, [] { tour::click(OpenFileDialog().acceptMenuArrow()); },
        [] { return expect(openMenu() && openMenu()->actions().size() == 2, "the menu is not open"); }};
}

} // namespace

std::vector<TourStep> NativeDialogPage::tourSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps = optionSteps(workspace);
    if (tour::canDriveNativeDialog()) {
        append(steps, checkBoxSteps(workspace));
        append(steps, listSteps());
        append(steps, controlStateSteps());
        append(steps, refusalSteps());
        append(steps, acceptOptionSteps());
        append(steps, saveSteps());
    } else {
        append(steps, systemDialogSteps());
        append(steps, systemSaveSteps());
    }
    return steps;
}

TourStep NativeDialogPage::openStep(const QString& name)
{
    return {name, [this] { tour::click(*m_run); }, [] { return tour::expectListed(measurements); }};
}

TourStep NativeDialogPage::chosenStep(
    const QString& name, const std::function<void()>& action, const QString& file, const QString& option)
{
    return {name, action, [this, file, option] {
                const QString complaint = tour::expectClosed();
                const QString shown = m_chosen->content().section(QLatin1Char('='), 0, 0);
                return complaint.isEmpty()
                           ? expect(shown == file && m_option->text() == option,
                                 QStringLiteral("the page shows \"%1\", %2").arg(m_chosen->content(), m_option->text()))
                           : complaint;
            }};
}

std::vector<TourStep> NativeDialogPage::optionSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path();
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(m_form->folderField(), folder); },
        [=] { return expect(m_form->startFolder() == folder.toStdString(), "the folder is not accepted"); }});
    steps.push_back({QStringLiteral("check-box-on-page"), [this] { tour::click(*m_previewField); },
        [this] { return expect(!m_preview->value(), "the property does not change"); }});
    return steps;
}

std::vector<TourStep> NativeDialogPage::checkBoxSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back(openStep(QStringLiteral("dialog")));
    steps.push_back(tour::helpStep(workspace, QStringLiteral("help"), QStringLiteral("native-dialog.html")));
    steps.push_back({QStringLiteral("preview-on"), [] { clickControl(QStringLiteral("Preview")); },
        [this] {
            return expect(m_preview->value() && m_previewField->isChecked(), "the page does not show the new value");
        }});
    steps.push_back({QStringLiteral("read-only-on"), [] { clickControl(QStringLiteral("Read only")); },
        [this] {
            return expect(m_readOnly->value() && m_readOnlyField->isChecked(), "the page does not show the new value");
        }});
    steps.push_back({QStringLiteral("type-index-live"), [] { tour::pickNextType(); },
        [this] {
            return expect(m_type->text() == QStringLiteral("2, Text (*.txt)"),
                QStringLiteral("the page shows \"%1\"").arg(m_type->text()));
        }});
    steps.push_back({QStringLiteral("type-index-back"), [] { tour::press(OpenFileDialog().type(), Qt::Key_Up); },
        [this] {
            return expect(m_type->text() == QStringLiteral("1, Measurements (*.dat)"),
                QStringLiteral("the page shows \"%1\"").arg(m_type->text()));
        }});
    return steps;
}

std::vector<TourStep> NativeDialogPage::listSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("encoding-chosen"),
        [] { tour::press(*field<QComboBox>(QStringLiteral("Encoding")), Qt::Key_Down); },
        [this] {
            return expect(m_import->encoding() == 1 && m_import->encodingField().currentIndex() == 1,
                "the page does not show the new value");
        }});
    steps.push_back({QStringLiteral("unit-chosen"), [] { clickControl(QStringLiteral("&Inches")); },
        [this] { return expect(m_import->unit() == 1, "the page does not have the new value"); }});
    steps.push_back({QStringLiteral("comment-typed"),
        [] { tour::type(*field<QLineEdit>(QStringLiteral("Comment")), QStringLiteral("night run")); },
        [this] {
            return expect(m_import->commentField().text() == QStringLiteral("night run"),
                QStringLiteral("the page shows \"%1\"").arg(m_import->commentField().text()));
        }});
    steps.push_back({QStringLiteral("comment-rejected"),
        [] { tour::type(*field<QLineEdit>(QStringLiteral("Comment")), QStringLiteral("which run?")); },
        [this] {
            return expect(!m_import->comment().contains(QLatin1Char('?')), "the page has a text that is not valid");
        }});
    steps.push_back({QStringLiteral("comment-put-back"), [] { clickControl(QStringLiteral("&Millimetres")); },
        [this] {
            const auto* const edit = field<QLineEdit>(QStringLiteral("Comment"));
            return expect(edit && edit->text() == m_import->comment() && m_import->unit() == 0,
                "the dialog still shows the text that is not valid");
        }});
    return steps;
}

std::vector<TourStep> NativeDialogPage::refusalSteps()
{
    std::vector<TourStep> steps;
    steps.push_back(openStep(QStringLiteral("dialog-with-check")));
    steps.push_back({QStringLiteral("inches-without-comment"),
        [] {
            tour::type(OpenFileDialog().name(), QStringLiteral("run-001.dat"));
            tour::type(*field<QLineEdit>(QStringLiteral("Comment")), QStringLiteral(" "));
            tour::press(*field<QLineEdit>(QStringLiteral("Comment")), Qt::Key_Backspace);
            clickControl(QStringLiteral("&Inches"));
        },
        [this] { return expect(m_import->unit() == 1 && m_import->comment().isEmpty(), "the values are different"); }});
    // The message has its own event loop, in which the next step runs.
    steps.push_back({QStringLiteral("refused"), [] { tour::click(OpenFileDialog().acceptButton()); },
        [] {
            const auto* const box = tour::modal<QMessageBox>();
            return expect(box && box->text() == QStringLiteral("Inches need a comment."), "no reason is shown");
        }});
    steps.push_back({QStringLiteral("reason-read"), [] { tour::press(*tour::modal<QMessageBox>(), Qt::Key_Return); },
        [] { return expect(bool(OpenFileDialog()), "the dialog is not open"); }});
    steps.push_back({QStringLiteral("unit-corrected"), [] { clickControl(QStringLiteral("&Millimetres")); },
        [this] { return expect(m_import->unit() == 0, "the page does not have the new value"); }});
    steps.push_back(chosenStep(
        QStringLiteral("accepted-after-all"), [] { tour::click(OpenFileDialog().acceptButton()); },
        QStringLiteral("run-001.dat"), QStringLiteral("view")));
    return steps;
}

std::vector<TourStep> NativeDialogPage::controlStateSteps()
{
    std::vector<TourStep> steps;
    const auto add = [&steps](const char* name, const char* button, bool visible, bool enabled) {
        steps.push_back({QString::fromLatin1(name), [=] { clickControl(QString::fromLatin1(button)); },
            [=] { return expectPreview(visible, enabled); }});
    };
    add("preview-disabled", "Lock Preview", true, false);
    add("preview-hidden", "Hide Preview", false, false);
    add("preview-shown", "Hide Preview", true, false);
    add("preview-enabled", "Lock Preview", true, true);
    steps.push_back(
        {QStringLiteral("name-typed"), [] { tour::type(OpenFileDialog().name(), QStringLiteral("run-001.dat")); },
            [] {
                return expect(OpenFileDialog().name().text() == QStringLiteral("run-001.dat"), "the name is different");
            }});
    // The user accepted nothing, so there is no file.
    steps.push_back(chosenStep(
        QStringLiteral("closed-by-button"), [] { clickControl(QStringLiteral("Close Now")); }, QString(),
        QStringLiteral("view, without a file: closed by a button of the host")));
    return steps;
}

std::vector<TourStep> NativeDialogPage::acceptOptionSteps()
{
    const auto editIs = [](bool enabled) {
        return expect(openMenu() && openMenu()->actions().at(1)->isEnabled() == enabled,
            "the option does not have the requested state");
    };
    std::vector<TourStep> steps;
    steps.push_back(openStep(QStringLiteral("dialog-with-options")));
    // Without a name no option can be accepted.
    steps.push_back({QStringLiteral("arrow-needs-a-name"), [] {},
        [] { return expect(!OpenFileDialog().acceptMenuArrow().isEnabled(), "the arrow is not grey"); }});
    steps.push_back(
        {QStringLiteral("another-name"), [] { tour::type(OpenFileDialog().name(), QStringLiteral("run-002.dat")); },
            [] { return expect(OpenFileDialog().acceptMenuArrow().isEnabled(), "the arrow is grey"); }});
    steps.push_back(menuStep(QStringLiteral("menu-while-read-only")));
    steps.push_back({QStringLiteral("edit-disabled"), [] {}, [=] { return editIs(false); }});
    steps.push_back({QStringLiteral("menu-closed"), [] { tour::press(*openMenu(), Qt::Key_Escape); },
        [] { return expect(!openMenu(), "the menu is open"); }});
    steps.push_back({QStringLiteral("read-only-off"), [] { clickControl(QStringLiteral("Read only")); },
        [this] { return expect(!m_readOnly->value(), "the property does not change"); }});
    steps.push_back(menuStep(QStringLiteral("menu")));
    steps.push_back({QStringLiteral("edit-enabled"), [] {}, [=] { return editIs(true); }});
    steps.push_back(chosenStep(
        QStringLiteral("accepted-to-edit"), [] { tour::clickAction(*openMenu(), *openMenu()->actions().at(1)); },
        QStringLiteral("run-002.dat"), QStringLiteral("edit")));
    return steps;
}

std::vector<TourStep> NativeDialogPage::saveSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("save-mode"),
        [this] {
            tour::click(*m_saveMode);
            tour::click(*m_withOptions);
            tour::type(m_form->fileField(), QStringLiteral("result.dat"));
        },
        [this] {
            return expect(
                m_saveMode->isChecked() && !m_withOptions->isChecked(), "the options do not have the clicked states");
        }});
    steps.push_back(openStep(QStringLiteral("save-dialog")));
    steps.push_back({QStringLiteral("extension-follows-type"), [] { tour::pickNextType(); },
        [this] {
            const OpenFileDialog open;
            return expect(open && open.name().text() == QStringLiteral("result.txt") &&
                              m_type->text().startsWith(QStringLiteral("2,")),
                QStringLiteral("the page shows \"%1\"").arg(m_type->text()));
        }});
    steps.push_back(chosenStep(
        QStringLiteral("save-accepted"), [] { tour::click(OpenFileDialog().acceptButton()); },
        QStringLiteral("result.txt"), QStringLiteral("no option (255)")));
    steps.push_back(openStep(QStringLiteral("save-dialog-again")));
    steps.push_back(tour::cancelStep(QStringLiteral("save-cancelled")));
    return steps;
}

} // namespace gallery
