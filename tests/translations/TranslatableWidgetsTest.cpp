// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The texts of the widgets and of the table handlers, with a translator that marks each text.

#include "TranslatableTextsFixture.h"

#include "property/Property.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "ui/qt/util/PropertyAdapter.h"
#include "ui/qt/util/TableCopyHandler.h"
#include "ui/qt/util/TablePasteHandler.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

#include <boost/make_shared.hpp>

namespace {

using namespace morvane::test;
using namespace morvane::ui;

QStringList forgottenIn(const QList<QAction*>& actions)
{
    QStringList forgotten;
    for (const QAction* const action : actions) {
        for (const QString& text : {action->text(), action->toolTip(), action->iconText()}) {
            if (isForgotten(text)) {
                forgotten.append(text);
            }
        }
    }
    return forgotten;
}

/** Opens the context menu of a widget, and returns its texts that are not translated. */
QStringList forgottenInMenu(QWidget& receiver, int count)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), receiver.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&receiver, &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || menu->actions().size() != count) {
        return {QStringLiteral("not the menu that was expected")};
    }
    const QStringList forgotten = forgottenIn(menu->actions());
    menu->close();
    return forgotten;
}

class TranslatableTable : public TranslatableTexts
{
protected:
    TranslatableTable()
    {
        m_table.setModel(&m_model);
        m_table.show();
    }

    QStandardItemModel m_model{2, 2};
    QTableView m_table;
};

TEST_F(TranslatableTable, actionsAndMenuThatCopy)
{
    auto* const handler = new TableCopyHandler(m_table);
    handler->setContextMenu(true);
    EXPECT_TRUE(handler->copyWithHeadersAction()->text().contains(QChar(mark)));
    EXPECT_EQ(forgottenIn({handler->copyWithHeadersAction()}), QStringList());
    EXPECT_EQ(forgottenInMenu(*m_table.viewport(), 2), QStringList());
}

TEST_F(TranslatableTable, actionThatPastesAndTheStepToUndo)
{
    auto* const handler = new TablePasteHandler(m_table);
    QUndoStack stack;
    handler->setUndoStack(&stack);
    m_table.setCurrentIndex(m_model.index(0, 0));
    EXPECT_TRUE(handler->pasteAction()->text().contains(QChar(mark)));
    EXPECT_EQ(forgottenIn({handler->pasteAction()}), QStringList());
    ASSERT_TRUE(handler->paste(QStringLiteral("1")));
    EXPECT_TRUE(stack.undoText().contains(QChar(mark))) << stack.undoText().toStdString();
}

TEST_F(TranslatableTexts, menuOfALabel)
{
    ElidedTextLabel label;
    label.setText(QStringLiteral("host"));
    label.setCopyable(true);
    label.show();
    EXPECT_EQ(forgottenInMenu(label, 1), QStringList());
}

TEST_F(TranslatableTexts, whatSpinBoxesSayOfATextThatTheyRefuse)
{
    QScientificSpinBox scientific;
    IntegralSpinBox integral(nullptr);
    Integral64SpinBox integral64;
    scientific.setRefusalShown(true);
    integral.setRefusalShown(true);
    integral64.setRefusalShown(true);
    for (QAbstractSpinBox* const box : {static_cast<QAbstractSpinBox*>(&scientific),
             static_cast<QAbstractSpinBox*>(&integral), static_cast<QAbstractSpinBox*>(&integral64)}) {
        box->show();
        box->findChild<QLineEdit*>()->clear();
        QTest::keyClicks(box, "-");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !box->accessibleDescription().isEmpty(); }));
        EXPECT_FALSE(isForgotten(box->accessibleDescription())) << box->accessibleDescription().toStdString();
    }
}

TEST_F(TranslatableTexts, whyAPropertyTakesNoSuchValue)
{
    PropertyAdapter adapter(boost::make_shared<morvane::Property<int>>(1));
    QSignalSpy rejections(&adapter, &PropertyAdapter::valueRejected);
    EXPECT_FALSE(adapter.setValue(QStringLiteral("none")));
    ASSERT_EQ(rejections.count(), 1);
    const QString reason = rejections.first().at(1).toString();
    EXPECT_TRUE(reason.contains(QChar(mark))) << reason.toStdString();
}

} // namespace
