#include "support/FileDialogPage.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include <algorithm>

namespace morvane::test {

namespace {

constexpr int timeLimitMs = 15000;

void moveMouse(QWidget& widget, QPoint position)
{
    QMouseEvent move(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&widget, &move);
}

} // namespace

bool waitUntil(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, timeLimitMs);
}

FileDialogPage::FileDialogPage(QFileDialog& dialog) : m_dialog(dialog) {}

bool FileDialogPage::isOpen() const
{
    return m_dialog.isVisible();
}

QLineEdit& FileDialogPage::nameEdit() const
{
    return *m_dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QString FileDialogPage::name() const
{
    return nameEdit().text();
}

void FileDialogPage::typeName(const QString& text) const
{
    // Shown again after a message box, the dialog is not made active by platforms without a window manager; Delete
    // would then be taken for the dialog's shortcut.
    if (m_dialog.isVisible() && !m_dialog.isActiveWindow()) {
        QApplication::setActiveWindow(&m_dialog);
    }
    nameEdit().setFocus();
    QTest::keyClick(&nameEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&nameEdit(), Qt::Key_Delete);
    for (const uint character : text.toUcs4()) {
        QTest::sendKeyEvent(
            QTest::Click, &nameEdit(), Qt::Key_unknown, QString::fromUcs4(&character, 1), Qt::NoModifier);
    }
}

void FileDialogPage::pressEnter() const
{
    QTest::keyClick(&nameEdit(), Qt::Key_Return);
}

void FileDialogPage::enterName(const QString& text) const
{
    typeName(text);
    pressEnter();
}

QAbstractButton* FileDialogPage::button(QDialogButtonBox::StandardButton which) const
{
    return m_dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"))->button(which);
}

void FileDialogPage::click(QDialogButtonBox::StandardButton which) const
{
    QAbstractButton* const clicked = button(which);
    ASSERT_TRUE(clicked && clicked->isEnabled()) << "no such button, or it is grey: " << which;
    QTest::mouseClick(clicked, Qt::LeftButton);
}

QAbstractItemView& FileDialogPage::view() const
{
    const bool details = m_dialog.viewMode() == QFileDialog::Detail;
    return *m_dialog.findChild<QAbstractItemView*>(details ? QStringLiteral("treeView") : QStringLiteral("listView"));
}

QStringList FileDialogPage::listed() const
{
    const QAbstractItemView& files = view();
    QStringList names;
    for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
        names.append(files.model()->index(row, 0, files.rootIndex()).data().toString());
    }
    names.sort();
    return names;
}

bool FileDialogPage::waitForListed(QStringList names) const
{
    names.sort();
    if (waitUntil([&] { return listed() == names; })) {
        return true;
    }
    ADD_FAILURE() << "listed are " << listed().join(QStringLiteral(", ")).toStdString();
    return false;
}

QRect FileDialogPage::rectangleOf(const QString& name) const
{
    QAbstractItemView& files = view();
    EXPECT_TRUE(waitUntil([&] { return listed().contains(name); })) << name.toStdString();
    for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row) {
        const QModelIndex index = files.model()->index(row, 0, files.rootIndex());
        if (index.data().toString() == name) {
            files.scrollTo(index);
            return files.visualRect(index);
        }
    }
    return {};
}

void FileDialogPage::clickFile(const QString& name, Qt::KeyboardModifiers modifiers) const
{
    const QPoint place = rectangleOf(name).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, place);
}

void FileDialogPage::doubleClickFile(const QString& name) const
{
    const QPoint place = rectangleOf(name).center();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QStringList FileDialogPage::cutParts() const
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

QComboBox& FileDialogPage::typeCombo() const
{
    return *m_dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
}

QStringList FileDialogPage::types() const
{
    QStringList texts;
    for (int row = 0; row < typeCombo().count(); ++row) {
        texts.append(typeCombo().itemText(row));
    }
    return texts;
}

QString FileDialogPage::currentType() const
{
    return typeCombo().currentText();
}

void FileDialogPage::pickTypeWithKeys(int row) const
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
    QCoreApplication::processEvents(); // what a user sees before going on
}

void FileDialogPage::pickTypeWithMouse(int row) const
{
    QAbstractItemView& list = *typeCombo().view();
    QTest::mouseClick(&typeCombo(), Qt::LeftButton);
    ASSERT_TRUE(waitUntil([&] { return list.isVisible(); }));
    const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
    // Until the mouse has moved away from where it opened the list, a release there picks nothing.
    moveMouse(*list.viewport(), place + QPoint(30, 0));
    moveMouse(*list.viewport(), place);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_TRUE(waitUntil([&] { return !list.isVisible(); }));
    QCoreApplication::processEvents(); // what a user sees before going on
}

} // namespace morvane::test
