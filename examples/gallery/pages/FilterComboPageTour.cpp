// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/FilterComboPage.h"
#include "tour/TourUser.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTableWidget>
#include <QTest>

namespace gallery {

using morvane::ui::ComboBoxAutoFilter;
using tour::expect;

namespace {

bool offersOnly(const ComboBoxAutoFilter& box, const QString& text)
{
    const QAbstractItemModel& offered = *box.completer()->completionModel();
    for (int row = 0; row < offered.rowCount(); ++row) {
        if (!offered.index(row, 0).data().toString().contains(text, Qt::CaseInsensitive)) {
            return false;
        }
    }
    return offered.rowCount() > 0 && box.completer()->popup()->isVisible();
}

} // namespace

std::vector<TourStep> FilterComboPage::tourSteps(const TourWorkspace&)
{
    const QString part = QStringLiteral("conf");
    const auto endsWith = [](const QString& text) {
        return text.contains(QStringLiteral("conf"), Qt::CaseInsensitive);
    };
    const auto editor = [this] { return m_table->findChild<ComboBoxAutoFilter*>(); };

    std::vector<TourStep> steps;
    steps.push_back({QStringLiteral("type-a-part"), [this, part] { tour::type(*m_field->lineEdit(), part); },
        [this, part] {
            return expect(offersOnly(*m_field, part), "the completer does not offer the entries that contain the text");
        }});
    steps.push_back({QStringLiteral("return"), [this] { tour::press(*m_field->lineEdit(), Qt::Key_Return); },
        [=] {
            return expect(!m_field->isVisible() && endsWith(m_field->currentText()),
                QStringLiteral("the field holds \"%1\"").arg(m_field->currentText()));
        }});
    steps.push_back({QStringLiteral("open-the-list"),
        [this] {
            tour::click(*m_again);
            m_field->showPopup();
        },
        [this] { return expect(m_field->view()->isVisible(), "the list is not open"); }});
    steps.push_back({QStringLiteral("pick-with-the-mouse"),
        [this] { tour::clickItem(*m_field->view(), m_field->view()->model()->index(3, 0)); },
        [this] { return expect(!m_field->isVisible(), "the field is still open"); }});
    steps.push_back({QStringLiteral("escape"),
        [this] {
            tour::click(*m_again);
            tour::press(*m_field, Qt::Key_Escape);
        },
        [this] { return expect(!m_field->isVisible(), "the field is still open"); }});
    steps.push_back({QStringLiteral("edit-a-cell"),
        [=] {
            m_table->setCurrentCell(1, 1);
            m_table->editItem(m_table->item(1, 1));
            if (editor()) {
                tour::type(*editor()->lineEdit(), part);
            }
        },
        [=] { return expect(editor() && offersOnly(*editor(), part), "the cell's completer offers nothing"); }});
    steps.push_back({QStringLiteral("cell-edited"),
        [=] {
            if (editor()) {
                tour::press(*editor()->lineEdit(), Qt::Key_Return);
            }
        },
        [=] {
            return expect(!editor() && endsWith(m_table->item(1, 1)->text()),
                QStringLiteral("the cell holds \"%1\"").arg(m_table->item(1, 1)->text()));
        }});
    return steps;
}

} // namespace gallery
