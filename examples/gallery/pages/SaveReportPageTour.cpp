// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FileDialogForm.h"
#include "pages/Report.h"
#include "pages/SaveReportPage.h"
#include "tour/OpenFileDialog.h"
#include "tour/TourWorkspace.h"
#include "ui/qt/dialogs/DefaultSaveFileMessageHandler.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include <memory>

namespace gallery {

using tour::expect;
using tour::OpenFileDialog;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** In the language of the tour. */
QString defaultQuestion(std::string (morvane::DefaultSaveFileMessageHandler::*question)(), const QString& path)
{
    morvane::DefaultSaveFileMessageHandler handler;
    handler.filenameToCheck(path.toStdString());
    return QString::fromStdString((handler.*question)());
}

QString expectQuestion(const QString& part)
{
    const auto* const box = tour::modal<QMessageBox>();
    return expect(
        box && box->text().contains(part), QStringLiteral("the question is \"%1\"").arg(box ? box->text() : QString()));
}

QString expectDialog()
{
    return expect(bool(OpenFileDialog()), "the dialog is not open");
}

void answer(QMessageBox::StandardButton button)
{
    tour::click(*tour::modal<QMessageBox>()->button(button));
}

/** A path that cannot be written on any system; if possible, outside of the tour's own directory. */
QString refusedName(const TourWorkspace& workspace)
{
    const bool isPosix = QDir::rootPath() == QLatin1String("/");
    return isPosix ? QStringLiteral("/sys/report.txt") : workspace.folder().path(QStringLiteral("archive/|report.txt"));
}

} // namespace

std::vector<TourStep> SaveReportPage::tourSteps(const TourWorkspace& workspace)
{
    const QString folder = workspace.folder().path(QStringLiteral("archive"));
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("start-folder"), [=] { tour::type(m_form->folderField(), folder); },
        [this] { return expect(m_form->note().isEmpty() && m_save->isEnabled(), "the folder is not accepted"); }});
    append(steps, dialogSteps(workspace, false));
    if (tour::canDriveNativeDialog()) {
        append(steps, dialogSteps(workspace, true));
    }
    return steps;
}

std::vector<TourStep> SaveReportPage::dialogSteps(const TourWorkspace& workspace, bool native)
{
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("switch"),
        [this, native] {
            if (m_form->nativeField().isChecked() != native) {
                tour::click(m_form->nativeField());
            }
        },
        [native] { return expect(ExtendedFileDialog::useNativeFileDialog() == native, "the switch did not change"); }});
    // The files that the first kind of dialog saved must not exist for the second kind.
    steps.push_back({QStringLiteral("no-reports-yet"),
        [&workspace] {
            QDir folder(workspace.folder().path(QStringLiteral("archive")));
            for (const QString& name : folder.entryList({QStringLiteral("report*")}, QDir::Files)) {
                folder.remove(name);
            }
        },
        [] { return QString(); }});
    append(steps, newFileSteps(workspace));
    append(steps, replaceSteps(workspace));
    append(steps, refusedSteps(workspace));
    append(steps, wordingSteps(workspace));
    append(steps, optionSteps(workspace));
    return namedAfterKind(std::move(steps), native);
}

TourStep SaveReportPage::saveStep(const QString& name)
{
    return {name, [this] { tour::click(*m_save); }, expectDialog};
}

TourStep SaveReportPage::writtenStep(
    const QString& name, const std::function<void()>& action, const QString& path, int writer)
{
    return {
        name, action, [=] {
            const ReportWriter& chosen = reportWriters().at(static_cast<size_t>(writer));
            const QString content = reportText(writer);
            const QString complaint = tour::expectClosed();
            return complaint.isEmpty()
                       ? expect(contentOf(path) == m_options.encoded(content) &&
                                    m_file->text() == QDir::toNativeSeparators(path) &&
                                    m_writer->text().startsWith(chosen.name) && m_content->toPlainText() == content,
                             QStringLiteral("the page shows \"%1\" by \"%2\"").arg(m_file->text(), m_writer->text()))
                       : complaint;
        }};
}

std::vector<TourStep> SaveReportPage::newFileSteps(const TourWorkspace& workspace)
{
    const TourFolder& folder = workspace.folder();
    std::vector<TourStep> steps;
    steps.push_back(saveStep(QStringLiteral("dialog")));
    steps.push_back(tour::helpStep(workspace, QStringLiteral("help"), QStringLiteral("save-files.html")));
    // Neither the initial name nor the typed name has an extension; the chosen type adds it.
    steps.push_back(writtenStep(
        QStringLiteral("text-written"), [] { tour::click(OpenFileDialog().acceptButton()); },
        folder.path(QStringLiteral("archive/report.txt")), 0));
    steps.push_back(saveStep(QStringLiteral("dialog-for-csv")));
    steps.push_back({QStringLiteral("choose-csv"), [] { tour::pickNextType(); },
        [] { return expect(OpenFileDialog().type().currentIndex() == 1, "the type is different"); }});
    steps.push_back(writtenStep(
        QStringLiteral("csv-written"), [] { tour::enterName(QStringLiteral("report-a")); },
        folder.path(QStringLiteral("archive/report-a.csv")), 1));
    steps.push_back(saveStep(QStringLiteral("dialog-for-html")));
    steps.push_back({QStringLiteral("choose-html"),
        [] {
            tour::pickNextType();
            tour::pickNextType();
        },
        [] { return expect(OpenFileDialog().type().currentIndex() == 2, "the type is different"); }});
    steps.push_back(writtenStep(
        QStringLiteral("html-written"), [] { tour::enterName(QStringLiteral("report-b")); },
        folder.path(QStringLiteral("archive/report-b.html")), 2));
    return steps;
}

std::vector<TourStep> SaveReportPage::replaceSteps(const TourWorkspace& workspace)
{
    const QString path = workspace.folder().path(QStringLiteral("archive/report.txt"));
    const auto before = std::make_shared<QByteArray>();
    const auto enter = [] { tour::enterName(QStringLiteral("report.txt")); };
    const auto asked = [path] {
        return expectQuestion(defaultQuestion(&morvane::DefaultSaveFileMessageHandler::okToOverwriteMessage, path));
    };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("another-title"),
        [=] {
            *before = contentOf(path);
            tour::type(*m_reportTitle, m_reportTitle->text() + QStringLiteral(" again"));
        },
        [=] { return expect(!before->isEmpty(), "there is no report to replace"); }});
    steps.push_back(saveStep(QStringLiteral("dialog-to-replace")));
    steps.push_back({QStringLiteral("replace"), enter, asked});
    steps.push_back({QStringLiteral("replace-no"), [] { answer(QMessageBox::No); },
        [=] {
            const QString complaint = expectDialog();
            return complaint.isEmpty() ? expect(contentOf(path) == *before, "the file has changed") : complaint;
        }});
    steps.push_back({QStringLiteral("replace-again"), enter, asked});
    steps.push_back(writtenStep(
        QStringLiteral("replaced"), [] { answer(QMessageBox::Yes); }, path, 0));
    return steps;
}

std::vector<TourStep> SaveReportPage::refusedSteps(const TourWorkspace& workspace)
{
    const QString refused = refusedName(workspace);
    const auto enter = [refused] { tour::enterName(refused); };
    const auto asked = [refused] {
        return expectQuestion(
            defaultQuestion(&morvane::DefaultSaveFileMessageHandler::unableToOverwriteMessage, refused));
    };
    std::vector<TourStep> steps;
    steps.push_back(saveStep(QStringLiteral("dialog-for-refused-place")));
    steps.push_back({QStringLiteral("place-refuses"), enter, asked});
    steps.push_back({QStringLiteral("another-place"), [] { answer(QMessageBox::Yes); }, expectDialog});
    steps.push_back(writtenStep(
        QStringLiteral("written-elsewhere"),
        [=, &workspace] { tour::enterName(workspace.folder().path(QStringLiteral("archive/report-c.txt"))); },
        workspace.folder().path(QStringLiteral("archive/report-c.txt")), 0));
    steps.push_back(saveStep(QStringLiteral("dialog-to-give-up")));
    steps.push_back({QStringLiteral("place-refuses-again"), enter, asked});
    steps.push_back({QStringLiteral("given-up"), [] { answer(QMessageBox::No); },
        [this] {
            const QString complaint = tour::expectClosed();
            return complaint.isEmpty() ? expect(m_file->text() == tr("nothing was written: given up"), m_file->text())
                                       : complaint;
        }});
    return steps;
}

std::vector<TourStep> SaveReportPage::optionSteps(const TourWorkspace& workspace)
{
    const auto customEdit = [](const char* name) {
        return OpenFileDialog().dialog->findChild<QLineEdit*>(QLatin1String(name));
    };
    const auto customList = [](const char* name) {
        return OpenFileDialog().dialog->findChild<QComboBox*>(QLatin1String(name));
    };
    // The names count the controls: the Help button only if it is the native one, a label, the list, and so on.
    const auto list = [=] { return ExtendedFileDialog::useNativeFileDialog() ? "customControl2" : "customControl1"; };
    const auto edit = [=] { return ExtendedFileDialog::useNativeFileDialog() ? "customControl6" : "customControl5"; };
    const QString path = workspace.folder().path(QStringLiteral("archive/report-d.txt"));
    std::vector<TourStep> steps;
    steps.push_back(saveStep(QStringLiteral("dialog-with-options")));
    steps.push_back({QStringLiteral("options"),
        [=] {
            tour::press(*customList(list()), Qt::Key_Down);
            tour::type(*customEdit(edit()), QStringLiteral("4 °C above plan"));
        },
        [=] {
            return expect(customList(list())->currentText() == QStringLiteral("Latin 1") &&
                              customEdit(edit())->text() == QStringLiteral("4 °C above plan"),
                "the dialog shows other options");
        }});
    steps.push_back(writtenStep(
        QStringLiteral("written-with-options"), [] { tour::enterName(QStringLiteral("report-d")); }, path, 0));
    steps.push_back({QStringLiteral("options-in-the-file"), [] {},
        [=] {
            return expect(contentOf(path).endsWith("\nComment: 4 \xB0"
                                                   "C above plan\n"),
                "the file has other options");
        }});
    steps.push_back(saveStep(QStringLiteral("dialog-with-the-same-options")));
    steps.push_back({QStringLiteral("options-stay"), [] {},
        [=] {
            return expect(customList(list())->currentIndex() == 1 && !customEdit(edit())->text().isEmpty(),
                "the options are not the last ones");
        }});
    steps.push_back(tour::cancelStep(QStringLiteral("options-cancelled")));
    steps.push_back({QStringLiteral("first-options"), [this] { m_options.reset(); }, [] { return QString(); }});
    return steps;
}

std::vector<TourStep> SaveReportPage::wordingSteps(const TourWorkspace& workspace)
{
    const QString path = workspace.folder().path(QStringLiteral("archive/report.txt"));
    // Looks like markup, but must be shown unchanged.
    const QString question = QStringLiteral("Shall <b>%1</b> go?");
    const auto toggleWording = [this] { tour::press(*m_wording, Qt::Key_Space); };
    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("own-wording"), toggleWording, [this] {
                         return expect(
                             m_wording->isChecked() && m_replaceQuestion->isEnabled(), "the texts are not editable");
                     }});
    steps.push_back({QStringLiteral("own-question"), [=] { tour::type(*m_replaceQuestion, question); },
        [=] { return expect(m_replaceQuestion->text() == question, "the text is different"); }});
    steps.push_back(saveStep(QStringLiteral("dialog-with-own-wording")));
    steps.push_back({QStringLiteral("own-replace-question"), [] { tour::enterName(QStringLiteral("report.txt")); },
        [] { return expectQuestion(QStringLiteral("Shall <b>report.txt</b> go?")); }});
    steps.push_back(writtenStep(
        QStringLiteral("own-replaced"), [] { answer(QMessageBox::Yes); }, path, 0));
    steps.push_back(saveStep(QStringLiteral("dialog-with-own-refusal")));
    const QString refused = refusedName(workspace);
    steps.push_back({QStringLiteral("own-refused-question"), [refused] { tour::enterName(refused); },
        [refused] {
            return expectQuestion(QStringLiteral("Nobody may write %1 there.").arg(QFileInfo(refused).fileName()));
        }});
    steps.push_back({QStringLiteral("own-refused-escape"),
        [] { tour::press(*QApplication::activeModalWidget(), Qt::Key_Escape); }, [] { return tour::expectClosed(); }});
    steps.push_back({QStringLiteral("default-wording"), toggleWording, [this] {
                         return expect(
                             !m_wording->isChecked() && !m_replaceQuestion->isEnabled(), "the texts are editable");
                     }});
    return steps;
}

} // namespace gallery
