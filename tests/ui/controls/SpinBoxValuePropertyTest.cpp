// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QDataWidgetMapper>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include <random>
#include <type_traits>

namespace {

using morvane::test::Integer64SpinBox;
using morvane::test::IntegerSpinBox;
using morvane::test::ScientificSpinBox;
using morvane::test::SpinBoxWindow;

/** The property of both spin boxes that delegates and mappers store. */
template <typename SpinBox>
class SpinBoxValueProperty : public ::testing::Test
{
protected:
    using Number = decltype(std::declval<SpinBox>().value());

    SpinBoxValueProperty()
    {
        spin.setRange(0, 1000);
        spin.setValue(9);
    }

    Number read() const { return spin.property("value").template value<Number>(); }

    SpinBoxWindow<SpinBox> window;
    SpinBox& spin = window.spin;
};

using SpinBoxes = ::testing::Types<ScientificSpinBox, IntegerSpinBox, Integer64SpinBox>;

/** Random texts: in some, each character may be typed at its position, in others not. */
QString anyText(std::mt19937& random)
{
    static const QString characters = QStringLiteral("00123456789,,.-+eE ");
    QString text;
    for (auto length = random() % 7; length > 0; --length) {
        text += characters.at(static_cast<int>(random() % static_cast<unsigned>(characters.size())));
    }
    return text;
}

} // namespace

TYPED_TEST_SUITE(SpinBoxValueProperty, SpinBoxes, );

TYPED_TEST(SpinBoxValueProperty, isTheOneForDelegates)
{
    const QMetaProperty user = this->spin.metaObject()->userProperty();
    EXPECT_STREQ(user.name(), "value");
    EXPECT_TRUE(user.isWritable());
    EXPECT_EQ(user.userType(), QVariant(this->spin.value()).userType());
    this->spin.setProperty("value", 12);
    EXPECT_EQ(this->spin.value(), 12);
}

TYPED_TEST(SpinBoxValueProperty, givesTheTypedNumberBeforeReturn)
{
    EXPECT_EQ(this->read(), 9);
    this->window.type("47");
    EXPECT_EQ(this->read(), 47);
    EXPECT_EQ(this->spin.value(), 9);
    this->window.type("5");
    EXPECT_EQ(this->read(), 5);
}

TYPED_TEST(SpinBoxValueProperty, changesNothingAndEmitsNothingWhenItIsRead)
{
    this->window.type("47");
    QSignalSpy values(&this->spin, SIGNAL(textChanged(QString)));
    QSignalSpy texts(this->spin.lineEdit(), &QLineEdit::textChanged);
    QSignalSpy finishes(&this->spin, &QAbstractSpinBox::editingFinished);
    EXPECT_EQ(this->read(), 47);
    EXPECT_EQ(this->read(), 47);
    EXPECT_EQ(values.count() + texts.count() + finishes.count(), 0);
    EXPECT_EQ(this->window.shown(), "47");
    EXPECT_EQ(this->spin.lineEdit()->cursorPosition(), 2);
    QTest::keyClicks(&this->spin, "1");
    EXPECT_EQ(this->window.shown(), "471") << "typing goes on";
    this->window.commit();
    EXPECT_EQ(values.count(), 1);
    EXPECT_EQ(this->spin.value(), 471);
}

TYPED_TEST(SpinBoxValueProperty, givesTheOldNumberForTextThatIsNotAcceptable)
{
    this->spin.setRange(5, 1000);
    this->window.type("3");
    EXPECT_EQ(this->window.shown(), "3");
    EXPECT_EQ(this->read(), 9);
    this->spin.selectAll();
    QTest::keyClick(&this->spin, Qt::Key_Delete);
    EXPECT_EQ(this->window.shown(), "");
    EXPECT_EQ(this->read(), 9);
}

TYPED_TEST(SpinBoxValueProperty, followsTheProgramWhenItSetsTheValueOverTypedText)
{
    this->window.type("47");
    this->spin.setValue(11);
    EXPECT_EQ(this->read(), 11);
    this->window.type("47");
    this->spin.stepBy(1);
    const bool isAcceptedByAStep = std::is_same_v<TypeParam, Integer64SpinBox>;
    EXPECT_EQ(this->read(), isAcceptedByAStep ? 48 : 12);
    this->window.type("47");
    this->spin.setRange(15, 19);
    EXPECT_EQ(this->read(), isAcceptedByAStep ? 19 : 15);
}

TYPED_TEST(SpinBoxValueProperty, isTheValueAfterClearingByProgram)
{
    this->window.type("47");
    this->spin.clear();
    EXPECT_EQ(this->read(), 9);
    QTest::keyClicks(&this->spin, "6");
    EXPECT_EQ(this->read(), 6);
}

TYPED_TEST(SpinBoxValueProperty, isWhatReturnTakesForAnyTextThatIsTyped)
{
    std::mt19937 random(17);
    int different = 0;
    for (int round = 0; round < 3000; ++round) {
        const auto choice = random();
        this->spin.setPrefix(choice & 1 ? "n, = " : "");
        this->spin.setSuffix(choice & 2 ? " m" : "");
        this->spin.setCorrectionMode(
            choice & 4 ? QAbstractSpinBox::CorrectToNearestValue : QAbstractSpinBox::CorrectToPreviousValue);
        this->spin.setWrapping(choice & 8);
        this->spin.setKeyboardTracking(choice & 16);
        this->spin.setSpecialValueText(choice & 32 ? "none" : "");
        choice & 64 ? this->spin.setRange(20, 2000) : this->spin.setRange(-500, 500);
        this->spin.setValue(30);
        this->window.type(anyText(random));
        const QString shown = this->window.shown();
        const auto read = this->read();
        different += read != 30;
        this->window.commit();
        ASSERT_EQ(read, this->spin.value()) << shown.toStdString() << ", choice " << choice % 128;
    }
    EXPECT_GT(different, 500);
}

TYPED_TEST(SpinBoxValueProperty, isStoredByADelegateWithoutFurtherAdo)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), this->spin.value());
    QStyledItemDelegate delegate;
    delegate.setEditorData(&this->spin, model.index(0, 0));
    this->window.type("47");
    delegate.setModelData(&this->spin, &model, model.index(0, 0));
    EXPECT_EQ(model.index(0, 0).data(), 47);
}

TYPED_TEST(SpinBoxValueProperty, isStoredByAMapperThatSubmits)
{
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), this->spin.value());
    for (const char* const property : {"", "value"}) {
        QDataWidgetMapper mapper;
        mapper.setSubmitPolicy(QDataWidgetMapper::ManualSubmit);
        mapper.setModel(&model);
        mapper.addMapping(&this->spin, 0, property);
        mapper.toFirst();
        this->window.type("47");
        EXPECT_TRUE(mapper.submit());
        EXPECT_EQ(model.index(0, 0).data(), 47);
        EXPECT_EQ(this->spin.value(), 47) << "shown anew by the mapper";
        model.setData(model.index(0, 0), 9);
    }
}

TEST(SpinBoxValuePropertyScientific, givesEveryDigitOfAValueOverWhichNothingWasTyped)
{
    SpinBoxWindow<ScientificSpinBox> window;
    window.spin.setValue(1.23456789012);
    EXPECT_EQ(window.spin.property("value"), 1.23456789012);
    window.type("1.2345679");
    EXPECT_EQ(window.spin.property("value"), 1.2345679) << "typed, as it happens, as shown";
    window.spin.setValue(1.23456789013);
    EXPECT_EQ(window.spin.property("value"), 1.23456789013);
}

TEST(SpinBoxValuePropertyScientific, givesEveryDigitThatWasTyped)
{
    SpinBoxWindow<ScientificSpinBox> window;
    window.type("6.02214076E+23");
    EXPECT_EQ(window.spin.property("value"), 6.02214076e23);
}

TEST(SpinBoxValuePropertyScientific, leavesTheSharedAnswerAsItIs)
{
    SpinBoxWindow<ScientificSpinBox> window;
    ScientificSpinBox narrow(nullptr);
    narrow.setRange(0, 10);
    QString text = "50.25";
    int pos = 5;
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Invalid);
    window.type("7");
    EXPECT_EQ(window.spin.property("value"), 7);
    EXPECT_EQ(window.spin.validate(text, pos), QValidator::Invalid) << "still remembered";
}

TEST(SpinBoxValuePropertyScientific, asksTheSharedAnswerAsReturnDoes)
{
    SpinBoxWindow<ScientificSpinBox> window;
    ScientificSpinBox narrow(nullptr);
    narrow.setRange(0, 10);
    window.spin.setValue(3);
    QString text = "50.5";
    int pos = 4;
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Invalid);
    window.type(text);
    EXPECT_EQ(window.spin.property("value"), 3);
    window.spin.setOwnValidation(true);
    EXPECT_EQ(window.spin.property("value"), 50.5);
}

TEST(SpinBoxValuePropertyScientific, isBroughtIntoTheRangeAsByReturnWhereTheSharedAnswerIsOfAWiderOne)
{
    SpinBoxWindow<ScientificSpinBox> window;
    const ScientificSpinBox wide(nullptr);
    window.spin.setRange(2, 10);
    for (const bool wrapping : {false, true}) {
        for (QString text : {QString("1.125"), QString("50.125")}) {
            window.spin.setWrapping(wrapping);
            window.spin.setValue(3);
            window.type(text);
            int pos = text.size();
            EXPECT_EQ(wide.validate(text, pos), QValidator::Acceptable);
            const QVariant read = window.spin.property("value");
            window.commit();
            EXPECT_EQ(read, window.spin.value());
            EXPECT_EQ(window.spin.value(), (text == "1.125") == wrapping ? 10 : 2);
        }
    }
}

TEST(SpinBoxValuePropertyScientific, isWhatReturnTakesOfATextThatAProgramHasPutIntoTheLine)
{
    SpinBoxWindow<ScientificSpinBox> window;
    window.spin.setOwnValidation(true);
    window.spin.setValue(3);
    for (int cursor = 0; cursor <= 5; ++cursor) {
        window.spin.lineEdit()->setText(" 1..5");
        window.spin.lineEdit()->setCursorPosition(cursor);
        const QVariant read = window.spin.property("value");
        window.commit();
        EXPECT_EQ(read, window.spin.value()) << "cursor at " << cursor;
        window.spin.setValue(3);
    }
}
