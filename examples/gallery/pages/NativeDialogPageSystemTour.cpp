// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The tour where the operating system draws the dialog.
#include "pages/ChosenFilesTable.h"
#include "pages/FileDialogForm.h"
#include "pages/NativeDialogPage.h"
#include "tour/SystemFileDialog.h"
#include "tour/TourUser.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace gallery {

using tour::expect;
using tour::SystemFileDialog;

namespace {

TourStep clickStep(const QString& name, const QString& control, const std::function<QString()>& check)
{
    return {name, [control] { SystemFileDialog().click(control); }, check};
}

QString expectSystemPreview(bool visible, bool enabled)
{
    const QString preview = QStringLiteral("Preview");
    const SystemFileDialog open;
    return expect(open && open.isVisible(preview) == visible && open.isEnabled(preview) == enabled,
        "the check box does not have the requested state");
}

} // namespace

TourStep NativeDialogPage::systemOpenStep(const QString& name, int listed)
{
    return {name, [this] { tour::click(*m_run); },
        [listed] {
            const SystemFileDialog open;
            return expect(open && open.listedFiles() == listed, "the dialog is not open, or lists other files");
        }};
}

std::vector<TourStep> NativeDialogPage::systemDialogSteps()
{
    std::vector<TourStep> steps{systemOpenStep(QStringLiteral("dialog"), 4)};
    steps.push_back(clickStep(QStringLiteral("preview-on"), QStringLiteral("Preview"),
        [this] { return expect(m_preview->value() && m_previewField->isChecked(), "the page does not change"); }));
    steps.push_back(clickStep(QStringLiteral("read-only-on"), QStringLiteral("Read only"),
        [this] { return expect(m_readOnly->value() && m_readOnlyField->isChecked(), "the page does not change"); }));
    steps.push_back({QStringLiteral("type-index-live"), [] { SystemFileDialog().pickType(1); },
        [this] { return expect(m_type->text() == QStringLiteral("2, Text (*.txt)"), "the page shows another type"); }});
    steps.push_back({QStringLiteral("type-index-back"), [] { SystemFileDialog().pickType(0); },
        [this] {
            return expect(m_type->text() == QStringLiteral("1, Measurements (*.dat)"), "the page shows another type");
        }});
    const auto lock = QStringLiteral("Lock Preview");
    const auto hide = QStringLiteral("Hide Preview");
    steps.push_back(
        clickStep(QStringLiteral("preview-disabled"), lock, [] { return expectSystemPreview(true, false); }));
    steps.push_back(
        clickStep(QStringLiteral("preview-hidden"), hide, [] { return expectSystemPreview(false, false); }));
    steps.push_back(clickStep(QStringLiteral("preview-shown"), hide, [] { return expectSystemPreview(true, false); }));
    steps.push_back(clickStep(QStringLiteral("preview-enabled"), lock, [] { return expectSystemPreview(true, true); }));
    steps.push_back({QStringLiteral("accepted"),
        [] {
            SystemFileDialog().setName(QStringLiteral("run-001.dat"));
            SystemFileDialog().accept();
        },
        [this] {
            const QString shown = m_chosen->content().section(QLatin1Char('='), 0, 0);
            return expect(!SystemFileDialog() && shown == QStringLiteral("run-001.dat") &&
                              m_option->text() == QStringLiteral("view"),
                QStringLiteral("the page shows \"%1\", %2").arg(shown, m_option->text()));
        }});
    return steps;
}

std::vector<TourStep> NativeDialogPage::systemSaveSteps()
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("save-mode"),
        [this] {
            tour::click(*m_saveMode);
            tour::type(m_form->fileField(), QStringLiteral("result.dat"));
        },
        [this] { return expect(m_saveMode->isChecked(), "the option does not have the clicked state"); }});
    steps.push_back(systemOpenStep(QStringLiteral("save-dialog"), 4));
    steps.push_back({QStringLiteral("extension-follows-type"), [] { SystemFileDialog().pickType(1); },
        [] {
            const SystemFileDialog open;
            return expect(open && open.name() == QStringLiteral("result.txt"),
                QStringLiteral("the name is \"%1\"").arg(open ? open.name() : QString()));
        }});
    steps.push_back({QStringLiteral("save-cancelled"), [] { SystemFileDialog().cancel(); },
        [this] {
            return expect(!SystemFileDialog() && m_option->text() == QStringLiteral("nothing: cancelled"),
                "the page does not show it");
        }});
    return steps;
}

} // namespace gallery
