// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "soak/DialogAnswer.h"
#include "soak/Platform.h"
#include "ui/qt/dialogs/shell/WidgetShell_p.h"

#include <QApplication>
#include <QDialog>

namespace morvane::test {

std::unique_ptr<ui::Shell> nativeShell()
{
    return std::make_unique<ui::WidgetShell>(ui::WidgetShell::Appearance::AlwaysWidgets);
}

bool cancelNativeDialog()
{
    return DialogAnswer::cancelQtDialog();
}

bool acceptNativeDialog()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog) {
        dialog->accept();
    }
    return dialog != nullptr;
}

int nativeDialogInterval()
{
    return 0;
}

std::vector<Subject> systemSubjects()
{
    return {};
}

} // namespace morvane::test
