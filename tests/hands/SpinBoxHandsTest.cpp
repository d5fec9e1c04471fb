// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "hands/HandsTest.h"
#include "support/QtPrinters.h"
#include "support/SpinBoxButton.h"
#include "ui/qt/controls/Integral64SpinBox.h"
#include "ui/qt/controls/IntegralSpinBox.h"
#include "ui/qt/controls/QScientificSpinBox.h"

#include <QApplication>
#include <QClipboard>
#include <QDataWidgetMapper>
#include <QItemEditorFactory>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

#include <qpa/qwindowsysteminterface.h>

namespace morvane::test {

namespace {

class SpinBoxHandsPlain : public HandsTest
{
};

using ui::Integral64SpinBox;
using ui::IntegralSpinBox;
using ui::QScientificSpinBox;

constexpr int notch = 120;

QLineEdit& lineOf(const QAbstractSpinBox& spin)
{
    return *spin.findChild<QLineEdit*>();
}

/** A form with a field above and one below the spin box. */
template <typename SpinBox>
struct Form
{
    Form()
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(&spin);
        layout->addWidget(&other);
        spin.setMinimumWidth(200);
    }

    QWidget window;
    SpinBox& spin = *new SpinBox(&window);
    QLineEdit& other = *new QLineEdit(&window);
};

/** What both spin boxes promise. */
template <typename SpinBox>
class SpinBoxHands : public HandsTest
{
protected:
    void SetUp() override
    {
        HandsTest::SetUp();
        spin.setRange(0, 99);
        spin.setValue(9);
    }

    /** Shows the form, and puts the cursor into the spin box with a click. */
    void begin()
    {
        show(form.window);
        click(lineOf(spin));
        ASSERT_TRUE(spin.hasFocus());
    }

    void replaceBy(const QString& text)
    {
        press({Key::Control}, 'a');
        type(text);
    }

    void clickButton(QStyle::SubControl button) { click(spin, spinBoxButton(spin, button).center()); }

    /** Turns a high-resolution wheel: the window system reports this angle; 120 is one notch up. */
    void turn(QPoint angle, Qt::ScrollPhase phase = Qt::NoScrollPhase, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        const QPoint centre = spin.rect().center();
        QWindow* const window = form.window.windowHandle();
        const QPointF local = spin.mapTo(&form.window, centre) * form.window.devicePixelRatioF();
        QWindowSystemInterface::handleWheelEvent(
            window, local, QPointF(onScreen(spin, centre)), QPoint(), angle, held, phase, Qt::MouseEventNotSynthesized);
        settle();
    }

    void turnByParts(int parts, int angle)
    {
        for (int part = 0; part < parts; ++part) {
            turn(QPoint(0, angle));
        }
    }

    void countSteps()
    {
        spin.signalIncrement.connect([this] { ++ups; });
        spin.signalDecrement.connect([this] { ++downs; });
    }

    Form<SpinBox> form;
    SpinBox& spin = form.spin;
    int ups = 0;
    int downs = 0;
};

using SpinBoxes = ::testing::Types<QScientificSpinBox, IntegralSpinBox, Integral64SpinBox>;
TYPED_TEST_SUITE(SpinBoxHands, SpinBoxes, );

// After a step

TYPED_TEST(SpinBoxHands, aDigitTypedAfterStepsReplacesTheNumber)
{
    this->begin();
    this->press(Key::Up);
    this->press(Key::Up);
    EXPECT_EQ(this->spin.value(), 11);
    this->type(QStringLiteral("3"));
    EXPECT_EQ(this->spin.text(), "3");
    this->press(Key::Return);
    EXPECT_EQ(this->spin.value(), 3);
    this->press(Key::Down);
    this->type(QStringLiteral("47"));
    this->press(Key::Return);
    EXPECT_EQ(this->spin.value(), 47) << "the same once more";
}

TYPED_TEST(SpinBoxHands, everyKindOfStepSelectsTheNumberBetweenPrefixAndSuffix)
{
    this->spin.setPrefix(QStringLiteral("n = "));
    this->spin.setSuffix(QStringLiteral(" m"));
    this->begin();
    const auto selected = [this] { return lineOf(this->spin).selectedText(); };
    this->press(Key::PageUp);
    EXPECT_EQ(selected(), "19");
    this->press(Key::Right);
    EXPECT_EQ(selected(), "");
    this->press(Key::Down);
    EXPECT_EQ(selected(), "18");
    this->wheel(this->spin, Turn::Down, 9);
    EXPECT_EQ(selected(), "9");
    this->clickButton(QStyle::SC_SpinBoxUp);
    EXPECT_EQ(selected(), "10");
    this->clickButton(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(selected(), "9");
    this->type(QStringLiteral("5"));
    EXPECT_EQ(this->spin.text(), "n = 5 m");
}

TYPED_TEST(SpinBoxHands, aStepOfTheHostSelectsTheNumberToo)
{
    this->spin.signalIncrement.connect([this] { this->spin.setValue(this->spin.value() * 10); });
    this->begin();
    this->press(Key::Up);
    EXPECT_EQ(this->spin.text(), "90");
    EXPECT_EQ(lineOf(this->spin).selectedText(), "90");
    this->press(Key::Down);
    EXPECT_EQ(lineOf(this->spin).selectedText(), "89") << "the direction that the host has not taken";
    this->type(QStringLiteral("3"));
    this->press(Key::Return);
    EXPECT_EQ(this->spin.value(), 3);
}

TYPED_TEST(SpinBoxHands, aStepOfTheHostThatChangesNothingSelectsTheNumberToo)
{
    this->countSteps();
    this->begin();
    this->press(Key::End);
    this->press(Key::Up);
    EXPECT_EQ(lineOf(this->spin).selectedText(), "9");
    this->type(QStringLiteral("3"));
    EXPECT_EQ(this->spin.text(), "3");
}

// Wheels

TYPED_TEST(SpinBoxHands, aWholeNotchIsOneStep)
{
    this->begin();
    this->wheel(this->spin, Turn::Up);
    EXPECT_EQ(this->spin.value(), 10);
    this->wheel(this->spin, Turn::Down, 3);
    EXPECT_EQ(this->spin.value(), 7);
}

TYPED_TEST(SpinBoxHands, aNotchTurnedInEighthsIsOneStepOnlyInItsDirection)
{
    this->begin();
    this->turnByParts(7, notch / 8);
    EXPECT_EQ(this->spin.value(), 9);
    this->turnByParts(1, notch / 8);
    EXPECT_EQ(this->spin.value(), 10);
    this->turnByParts(15, -notch / 8);
    EXPECT_EQ(this->spin.value(), 9);
    this->turnByParts(1, -notch / 8);
    EXPECT_EQ(this->spin.value(), 8);
}

TYPED_TEST(SpinBoxHands, theHostIsAskedForOneStepByANotchTurnedInEighths)
{
    this->countSteps();
    this->begin();
    this->turnByParts(8, notch / 8);
    EXPECT_EQ(this->ups, 1);
    EXPECT_EQ(this->downs, 0);
    this->turnByParts(8, -notch / 8);
    EXPECT_EQ(this->ups, 1);
    EXPECT_EQ(this->downs, 1);
}

TYPED_TEST(SpinBoxHands, aTurnWithARemainderStepsByItsWholeNotches)
{
    this->begin();
    this->turn(QPoint(0, 300));
    EXPECT_EQ(this->spin.value(), 11);
    this->turn(QPoint(0, 60));
    EXPECT_EQ(this->spin.value(), 12) << "the other half of the third notch";
}

TYPED_TEST(SpinBoxHands, aTurnSidewaysStepsNothing)
{
    this->countSteps();
    this->begin();
    this->wheel(this->spin, Turn::Left, 2);
    this->wheel(this->spin, Turn::Right, 2);
    this->turn(QPoint(notch, 0));
    this->turn(QPoint(-2 * notch, 0));
    EXPECT_EQ(this->ups + this->downs, 0);
}

TYPED_TEST(SpinBoxHands, aTurnThatIsSlightlyAskewGoesWhereItMostlyGoes)
{
    this->begin();
    for (int part = 0; part < 8; ++part) {
        this->turn(QPoint(notch / 4, notch / 8));
    }
    EXPECT_EQ(this->spin.value(), 9) << "sideways";
    for (int part = 0; part < 8; ++part) {
        this->turn(QPoint(notch / 60, notch / 8));
    }
    EXPECT_EQ(this->spin.value(), 10) << "up";
}

TYPED_TEST(SpinBoxHands, beginAndEndOfATurnOnATouchpadStepNothing)
{
    this->countSteps();
    this->begin();
    this->turn(QPoint(), Qt::ScrollBegin);
    this->turn(QPoint(0, notch / 2), Qt::ScrollUpdate);
    EXPECT_EQ(this->ups, 0);
    this->turn(QPoint(0, notch / 2), Qt::ScrollUpdate);
    this->turn(QPoint(), Qt::ScrollEnd);
    EXPECT_EQ(this->ups, 1);
    EXPECT_EQ(this->downs, 0);
}

TYPED_TEST(SpinBoxHands, aTurnBackInTheMiddleOfANotchBeginsANewOne)
{
    this->begin();
    this->turnByParts(7, notch / 8);
    this->turnByParts(7, -notch / 8);
    this->turnByParts(7, notch / 8);
    EXPECT_EQ(this->spin.value(), 9);
    this->turnByParts(8, -notch / 8);
    EXPECT_EQ(this->spin.value(), 8);
}

TYPED_TEST(SpinBoxHands, thePartOfANotchDoesNotWaitForThePersonToComeBack)
{
    this->begin();
    this->turnByParts(7, notch / 8);
    this->press(Key::Tab);
    ASSERT_TRUE(this->form.other.hasFocus());
    this->click(lineOf(this->spin));
    this->turnByParts(1, notch / 8);
    EXPECT_EQ(this->spin.value(), 9);
}

TYPED_TEST(SpinBoxHands, withControlANotchIsTenSteps)
{
    this->begin();
    this->turn(QPoint(0, notch), Qt::NoScrollPhase, Qt::ControlModifier);
    EXPECT_EQ(this->spin.value(), 19);
    this->turn(QPoint(0, notch / 2), Qt::NoScrollPhase, Qt::ControlModifier);
    EXPECT_EQ(this->spin.value(), 19);
}

TYPED_TEST(SpinBoxHands, noTurnStepsBeyondTheEndOfTheRangeOrInAReadOnlyField)
{
    this->countSteps();
    this->spin.setValue(99);
    this->begin();
    this->turnByParts(16, notch / 8);
    EXPECT_EQ(this->ups, 0);
    this->turnByParts(8, -notch / 8);
    EXPECT_EQ(this->downs, 1);
    this->spin.setReadOnly(true);
    this->turnByParts(16, -notch / 8);
    EXPECT_EQ(this->downs, 1);
}

TEST_F(SpinBoxHandsPlain, aNotchInEighthsTakesADecadeStepUp)
{
    Form<QScientificSpinBox> form;
    form.spin.setRange(1e-15, 1);
    form.spin.setValue(4.7e-7);
    form.spin.signalIncrement.connect([&] { form.spin.setValue(form.spin.value() * 10); });
    form.spin.signalDecrement.connect([&] { form.spin.setValue(form.spin.value() / 10); });
    show(form.window);
    const QPoint centre = form.spin.rect().center();
    for (int part = 0; part < 8; ++part) {
        QWindowSystemInterface::handleWheelEvent(form.window.windowHandle(),
            QPointF(form.spin.mapTo(&form.window, centre)), QPointF(onScreen(form.spin, centre)), QPoint(),
            QPoint(0, notch / 8));
    }
    settle();
    EXPECT_EQ(form.spin.text(), "4.7E-06");
}

// Cells of a table

/** Makes the spin box the editor of every cell. */
template <typename SpinBox>
class SpinBoxEditors : public QItemEditorFactory
{
public:
    QWidget* createEditor(int /*type*/, QWidget* parent) const override
    {
        auto* const editor = new SpinBox(parent);
        editor->setRange(0, 1000);
        return editor;
    }
};

template <typename SpinBox>
class SpinBoxHandsCell : public HandsTest
{
protected:
    using Number = decltype(std::declval<SpinBox>().value());

    void SetUp() override
    {
        HandsTest::SetUp();
        QApplication::setDoubleClickInterval(patienceMs);
        for (int row = 0; row < table.rowCount(); ++row) {
            auto* const item = new QTableWidgetItem;
            item->setData(Qt::EditRole, Number(9));
            table.setItem(row, 0, item);
        }
        auto* const delegate = new QStyledItemDelegate(&table);
        delegate->setItemEditorFactory(&editors);
        table.setItemDelegate(delegate);
        table.resize(300, 300);
        show(table);
    }

    void TearDown() override
    {
        QApplication::setDoubleClickInterval(before);
        HandsTest::TearDown();
    }

    SpinBox* editor() const { return table.findChild<SpinBox*>(); }
    Number valueAt(int row) const { return table.item(row, 0)->data(Qt::EditRole).template value<Number>(); }

    void edit(int row)
    {
        // First clicks elsewhere, so that an earlier click and the next one are not a double click.
        click(*table.viewport(), table.viewport()->rect().bottomRight());
        click(table, table.model()->index(row, 0));
        click(table, table.model()->index(row, 0));
        ASSERT_TRUE(editor() && editor()->hasFocus());
    }

    /** Edits three rows and ends each edit in another way that stores the value. */
    void storeInEachWay(const QString& text)
    {
        edit(0);
        type(text);
        press(Key::Return);
        edit(1);
        type(text);
        press(Key::Tab);
        edit(2);
        type(text);
        click(table, table.model()->index(0, 0));
        ASSERT_FALSE(editor());
    }

    static constexpr int patienceMs = 5000; // between two clicks, on a busy machine
    const int before = QApplication::doubleClickInterval();
    SpinBoxEditors<SpinBox> editors;
    QTableWidget table{3, 1};
};

TYPED_TEST_SUITE(SpinBoxHandsCell, SpinBoxes, );

TYPED_TEST(SpinBoxHandsCell, storesTheTypedNumberOnReturnOnTabAndOnAClickElsewhere)
{
    this->storeInEachWay(QStringLiteral("47"));
    for (const int row : {0, 1, 2}) {
        EXPECT_EQ(this->valueAt(row), 47) << "row " << row;
    }
    this->storeInEachWay(QStringLiteral("5"));
    for (const int row : {0, 1, 2}) {
        EXPECT_EQ(this->valueAt(row), 5) << "row " << row << ", the same once more";
    }
}

TYPED_TEST(SpinBoxHandsCell, storesWhatIsTypedOverAChosenCell)
{
    this->click(this->table, this->table.model()->index(0, 0));
    this->type(QStringLiteral("47"));
    this->press(Key::Tab);
    this->type(QStringLiteral("48"));
    this->press({Key::Shift}, Key::Tab);
    EXPECT_EQ(this->valueAt(0), 47);
    EXPECT_EQ(this->valueAt(1), 48);
}

TYPED_TEST(SpinBoxHandsCell, storesTheOldNumberForATextThatIsNotAcceptable)
{
    this->storeInEachWay(QStringLiteral("-"));
    for (const int row : {0, 1, 2}) {
        EXPECT_EQ(this->valueAt(row), 9) << "row " << row;
    }
}

TYPED_TEST(SpinBoxHandsCell, storesAStepAndWhatIsTypedAfterIt)
{
    this->edit(0);
    this->press(Key::Up);
    this->press(Key::Tab);
    EXPECT_EQ(this->valueAt(0), 10);
    this->edit(1);
    this->press(Key::Up);
    this->type(QStringLiteral("3"));
    this->press(Key::Tab);
    EXPECT_EQ(this->valueAt(1), 3);
}

TYPED_TEST(SpinBoxHandsCell, escapeStoresNothing)
{
    this->edit(0);
    this->type(QStringLiteral("47"));
    this->press(Key::Escape);
    ASSERT_FALSE(this->editor());
    EXPECT_EQ(this->valueAt(0), 9);
    this->edit(0);
    this->type(QStringLiteral("48"));
    this->press(Key::Tab);
    EXPECT_EQ(this->valueAt(0), 48);
}

TYPED_TEST(SpinBoxHandsCell, storesWhatIsTypedWhenTheWindowIsLeft)
{
    QLineEdit elsewhere;
    this->show(elsewhere);
    this->activate(this->table);
    this->edit(0);
    this->type(QStringLiteral("47"));
    this->activate(elsewhere);
    EXPECT_EQ(this->valueAt(0), 47);
}

TEST_F(SpinBoxHandsPlain, aFormThatIsMappedToAModelStoresTheTypedNumberOnTab)
{
    QStandardItemModel model(1, 2);
    model.setItem(0, 0, new QStandardItem);
    model.setItem(0, 1, new QStandardItem);
    model.item(0, 0)->setData(9.0, Qt::EditRole);
    model.item(0, 1)->setData(9, Qt::EditRole);
    QWidget window;
    QVBoxLayout layout(&window);
    QScientificSpinBox number;
    IntegralSpinBox whole(nullptr);
    layout.addWidget(&number);
    layout.addWidget(&whole);
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    mapper.addMapping(&number, 0);
    mapper.addMapping(&whole, 1);
    mapper.toFirst();
    show(window);
    for (const QString& text : {QStringLiteral("47"), QStringLiteral("5")}) {
        click(lineOf(number));
        press({Key::Control}, 'a');
        type(text);
        press(Key::Tab);
        press({Key::Control}, 'a');
        type(text);
        press(Key::Tab);
        EXPECT_EQ(model.item(0, 0)->data(Qt::EditRole).toDouble(), text.toDouble());
        EXPECT_EQ(model.item(0, 1)->data(Qt::EditRole).toInt(), text.toInt());
    }
}

// What the line takes

TYPED_TEST(SpinBoxHands, aNumberFromASpreadsheetIsPastedWhateverWhiteSpaceIsAroundIt)
{
    this->begin();
    for (const bool affixes : {false, true}) {
        this->spin.setPrefix(affixes ? QStringLiteral("n = ") : QString());
        this->spin.setSuffix(affixes ? QStringLiteral(" m") : QString());
        for (const char* const text : {"15\n", "15\r\n", "\t15", " 15  ", "\u00a015\t\n"}) {
            this->spin.setValue(1);
            QApplication::clipboard()->setText(QString::fromUtf8(text));
            this->press({Key::Control}, 'a');
            this->press({Key::Control}, 'v');
            EXPECT_EQ(this->spin.cleanText(), "15") << text;
            EXPECT_EQ(this->spin.text(), affixes ? "n = 15 m" : "15") << text;
            this->press(Key::Return);
            EXPECT_EQ(this->spin.value(), 15) << text;
        }
    }
}

TYPED_TEST(SpinBoxHands, theSameCharactersAreRefusedWithAndWithoutPrefixAndSuffix)
{
    this->begin();
    for (const bool affixes : {false, true}) {
        this->spin.setPrefix(affixes ? QStringLiteral("n = ") : QString());
        this->spin.setSuffix(affixes ? QStringLiteral(" m") : QString());
        this->replaceBy(QStringLiteral("1x y5*"));
        EXPECT_EQ(this->spin.cleanText(), "15");
        QApplication::clipboard()->setText(QStringLiteral("7\t8\n"));
        this->press({Key::Control}, 'a');
        this->press({Key::Control}, 'v');
        EXPECT_EQ(this->spin.cleanText(), "15") << "two cells";
        this->press(Key::Return);
        EXPECT_EQ(this->spin.value(), 15);
    }
}

class SpinBoxHandsScientificLine : public HandsTest
{
protected:
    void begin(const QString& prefix, const QString& suffix)
    {
        form.spin.setPrefix(prefix);
        form.spin.setSuffix(suffix);
        form.spin.setValue(9);
        show(form.window);
        click(lineOf(form.spin));
    }

    Form<QScientificSpinBox> form;
    QScientificSpinBox& spin = form.spin;
};

TEST_F(SpinBoxHandsScientificLine, pastesANumberInScientificNotationWithALineBreak)
{
    begin(QString(), QString());
    QApplication::clipboard()->setText(QStringLiteral("\t1.5E3 \n"));
    press({Key::Control}, 'a');
    press({Key::Control}, 'v');
    EXPECT_EQ(spin.text(), "1.5E3");
    press(Key::Tab);
    EXPECT_EQ(spin.value(), 1500);
}

TEST_F(SpinBoxHandsScientificLine, takesWhatIsTypedOverPrefixNumberAndSuffix)
{
    begin(QStringLiteral("E = "), QStringLiteral(" J"));
    const QString whole = QStringLiteral("E = 9 J");
    // A triple click selects the whole line; the click that gave the focus may be the first of the three.
    for (int number = 0; number < 3 && lineOf(spin).selectedText() != whole; ++number) {
        click(lineOf(spin));
    }
    EXPECT_EQ(lineOf(spin).selectedText(), whole);
    type(QStringLiteral("1.5E3"));
    EXPECT_EQ(spin.text(), "E = 1.5E3 J");
    press(Key::Return);
    EXPECT_EQ(spin.value(), 1500);
}

TEST_F(SpinBoxHandsScientificLine, takesANumberThatBeginsWithTheOneItReplaces)
{
    begin(QStringLiteral("$"), QStringLiteral(" F"));
    const QString whole = QStringLiteral("$9 F");
    for (int number = 0; number < 3 && lineOf(spin).selectedText() != whole; ++number) {
        click(lineOf(spin));
    }
    EXPECT_EQ(lineOf(spin).selectedText(), whole);
    type(QStringLiteral("95"));
    EXPECT_EQ(spin.text(), "$95 F");
    press(Key::Return);
    EXPECT_EQ(spin.value(), 95);
}

TEST_F(SpinBoxHandsScientificLine, keepsPrefixAndSuffixWhateverIsDeleted)
{
    begin(QStringLiteral("E = "), QStringLiteral("%"));
    press({Key::Control}, 'a');
    press(Key::Backspace);
    EXPECT_EQ(spin.text(), "E = %");
    press(Key::Backspace);
    press(Key::Delete);
    EXPECT_EQ(spin.text(), "E = %");
    type(QStringLiteral("12"));
    EXPECT_EQ(spin.text(), "E = 12%");
    press({Key::Control}, 'z');
    press({Key::Control}, 'z');
    EXPECT_EQ(spin.text(), "E = 9%") << "undone";
}

TEST_F(SpinBoxHandsScientificLine, theSpaceBarDeletesNoNumber)
{
    begin(QString(), QStringLiteral(" J"));
    press({Key::Control}, 'a');
    press(Key::Space);
    EXPECT_EQ(spin.text(), "9 J");
    press(Key::Right);
    press(Key::Space);
    EXPECT_EQ(spin.text(), "9 J");
}

TEST_F(SpinBoxHandsScientificLine, takesANumberInPlaceOfTheSpecialValueTextAndNothingElse)
{
    spin.setRange(0, 10);
    spin.setSpecialValueText(QStringLiteral("auto"));
    begin(QString(), QStringLiteral(" J"));
    spin.setValue(0);
    press({Key::Control}, 'a');
    type(QStringLiteral("x"));
    EXPECT_EQ(spin.text(), "auto");
    press({Key::Control}, 'a');
    type(QStringLiteral("4"));
    EXPECT_EQ(spin.text(), "4 J");
    press(Key::Return);
    EXPECT_EQ(spin.value(), 4);
}

// What spin boxes remember of each other

class SpinBoxHandsTwoFields : public HandsTest
{
protected:
    void SetUp() override
    {
        HandsTest::SetUp();
        auto* const layout = new QVBoxLayout(&window);
        for (QScientificSpinBox* const field : {&narrow, &wide}) {
            layout->addWidget(field);
            field->setMinimumWidth(200);
        }
        narrow.setRange(0, 10);
        wide.setRange(0, 100);
        QString other = QStringLiteral("0.25"); // replaces what is remembered from an earlier test
        int pos = 0;
        wide.validate(other, pos);
        for (QScientificSpinBox* const field : {&narrow, &wide}) {
            field->setValue(9);
        }
    }

    void enter(QScientificSpinBox& field, const QString& text)
    {
        click(lineOf(field));
        press({Key::Control}, 'a');
        type(text);
        press(Key::Return);
    }

    QWidget window;
    QScientificSpinBox& narrow = *new QScientificSpinBox(&window);
    QScientificSpinBox& wide = *new QScientificSpinBox(&window);
};

TEST_F(SpinBoxHandsTwoFields, shareTheAnswerForATextInitially)
{
    show(window);
    enter(narrow, QStringLiteral("50"));
    enter(wide, QStringLiteral("50"));
    EXPECT_EQ(narrow.value(), 9);
    EXPECT_EQ(wide.value(), 9);
}

TEST_F(SpinBoxHandsTwoFields, withTheirOwnValidationTakeANumberThatTheOtherHasRefused)
{
    narrow.setOwnValidation(true);
    wide.setOwnValidation(true);
    show(window);
    for (int time = 0; time < 2; ++time) {
        enter(narrow, QStringLiteral("50"));
        enter(wide, QStringLiteral("50"));
        EXPECT_EQ(narrow.value(), 9);
        EXPECT_EQ(wide.value(), 50);
        wide.setValue(9);
    }
}

TEST_F(SpinBoxHandsTwoFields, withItsOwnValidationNeitherFillsNorUsesTheSharedAnswer)
{
    narrow.setOwnValidation(true);
    show(window);
    enter(narrow, QStringLiteral("50"));
    enter(wide, QStringLiteral("50"));
    EXPECT_EQ(wide.value(), 50) << "not filled";
    enter(wide, QStringLiteral("51"));
    enter(narrow, QStringLiteral("51"));
    EXPECT_EQ(narrow.value(), 9) << "not used";
}

TEST_F(SpinBoxHandsTwoFields, withTheirOwnValidationTake125AfterACommaWasTypedAndNeverForIt)
{
    narrow.setOwnValidation(true);
    wide.setOwnValidation(true);
    narrow.setRange(0, 10000);
    wide.setRange(0, 10000);
    show(window);
    enter(narrow, QStringLiteral("12,5"));
    EXPECT_EQ(narrow.value(), 9);
    EXPECT_EQ(narrow.text(), "9");
    enter(narrow, QStringLiteral("12,5"));
    EXPECT_EQ(narrow.value(), 9) << "the same once more";
    enter(wide, QStringLiteral("125"));
    EXPECT_EQ(wide.value(), 125);
    enter(narrow, QStringLiteral("1,250"));
    EXPECT_EQ(narrow.value(), 1250) << "a group as it is written";
    narrow.setSuffix(QStringLiteral(" V, peak"));
    enter(narrow, QStringLiteral("12,5"));
    EXPECT_EQ(narrow.value(), 1250);
    click(lineOf(narrow));
    press({Key::Control}, 'a');
    type(QStringLiteral("12,5"));
    press(Key::Tab);
    EXPECT_EQ(narrow.value(), 1250) << "leaving the field";
}

TEST_F(SpinBoxHandsTwoFields, rememberTheAnswerWhenAnotherIsMade)
{
    show(window);
    enter(narrow, QStringLiteral("50"));
    const QScientificSpinBox another;
    enter(wide, QStringLiteral("50"));
    EXPECT_EQ(wide.value(), 9);
}

} // namespace

} // namespace morvane::test
