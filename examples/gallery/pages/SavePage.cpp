// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/SavePage.h"

#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QCheckBox>
#include <QLineEdit>

namespace gallery {

SavePage::SavePage()
    : FacadePage({QStringLiteral("save"), tr("Save"),
                     tr("Asks for a file name for saving; nothing is written. Choose an existing file to see the "
                        "question."),
                     tr("&Save…"), tr("Save")},
          QFileDialog::AcceptSave,
          new FileDialogForm(FileDialogForm::NativeSwitch | FileDialogForm::Filters | FileDialogForm::StartFile,
              QStringLiteral("result.dat"), QStringLiteral("save-files"))),
      m_ask(new QCheckBox(tr("As&k before a file is replaced")))
{
    m_ask->setChecked(true);
    // One pattern for each type, because the native dialog adds the extension of the type to the name.
    form().filtersField().setText(tr("Measurements (*.dat);;Text (*.txt);;All files (*)"));
    form().addOption(m_ask);
    addLaunchButton();
}

void SavePage::configure(ExtendedFileDialog& dialog)
{
    dialog.setDontConfirmOverwrite(!m_ask->isChecked());
}

} // namespace gallery
