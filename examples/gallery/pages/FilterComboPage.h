// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Page.h"

#include <QPointer>

class QHBoxLayout;
class QPushButton;
class QStringListModel;
class QTableWidget;

namespace morvane::ui {
class ComboBoxAutoFilter;
}

namespace gallery {

/** A filtering combo box with thousands of real file names: as a field, and as the editor of table cells. */
class FilterComboPage : public Page
{
    Q_OBJECT

public:
    FilterComboPage();

    std::vector<TourStep> tourSteps(const TourWorkspace& workspace) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addField();
    void prepareTable();
    void fillTable();

    QStringListModel* m_names;
    QHBoxLayout* m_fieldRow;
    QPushButton* m_again;
    QTableWidget* m_table;
    QPointer<morvane::ui::ComboBoxAutoFilter> m_field;
};

} // namespace gallery
