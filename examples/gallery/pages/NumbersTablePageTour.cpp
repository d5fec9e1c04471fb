// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/NumbersTablePage.h"
#include "tour/TourUser.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTableView>

namespace gallery {

using tour::expect;

std::vector<TourStep> NumbersTablePage::tourSteps(const TourWorkspace&)
{
    const auto editor = [this] {
        return qobject_cast<QAbstractSpinBox*>(m_table->indexWidget(m_table->currentIndex()));
    };
    const auto type = [=](const QModelIndex& index, const QString& text) {
        tour::clickItem(*m_table, index);
        tour::press(*m_table, Qt::Key_F2);
        tour::type(*editor()->findChild<QLineEdit*>(), text);
    };
    const auto isStored = [=](const QModelIndex& index, const QVariant& number) {
        return expect(index.data(Qt::EditRole) == number,
            QStringLiteral("the cell has %1").arg(index.data(Qt::EditRole).toString()));
    };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("type-a-number"), [=] { type(cell(0, Capacitance), QStringLiteral("6.8E-7")); },
        [=] { return expect(editor() && editor()->text() == QStringLiteral("6.8E-7 F"), "no text was typed"); }});
    steps.push_back({QStringLiteral("tab-stores"), [=] { tour::press(*editor(), Qt::Key_Tab); },
        [=] { return isStored(cell(0, Capacitance), 6.8e-7); }});
    steps.push_back({QStringLiteral("click-elsewhere-stores"),
        [=] {
            type(cell(1, Pieces), QStringLiteral("44"));
            tour::clickItem(*m_table, cell(3, Part));
        },
        [=] { return isStored(cell(1, Pieces), 44); }});
    steps.push_back({QStringLiteral("return-stores"),
        [=] {
            type(cell(2, Capacitance), QStringLiteral("1.5E-8"));
            tour::press(*editor(), Qt::Key_Return);
        },
        [=] { return isStored(cell(2, Capacitance), 1.5e-8); }});
    steps.push_back({QStringLiteral("typed-after-a-step"),
        [=] {
            tour::clickItem(*m_table, cell(3, Pieces));
            tour::press(*m_table, Qt::Key_F2);
            tour::press(*editor(), Qt::Key_Up);
            tour::press(*editor(), Qt::Key_5);
            tour::press(*editor(), Qt::Key_Tab);
        },
        [=] { return isStored(cell(3, Pieces), 5); }});
    steps.push_back({QStringLiteral("escape-stores-nothing"),
        [=] {
            type(cell(0, Pieces), QStringLiteral("7"));
            tour::press(*editor(), Qt::Key_Escape);
        },
        [=] {
            const QString complaint = isStored(cell(0, Pieces), 120);
            return complaint.isEmpty() ? expect(!editor(), "the editor is still open") : complaint;
        }});
    return steps;
}

} // namespace gallery
