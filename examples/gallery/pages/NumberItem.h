// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStandardItem>

namespace gallery {

/**
 * A table item that is edited as a number and shown as text: a double as a capacitance in farads, other numbers
 * unchanged.
 */
class NumberItem : public QStandardItem
{
public:
    explicit NumberItem(const QVariant& number);

    QVariant data(int role) const override;

    static QString unitOfCapacitance();
};

} // namespace gallery
