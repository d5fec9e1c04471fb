// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileDialogForm.h"
#include "pages/SavePage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>

namespace gallery {

using tour::expect;
using tour::OpenFileDialog;

namespace {

const QString entriesBeforeSaving = QStringLiteral("archive run-001.dat run-002.dat run-003.dat");
const QString firstType = QStringLiteral("Chosen as type 0, Measurements (*.dat):");

} // namespace

std::vector<TourStep> SavePage::tourSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path();
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(form().folderField(), folder); },
        [=] { return expect(form().startFolder() == folder.toStdString(), "the folder is not accepted"); }});
    append(steps, dialogSteps(workspace, false));
    if (tour::canDriveNativeDialog()) {
        append(steps, dialogSteps(workspace, true));
    }
    return steps;
}

std::vector<TourStep> SavePage::dialogSteps(const TourWorkspace& workspace, bool native)
{
    std::vector<TourStep> steps{switchStep(native)};
    steps.push_back(openStep(QStringLiteral("dialog"), entriesBeforeSaving));
    steps.push_back({QStringLiteral("start-file-in-name"), [] {},
        [] {
            const OpenFileDialog open;
            return expect(open && open.name().text() == QStringLiteral("result.dat"), "the name is different");
        }});
    steps.push_back(tour::helpStep(workspace, QStringLiteral("help"), QStringLiteral("save-files.html")));
    if (native) {
        steps.push_back({QStringLiteral("extension-follows-type"), [] { tour::pickNextType(); },
            [] {
                const OpenFileDialog open;
                return expect(open && open.name().text() == QStringLiteral("result.txt"),
                    QStringLiteral("the name is \"%1\"").arg(open ? open.name().text() : QString()));
            }});
        steps.push_back({QStringLiteral("first-type"), [] { tour::press(OpenFileDialog().type(), Qt::Key_Up); },
            [] { return tour::expectListed(entriesBeforeSaving); }});
    }
    append(steps, questionSteps(workspace));
    append(steps, oneCallSteps());
    append(steps, memorySteps());
    return namedAfterKind(std::move(steps), native);
}

std::vector<TourStep> SavePage::questionSteps(const TourWorkspace& workspace)
{
    const auto replace = [] { tour::enterName(QStringLiteral("run-001.dat")); };
    const auto asked = [] {
        return expect(tour::modal<QMessageBox>() != nullptr, "no question whether the file may be replaced");
    };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("replace"), replace, asked});
    steps.push_back(
        {QStringLiteral("replace-no"), [] { tour::press(*QApplication::activeModalWidget(), Qt::Key_Escape); },
            [] { return expect(bool(OpenFileDialog()), "the dialog is not shown again"); }});
    steps.push_back({QStringLiteral("replace-again"), replace, asked});
    steps.push_back(chosenStep(
        QStringLiteral("replace-yes"), [] { tour::click(*tour::modal<QMessageBox>()->button(QMessageBox::Yes)); },
        shownOf(workspace, {QStringLiteral("run-001.dat")}), firstType));
    steps.push_back({QStringLiteral("ask-no-more"), [this] { tour::click(*m_ask); },
        [this] { return expect(!m_ask->isChecked(), "the option is still set"); }});
    steps.push_back(openStep(QStringLiteral("dialog-without-question"), entriesBeforeSaving));
    steps.push_back(chosenStep(
        QStringLiteral("replaced-unasked"), replace, shownOf(workspace, {QStringLiteral("run-001.dat")}), firstType));
    steps.push_back({QStringLiteral("ask-again"), [this] { tour::click(*m_ask); },
        [this] { return expect(m_ask->isChecked(), "the option is not set"); }});
    return steps;
}

std::vector<TourStep> SavePage::oneCallSteps()
{
    std::vector<TourStep> steps;
    steps.push_back(launchStep(QStringLiteral("one-call"), entriesBeforeSaving));
    steps.push_back(chosenStep(
        QStringLiteral("one-call-chosen"), [] { tour::enterName(QStringLiteral("new.dat")); },
        QStringLiteral("new.dat=does not exist"), firstType));
    return steps;
}

std::vector<TourStep> SavePage::memorySteps()
{
    const auto isInArchive = [] {
        const OpenFileDialog open;
        return expect(
            open && open.dialog->directory().dirName() == QStringLiteral("archive"), "the dialog is in another folder");
    };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("remember"), [this] { tour::click(*m_remember); },
        [this] { return expect(m_remember->isChecked(), "the option is not set"); }});
    steps.push_back(openStep(QStringLiteral("dialog-that-remembers"), entriesBeforeSaving));
    steps.push_back(
        {QStringLiteral("another-folder"), [] { tour::enterName(QStringLiteral("archive")); }, isInArchive});
    steps.push_back(chosenStep(
        QStringLiteral("chosen-elsewhere"), [] { tour::enterName(QStringLiteral("new.dat")); },
        QStringLiteral("new.dat=does not exist"), firstType));
    steps.push_back({QStringLiteral("folder-is-back"), [this] { tour::click(openButton()); }, isInArchive});
    steps.push_back(tour::cancelStep(QStringLiteral("remembered-cancelled")));
    steps.push_back({QStringLiteral("remember-no-more"), [this] { tour::click(*m_remember); },
        [this] { return expect(!m_remember->isChecked(), "the option is still set"); }});
    steps.push_back(openStep(QStringLiteral("start-folder-again"), entriesBeforeSaving));
    steps.push_back(tour::cancelStep(QStringLiteral("start-folder-cancelled")));
    return steps;
}

} // namespace gallery
