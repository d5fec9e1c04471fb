#include "ui/qt/controls/QScientificSpinBox.h"

#include <QLocale>

#include <cmath>

namespace morvane::ui {

namespace {

QByteArray exactText(double number)
{
    return QLocale::c().toString(number, 'G', QLocale::FloatingPointShortest).toLatin1();
}

void setFromText(QScientificSpinBox& spinBox, void (QDoubleSpinBox::*set)(double), const QByteArray& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number)) {
        (spinBox.*set)(number);
    }
}

} // namespace

QByteArray QScientificSpinBox::minimumText() const
{
    return exactText(minimum());
}

void QScientificSpinBox::setMinimumText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setMinimum, number);
}

QByteArray QScientificSpinBox::maximumText() const
{
    return exactText(maximum());
}

void QScientificSpinBox::setMaximumText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setMaximum, number);
}

QByteArray QScientificSpinBox::singleStepText() const
{
    return exactText(singleStep());
}

void QScientificSpinBox::setSingleStepText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setSingleStep, number);
}

QByteArray QScientificSpinBox::valueText() const
{
    return exactText(value());
}

void QScientificSpinBox::setValueText(const QByteArray& number)
{
    setFromText(*this, &QDoubleSpinBox::setValue, number);
}

} // namespace morvane::ui
