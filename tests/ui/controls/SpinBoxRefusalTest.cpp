// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "SpinBoxFixture.h"

#include <QAccessible>
#include <QScopeGuard>

#include <cmath>
#include <memory>

namespace {

using morvane::test::Integer64SpinBox;
using morvane::test::IntegerSpinBox;
using morvane::test::ScientificSpinBox;
using morvane::test::SpinBoxWindow;

template <typename SpinBox>
class SpinBoxRefusal : public ::testing::Test
{
protected:
    SpinBoxRefusal()
    {
        spin.setRange(5, 1000);
        spin.setValue(9);
        spin.setRefusalShown(true);
    }

    QColor colour() const { return spin.lineEdit()->palette().color(QPalette::Text); }

    SpinBoxWindow<SpinBox> window;
    SpinBox& spin = window.spin;
    const QColor ordinary = colour();
};

using SpinBoxes = ::testing::Types<ScientificSpinBox, IntegerSpinBox, Integer64SpinBox>;

} // namespace

TYPED_TEST_SUITE(SpinBoxRefusal, SpinBoxes, );

TYPED_TEST(SpinBoxRefusal, isNotShownInitially)
{
    SpinBoxWindow<TypeParam> fresh;
    EXPECT_FALSE(fresh.spin.isRefusalShown());
    fresh.spin.setRange(5, 1000);
    const QPalette before = fresh.spin.lineEdit()->palette();
    fresh.type("3");
    EXPECT_FALSE(fresh.spin.isTextRefused());
    EXPECT_EQ(fresh.spin.lineEdit()->palette(), before);
}

TYPED_TEST(SpinBoxRefusal, lastsAsLongAsTheTextIsNotAcceptable)
{
    EXPECT_FALSE(this->spin.isTextRefused());
    this->window.type("3");
    EXPECT_TRUE(this->spin.property("textRefused").toBool());
    EXPECT_NE(this->colour(), this->ordinary);
    QTest::keyClicks(&this->spin, "0");
    EXPECT_FALSE(this->spin.isTextRefused());
    EXPECT_EQ(this->colour(), this->ordinary);
    QTest::keyClick(&this->spin, Qt::Key_Backspace);
    EXPECT_NE(this->colour(), this->ordinary);
    this->window.commit();
    EXPECT_EQ(this->spin.value(), 9);
    EXPECT_EQ(this->colour(), this->ordinary) << "the old number is back";
    this->window.type("3");
    QTest::keyClick(&this->spin, Qt::Key_Tab);
    EXPECT_EQ(this->colour(), this->ordinary);
}

TYPED_TEST(SpinBoxRefusal, endsWhenTheProgramReplacesTheText)
{
    this->window.type("3");
    this->spin.setValue(9);
    EXPECT_FALSE(this->spin.isTextRefused());
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->colour() == this->ordinary; }));
    this->window.type("3");
    QTest::keyClick(&this->spin, Qt::Key_Up);
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->colour() == this->ordinary; }));
}

TYPED_TEST(SpinBoxRefusal, endsAndBeginsWhenTheProgramChangesTheRange)
{
    const auto flash =
        qScopeGuard([before = QApplication::cursorFlashTime()] { QApplication::setCursorFlashTime(before); });
    QApplication::setCursorFlashTime(0);           // nothing is painted by itself
    this->spin.setProperty("ownValidation", true); // otherwise the shared result stays, too
    this->window.type("3");
    EXPECT_NE(this->colour(), this->ordinary);
    this->spin.setRange(1, 1000);
    EXPECT_FALSE(this->spin.isTextRefused());
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->colour() == this->ordinary; }));
    this->spin.setRange(5, 1000);
    EXPECT_TRUE(this->spin.isTextRefused());
    this->spin.lineEdit()->update();
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->colour() != this->ordinary; }));
}

TYPED_TEST(SpinBoxRefusal, leavesAPaletteToTheHostThatChangesMeanwhileOrLater)
{
    const auto paint = [this](const QColor& text, const QColor& base) {
        QPalette palette;
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Base, base);
        this->spin.setPalette(palette);
    };
    const auto base = [this] { return this->spin.lineEdit()->palette().color(QPalette::Base); };
    paint(Qt::blue, QColor(0xff, 0xff, 0xe0));
    this->window.type("3");
    EXPECT_NE(this->colour(), QColor(Qt::blue));
    EXPECT_EQ(base(), QColor(0xff, 0xff, 0xe0));
    paint(Qt::darkBlue, QColor(0xe0, 0xff, 0xff));
    EXPECT_NE(this->colour(), QColor(Qt::darkBlue)) << "still refused";
    EXPECT_EQ(base(), QColor(0xe0, 0xff, 0xff));
    this->window.commit();
    EXPECT_EQ(this->colour(), QColor(Qt::darkBlue));
    paint(Qt::darkGreen, Qt::white);
    EXPECT_EQ(this->colour(), QColor(Qt::darkGreen));
    EXPECT_EQ(base(), QColor(Qt::white));
}

TYPED_TEST(SpinBoxRefusal, leavesADescriptionToTheHostThatChangesMeanwhile)
{
    this->spin.setAccessibleDescription("From 5 to 1000");
    this->window.type("3");
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->spin.accessibleDescription() != "From 5 to 1000"; }));
    this->spin.setAccessibleDescription("Of the motor");
    QTest::keyClicks(&this->spin, "0");
    EXPECT_EQ(this->spin.accessibleDescription(), "Of the motor");
}

TYPED_TEST(SpinBoxRefusal, endsWhenItIsSwitchedOff)
{
    this->window.type("3");
    this->spin.setRefusalShown(false);
    EXPECT_EQ(this->colour(), this->ordinary);
    EXPECT_FALSE(this->spin.isTextRefused());
    this->spin.setRefusalShown(true);
    EXPECT_NE(this->colour(), this->ordinary) << "the text is still there";
}

TYPED_TEST(SpinBoxRefusal, hasAColourThatCanBeReadOnLightAndDarkFields)
{
    for (const QColor& base :
        {QColor(Qt::white), QColor(0xf0, 0xf0, 0xf0), QColor(0x1e, 0x1e, 0x1e), QColor(Qt::black)}) {
        this->spin.setRefusalShown(false);
        QPalette palette = this->spin.lineEdit()->palette();
        palette.setColor(QPalette::Base, base);
        this->spin.lineEdit()->setPalette(palette);
        this->spin.setRefusalShown(true);
        this->window.type("3");
        const auto luminance = [](const QColor& colour) {
            const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
            return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
        };
        const double a = luminance(this->colour()) + 0.05;
        const double b = luminance(base) + 0.05;
        EXPECT_GE(qMax(a, b) / qMin(a, b), 4.5) << base.name().toStdString();
        this->window.commit();
        EXPECT_EQ(this->spin.lineEdit()->palette(), palette) << "the host's own palette is back";
    }
}

TYPED_TEST(SpinBoxRefusal, isSeenByStyleSheets)
{
    this->window.window.setStyleSheet("QAbstractSpinBox[textRefused=\"true\"] { background: #ffff00 }");
    const auto background = [this] { return this->spin.grab().toImage().pixelColor(4, this->spin.height() / 2); };
    this->window.type("3");
    EXPECT_EQ(background(), QColor(0xff, 0xff, 0));
    QTest::keyClicks(&this->spin, "0");
    EXPECT_NE(background(), QColor(0xff, 0xff, 0));
}

// Qt tells screen readers of each change of the description.
TYPED_TEST(SpinBoxRefusal, isToldToScreenReadersWhenTypingPauses)
{
    const QString own = "From 5 to 1000";
    const auto description = [this] {
        return QAccessible::queryAccessibleInterface(&this->spin)->text(QAccessible::Description);
    };
    this->spin.setAccessibleDescription(own);
    this->window.type("3");
    EXPECT_EQ(description(), own) << "more may be typed";
    EXPECT_TRUE(QTest::qWaitFor([&] { return description() != own; }));
    EXPECT_EQ(description(), "The text is not an acceptable number. From 5 to 1000");
    QTest::keyClick(&this->spin, Qt::Key_Backspace);
    EXPECT_EQ(description(), own) << "told again, after the next pause";
    EXPECT_TRUE(QTest::qWaitFor([&] { return description() != own; }));
    QTest::keyClicks(&this->spin, "30");
    EXPECT_EQ(description(), own);
    this->window.type("4");
    this->window.commit();
    EXPECT_EQ(description(), own);
}

TYPED_TEST(SpinBoxRefusal, mayLastUntilTheSpinBoxIsDestroyed)
{
    auto form = std::make_unique<SpinBoxWindow<TypeParam>>();
    form->spin.setRange(5, 1000);
    form->spin.setRefusalShown(true);
    form->type("3");
    EXPECT_TRUE(form->spin.isTextRefused());
    form.reset();
}

TEST(SpinBoxRefusalScientific, leavesTheSharedValidationAsItIs)
{
    SpinBoxWindow<ScientificSpinBox> window;
    window.spin.setRefusalShown(true);
    ScientificSpinBox narrow;
    narrow.setRange(0, 10);
    QString text = "50.75";
    int pos = 5;
    EXPECT_EQ(narrow.validate(text, pos), QValidator::Invalid);
    EXPECT_FALSE(window.spin.isTextRefused());
    EXPECT_EQ(window.spin.validate(text, pos), QValidator::Invalid) << "the shared result";
}
