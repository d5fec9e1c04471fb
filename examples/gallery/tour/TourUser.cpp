// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "tour/TourUser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyle>
#include <QTest>

namespace gallery::tour {

namespace {

void bringIntoView(QWidget& widget)
{
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(parent)) {
            area->ensureWidgetVisible(&widget, 0, 2 * widget.height());
        }
    }
}

} // namespace

void click(QWidget& widget)
{
    bringIntoView(widget);
    const bool marked = qobject_cast<QCheckBox*>(&widget) || qobject_cast<QRadioButton*>(&widget);
    const QPoint middle = widget.rect().center();
    const QPoint mark(widget.height() / 2, middle.y());
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier,
        marked ? QStyle::visualPos(widget.layoutDirection(), widget.rect(), mark) : middle);
}

void clickItem(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers modifiers)
{
    bringIntoView(view);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(index).center());
}

void clickAction(QMenuBar& bar, QAction& action)
{
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(&action).center());
}

void clickAction(QMenu& menu, QAction& action)
{
    const QPoint place = menu.actionGeometry(&action).center();
    // Newer versions of Qt 6 only close the menu when it has not seen the mouse move a little before the click.
    for (int step = 0; step < 10; ++step) {
        QMouseEvent move(QEvent::MouseMove, place, menu.mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(&menu, &move);
    }
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place);
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&widget, key, modifiers);
}

void type(QLineEdit& field, const QString& text)
{
    click(field);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) {
        QTest::keyClick(&field, Qt::Key_Delete);
    } else {
        QTest::keyClicks(&field, text);
    }
}

QString expect(bool asExpected, const QString& complaint)
{
    return asExpected ? QString() : complaint;
}

QString expect(bool asExpected, const char* complaint)
{
    return expect(asExpected, QString::fromLatin1(complaint));
}

} // namespace gallery::tour
