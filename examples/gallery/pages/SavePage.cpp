#include "pages/SavePage.h"

#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QCheckBox>
#include <QFormLayout>

namespace gallery {

SavePage::SavePage()
    : FacadePage({QStringLiteral("save"), tr("Save"),
                     tr("Asks for a name to save to; nothing is written. Choose a file that is there already to be "
                        "asked about it."),
                     tr("&Save…"), tr("Save")},
          QFileDialog::AcceptSave,
          new FileDialogForm(FileDialogForm::NativeSwitch | FileDialogForm::Filters | FileDialogForm::StartFile,
              QStringLiteral("result.dat"), QStringLiteral("save-files"))),
      m_ask(new QCheckBox(tr("As&k before a file is replaced")))
{
    m_ask->setChecked(true);
    form().rows().addRow(tr("Question:"), m_ask);
    addLaunchButton();
}

void SavePage::configure(ExtendedFileDialog& dialog)
{
    dialog.setDontConfirmOverwrite(!m_ask->isChecked());
}

} // namespace gallery
