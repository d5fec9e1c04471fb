// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QByteArray>
#include <QDoubleSpinBox>
#include <QLocale>
#include <QString>
#include <QValidator>

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane::ui {

class QScientificSpinBoxPrivate;

/**
 * A spin box for doubles in scientific notation, such as 1.5E-07.
 *
 * Initially it shows 8 significant digits, and its range is that of all finite doubles. Keyboard tracking is off: a
 * typed number becomes the value on Return or when the focus is lost, and until then the text stays as typed. Numbers
 * are written and read in US English, with `.` as decimal point and `,` between groups of digits, independent of the
 * user's locale. For this the locale of the widget is US English; do not change it.
 *
 * The line edit rejects characters that cannot be part of such a number, with or without prefix and suffix. White space
 * around a pasted number is removed.
 *
 * A typed number keeps all its digits in the value, but after Return only decimals() of them are shown. If nothing was
 * typed, Return sets the value to the number as it is shown.
 *
 * A step is a press of an arrow or page key, a turn of the wheel, a click on a button, or a call of stepBy(). If a
 * slot is connected to the signal of that direction, signalIncrement or signalDecrement, the step fires this signal
 * once, independent of the number of steps, and does not change the value. If no slot is connected, the value changes
 * by the single step, independent of its own magnitude. After the step, and after the slots, the whole number is
 * selected. Qt makes no step in a direction that stepEnabled() excludes, for instance upwards at the maximum. Then no
 * signal fires either.
 *
 * The wheel steps by whole notches. Touchpads and high-resolution wheels report parts of a notch, which are added up to
 * whole notches. The remaining part is dropped when the direction changes, when the pointer leaves, and when the focus
 * is lost. Horizontal scrolling makes no step. As in QSpinBox, the direction is the one that the system reports.
 *
 * If a Qt delegate creates the spin box as the editor of a table cell, the typed number is stored on Return, on Tab and
 * on a click elsewhere. This works because the property `value` returns the typed number before value() does.
 *
 * Initially all spin boxes of the process share one cached validation result: the result for the text that was
 * validated last. The cached text is the text as it was interpreted: without white space around the number, and without
 * group separators if the parser rejected them. The next spin box that validates exactly that text uses the cached
 * result, independent of its own range. For instance, after a field from 0 to 10 rejected 50, a field from 0 to 100
 * rejects 50, too. After `12,5` was typed in any field, 125 is rejected. Any other validated text replaces the cached
 * result. Set ownValidation to exclude a spin box from this cache; new forms should set it.
 *
 * The base class changes some values that the program sets. An infinity becomes the limit on its side, and NaN becomes
 * the maximum. Values are rounded to 323 digits after the decimal point, so the smallest denormals lose digits or
 * become 0.
 *
 * @snippet 05-scientific-input/main.cpp number
 * @snippet 05-scientific-input/main.cpp steps
 *
 * The properties `notation`, `numberLocale`, `stepMode` and `refusalShown` change how numbers are written, read,
 * stepped and refused. Initially they change nothing.
 *
 * @snippet 29-units-and-prefixes/main.cpp notation
 * @snippet 29-units-and-prefixes/main.cpp locale
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT QScientificSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    /**
     * The number of significant digits. The property of the base class would set the number of digits to which values
     * are rounded.
     */
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /**
     * The value. While typed text is not committed yet, reading this property returns the number that Return would set.
     * Delegates and QDataWidgetMapper store this property. Reading it changes nothing and emits nothing. If the text is
     * not acceptable, the result is the number that Return would correct it to; this is value(), unless the correction
     * mode gives another number. The property has no notify signal; connect to valueChanged() instead.
     */
    Q_PROPERTY(double value READ enteredValue WRITE setValue USER true)
    /** Whether the spin box ignores the shared validation cache; false initially. */
    Q_PROPERTY(bool ownValidation READ hasOwnValidation WRITE setOwnValidation)
    /** How numbers are written; Scientific initially. */
    Q_PROPERTY(Notation notation READ notation WRITE setNotation)
    /** The language in which numbers are written and read; the C locale initially, which means US English as above. */
    Q_PROPERTY(QLocale numberLocale READ numberLocale WRITE setNumberLocale RESET resetNumberLocale)
    /** What a step does if the host does not handle it; Linear initially. */
    Q_PROPERTY(StepMode stepMode READ stepMode WRITE setStepMode)
    /** Whether a text that is not acceptable is shown as such; false initially. */
    Q_PROPERTY(bool refusalShown READ isRefusalShown WRITE setRefusalShown)
    /** Whether `refusalShown` is on and the text is not acceptable. For style sheets. */
    Q_PROPERTY(bool textRefused READ isTextRefused STORED false DESIGNABLE false)
    /** As in QDoubleSpinBox; in the notation SiPrefix without the white space before the unit. */
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    // Forms store doubles with 15 digits after the point, so 1E-18 becomes 0. Qt Designer edits the texts instead.
    /** As in QDoubleSpinBox, but hidden in Qt Designer. */
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum DESIGNABLE false)
    /** As in QDoubleSpinBox, but hidden in Qt Designer. */
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum DESIGNABLE false)
    /** As in QDoubleSpinBox, but hidden in Qt Designer. */
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep DESIGNABLE false)
    /** The minimum as text, for Qt Designer. */
    Q_PROPERTY(QByteArray minimumText READ minimumText WRITE setMinimumText)
    /** The maximum as text, for Qt Designer. */
    Q_PROPERTY(QByteArray maximumText READ maximumText WRITE setMaximumText)
    /** The single step as text, for Qt Designer. */
    Q_PROPERTY(QByteArray singleStepText READ singleStepText WRITE setSingleStepText)
    /** The value as text, for Qt Designer; set it after the range. */
    Q_PROPERTY(QByteArray valueText READ valueText WRITE setValueText)

public:
    /** How numbers are written. All notations show decimals() significant digits, without zeros at the end. */
    enum Notation
    {
        Scientific,  ///< as textFromValue() describes: `4.7E-06`
        Engineering, ///< the exponent is a multiple of three, and omitted if it is 0: `470E-09`, `4.7`
        /**
         * With the unit as suffix, and a prefix of the SI in the place of the exponent: `470 nV`. The prefixes are
         * those from quecto to quetta; numbers beyond them have an exponent.
         *
         * A number may be typed as `4.7u`, `4.7 µV`, `4.7e-6` or `4.7E-6 V`; hecto, deca, deci and centi are read, too.
         * The letter `u` and both characters for µ mean micro. Prefixes are case-sensitive. The prefix exa needs a
         * blank before it, because `1E` begins an exponent. If the unit is also the letter of a prefix, the typed
         * letter is the unit, and two are prefix and unit: in metres, `4.7m` is 4.7 and `4.7mm` is 0.0047.
         */
        SiPrefix,
    };
    Q_ENUM(Notation)

    /** What a step does. All modes but Linear change the digits exactly, and first accept a typed number. */
    enum StepMode
    {
        Linear,     ///< adds the single step
        Decade,     ///< multiplies or divides by ten: from 1E-6 to 1E-5
        OneTwoFive, ///< goes to the next number of the sequence 1, 2, 5, 10, 20, 50 and so on
        /**
         * Changes the digit before the cursor by one, and carries. If there is none, the first digit; behind the
         * number, the last digit. The cursor remains behind this digit. Further steps change the same place, even if a
         * zero there is not shown. Nothing is selected.
         */
        LastDigit,
    };
    Q_ENUM(StepMode)

    /** @param parent owner of the spin box; null for none */
    explicit QScientificSpinBox(QWidget* parent = nullptr);

    /** Disconnects every slot of signalDecrement, then of signalIncrement. */
    ~QScientificSpinBox() override;

    /**
     * The number of significant digits that are shown; 8 initially. Hides QDoubleSpinBox::decimals(), which stays 323.
     */
    int decimals() const;

    /**
     * Sets the number of significant digits that are shown to `digits`, at most 12, and updates the text. The value
     * keeps all its digits. 0 shows one digit; a negative number shows six.
     */
    void setDecimals(int digits);

    ///@{
    /**
     * The same numbers as text, for forms made with Qt Designer. A getter returns the shortest text that is exactly the
     * number, such as `8.8541878E-12`. A setter ignores a text that is not a finite number with `.` as decimal point.
     */
    QByteArray minimumText() const;
    void setMinimumText(const QByteArray& number);
    QByteArray maximumText() const;
    void setMaximumText(const QByteArray& number);
    QByteArray singleStepText() const;
    void setSingleStepText(const QByteArray& number);
    QByteArray valueText() const;
    void setValueText(const QByteArray& number);
    ///@}

    /** Returns whether the spin box neither reads nor writes the shared validation cache. */
    bool hasOwnValidation() const;

    /**
     * True: the spin box validates each text itself. False, the initial state: it reads and writes the shared
     * validation cache.
     *
     * If it is true, a text with group separators that the parser rejects, such as `12,5`, is never read as 125. Return
     * then restores the old value.
     */
    void setOwnValidation(bool own);

    /** Returns how numbers are written. */
    Notation notation() const;

    /**
     * Sets how numbers are written, and updates the text; the value keeps all its digits.
     *
     * Notations other than Scientific are read with the rules above; the notation SiPrefix, and each notation with a
     * numberLocale, never use the shared validation cache. There a number out of the range is Intermediate as long as
     * its sign is right, and misplaced group separators make a number Intermediate. A text without its unit means the
     * same as with it.
     */
    void setNotation(Notation notation);

    /** Returns the language of the numbers; the C locale for the initial behaviour. */
    QLocale numberLocale() const;

    /**
     * Sets the language in which numbers are written and read, and updates the text: with its decimal point, its signs
     * and its digits, and in groups if groupSeparatorShown is true. While digits are typed or deleted in such a number,
     * the separators move; those that the user has typed stay. Numbers are also read with the digits 0 to 9, with
     * `-` and with U+2212. The letter of the exponent is `E` in all languages.
     *
     * If several characters are put in at once, for instance pasted, they may come from another language. A number is
     * accepted if it has only one meaning with a decimal comma, with a decimal point and in the language itself; it is
     * then rewritten. A number with two meanings, such as `1,500`, remains in the line, is Intermediate, and becomes
     * acceptable when the user edits it. While one types, only the language itself counts.
     *
     * The C locale restores the initial behaviour. It differs from US English, which has the rules above. Do not change
     * the property `locale`, which is that of the base class.
     */
    void setNumberLocale(const QLocale& locale);
    /** Restores the initial behaviour: sets the C locale. */
    void resetNumberLocale();

    /** Returns what a step does if the host does not handle it. */
    StepMode stepMode() const;

    /**
     * Sets what a step does if no slot is connected to its signal. Decade and OneTwoFive do not cross 0: a step up
     * brings a negative number closer to 0. From 0, the first step leads to the single step.
     */
    void setStepMode(StepMode mode);

    /** Returns whether a text that is not acceptable is shown as such. */
    bool isRefusalShown() const;

    /**
     * True: while the text is not acceptable, the property `textRefused` is true, and the number is red. Style sheets
     * may use the property: `QAbstractSpinBox[textRefused="true"]`. When nothing was typed for a moment, screen readers
     * get a sentence as the accessible description, before the one of the host. All this ends with the refused text.
     * False, the initial state: a refused text looks like any other.
     */
    void setRefusalShown(bool shown);

    /** Returns whether isRefusalShown() is true and validate() returns anything but Acceptable for the text. */
    bool isTextRefused() const;

    /** Returns the suffix as it was set, with its white space. Hides QDoubleSpinBox::suffix(). */
    QString suffix() const;

    /**
     * Sets the text behind the number; in the notation SiPrefix the unit, where a blank always stands between number
     * and unit or prefix. Hides QDoubleSpinBox::setSuffix(), which would show a blank between prefix and unit, too.
     */
    void setSuffix(const QString& suffix);

    /**
     * Returns `value` with decimals() significant digits (one for 0, six for a negative decimals()), in the format of
     * printf's "%.*G" in the C locale. Trailing zeros are dropped. The text has an exponent only if the absolute value,
     * rounded to these digits, is below 1E-04, or at least ten to the power of the number of these digits. The exponent
     * has at least two digits. The text has no prefix or suffix. This describes the initial notation and language;
     * with others, see there. In the notation SiPrefix the text ends with what stands before the unit, such as `4.7 µ`.
     */
    QString textFromValue(double value) const override;

    /**
     * Returns the number in `text`, which may have prefix and suffix. If validate() does not return Acceptable for the
     * text, the result is the minimum if the maximum is above 0, otherwise the maximum.
     *
     * For the text of a value in the range it returns that value, rounded to the shown digits, unless the rounded value
     * is out of the range. For instance, 1.7976931348623157E+308 rounded to three digits is too large for a double.
     */
    double valueFromText(const QString& text) const override;

    /**
     * Returns Acceptable if `input` is a number in the range, Intermediate if it may become one by further typing,
     * otherwise Invalid. Never changes `input`. Subtracts from `pos` the number of skipped characters: white space at
     * both ends, and group separators that the parser rejected. White space may make `pos` negative.
     *
     * Special cases: a number outside the range may be Intermediate although it cannot become valid. This happens if
     * the range is too wide to be searched, or if the integer part of the number is 0 and omitted. Numbers and limits
     * beyond 64 bits count as 0 in that search. Without ownValidation the result may come from the shared cache; then
     * `pos` does not change. An empty text is never taken from the cache.
     */
    QValidator::State validate(QString& input, int& pos) const override;

    /** As in QDoubleSpinBox; with ownValidation it does not change `input`. */
    void fixup(QString& input) const override;

    /**
     * Steps up if `steps` is above 0, otherwise down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise calls setValue() with `value() + singleStep() *
     * steps`; setValue() limits it to the range and replaces typed text that is not committed yet. Finally calls
     * selectAll(). With another stepMode, see there.
     *
     * A slot may change the value or the range, and may connect and disconnect slots, including itself. An exception of
     * a slot passes to the caller of stepBy(), and the spin box stays as it is; no exception may reach Qt's event loop.
     * To delete the spin box, a slot calls deleteLater().
     */
    void stepBy(int steps) override;

    boost::signals2::signal<void()> signalIncrement; ///< a step up that the host handles
    boost::signals2::signal<void()> signalDecrement; ///< a step down, or by 0, that the host handles

protected:
    /**
     * As in QDoubleSpinBox. With another stepMode than Linear, a typed number counts instead of value(), because the
     * step begins there.
     */
    StepEnabled stepEnabled() const override;
    /** Drops the remaining part of a notch when the focus is lost or the pointer leaves. */
    bool event(QEvent* event) override;
    /** Steps by whole notches; adds up parts of notches. */
    void wheelEvent(QWheelEvent* event) override;

private:
    friend class QScientificSpinBoxPrivate;

    double enteredValue() const;

    /** Does nothing here. Code that wraps signalIncrement may call it when a slot was connected. */
    virtual void signalIncrementConnected() const;
    /** Does nothing here. Code that wraps signalDecrement may call it when a slot was connected. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<QScientificSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
