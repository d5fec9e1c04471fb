// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/QExtendedFileDialog.h"

int main()
{
    return QExtendedFileDialog::staticMetaObject.className() ? 0 : 1;
}
