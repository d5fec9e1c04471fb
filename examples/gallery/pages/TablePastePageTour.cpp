// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "InlineNote.h"
#include "pages/TablePastePage.h"
#include "tour/TourUser.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

namespace gallery {

using tour::expect;

std::vector<TourStep> TablePastePage::tourSteps(const TourWorkspace&)
{
    const auto number = [this](int row, int column) { return m_points->index(row, column).data().toDouble(); };
    const auto paste = [this](int row, int column, const QString& text) {
        tour::clickItem(*m_table, m_points->index(row, column));
        QApplication::clipboard()->setText(text);
        tour::press(*m_table, Qt::Key_V, Qt::ControlModifier);
    };
    const auto noteHas = [this](const QString& part) {
        return expect(m_note->text().contains(part), QStringLiteral("the note is \"%1\"").arg(m_note->text()));
    };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("paste-block"),
        [=] { paste(1, Voltage, QStringLiteral("0.51\t25.5\r\n1.02\t50.5\r\n1.53\t75.5\r\n")); },
        [=] {
            return expect(number(1, Voltage) == 0.51 && number(3, Pressure) == 75.5 && m_note->text().isEmpty(),
                "the block was not pasted");
        }});
    steps.push_back({QStringLiteral("undo"), [=] { tour::click(*m_undo); },
        [=] { return expect(number(1, Voltage) == 0.5 && number(3, Pressure) == 75, "the paste was not undone"); }});
    steps.push_back({QStringLiteral("redo"), [=] { tour::click(*m_redo); },
        [=] { return expect(number(1, Voltage) == 0.51 && !m_redo->isEnabled(), "the paste was not done again"); }});
    steps.push_back({QStringLiteral("refused-text"), [=] { paste(0, Voltage, QStringLiteral("1\t2\n3\tfour")); },
        [=] { return noteHas(QStringLiteral("four")); }});
    steps.push_back({QStringLiteral("refused-cells"), [=] { paste(0, Point, QStringLiteral("1\t2\t3\n4\t5\t6")); },
        [=] {
            const QString complaint = noteHas(QStringLiteral("Row 1, column 1"));
            return complaint.isEmpty() ? expect(number(0, Voltage) == 0, "a part was pasted") : complaint;
        }});
    steps.push_back({QStringLiteral("add-rows"),
        [=] {
            tour::click(*m_addRows);
            paste(5, Voltage, QStringLiteral("2.6\t125.5\n3.1\t150.5\n3.6\t175.5"));
        },
        [=] { return expect(m_points->rowCount() == 8 && m_note->text().isEmpty(), "no rows were added"); }});
    steps.push_back({QStringLiteral("copy-with-headers"),
        [=] {
            tour::clickItem(*m_table, m_points->index(1, Voltage));
            tour::clickItem(*m_table, m_points->index(1, Pressure), Qt::ShiftModifier);
            tour::click(*m_copyWithHeaders);
        },
        [=] {
            const QString text = QApplication::clipboard()->text();
            return expect(text == QLatin1String("Voltage in V\tPressure in kPa\n0.51\t25.5"),
                QStringLiteral("on the clipboard is \"%1\"").arg(text));
        }});
    return steps;
}

} // namespace gallery
