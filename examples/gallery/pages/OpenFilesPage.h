// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <QFileDialog>

class QCheckBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace gallery {

class ChosenFilesTable;
class InlineNote;

/** Runs QExtendedFileDialog with the options of this page, and lists the chosen files. */
class OpenFilesPage : public Page
{
    Q_OBJECT

public:
    OpenFilesPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    QFormLayout* makeOptions();
    QLayout* makeModeRow();
    QLayout* makeHelpRow();
    QLayout* makeSizeRow();
    QLayout* makeButtons();
    void connectOptions();

    QFileDialog::FileMode fileMode() const;
    QString startFolderProblem() const;
    void checkOptions();
    void openDialog();
    void watch(QFileDialog& dialog);
    void showChosen(const QStringList& files);
    void forgetGeometry();

    std::vector<TourStep> optionSteps(const TourWorkspace& workspace);
    std::vector<TourStep> oneFileSteps(const TourWorkspace& workspace);
    std::vector<TourStep> severalFilesSteps(const TourWorkspace& workspace);
    std::vector<TourStep> folderSteps(const TourWorkspace& workspace);
    std::vector<TourStep> validationSteps(const TourWorkspace& workspace);
    std::vector<TourStep> geometrySteps(const TourWorkspace& workspace);
    TourStep openStep(const QString& name);

    QRadioButton* m_oneFile;
    QRadioButton* m_severalFiles;
    QRadioButton* m_folder;
    QLineEdit* m_filters;
    QLineEdit* m_startFolder;
    InlineNote* m_startFolderNote;
    QCheckBox* m_withHelp;
    QLineEdit* m_helpTopic;
    QCheckBox* m_validate;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QPushButton* m_open;
    QPushButton* m_forget;
    ChosenFilesTable* m_chosen;
};

} // namespace gallery
