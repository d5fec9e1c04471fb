// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileDialogForm.h"
#include "pages/FolderPage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>

namespace gallery {

using tour::expect;
using tour::OpenFileDialog;

namespace {

const QString archive = QStringLiteral("archive");

} // namespace

std::vector<TourStep> FolderPage::tourSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path();
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(form().folderField(), folder); },
        [=] { return expect(form().startFolder() == folder.toStdString(), "the folder is not accepted"); }});
    for (const bool native : {false, true}) {
        if (!native || tour::canDriveNativeDialog()) {
            append(steps, dialogSteps(workspace, native));
        }
    }
    return steps;
}

std::vector<TourStep> FolderPage::dialogSteps(const TourWorkspace& workspace, bool native)
{
    std::vector<TourStep> steps{switchStep(native)};
    steps.push_back(openStep(QStringLiteral("dialog"), archive));
    steps.push_back(tour::helpStep(workspace, QStringLiteral("help"), QStringLiteral("open-files.html")));
    steps.push_back({QStringLiteral("pick-folder"),
        [] { tour::clickItem(OpenFileDialog().view(), OpenFileDialog().find(archive)); },
        [] {
            const OpenFileDialog open;
            return expect(open && open.name().text() == archive, "the name does not change");
        }});
    steps.push_back(chosenStep(
        QStringLiteral("folder-chosen"), [] { tour::click(OpenFileDialog().acceptButton()); },
        QStringLiteral("archive=folder"), QStringLiteral("Chosen:")));
    steps.push_back(openStep(QStringLiteral("dialog-again"), archive));
    steps.push_back(tour::cancelStep(QStringLiteral("cancelled")));
    return namedAfterKind(std::move(steps), native);
}

} // namespace gallery
