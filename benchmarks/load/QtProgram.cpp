// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include <QWidget>

int main()
{
    return QWidget::staticMetaObject.className() ? 0 : 1;
}
