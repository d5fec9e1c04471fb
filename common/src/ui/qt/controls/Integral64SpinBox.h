// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QAbstractSpinBox>
#include <QString>

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane::ui {

class Integral64SpinBoxPrivate;

/**
 * A spin box for signed integers of 64 bits, in the bases 10, 16, 8 and 2.
 *
 * Initially it has the range from 0 to 99, the single step 1, base 10 and no group separator, as QSpinBox.
 *
 * Steps, wheel and keyboard tracking are those of IntegralSpinBox: a slot that is connected to signalIncrement or
 * signalDecrement replaces the step, the wheel steps by whole notches, keyboard tracking is off, and delegates store
 * the typed number. There are two differences. A step first accepts a typed number. And a step that leaves 64 bits ends
 * at the limit of the range.
 *
 * Negative numbers have a minus sign in all bases. Digits above 9 are capital letters; small letters are read, too. In
 * the bases 16, 8 and 2, `0x`, `0o` or `0b` may be typed or pasted before the digits.
 *
 * @snippet 29-units-and-prefixes/main.cpp integer
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT Integral64SpinBox : public QAbstractSpinBox
{
    Q_OBJECT
    /**
     * The value. While typed text is not committed yet, reading this property returns the number that Return would set.
     * Delegates and QDataWidgetMapper store this property. Reading it changes nothing and emits nothing. If the text is
     * not acceptable, the result is the number that Return would correct it to. The property has no notify signal;
     * connect to valueChanged() instead.
     */
    Q_PROPERTY(qint64 value READ enteredValue WRITE setValue NOTIFY valueChanged USER true)
    /** The smallest value; 0 initially. */
    Q_PROPERTY(qint64 minimum READ minimum WRITE setMinimum)
    /** The largest value; 99 initially. */
    Q_PROPERTY(qint64 maximum READ maximum WRITE setMaximum)
    /** What a step adds; 1 initially. */
    Q_PROPERTY(qint64 singleStep READ singleStep WRITE setSingleStep)
    /** The text before the number; empty initially. */
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    /** The text behind the number; empty initially. */
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    /** As in QSpinBox. */
    Q_PROPERTY(QString specialValueText READ specialValueText WRITE setSpecialValueText)
    /** The text without prefix, suffix and white space around the number. */
    Q_PROPERTY(QString cleanText READ cleanText)
    /** The base of the digits; Decimal initially. */
    Q_PROPERTY(Base base READ base WRITE setBase)
    /** The text between groups of digits; empty initially, for none. */
    Q_PROPERTY(QString groupSeparator READ groupSeparator WRITE setGroupSeparator)
    /** Whether a text that is not acceptable is shown as such; false initially. */
    Q_PROPERTY(bool refusalShown READ isRefusalShown WRITE setRefusalShown)
    /** Whether `refusalShown` is on and the text is not acceptable. For style sheets. */
    Q_PROPERTY(bool textRefused READ isTextRefused STORED false DESIGNABLE false)

public:
    /** The base of the digits. The values are the bases themselves. */
    enum Base
    {
        Binary = 2,
        Octal = 8,
        Decimal = 10,
        Hexadecimal = 16,
    };
    Q_ENUM(Base)

    /** @param parent owner of the spin box; null for none */
    explicit Integral64SpinBox(QWidget* parent = nullptr);

    /** Disconnects every slot of signalDecrement, then of signalIncrement. */
    ~Integral64SpinBox() override;

    /** The value that was set last, by the program, by a step, or by Return or the loss of the focus after typing. */
    qint64 value() const;

    /** Returns the smallest value. */
    qint64 minimum() const;
    /** Sets the minimum, and the maximum if it would be below. Limits the value to the range. */
    void setMinimum(qint64 minimum);
    /** Returns the largest value. */
    qint64 maximum() const;
    /** Sets the maximum, and the minimum if it would be above. Limits the value to the range. */
    void setMaximum(qint64 maximum);
    /** Sets both limits; the maximum becomes the minimum if it is below. Limits the value to the range. */
    void setRange(qint64 minimum, qint64 maximum);

    /** Returns what a step adds. */
    qint64 singleStep() const;
    /** Sets what a step adds. A negative number is ignored. */
    void setSingleStep(qint64 step);

    /** Returns the text before the number. */
    QString prefix() const;
    /** Sets the text before the number, and updates the line. */
    void setPrefix(const QString& prefix);
    /** Returns the text behind the number. */
    QString suffix() const;
    /** Sets the text behind the number, and updates the line. */
    void setSuffix(const QString& suffix);
    /**
     * Sets the text that is shown instead of the minimum, and updates the line; empty for none. Hides
     * QAbstractSpinBox::setSpecialValueText(), which does not update it here.
     */
    void setSpecialValueText(const QString& text);
    /** Returns the text without prefix, suffix and white space around the number. */
    QString cleanText() const;

    /** Returns the base of the digits. */
    Base base() const;
    /** Sets the base and updates the text. Other numbers than those of the enumeration are ignored. */
    void setBase(Base base);

    /** Returns the text between groups of digits; empty for none. */
    QString groupSeparator() const;

    /**
     * Sets the text between groups of three digits, or four in the bases 2 and 16, such as `_` or a blank. Digits and
     * minus signs make no separator and are ignored. While digits are typed or deleted, the separators move. A number
     * with typed or pasted separators is acceptable only if they are where they belong: `12,5` is never read as 125.
     */
    void setGroupSeparator(const QString& separator);

    /** Returns whether a text that is not acceptable is shown as such. */
    bool isRefusalShown() const;
    /** As QScientificSpinBox::setRefusalShown(): red text, `textRefused` for style sheets, a sentence for screen
     * readers. */
    void setRefusalShown(bool shown);
    /** Returns whether isRefusalShown() is true and validate() returns anything but Acceptable for the text. */
    bool isTextRefused() const;

    /** Returns `value` in the base and in groups, without prefix and suffix. */
    QString textFromValue(qint64 value) const;

    /** Returns the number in `text`, which may have prefix and suffix; 0 if validate() returns Invalid or Intermediate.
     */
    qint64 valueFromText(const QString& text) const;

    /** Accepts the typed number as Return does. Hides QAbstractSpinBox::interpretText(), which does nothing here. */
    void interpretText();

    /**
     * Returns Acceptable if `input`, with or without prefix and suffix, is a number in the range. Intermediate if it
     * may become one by further typing, or if its separators are not where they belong. Otherwise Invalid. Changes
     * nothing.
     */
    QValidator::State validate(QString& input, int& pos) const override;

    /**
     * Steps up if `steps` is above 0, otherwise down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise accepts a typed number and adds `singleStep() *
     * steps`, limited to 64 bits and to the range; with wrapping(), a step beyond one limit leads to the other one.
     * Finally selects the number. What slots may do is described at QScientificSpinBox::stepBy().
     */
    void stepBy(int steps) override;

    /** Has space for both limits of the range. */
    QSize sizeHint() const override;
    /** Has space for both limits of the range. */
    QSize minimumSizeHint() const override;

    boost::signals2::signal<void()> signalIncrement; ///< a step up that the host handles
    boost::signals2::signal<void()> signalDecrement; ///< a step down, or by 0, that the host handles

public Q_SLOTS:
    /** Sets the value, limited to the range, and replaces typed text. With wrapping(), a number beyond one limit
     * becomes the other one. */
    void setValue(qint64 value);

Q_SIGNALS:
    /** Emitted when the value changes, for whatever reason; not when the same value is set again. */
    void valueChanged(qint64 value);
    /** Emitted when the value changes, with the text that is shown. */
    void textChanged(const QString& text);

protected:
    /**
     * A direction is enabled until the typed number, or else the value, is at its limit, with wrapping() always; if
     * read-only, none is.
     */
    StepEnabled stepEnabled() const override;
    /** Drops the remaining part of a notch when the focus is lost or the pointer leaves. */
    bool event(QEvent* event) override;
    /** Steps by whole notches; adds up parts of notches. */
    void wheelEvent(QWheelEvent* event) override;
    /** Selects the number, without prefix and suffix, on Select All. */
    void keyPressEvent(QKeyEvent* event) override;
    /** Selects the number, without prefix and suffix, when Tab brings the focus and when a view opens it. */
    void focusInEvent(QFocusEvent* event) override;

private:
    friend class Integral64SpinBoxPrivate;

    qint64 enteredValue() const;

    /** Does nothing here. Code that wraps signalIncrement may call it when a slot was connected. */
    virtual void signalIncrementConnected() const;
    /** Does nothing here. Code that wraps signalDecrement may call it when a slot was connected. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<Integral64SpinBoxPrivate> m_private;
};

} // namespace morvane::ui
