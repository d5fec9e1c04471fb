#pragma once

#include <QStandardItem>

namespace gallery {

/** A number that is edited as what it is and shown as text: capacitances (double) in farads, anything else as it is. */
class NumberItem : public QStandardItem
{
public:
    explicit NumberItem(const QVariant& number);

    QVariant data(int role) const override;

    static QString unitOfCapacitance();
};

} // namespace gallery
