// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"
#include "property/Property.h"

class ExtendedWinFileDialog;
class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace gallery {

class ChosenFilesTable;
class FileDialogForm;
class ImportOptions;

/** Runs ExtendedWinFileDialog with controls of the host, and shows their state while the dialog is open. */
class NativeDialogPage : public Page
{
    Q_OBJECT

public:
    NativeDialogPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

private:
    using Flag = boost::shared_ptr<morvane::PropertyAbstract<bool>>;

    void addOptions();
    QWidget* makeLiveGroup();
    void bind(const Flag& flag, QCheckBox& box);

    void runDialog();
    void addControls(ExtendedWinFileDialog& dialog);
    /** @return proxy widget of the option that is not possible for a read-only file; null without options */
    QWidget* addAcceptOptions(ExtendedWinFileDialog& dialog);
    void showType(int index);
    void showOutcome(ExtendedWinFileDialog& dialog);

    TourStep openStep(const QString& name);
    /** @param file the name that the page then shows; empty for none */
    TourStep chosenStep(
        const QString& name, const std::function<void()>& action, const QString& file, const QString& option);
    std::vector<TourStep> optionSteps(const TourWorkspace& workspace);
    std::vector<TourStep> checkBoxSteps(const TourWorkspace& workspace);
    std::vector<TourStep> controlStateSteps();
    std::vector<TourStep> listSteps();
    std::vector<TourStep> refusalSteps();
    std::vector<TourStep> systemListSteps();
    std::vector<TourStep> acceptOptionSteps();
    std::vector<TourStep> saveSteps();
    TourStep systemOpenStep(const QString& name, int listed);
    std::vector<TourStep> systemDialogSteps();
    std::vector<TourStep> systemSaveSteps();

    Flag m_readOnly;
    Flag m_preview;

    FileDialogForm* m_form;
    QRadioButton* m_openMode;
    QRadioButton* m_saveMode;
    QCheckBox* m_withOptions;
    QCheckBox* m_withMemory;
    ImportOptions* m_import;
    QPushButton* m_run;
    QCheckBox* m_readOnlyField;
    QCheckBox* m_previewField;
    QLabel* m_type;
    QLabel* m_option;
    ChosenFilesTable* m_chosen;
};

} // namespace gallery
