// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/NativeDialogPage.h"

#include "pages/ChosenFilesTable.h"
#include "pages/FileDialogForm.h"
#include "pages/ImportOptions.h"
#include "ui/qt/dialogs/ExtendedWinFileDialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <boost/make_shared.hpp>

namespace gallery {

namespace {

enum AcceptOption
{
    View,
    Edit
};

} // namespace

NativeDialogPage::NativeDialogPage()
    : Page(QStringLiteral("native-dialog"), tr("Native dialog"),
          tr("The platform's own file dialog with controls of the host: check boxes, push buttons, lists, text and a "
             "menu on the accept button. What they do shows here while the dialog is open.")),
      m_readOnly(boost::make_shared<morvane::Property<bool>>(false)),
      m_preview(boost::make_shared<morvane::Property<bool>>(true)),
      m_form(new FileDialogForm(
          FileDialogForm::Filters | FileDialogForm::StartFile, QString(), QStringLiteral("native-dialog"))),
      m_openMode(new QRadioButton(tr("&Open"))),
      m_saveMode(new QRadioButton(tr("&Save"))),
      m_withOptions(new QCheckBox(tr("&Menu on the accept button"))),
      m_withMemory(new QCheckBox(tr("&Keep folder and size"))),
      m_import(new ImportOptions),
      m_run(new QPushButton(tr("Sho&w Dialog…"))),
      m_readOnlyField(new QCheckBox(tr("&Read only"))),
      m_previewField(new QCheckBox(tr("&Preview"))),
      m_type(new QLabel(tr("no dialog was open yet"))),
      m_option(new QLabel(tr("none"))),
      m_chosen(new ChosenFilesTable)
{
    addOptions();
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_run);
    buttons->addSpacing(12);
    buttons->addWidget(m_withMemory);
    buttons->addStretch(1);
    body().addWidget(m_form);
    body().addLayout(buttons);
    body().addWidget(makeLiveGroup());
    body().addWidget(m_import);
    body().addWidget(m_chosen, 1);

    bind(m_readOnly, *m_readOnlyField);
    bind(m_preview, *m_previewField);
    connect(m_import, &ImportOptions::reported, this, &Page::reported);
    connect(m_form, &FileDialogForm::usableChanged, m_run, &QWidget::setEnabled);
    connect(m_run, &QPushButton::clicked, this, [this] { runDialog(); });
}

void NativeDialogPage::addOptions()
{
    m_openMode->setChecked(true);
    // One pattern for each type, because a name for saving gets the extension of its type.
    m_form->filtersField().setText(tr("Measurements (*.dat);;Text (*.txt);;All files (*)"));
    m_withOptions->setChecked(true);
    for (QWidget* const option : std::initializer_list<QWidget*>{m_openMode, m_saveMode, m_withOptions}) {
        m_form->addOption(option);
    }
}

QWidget* NativeDialogPage::makeLiveGroup()
{
    auto* const group = new QGroupBox(tr("Shown live"));
    auto* const boxes = new QHBoxLayout;
    boxes->addWidget(m_readOnlyField);
    boxes->addSpacing(12);
    boxes->addWidget(m_previewField);
    boxes->addStretch(1);
    m_type->setTextFormat(Qt::PlainText);
    m_option->setTextFormat(Qt::PlainText);
    auto* const form = new QFormLayout(group);
    form->addRow(tr("Properties:"), boxes);
    form->addRow(tr("Type index:"), m_type);
    form->addRow(tr("Accepted to:"), m_option);
    return group;
}

void NativeDialogPage::bind(const Flag& flag, QCheckBox& box)
{
    box.setChecked(flag->value());
    connect(&box, &QCheckBox::toggled, this, [flag](bool on) { flag->setValue(on); });
    flag->signalValueChanged.connect([this, &box](const bool& on) {
        box.setChecked(on);
        Q_EMIT reported(tr("%1 is now %2").arg(box.text().remove(QLatin1Char('&')), on ? tr("on") : tr("off")));
    });
}

void NativeDialogPage::runDialog()
{
    ExtendedWinFileDialog dialog(*window(), m_saveMode->isChecked() ? "Save" : "Open", m_form->startFolder(),
        m_form->filters(), m_form->helpTopic(),
        m_saveMode->isChecked() ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen, m_withOptions->isChecked());
    dialog.setFileMode(m_saveMode->isChecked() ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.selectFile(QString::fromStdString(m_form->startFile()));
    // Types are counted from 1 there.
    dialog.currentFilterIndex()->setValue(m_form->startType() + 1);
    addControls(dialog);
    m_import->addTo(*dialog.customization(), m_form->startFolder());
    if (m_withMemory->isChecked()) {
        dialog.setMemoryKey("gallery/native-dialog");
        dialog.addCustomButton("Forget Folder", [&dialog] { dialog.clearMemory(); });
    }
    QWidget* const edit = addAcceptOptions(dialog);

    const boost::signals2::scoped_connection typeShown =
        dialog.currentFilterIndex()->signalValueChanged.connect([this](const int& index) { showType(index); });
    const boost::signals2::scoped_connection editFollows =
        m_readOnly->signalValueChanged.connect([edit](const bool& readOnly) {
            if (edit) {
                edit->setEnabled(!readOnly);
            }
        });
    showType(dialog.currentFilterIndex()->value());
    m_option->setText(tr("the dialog is open"));
    if (dialog.exec() == QDialog::Accepted) {
        showOutcome(dialog);
    } else {
        m_option->setText(tr("nothing: cancelled"));
        Q_EMIT reported(tr("Dialog cancelled"));
    }
}

void NativeDialogPage::addControls(ExtendedWinFileDialog& dialog)
{
    dialog.addCustomCheckBox("Read only", m_readOnly);
    QWidget* const preview = dialog.addCustomCheckBox("Preview", m_preview);
    dialog.addCustomButton("Lock Preview", [this, preview] {
        preview->setEnabled(!preview->isEnabled());
        Q_EMIT reported(preview->isEnabled() ? tr("Preview is enabled") : tr("Preview is disabled"));
    });
    dialog.addCustomButton("Hide Preview", [this, preview] {
        preview->setVisible(preview->isHidden());
        Q_EMIT reported(preview->isHidden() ? tr("Preview is hidden") : tr("Preview is shown"));
    });
    dialog.addCustomButton("Close Now", [this, &dialog] {
        Q_EMIT reported(tr("The dialog is closed by a button of the host"));
        dialog.close();
    });
}

QWidget* NativeDialogPage::addAcceptOptions(ExtendedWinFileDialog& dialog)
{
    if (!m_withOptions->isChecked()) {
        return nullptr;
    }
    const bool saving = m_saveMode->isChecked();
    dialog.addAcceptButtonOption(saving ? tr("Save") : tr("View"), View);
    QWidget* const edit = dialog.addAcceptButtonOption(saving ? tr("Save and Edit") : tr("Edit"), Edit);
    edit->setEnabled(!m_readOnly->value());
    return edit;
}

void NativeDialogPage::showType(int index)
{
    const std::vector<std::string> filters = m_form->filterList();
    const bool known = index > 0 && static_cast<size_t>(index) <= filters.size();
    const QString filter = known ? QString::fromStdString(filters[static_cast<size_t>(index - 1)]) : tr("none");
    m_type->setText(tr("%1, %2").arg(index).arg(filter));
    Q_EMIT reported(tr("The type index is %1").arg(index));
}

void NativeDialogPage::showOutcome(ExtendedWinFileDialog& dialog)
{
    const int option = dialog.selectedAcceptMenuOption();
    const QString name = option == View ? tr("view") : option == Edit ? tr("edit") : tr("no option (%1)").arg(option);
    const QStringList files = dialog.selectedFiles();
    // Only the user chooses files; close() ends the dialog without a file.
    m_option->setText(files.isEmpty() ? tr("%1, without a file: closed by a button of the host").arg(name) : name);
    Q_EMIT reported(tr("Accepted to: %1").arg(m_option->text()));
    for (const QString& line : m_chosen->showFiles(files)) {
        Q_EMIT reported(line);
    }
}

} // namespace gallery
