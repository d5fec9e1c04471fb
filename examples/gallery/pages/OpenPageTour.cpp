// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileDialogForm.h"
#include "pages/OpenPage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace gallery {

using tour::expect;
using tour::OpenFileDialog;

namespace {

const QString entriesToOpen = QStringLiteral("archive run-001.dat run-002.dat run-003.dat summary.csv");
const QString texts = QStringLiteral("archive notes.txt");

void clickFile(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    tour::clickItem(OpenFileDialog().view(), OpenFileDialog().find(name), modifiers);
}

} // namespace

std::vector<TourStep> OpenPage::tourSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps = optionSteps(workspace);
    append(steps, dialogSteps(workspace, false));
    if (tour::canDriveNativeDialog()) {
        append(steps, dialogSteps(workspace, true));
    }
    return steps;
}

std::vector<TourStep> OpenPage::optionSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path();
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("file-as-folder"),
        [=] { tour::type(form().folderField(), folder + QStringLiteral("/notes.txt")); },
        [this] {
            return expect(form().note() == QStringLiteral("This is a file, not a folder.") &&
                              !openButton().isEnabled() && !launchButton().isEnabled(),
                "no message says that this is not a folder");
        }});
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(form().folderField(), folder); },
        [this] { return expect(form().note().isEmpty() && openButton().isEnabled(), "the folder is not accepted"); }});
    return steps;
}

std::vector<TourStep> OpenPage::dialogSteps(const TourWorkspace& workspace, bool native)
{
    std::vector<TourStep> steps{switchStep(native)};
    append(steps, oneFileSteps(workspace));
    append(steps, severalFilesSteps(workspace));
    append(steps, oneCallSteps(workspace));
    return namedAfterKind(std::move(steps), native);
}

std::vector<TourStep> OpenPage::oneFileSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back(
        {QStringLiteral("start-file"), [this] { tour::type(form().fileField(), QStringLiteral("run-003.dat")); },
            [this] { return expect(form().startFile() == "run-003.dat", "the file is not accepted"); }});
    steps.push_back(openStep(QStringLiteral("one-file"), entriesToOpen));
    steps.push_back(tour::helpStep(workspace, QStringLiteral("help"), QStringLiteral("open-files.html")));
    steps.push_back({QStringLiteral("start-file-in-name"), [] {},
        [] {
            const OpenFileDialog open;
            return expect(open && open.name().text() == QStringLiteral("run-003.dat"), "the name is different");
        }});
    steps.push_back(
        {QStringLiteral("next-type"), [] { tour::pickNextType(); }, [] { return tour::expectListed(texts); }});
    steps.push_back({QStringLiteral("pick-file"), [] { clickFile(QStringLiteral("notes.txt")); },
        [] {
            const OpenFileDialog open;
            return expect(open && open.name().text() == QStringLiteral("notes.txt"), "the name does not change");
        }});
    steps.push_back(chosenStep(
        QStringLiteral("file-chosen"), [] { tour::click(OpenFileDialog().acceptButton()); },
        shownOf(workspace, {QStringLiteral("notes.txt")}), QStringLiteral("Chosen as type 1, Text (*.txt):")));
    return steps;
}

std::vector<TourStep> OpenPage::severalFilesSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("several"),
        [this] {
            tour::type(form().fileField(), QString());
            if (!m_several->isChecked()) {
                tour::click(*m_several);
            }
        },
        [this] { return expect(fileMode() == QFileDialog::ExistingFiles, "the dialog asks for one file"); }});
    steps.push_back(openStep(QStringLiteral("several-files"), entriesToOpen));
    steps.push_back({QStringLiteral("pick-files"),
        [] {
            clickFile(QStringLiteral("run-001.dat"));
            clickFile(QStringLiteral("run-003.dat"), Qt::ShiftModifier);
        },
        [] {
            const OpenFileDialog open;
            return expect(open && open.name().text().count(QLatin1Char('"')) == 6, "the names are not listed");
        }});
    steps.push_back(chosenStep(
        QStringLiteral("files-chosen"), [] { tour::click(OpenFileDialog().acceptButton()); },
        shownOf(
            workspace, {QStringLiteral("run-001.dat"), QStringLiteral("run-002.dat"), QStringLiteral("run-003.dat")}),
        QStringLiteral("Chosen as type 0, Measurements (*.dat *.csv):")));
    return steps;
}

std::vector<TourStep> OpenPage::oneCallSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("one-call-options"),
        [this] {
            tour::click(*m_several);
            tour::press(form().typeField(), Qt::Key_Down);
        },
        [this] {
            return expect(form().startType() == 1 && fileMode() == QFileDialog::ExistingFile, "the type is different");
        }});
    steps.push_back(launchStep(QStringLiteral("one-call"), texts));
    steps.push_back(chosenStep(
        QStringLiteral("one-call-chosen"), [] { tour::enterName(QStringLiteral("notes.txt")); },
        shownOf(workspace, {QStringLiteral("notes.txt")}), QStringLiteral("Chosen as type 1, Text (*.txt):")));
    steps.push_back(launchStep(QStringLiteral("one-call-again"), texts));
    steps.push_back(tour::cancelStep(QStringLiteral("one-call-cancelled")));
    steps.push_back({QStringLiteral("first-type"), [this] { tour::press(form().typeField(), Qt::Key_Up); },
        [this] { return expect(form().startType() == 0, "the type is different"); }});
    return steps;
}

} // namespace gallery
