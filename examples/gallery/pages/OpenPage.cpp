// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/OpenPage.h"

#include "pages/FileDialogForm.h"

#include <QCheckBox>

namespace gallery {

OpenPage::OpenPage()
    : FacadePage({QStringLiteral("open"), tr("Open"),
                     tr("One interface for two kinds of dialog: the switch selects the platform's own dialog or "
                        "the one made of Qt's widgets."),
                     tr("&Open…"), tr("Open")},
          QFileDialog::AcceptOpen,
          new FileDialogForm(FileDialogForm::NativeSwitch | FileDialogForm::Filters | FileDialogForm::StartFile,
              QString(), QStringLiteral("open-files"))),
      m_several(new QCheckBox(tr("&Several files")))
{
    form().addOption(m_several);
    addLaunchButton();
}

QFileDialog::FileMode OpenPage::fileMode() const
{
    return m_several->isChecked() ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
}

} // namespace gallery
