// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"
#include "pages/ReportOptions.h"

#include <memory>

class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace morvane {
class SaveFileMessageHandlerInterface;
}

namespace gallery {

class FileDialogForm;

/** Saves a report with SaveFileDialog: the dialog provides the name and the writer, and the page writes the file. */
class SaveReportPage : public Page
{
    Q_OBJECT

public:
    SaveReportPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    QWidget* makeWordingGroup();
    QWidget* makeResultGroup();

    std::unique_ptr<morvane::SaveFileMessageHandlerInterface> makeHandler() const;
    void save();
    /** The report as a writer writes it with the options of the dialog. */
    QString reportText(int writer) const;
    void write(const QString& fileName, int writer);
    void showWritten(const QString& fileName, const QString& writer);
    void showNothingWritten(const QString& reason);

    std::vector<TourStep> dialogSteps(const TourWorkspace& workspace, bool native);
    std::vector<TourStep> newFileSteps(const TourWorkspace& workspace);
    std::vector<TourStep> replaceSteps(const TourWorkspace& workspace);
    std::vector<TourStep> refusedSteps(const TourWorkspace& workspace);
    std::vector<TourStep> wordingSteps(const TourWorkspace& workspace);
    std::vector<TourStep> optionSteps(const TourWorkspace& workspace);
    TourStep saveStep(const QString& name);
    TourStep writtenStep(const QString& name, const std::function<void()>& action, const QString& path, int writer);

    FileDialogForm* m_form;
    ReportOptions m_options;
    QLineEdit* m_reportTitle;
    QPushButton* m_save;
    QGroupBox* m_wording;
    QLineEdit* m_replaceQuestion;
    QLineEdit* m_refusedQuestion;
    QLabel* m_file;
    QLabel* m_writer;
    QPlainTextEdit* m_content;
};

} // namespace gallery
