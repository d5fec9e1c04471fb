#include "contract/WidgetUser.h"

#include "support/ModalScript.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

namespace morvane::test {

WidgetUser::WidgetUser(QFileDialog& window) : m_window(&window)
{
    // The name field selects its text when the window becomes active, and the next key would replace it.
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

WidgetUser::~WidgetUser() = default;

QAbstractButton* WidgetUser::acceptButton() const
{
    auto* const box = m_window->findChild<QDialogButtonBox*>();
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole) {
            return button;
        }
    }
    return nullptr;
}

QLineEdit* WidgetUser::nameEdit() const
{
    return m_window->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QComboBox* WidgetUser::typeCombo() const
{
    return m_window->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

QAbstractButton* WidgetUser::control(const QString& label) const
{
    for (QAbstractButton* const button : m_window->findChildren<QAbstractButton*>()) {
        if (button->text() == label && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

void WidgetUser::pressAccept()
{
    QTest::mouseClick(acceptButton(), Qt::LeftButton, Qt::NoModifier, QPoint(10, acceptButton()->height() / 2));
}

void WidgetUser::pressCancel()
{
    QTest::keyClick(m_window.data(), Qt::Key_Escape);
}

void WidgetUser::typeName(const QString& name)
{
    nameEdit()->setFocus();
    nameEdit()->selectAll();
    if (name.isEmpty()) {
        QTest::keyClick(nameEdit(), Qt::Key_Backspace);
    }
    QTest::keyClicks(nameEdit(), name);
    ASSERT_EQ(nameEdit()->text(), name);
}

void WidgetUser::pickType(unsigned position)
{
    QComboBox* const combo = typeCombo();
    const int wanted = static_cast<int>(position) - 1;
    ASSERT_LT(wanted, combo->count());
    while (combo->currentIndex() != wanted) {
        QTest::keyClick(combo, combo->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
        QCoreApplication::processEvents(); // what a user sees before going on
    }
}

void WidgetUser::enterFolder(const QString& folder)
{
    typeName(folder);
    QTest::keyClick(nameEdit(), Qt::Key_Return);
    QCoreApplication::processEvents(); // what a user sees before going on
}

void WidgetUser::selectFile(const QString& path)
{
    clickFile(QFileInfo(path).fileName(), Qt::NoModifier);
    QCoreApplication::processEvents(); // what a user sees before going on
}

void WidgetUser::clickFile(const QString& name, Qt::KeyboardModifiers modifiers)
{
    QAbstractItemView* view = m_window->findChild<QListView*>(QStringLiteral("listView"));
    view = view->isVisible() ? view : m_window->findChild<QTreeView*>(QStringLiteral("treeView"));
    view->setFocus();
    const auto find = [&] {
        return view->model()->match(view->model()->index(0, 0, view->rootIndex()), 0, name).value(0);
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view->visualRect(find()).isEmpty(); })) << name.toStdString();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(find()).center());
    EXPECT_TRUE(view->selectionModel()->isSelected(find())) << name.toStdString();
}

void WidgetUser::clickButton(DWORD, const QString& label)
{
    ASSERT_TRUE(control(label)) << label.toStdString();
    QTest::mouseClick(control(label), Qt::LeftButton);
}

void WidgetUser::toggleCheck(DWORD, const QString& label)
{
    auto* const check = qobject_cast<QCheckBox*>(control(label));
    ASSERT_TRUE(check) << label.toStdString();
    QTest::mouseClick(check, Qt::LeftButton, Qt::NoModifier, QPoint(8, check->height() / 2));
}

void WidgetUser::pickAcceptItem(DWORD, DWORD, const QString& label)
{
    auto* const arrow = acceptButton()->findChild<QToolButton*>();
    ASSERT_TRUE(arrow && arrow->isVisible());
    QTimer::singleShot(0, arrow, [arrow, label] {
        QMenu* const menu = arrow->menu();
        for (QAction* const action : menu->actions()) {
            if (action->text() == label) {
                QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
                return;
            }
        }
        ADD_FAILURE() << "no item " << label.toStdString();
        menu->close();
    });
    const QPointer<QToolButton> guard(arrow);
    QTest::mousePress(arrow, Qt::LeftButton); // the menu is open until this returns
    if (guard) {
        QTest::mouseRelease(arrow, Qt::LeftButton);
    }
}

void WidgetUser::pressAcceptAndAnswer(bool replace)
{
    ModalScript script;
    script.on<QMessageBox>([replace](QMessageBox& box) {
        QTest::mouseClick(box.button(replace ? QMessageBox::Yes : QMessageBox::No), Qt::LeftButton);
    });
    pressAccept();
    EXPECT_TRUE(script.finished()) << "no question was asked";
}

} // namespace morvane::test
