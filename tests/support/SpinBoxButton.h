// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace morvane::test {

/** The place of the up or down button in a spin box. */
inline QRect spinBoxButton(const QAbstractSpinBox& spin, QStyle::SubControl button)
{
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = spin.buttonSymbols();
    option.frame = spin.hasFrame();
    return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, button, &spin);
}

} // namespace morvane::test
