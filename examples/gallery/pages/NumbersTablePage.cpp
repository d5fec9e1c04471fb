// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "pages/NumbersTablePage.h"

#include "pages/NumberItem.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <QHeaderView>
#include <QItemEditorFactory>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr double smallestCapacitance = 1e-15;
constexpr double largestCapacitance = 1;
constexpr int mostPieces = 100000;

/** Creates the editor widget for each type. This is all that the delegate needs. */
class NumberEditors : public QItemEditorFactory
{
public:
    QWidget* createEditor(int type, QWidget* parent) const override
    {
        switch (type) {
        case QMetaType::Double:
            return makeCapacitanceEditor(parent);
        case QMetaType::Int:
            return makePiecesEditor(parent);
        default:
            return QItemEditorFactory::createEditor(type, parent);
        }
    }

private:
    static QWidget* makeCapacitanceEditor(QWidget* parent)
    {
        auto* const editor = new morvane::ui::QScientificSpinBox(parent);
        editor->setOwnValidation(true);
        editor->setRange(smallestCapacitance, largestCapacitance);
        editor->setSuffix(NumberItem::unitOfCapacitance());
        editor->signalIncrement.connect([editor] { editor->setValue(editor->value() * 10); });
        editor->signalDecrement.connect([editor] { editor->setValue(editor->value() / 10); });
        return editor;
    }

    static QWidget* makePiecesEditor(QWidget* parent)
    {
        auto* const editor = new morvane::ui::IntegralSpinBox(parent);
        editor->setRange(0, mostPieces);
        return editor;
    }
};

QStandardItem* makeName(const QString& name)
{
    auto* const item = new QStandardItem(name);
    item->setEditable(false);
    return item;
}

} // namespace

NumbersTablePage::NumbersTablePage()
    : Page(QStringLiteral("numbers-in-a-table"), tr("Numbers in a table"),
          tr("Double-click a number, or choose it with the arrow keys and type. Return, Tab and a click elsewhere "
             "store the typed number; Escape restores the old number. The table uses Qt's own delegate, with the "
             "spin boxes as its editors.")),
      m_parts(new QStandardItemModel(0, ColumnCount, this)),
      m_table(new QTableView),
      m_editors(std::make_unique<NumberEditors>())
{
    fillModel();
    prepareTable();
    body().addWidget(m_table, 1);
    connect(m_parts, &QStandardItemModel::itemChanged, this, [this](QStandardItem* item) { report(*item); });
}

NumbersTablePage::~NumbersTablePage() = default;

void NumbersTablePage::fillModel()
{
    m_parts->setHorizontalHeaderLabels({tr("Capacitor"), tr("Capacitance"), tr("Pieces")});
    const auto add = [this](const QString& name, double capacitance, int pieces) {
        m_parts->appendRow({makeName(name), new NumberItem(capacitance), new NumberItem(pieces)});
    };
    add(tr("Ceramic, coupling"), 4.7e-7, 120);
    add(tr("Ceramic, resonator"), 2.2e-11, 40);
    add(tr("Film, snubber"), 1e-8, 60);
    add(tr("Electrolytic, smoothing"), 2.2e-3, 8);
}

void NumbersTablePage::prepareTable()
{
    auto* const delegate = new QStyledItemDelegate(m_table);
    delegate->setItemEditorFactory(m_editors.get());
    m_table->setItemDelegate(delegate);
    m_table->setModel(m_parts);
    m_table->setAccessibleName(tr("Parts"));
    m_table->setEditTriggers(
        QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setHighlightSections(false);
    const int character = m_table->fontMetrics().averageCharWidth();
    m_table->horizontalHeader()->setSectionResizeMode(Part, QHeaderView::Stretch);
    m_table->setColumnWidth(Capacitance, 24 * character);
    m_table->setColumnWidth(Pieces, 16 * character);
}

void NumbersTablePage::report(const QStandardItem& number)
{
    const QString part = m_parts->item(number.row(), Part)->text();
    Q_EMIT reported(tr("%1: %2 is stored").arg(part, number.data(Qt::DisplayRole).toString()));
}

QModelIndex NumbersTablePage::cell(int row, Column column) const
{
    return m_parts->index(row, column);
}

} // namespace gallery
