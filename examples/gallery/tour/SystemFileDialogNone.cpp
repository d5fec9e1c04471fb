// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/SystemFileDialog.h"

namespace gallery::tour {

SystemFileDialog::SystemFileDialog() : m_window(0) {}

QRect SystemFileDialog::geometry() const
{
    return QRect();
}

QString SystemFileDialog::name() const
{
    return QString();
}

void SystemFileDialog::setName(const QString&) const {}

void SystemFileDialog::pickType(int) const {}

int SystemFileDialog::listedFiles() const
{
    return 0;
}

void SystemFileDialog::click(const QString&) const {}

bool SystemFileDialog::isVisible(const QString&) const
{
    return false;
}

bool SystemFileDialog::isEnabled(const QString&) const
{
    return false;
}

bool SystemFileDialog::isChecked(const QString&) const
{
    return false;
}

void SystemFileDialog::accept() const {}

void SystemFileDialog::cancel() const {}

} // namespace gallery::tour
