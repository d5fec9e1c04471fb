// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/NumberItem.h"

#include <QLocale>

namespace gallery {

namespace {

constexpr int shownDigits = 8;

} // namespace

NumberItem::NumberItem(const QVariant& number)
{
    setData(number, Qt::EditRole);
}

QVariant NumberItem::data(int role) const
{
    const QVariant number = QStandardItem::data(role);
    if (role == Qt::DisplayRole && number.userType() == QMetaType::Double) {
        return QLocale::c().toString(number.toDouble(), 'G', shownDigits) + unitOfCapacitance();
    }
    return number;
}

QString NumberItem::unitOfCapacitance()
{
    return QStringLiteral(" F");
}

} // namespace gallery
