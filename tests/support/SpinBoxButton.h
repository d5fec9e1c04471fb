#pragma once

#include <QAbstractSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

namespace morvane::test {

/** Where the button up, or down, of a spin box is in it. */
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
