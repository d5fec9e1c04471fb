// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ComboBoxForm.h"

#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>

using morvane::test::pressKey;
using morvane::test::type;
using morvane::ui::ComboBoxAutoFilter;

namespace {

/** Edits cells as a host does: the outcome decides whether the cell is changed. */
class AutoFilterDelegate : public QStyledItemDelegate
{
public:
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        auto* const box = new ComboBoxAutoFilter(parent);
        auto* const self = const_cast<AutoFilterDelegate*>(this);
        box->setList({"Dog", "Bar", "Car"});
        box->setCompleterAttributes(
            true, QCompleter::PopupCompletion, Qt::CaseInsensitive, Qt::ElideRight, Qt::MatchContains);
        connect(box, &ComboBoxAutoFilter::selectionComplete, self, [self, box] {
            ++self->completed;
            Q_EMIT self->commitData(box);
            Q_EMIT self->closeEditor(box);
        });
        connect(box, &ComboBoxAutoFilter::editingCanceled, self, [self, box] {
            ++self->canceled;
            Q_EMIT self->closeEditor(box, QAbstractItemDelegate::RevertModelCache);
        });
        self->editor = box;
        return box;
    }

    void setEditorData(QWidget* widget, const QModelIndex& index) const override
    {
        static_cast<ComboBoxAutoFilter*>(widget)->setSelectedText(index.data().toString());
    }

    void setModelData(QWidget* widget, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        auto* const box = static_cast<ComboBoxAutoFilter*>(widget);
        if (box->validateEntry()) {
            model->setData(index, box->itemText(box->currentIndex()));
        }
    }

    QPointer<ComboBoxAutoFilter> editor;
    int completed = 0;
    int canceled = 0;
};

class ComboBoxDelegate : public ::testing::Test
{
protected:
    void SetUp() override
    {
        model.setItem(0, 0, new QStandardItem("Car"));
        model.setItem(0, 1, new QStandardItem("Dog"));
        table.setModel(&model);
        table.setItemDelegate(&delegate);
        table.resize(500, 200);
        table.show();
        table.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&table));
        edit(0);
    }

    void edit(int column)
    {
        table.setCurrentIndex(model.index(0, column));
        table.edit(model.index(0, column));
        ASSERT_TRUE(delegate.editor);
        ASSERT_TRUE(QTest::qWaitFor([this] { return delegate.editor->hasFocus(); }));
    }

    void expectClosed(int completed, int canceled)
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !delegate.editor; }));
        EXPECT_EQ(delegate.completed, completed);
        EXPECT_EQ(delegate.canceled, canceled);
    }

    QString cell(int column = 0) const { return model.item(0, column)->text(); }

    QStandardItemModel model{1, 2};
    AutoFilterDelegate delegate;
    QTableView table;
};

} // namespace

TEST_F(ComboBoxDelegate, opensWithTheCellsEntrySelected)
{
    EXPECT_EQ(delegate.editor->currentText(), "Car");
    EXPECT_EQ(delegate.editor->lineEdit()->selectedText(), "Car");
}

TEST_F(ComboBoxDelegate, returnWritesTheFirstEntryWithTheText)
{
    type("ba");
    pressKey(Qt::Key_Return);
    expectClosed(1, 0);
    EXPECT_EQ(cell(), "Bar");
}

TEST_F(ComboBoxDelegate, escapeLeavesTheCell)
{
    delegate.editor->lineEdit()->setText("ba");
    pressKey(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !delegate.editor; }));
    EXPECT_EQ(delegate.completed, 0);
    EXPECT_EQ(cell(), "Car");
}

TEST_F(ComboBoxDelegate, escapeInTheListLeavesTheCell)
{
    delegate.editor->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(delegate.editor->view()->window()));
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Escape);
    expectClosed(0, 1);
    EXPECT_EQ(cell(), "Car");
}

TEST_F(ComboBoxDelegate, tabWritesTheEntryAndGoesOnToTheNextCell)
{
    delegate.editor->lineEdit()->setText("ba");
    const QPointer<ComboBoxAutoFilter> first = delegate.editor;
    pressKey(Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !first; }));
    EXPECT_EQ(cell(), "Bar");
    EXPECT_EQ(table.currentIndex().column(), 1);
}

TEST_F(ComboBoxDelegate, shiftTabWritesTheEntryAndGoesBack)
{
    pressKey(Qt::Key_Return);
    expectClosed(1, 0);
    table.activateWindow();
    edit(1);
    delegate.editor->lineEdit()->setText("ba");
    const QPointer<ComboBoxAutoFilter> second = delegate.editor;
    pressKey(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !second; }));
    EXPECT_EQ(cell(1), "Bar");
    EXPECT_EQ(table.currentIndex().column(), 0);
}

TEST_F(ComboBoxDelegate, aPickWithTheMouseWritesTheEntry)
{
    delegate.editor->showPopup();
    QAbstractItemView* const list = delegate.editor->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list->window()));
    const QPoint place = list->visualRect(list->model()->index(1, 0)).center();
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, place);
    expectClosed(1, 0);
    EXPECT_EQ(cell(), "Bar");
}

TEST_F(ComboBoxDelegate, returnInTheListWritesTheEntry)
{
    delegate.editor->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(delegate.editor->view()->window()));
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Return);
    expectClosed(1, 0);
    EXPECT_EQ(cell(), "Bar");
}

TEST_F(ComboBoxDelegate, aTextThatNoEntryHoldsLeavesTheCell)
{
    delegate.editor->lineEdit()->setText("zzz");
    pressKey(Qt::Key_Return);
    expectClosed(1, 0);
    EXPECT_EQ(cell(), "Car");
}
