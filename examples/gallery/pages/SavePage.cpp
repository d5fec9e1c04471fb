// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/SavePage.h"

#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>

namespace gallery {

namespace {

const char* const memoryKey = "gallery/save";

} // namespace

SavePage::SavePage()
    : FacadePage({QStringLiteral("save"), tr("Save"),
                     tr("Asks for a file name for saving; nothing is written. Choose an existing file to see the "
                        "question."),
                     tr("&Save…"), tr("Save")},
          QFileDialog::AcceptSave,
          new FileDialogForm(FileDialogForm::NativeSwitch | FileDialogForm::Filters | FileDialogForm::StartFile,
              QStringLiteral("result.dat"), QStringLiteral("save-files"))),
      m_ask(new QCheckBox(tr("As&k before a file is replaced"))),
      m_remember(new QCheckBox(tr("&Remember the folder")))
{
    m_ask->setChecked(true);
    // One pattern for each type, because the native dialog adds the extension of the type to the name.
    form().filtersField().setText(tr("Measurements (*.dat);;Text (*.txt);;All files (*)"));
    form().addOption(m_ask);
    form().rows().addRow(tr("Memory:"), m_remember);
    m_remember->setToolTip(tr("The next dialog opens in the folder of the last choice, also in the next session."));
    connect(m_remember, &QCheckBox::toggled, this, [this] { forgetFolder(); });
    addLaunchButton();
}

void SavePage::configure(ExtendedFileDialog& dialog)
{
    dialog.setDontConfirmOverwrite(!m_ask->isChecked());
    if (m_remember->isChecked()) {
        dialog.setMemoryKey(memoryKey);
    }
}

void SavePage::forgetFolder()
{
    ExtendedFileDialog dialog(*window(), "", "", "", "", QFileDialog::AcceptSave);
    dialog.setMemoryKey(memoryKey);
    dialog.clearMemory();
}

} // namespace gallery
