// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FolderPage.h"

#include "pages/FileDialogForm.h"
#include "ui/qt/dialogs/ExtendedFileDialog.h"

namespace gallery {

FolderPage::FolderPage()
    : FacadePage(
          {QStringLiteral("folder"), tr("Folder"), tr("Asks for a folder. Both kinds of dialog list folders only."),
              tr("&Choose…"), tr("Choose a Folder")},
          QFileDialog::AcceptOpen,
          new FileDialogForm(
              FileDialogForm::NativeSwitch | FileDialogForm::StartFile, QString(), QStringLiteral("open-files")))
{
}

void FolderPage::configure(ExtendedFileDialog& dialog)
{
    dialog.setShowDirectoriesOnly(true);
}

} // namespace gallery
