// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "InlineNote.h"
#include "pages/ChosenFilesTable.h"
#include "pages/OpenFilesPage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourUser.h"
#include "tour/TourWorkspace.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

namespace gallery {

using tour::cancelStep;
using tour::expect;
using tour::expectListed;
using tour::OpenFileDialog;

namespace {

const QString allMeasurements = QStringLiteral("archive run-001.dat run-002.dat run-003.dat summary.csv");

} // namespace

std::vector<TourStep> OpenFilesPage::tourSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps = optionSteps(workspace);
    append(steps, oneFileSteps(workspace));
    append(steps, severalFilesSteps(workspace));
    append(steps, folderSteps(workspace));
    append(steps, validationSteps(workspace));
    append(steps, geometrySteps(workspace));
    return steps;
}

TourStep OpenFilesPage::openStep(const QString& name)
{
    return {name, [this] { tour::click(*m_open); }, [] { return expectListed(allMeasurements); }};
}

std::vector<TourStep> OpenFilesPage::optionSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path();
    std::vector<TourStep> steps;
    steps.push_back(
        {QStringLiteral("missing-folder"), [=] { tour::type(*m_startFolder, folder + QStringLiteral("/missing")); },
            [this] {
                return expect(m_startFolderNote->text() == tr("There is no such folder.") && !m_open->isEnabled(),
                    "no message says that the folder is missing");
            }});
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(*m_startFolder, folder); },
        [this] {
            return expect(m_startFolderNote->text().isEmpty() && m_open->isEnabled(), "the folder is not accepted");
        }});
    return steps;
}

std::vector<TourStep> OpenFilesPage::oneFileSteps(const TourWorkspace& workspace)
{
    std::vector<TourStep> steps;
    steps.push_back(openStep(QStringLiteral("dialog-for-one-file")));
    steps.push_back({QStringLiteral("help-button"), [] { tour::click(OpenFileDialog().helpButton()); },
        [&workspace] {
            const QFileInfo page(workspace.openedPage());
            return expect(page.isFile() && page.fileName() == QStringLiteral("open-files.html"),
                QStringLiteral("opened \"%1\"").arg(workspace.openedPage()));
        }});
    steps.push_back({QStringLiteral("wildcard"),
        [] {
            tour::type(OpenFileDialog().name(), QStringLiteral("*2*"));
            tour::press(OpenFileDialog().name(), Qt::Key_Return);
        },
        [] {
            const QString complaint = expectListed(QStringLiteral("archive run-002.dat"));
            return complaint.isEmpty()
                       ? expect(OpenFileDialog().type().currentText() == QStringLiteral("Measurements (*2*)"),
                             "the name filter does not show the wildcard")
                       : complaint;
        }});
    steps.push_back({QStringLiteral("pick-one-file"),
        [] { tour::clickItem(OpenFileDialog().view(), OpenFileDialog().find(QStringLiteral("run-002.dat"))); },
        [] {
            return expect(OpenFileDialog() && OpenFileDialog().name().text() == QStringLiteral("run-002.dat"),
                "the name field does not change");
        }});
    steps.push_back({QStringLiteral("one-file-chosen"), [] { tour::click(OpenFileDialog().acceptButton()); },
        [this, &workspace] {
            const qint64 size = QFileInfo(workspace.folder().path(QStringLiteral("run-002.dat"))).size();
            const QString expected = QStringLiteral("run-002.dat=") + QLocale().formattedDataSize(size);
            return expect(!QApplication::activeModalWidget() && m_chosen->content() == expected,
                QStringLiteral("the table holds \"%1\"").arg(m_chosen->content()));
        }});
    return steps;
}

std::vector<TourStep> OpenFilesPage::severalFilesSteps(const TourWorkspace&)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("choose-several-files"), [this] { tour::click(*m_severalFiles); },
        [this] { return expect(m_severalFiles->isChecked(), "the option is not set"); }});
    steps.push_back(openStep(QStringLiteral("dialog-for-several-files")));
    steps.push_back({QStringLiteral("pick-several-files"),
        [] {
            const OpenFileDialog open;
            tour::clickItem(open.view(), open.find(QStringLiteral("run-001.dat")));
            tour::clickItem(open.view(), open.find(QStringLiteral("run-003.dat")), Qt::ControlModifier);
            tour::clickItem(open.view(), open.find(QStringLiteral("summary.csv")), Qt::ControlModifier);
        },
        [] {
            return expect(OpenFileDialog() && OpenFileDialog().name().text().count(QLatin1Char('"')) == 6,
                "the name field does not hold three names");
        }});
    steps.push_back({QStringLiteral("several-files-chosen"), [] { tour::click(OpenFileDialog().acceptButton()); },
        [this] {
            return expect(m_chosen->rowCount() == 3 && !QApplication::activeModalWidget(),
                QStringLiteral("the table holds \"%1\"").arg(m_chosen->content()));
        }});
    return steps;
}

std::vector<TourStep> OpenFilesPage::folderSteps(const TourWorkspace&)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("choose-a-folder"), [this] { tour::click(*m_folder); },
        [this] { return expect(!m_filters->isEnabled(), "the name filters can still be edited"); }});
    steps.push_back({QStringLiteral("dialog-for-a-folder"), [this] { tour::click(*m_open); },
        [] { return expectListed(QStringLiteral("archive")); }});
    steps.push_back({QStringLiteral("pick-folder"),
        [] { tour::clickItem(OpenFileDialog().view(), OpenFileDialog().find(QStringLiteral("archive"))); },
        [] {
            return expect(OpenFileDialog() && OpenFileDialog().name().text() == QStringLiteral("archive"),
                "the name field does not change");
        }});
    steps.push_back({QStringLiteral("folder-chosen"), [] { tour::press(OpenFileDialog().name(), Qt::Key_Return); },
        [this] {
            return expect(!QApplication::activeModalWidget() && m_chosen->content() == QStringLiteral("archive=folder"),
                QStringLiteral("the table holds \"%1\"").arg(m_chosen->content()));
        }});
    return steps;
}

std::vector<TourStep> OpenFilesPage::validationSteps(const TourWorkspace&)
{
    const auto typeMissingName = [] {
        tour::type(OpenFileDialog().name(), QStringLiteral("absent.dat"));
        tour::press(OpenFileDialog().name(), Qt::Key_Return);
    };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("choose-one-file"), [this] { tour::click(*m_oneFile); },
        [this] { return expect(m_filters->isEnabled(), "the name filters cannot be edited"); }});
    steps.push_back(openStep(QStringLiteral("dialog-with-validation")));
    steps.push_back({QStringLiteral("missing-file-refused"), typeMissingName,
        [] { return expect(tour::modal<QMessageBox>() != nullptr, "no message says that the file is missing"); }});
    steps.push_back(
        {QStringLiteral("back-in-dialog"), [] { tour::press(*QApplication::activeModalWidget(), Qt::Key_Return); },
            [] { return expect(bool(OpenFileDialog()), "the dialog is not shown again"); }});
    steps.push_back(cancelStep(QStringLiteral("cancelled")));
    steps.push_back({QStringLiteral("validation-off"), [this] { tour::click(*m_validate); },
        [this] { return expect(!m_validate->isChecked(), "the option is still set"); }});
    steps.push_back(openStep(QStringLiteral("dialog-without-validation")));
    steps.push_back({QStringLiteral("missing-file-chosen"), typeMissingName, [this] {
                         return expect(!QApplication::activeModalWidget() &&
                                           m_chosen->content() == QStringLiteral("absent.dat=does not exist"),
                             QStringLiteral("the table holds \"%1\"").arg(m_chosen->content()));
                     }});
    return steps;
}

std::vector<TourStep> OpenFilesPage::geometrySteps(const TourWorkspace&)
{
    // Small enough for every usual screen.
    static const QSize picked(640, 380);
    const auto sizeIs = [](const QSize& size) {
        const OpenFileDialog open;
        return expect(open && open.dialog->size() == size,
            QStringLiteral("the dialog is %1 px wide").arg(open ? open.dialog->width() : 0));
    };
    std::vector<TourStep> steps;
    steps.push_back(openStep(QStringLiteral("dialog-to-resize")));
    steps.push_back(
        {QStringLiteral("resized"), [] { OpenFileDialog().dialog->resize(picked); }, [=] { return sizeIs(picked); }});
    steps.push_back(cancelStep(QStringLiteral("resized-cancelled")));
    steps.push_back({QStringLiteral("size-kept"), [this] { tour::click(*m_open); }, [=] { return sizeIs(picked); }});
    steps.push_back(cancelStep(QStringLiteral("size-kept-cancelled")));
    steps.push_back({QStringLiteral("forget-geometry"), [this] { tour::click(*m_forget); }, [] { return QString(); }});
    steps.push_back({QStringLiteral("default-size"), [this] { tour::click(*m_open); },
        [=] { return sizeIs(QSize(m_width->value(), m_height->value())); }});
    steps.push_back(cancelStep(QStringLiteral("default-size-cancelled")));
    return steps;
}

} // namespace gallery
