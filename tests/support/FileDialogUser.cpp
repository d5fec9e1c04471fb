#include "support/FileDialogUser.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace morvane::test {

namespace {

template <typename Widget>
Widget& child(QFileDialog& dialog, const char* name)
{
    auto* const widget = dialog.findChild<Widget*>(QString::fromLatin1(name));
    if (!widget) {
        ADD_FAILURE() << "the dialog has no " << name;
        abort();
    }
    return *widget;
}

void press(QFileDialog& dialog, const QList<QDialogButtonBox::StandardButton>& candidates)
{
    auto& box = child<QDialogButtonBox>(dialog, "buttonBox");
    for (const auto candidate : candidates) {
        if (QPushButton* const button = box.button(candidate)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "the dialog has no such button";
}

} // namespace

void typeName(QFileDialog& dialog, const QString& name)
{
    auto& edit = child<QLineEdit>(dialog, "fileNameEdit");
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Delete);
    for (const QChar c : name) {
        QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

void pressAccept(QFileDialog& dialog)
{
    press(dialog, {QDialogButtonBox::Save, QDialogButtonBox::Open});
}

void pressCancel(QFileDialog& dialog)
{
    press(dialog, {QDialogButtonBox::Cancel});
}

void acceptName(QFileDialog& dialog, const QString& name)
{
    typeName(dialog, name);
    pressAccept(dialog);
}

void pickType(QFileDialog& dialog, int index)
{
    auto& types = child<QComboBox>(dialog, "fileTypeCombo");
    types.setFocus();
    while (types.currentIndex() != index) {
        const int before = types.currentIndex();
        QTest::keyClick(&types, before < index ? Qt::Key_Down : Qt::Key_Up);
        if (types.currentIndex() == before) {
            ADD_FAILURE() << "there is no type " << index;
            return;
        }
    }
}

QString typedName(QFileDialog& dialog)
{
    return child<QLineEdit>(dialog, "fileNameEdit").text();
}

void pressKey(QMessageBox& box, Qt::Key key)
{
    QWidget* const target = box.focusWidget() ? box.focusWidget() : &box;
    QTest::keyClick(target, key);
}

} // namespace morvane::test
