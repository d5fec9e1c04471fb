// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "support/QtPrinters.h"
#include "ui/qt/controls/ComboBoxAutoFilter.h"
#include "ui/qt/controls/CorrectFontCommandLinkButton.h"
#include "ui/qt/controls/ElidedTextLabel.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"
#include "WidgetAccessibility.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

namespace morvane::test {

namespace {

using ::testing::ElementsAre;
using ui::ComboBoxAutoFilter;
using ui::CorrectFontCommandLinkButton;
using ui::Integral64SpinBox;
using ui::IntegralSpinBox;
using ui::QScientificSpinBox;

/** Every control of the library in a form with labels, as a host has them. */
class ControlAccessibility : public ::testing::Test
{
protected:
    ControlAccessibility()
    {
        box->setList({"Acetone", "Benzene", "Ethanol"});
        box->setFiltering(true);
        button->setText("S&tart");
        button->setDescription("Measures with these settings.");
        label->setText("/measurements/run-17.dat");
        form->addRow("Su&bstance:", box);
        form->addRow("&Current:", current);
        form->addRow("&Samples:", samples);
        form->addRow(label);
        form->addRow(button);
    }

    void show()
    {
        window.resize(300, 240);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        box->setFocus();
    }

    QWidget window;
    QFormLayout* form = new QFormLayout(&window);
    ComboBoxAutoFilter* box = new ComboBoxAutoFilter(&window);
    QScientificSpinBox* current = new QScientificSpinBox(&window);
    IntegralSpinBox* samples = new IntegralSpinBox(&window);
    ElidedTextLabel* label = new ElidedTextLabel(&window);
    CorrectFontCommandLinkButton* button = new CorrectFontCommandLinkButton(&window);
};

TEST_F(ControlAccessibility, haveRoles)
{
    EXPECT_EQ(roleOf(box), QAccessible::ComboBox);
    EXPECT_EQ(roleOf(current), QAccessible::SpinBox);
    EXPECT_EQ(roleOf(samples), QAccessible::SpinBox);
    EXPECT_EQ(roleOf(label), QAccessible::StaticText);
    EXPECT_EQ(roleOf(button), QAccessible::Button);
}

TEST_F(ControlAccessibility, haveNamesFromTheirLabelsOrTexts)
{
    EXPECT_EQ(nameOf(box), "Substance:");
    EXPECT_EQ(nameOf(current), "Current:");
    EXPECT_EQ(nameOf(samples), "Samples:");
    EXPECT_EQ(nameOf(label), "/measurements/run-17.dat");
    EXPECT_EQ(nameOf(button), "Start");
    show();
    EXPECT_EQ(namelessPartsOf(window), QStringList());
}

TEST_F(ControlAccessibility, haveTheNamesThatTheHostGives)
{
    // Leaves out the combo box, because what Qt reports about it depends on the platform.
    for (QWidget* const widget : {static_cast<QWidget*>(current), static_cast<QWidget*>(samples),
             static_cast<QWidget*>(label), static_cast<QWidget*>(button)}) {
        delete qobject_cast<QLabel*>(form->labelForField(widget));
        widget->setAccessibleName("Given");
        EXPECT_EQ(nameOf(widget), "Given");
    }
}

TEST_F(ControlAccessibility, tellTheirValuesAsTheyShowThem)
{
    current->setValue(2.5e-15);
    samples->setValue(64);
    box->setCurrentIndex(1);
    EXPECT_EQ(valueOf(current), "2.5E-15");
    EXPECT_EQ(valueOf(samples), "64");
    EXPECT_EQ(valueOf(box), "Benzene");
}

TEST_F(ControlAccessibility, includeTheSpinBoxOf64BitsWithItsNameAndItsValue)
{
    auto* const address = new Integral64SpinBox(&window);
    address->setRange(0, 0xffffffffff);
    address->setBase(Integral64SpinBox::Hexadecimal);
    address->setValue(0xdeadbeef);
    form->addRow("&Address:", address);
    EXPECT_EQ(roleOf(address), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(address), "Address:");
    EXPECT_EQ(valueOf(address), "DEADBEEF");
    current->setNotation(QScientificSpinBox::SiPrefix);
    current->setSuffix("A");
    current->setValue(2.5e-9);
    EXPECT_EQ(valueOf(current).trimmed(), "2.5 n") << "Qt leaves out the suffix of all its spin boxes";
    show();
    EXPECT_EQ(namelessPartsOf(window), QStringList());
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), address);
}

TEST_F(ControlAccessibility, areReachedWithTabInTheOrderOfTheForm)
{
    show();
    // Tab ends the editing in the combo box and closes it, so the walk starts below it.
    current->setFocus();
    QTest::keyClick(current, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), samples);
    QTest::keyClick(samples, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), button);
    QTest::keyClick(button, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(window.focusWidget(), samples);
}

TEST_F(ControlAccessibility, areReachedWithTheKeysOfTheirLabels)
{
    show();
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), samples);
    QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), current);
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(window.focusWidget(), box);
}

TEST_F(ControlAccessibility, workByKeysAlone)
{
    show();
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Tab);
    ASSERT_EQ(window.focusWidget(), box);
    QTest::keyClicks(box, "eth");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(box->currentText(), "Ethanol");

    current->setFocus();
    current->selectAll();
    QTest::keyClicks(current, "1e-9");
    QTest::keyClick(current, Qt::Key_Return);
    EXPECT_EQ(current->value(), 1e-9);

    samples->setFocus();
    QTest::keyClick(samples, Qt::Key_Up);
    EXPECT_EQ(samples->value(), 1);

    QSignalSpy clicks(button, &QAbstractButton::clicked);
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(ControlAccessibility, offerTheEntriesOfTheListByTheirTexts)
{
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(box->view());
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Benzene");
}

TEST_F(ControlAccessibility, offerWhatFitsTheTypedTextByItsTexts)
{
    show();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "eth");
    QAbstractItemView* const popup = box->completer()->popup();
    ASSERT_TRUE(popup->isVisible());
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(popup);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 1);
    EXPECT_EQ(list->child(0)->text(QAccessible::Name), "Ethanol");
}

TEST_F(ControlAccessibility, offerReadableEntriesOnADarkPalette)
{
    const DarkPalette dark;
    show();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, "eth");
    ASSERT_TRUE(box->completer()->popup()->isVisible());
    EXPECT_GE(drawnContrast(*box->completer()->popup()->viewport()), 4.5);
}

TEST_F(ControlAccessibility, canBeReadOnADarkPalette)
{
    const DarkPalette dark;
    show();
    QApplication::processEvents();
    std::vector<QWidget*> widgets{box, current, samples, label};
    // Qt paints command links dark blue in this style, whatever the palette.
    if (!QApplication::style()->inherits("QWindowsVistaStyle")) {
        widgets.push_back(button);
    }
    for (QWidget* const widget : widgets) {
        EXPECT_GE(drawnContrast(*widget), 4.5) << widget->metaObject()->className();
    }
}

TEST_F(ControlAccessibility, standOnTheOtherSideFromRightToLeft)
{
    window.setLayoutDirection(Qt::RightToLeft);
    show();
    QWidget* const labelOfBox = form->labelForField(box);
    EXPECT_GT(labelOfBox->x(), box->x());
    for (const QWidget* const widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(current),
             static_cast<QWidget*>(samples), static_cast<QWidget*>(label), static_cast<QWidget*>(button)}) {
        EXPECT_TRUE(widget->isRightToLeft());
    }
    // A number is still read from left to right.
    current->setValue(-2.5e-15);
    EXPECT_EQ(current->text(), "-2.5E-15");
}

TEST_F(ControlAccessibility, tellOfANewTextInTheLabel)
{
    label->setText("/measurements/run-18.dat");
    EXPECT_EQ(nameOf(label), "/measurements/run-18.dat");
    label->resize(40, 20);
    label->grab();
    EXPECT_EQ(nameOf(label), "/measurements/run-18.dat") << "what is cut off belongs to it";
}

} // namespace

} // namespace morvane::test
