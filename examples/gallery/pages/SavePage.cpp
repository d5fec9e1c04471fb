#include "pages/SavePage.h"

#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

#include <QCheckBox>
#include <QLineEdit>

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
    // With one pattern a type: the native dialog gives the name the extension of its type.
    form().filtersField().setText(tr("Measurements (*.dat);;Text (*.txt);;All files (*)"));
    form().addOption(m_ask);
    addLaunchButton();
}

void SavePage::configure(ExtendedFileDialog& dialog)
{
    dialog.setDontConfirmOverwrite(!m_ask->isChecked());
}

} // namespace gallery
