// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/FileDialogDriver.h"

#include "support/ActiveWindow.h"
#include "support/ModalScript.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace morvane::test {

namespace {

constexpr int timeLimitMs = 15000;

void moveMouse(QWidget& widget, QPoint position)
{
    QMouseEvent move(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &move);
}

void clickMenuItem(QMenu& menu, const QString& label)
{
    for (QAction* const action : menu.actions()) {
        if (action->text() == label) {
            const QPoint place = menu.actionGeometry(action).center();
            // Newer versions of Qt 6 only close the menu when it has not seen the mouse move a little before the click.
            for (int step = 0; step < 10; ++step) {
                moveMouse(menu, place);
            }
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place);
            return;
        }
    }
    ADD_FAILURE() << "no item " << label.toStdString();
    menu.close();
}

} // namespace

bool waitUntil(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, timeLimitMs);
}

FileDialogDriver::FileDialogDriver(QFileDialog& dialog) : m_dialog(dialog) {}

FileDialogDriver FileDialogDriver::whenActive(QFileDialog& dialog)
{
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    return FileDialogDriver(dialog);
}

std::function<void(QFileDialog&)> FileDialogDriver::playing(std::function<void(FileDialogDriver&)> act)
{
    return [act = std::move(act)](QFileDialog& dialog) {
        const QPointer<QFileDialog> open(&dialog);
        FileDialogDriver driver = whenActive(dialog);
        act(driver);
        if (open && open->isVisible()) {
            open->reject();
        }
    };
}

bool FileDialogDriver::isOpen() const
{
    return m_dialog.isVisible();
}

QLineEdit& FileDialogDriver::nameEdit() const
{
    return *m_dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QString FileDialogDriver::name() const
{
    return nameEdit().text();
}

void FileDialogDriver::typeName(const QString& text) const
{
    // Without a window manager, the dialog is not active when it is shown again after a message box. Then Delete would
    // trigger the dialog's shortcut.
    if (m_dialog.isVisible() && !m_dialog.isActiveWindow()) {
        setActiveWindow(m_dialog);
    }
    nameEdit().setFocus();
    QTest::keyClick(&nameEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&nameEdit(), Qt::Key_Delete);
    for (const char32_t character : text.toStdU32String()) {
        QTest::sendKeyEvent(QTest::Click, &nameEdit(), Qt::Key_unknown,
            QString::fromStdU32String(std::u32string(1, character)), Qt::NoModifier);
    }
    EXPECT_EQ(name().toStdString(), text.toStdString());
}

void FileDialogDriver::pressEnter() const
{
    QTest::keyClick(&nameEdit(), Qt::Key_Return);
}

void FileDialogDriver::enterName(const QString& text) const
{
    typeName(text);
    pressEnter();
}

void FileDialogDriver::enterFolder(const QString& folder) const
{
    enterName(folder);
    QCoreApplication::processEvents(); // a user sees the result before the next action
}

QAbstractButton* FileDialogDriver::button(QDialogButtonBox::StandardButton which) const
{
    return m_dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(which);
}

void FileDialogDriver::click(QDialogButtonBox::StandardButton which) const
{
    QAbstractButton* const clicked = button(which);
    ASSERT_TRUE(clicked && clicked->isEnabled()) << "no such button, or it is grey: " << which;
    QTest::mouseClick(clicked, Qt::LeftButton);
}

QAbstractButton& FileDialogDriver::acceptButton() const
{
    const auto& box = *m_dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    const QList<QAbstractButton*> buttons = box.buttons();
    return **std::find_if(buttons.begin(), buttons.end(),
        [&box](QAbstractButton* button) { return box.buttonRole(button) == QDialogButtonBox::AcceptRole; });
}

void FileDialogDriver::pressAccept() const
{
    // Clicks on the left side, because a menu may open at the right end.
    QAbstractButton& accept = acceptButton();
    QTest::mouseClick(&accept, Qt::LeftButton, Qt::NoModifier, QPoint(10, accept.height() / 2));
}

void FileDialogDriver::pressAcceptAndAnswer(bool replace) const
{
    ModalScript script;
    script.on<QMessageBox>([replace](QMessageBox& box) {
        QTest::mouseClick(box.button(replace ? QMessageBox::Yes : QMessageBox::No), Qt::LeftButton);
    });
    pressAccept();
    EXPECT_TRUE(script.finished()) << "no question was asked";
}

void FileDialogDriver::pressCancel() const
{
    QTest::keyClick(&m_dialog, Qt::Key_Escape);
}

QAbstractButton* FileDialogDriver::control(const QString& label) const
{
    const QList<QAbstractButton*> buttons = m_dialog.findChildren<QAbstractButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
        [&label](QAbstractButton* button) { return button->text() == label && button->isVisible(); });
    return found != buttons.end() ? *found : nullptr;
}

void FileDialogDriver::clickControl(const QString& label) const
{
    ASSERT_TRUE(control(label)) << label.toStdString();
    QTest::mouseClick(control(label), Qt::LeftButton);
}

void FileDialogDriver::toggleControl(const QString& label) const
{
    auto* const check = qobject_cast<QCheckBox*>(control(label));
    ASSERT_TRUE(check) << label.toStdString();
    QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(8, check->height() / 2));
}

QComboBox* FileDialogDriver::customList(const QString& objectName) const
{
    auto* const box = m_dialog.findChild<QComboBox*>(objectName);
    EXPECT_TRUE(box && box->isVisible()) << objectName.toStdString();
    return box;
}

QLineEdit* FileDialogDriver::customEdit(const QString& objectName) const
{
    auto* const edit = m_dialog.findChild<QLineEdit*>(objectName);
    EXPECT_TRUE(edit && edit->isVisible()) << objectName.toStdString();
    return edit;
}

void FileDialogDriver::chooseEntry(const QString& objectName, int row) const
{
    const QPointer<QComboBox> box(customList(objectName));
    box->setFocus();
    for (int left = box->count(); left > 0 && box && box->currentIndex() != row; --left) {
        QTest::keyClick(box.data(), box->currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
    }
    EXPECT_TRUE(!box || box->currentIndex() == row) << "the keys do not reach entry " << row;
}

void FileDialogDriver::typeText(const QString& objectName, const QString& text) const
{
    QLineEdit* const edit = customEdit(objectName);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void FileDialogDriver::pickAcceptItem(const QString& label) const
{
    auto* const arrow = acceptButton().findChild<QToolButton*>();
    ASSERT_TRUE(arrow && arrow->isVisible());
    QTimer::singleShot(0, arrow, [arrow, label] { clickMenuItem(*arrow->menu(), label); });
    const QPointer<QToolButton> guard(arrow);
    QTest::mousePress(arrow, Qt::LeftButton); // the menu is open until this returns
    if (guard) {
        QTest::mouseRelease(arrow, Qt::LeftButton);
    }
}

QAbstractItemView& FileDialogDriver::view() const
{
    const bool details = m_dialog.viewMode() == QFileDialog::Detail;
    return *m_dialog.findChild<QAbstractItemView*>(details ? QStringLiteral("treeView") : QStringLiteral("listView"));
}

QStringList FileDialogDriver::listed() const
{
    const QAbstractItemView& files = view();
    QStringList names;
    for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
        names.append(files.model()->index(row, 0, files.rootIndex()).data().toString());
    }
    names.sort();
    return names;
}

bool FileDialogDriver::waitForListed(QStringList names) const
{
    names.sort();
    if (waitUntil([&] { return listed() == names; })) {
        return true;
    }
    ADD_FAILURE() << "listed are " << listed().join(QStringLiteral(", ")).toStdString();
    return false;
}

QModelIndex FileDialogDriver::indexOf(const QString& name) const
{
    const QAbstractItemView& files = view();
    EXPECT_TRUE(waitUntil([&] { return listed().contains(name); })) << name.toStdString();
    for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
        const QModelIndex index = files.model()->index(row, 0, files.rootIndex());
        if (index.data().toString() == name) {
            return index;
        }
    }
    return {};
}

QRect FileDialogDriver::rectangleOf(const QString& name) const
{
    const QModelIndex index = indexOf(name);
    view().scrollTo(index);
    return view().visualRect(index);
}

void FileDialogDriver::clickFile(const QString& name, Qt::KeyboardModifiers modifiers) const
{
    const QPoint place = rectangleOf(name).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, place);
    EXPECT_TRUE(view().selectionModel()->isSelected(indexOf(name))) << name.toStdString();
}

void FileDialogDriver::doubleClickFile(const QString& name) const
{
    const QPoint place = rectangleOf(name).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QStringList FileDialogDriver::cutParts() const
{
    QStringList parts;
    const auto check = [&parts](const QString& what, int needed, int given) {
        if (needed > given) {
            parts.append(QStringLiteral("%1 needs %2 and has %3").arg(what).arg(needed).arg(given));
        }
    };
    const QAbstractItemView& sidebar = *m_dialog.findChild<QListView*>(QStringLiteral("sidebar"));
    check(QStringLiteral("sidebar"), sidebar.sizeHintForColumn(0), sidebar.viewport()->width());
    const auto& tree = *m_dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    const QAbstractItemView& files = tree;
    for (int column = 1; column < tree.header()->count(); ++column) {
        const int needed = std::max(files.sizeHintForColumn(column), tree.header()->sectionSizeHint(column));
        check(QStringLiteral("column %1").arg(column), needed, tree.columnWidth(column));
    }
    const QString title = tree.model()->headerData(0, Qt::Horizontal).toString();
    check(title, tree.fontMetrics().horizontalAdvance(title), tree.columnWidth(0));
    check(QStringLiteral("list"), tree.header()->length(), tree.viewport()->width());
    return parts;
}

QComboBox& FileDialogDriver::typeCombo() const
{
    return *m_dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

QStringList FileDialogDriver::types() const
{
    QStringList texts;
    for (int row = 0; row < typeCombo().count(); ++row) {
        texts.append(typeCombo().itemText(row));
    }
    return texts;
}

QString FileDialogDriver::currentType() const
{
    return typeCombo().currentText();
}

void FileDialogDriver::pickTypeWithKeys(int row) const
{
    QAbstractItemView& list = *typeCombo().view();
    QTest::keyClick(&typeCombo(), Qt::Key_F4);
    ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
    QTest::keyClick(&list, Qt::Key_Home);
    for (int step = 0; step < row; ++step) {
        QTest::keyClick(&list, Qt::Key_Down);
    }
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return !list.isVisible(); }));
    QCoreApplication::processEvents(); // a user sees the result before the next action
}

void FileDialogDriver::pickTypeWithMouse(int row) const
{
    QAbstractItemView& list = *typeCombo().view();
    QTest::mouseClick(&typeCombo(), Qt::LeftButton);
    ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
    const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
    // A release picks nothing until the mouse has moved away from the place of the click that opened the list.
    moveMouse(*list.viewport(), place + QPoint(30, 0));
    moveMouse(*list.viewport(), place);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_TRUE(waitUntil([&] { return !list.isVisible(); }));
    QCoreApplication::processEvents(); // a user sees the result before the next action
}

void FileDialogDriver::stepToType(int row) const
{
    QComboBox& combo = typeCombo();
    ASSERT_LT(row, combo.count());
    while (combo.currentIndex() != row) {
        QTest::keyClick(&combo, combo.currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
        QCoreApplication::processEvents(); // a user sees the result before the next action
    }
}

} // namespace morvane::test
