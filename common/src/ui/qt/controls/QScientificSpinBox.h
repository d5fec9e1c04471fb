#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QByteArray>
#include <QDoubleSpinBox>
#include <QString>
#include <QValidator>

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane::ui {

class QScientificSpinBoxPrivate;

/**
 * A spin box for doubles in scientific notation, such as 1.5E-07.
 *
 * Initially it shows 8 significant digits, its range is that of all finite doubles, and keyboard tracking is off: a
 * typed value counts from Return or loss of focus on, and until then the text stays as typed. Numbers are written and
 * read in US English, with `.` as decimal point and `,` between groups of digits, whatever locale the user works in;
 * for that the widget's own locale is US English as well and should stay so.
 *
 * The line takes no character that cannot be part of such a number, with and without prefix and suffix. White space
 * around a number that is pasted is left out.
 *
 * A typed number counts with all its digits, though no more than decimals() of them are shown from then on. Return in a
 * spin box in which nothing was typed takes the number as it is shown.
 *
 * A step of any kind (arrow and page keys, wheel, the buttons, a call of stepBy()) fires signalIncrement or
 * signalDecrement once, whatever the number of steps, and leaves the value alone, as long as a slot is connected to
 * that signal. With no slot connected the value changes by the single step, however large or small it is itself. After
 * the step, and after the slots, the whole number is selected. Qt asks for no step where stepEnabled() says there is
 * none, as upwards at the maximum, so neither do the signals fire then.
 *
 * Only whole notches of a wheel step. Parts of a notch, as touchpads and finely resolving wheels report them, add up
 * until they make a whole one; they are forgotten when the turn changes its direction, when the pointer leaves and when
 * the focus is lost. A turn sideways is no step. As in QSpinBox, up is what the system reports as up.
 *
 * As the editor of a table cell, made by a delegate of Qt's, it stores what was typed on Return, on Tab and on a click
 * elsewhere: the property `value` gives the typed number before value() does.
 *
 * Initially all spin boxes of the process share one answer of the validation: that for the text validated last. The
 * text is remembered as it was interpreted: without white space around the number and without group separators where
 * the parser did not like them. The next spin box that validates exactly that text gets the same answer, whatever its
 * range: after a field from 0 to 10 has refused 50, a field from 0 to 100 refuses 50, too, and after `12,5` was typed
 * anywhere, 125 is refused. Any other text that is validated replaces the answer. Set ownValidation to keep a spin box
 * out of this; new forms should.
 *
 * What the base class makes of values set by program: an infinity becomes the limit on its side and NaN the maximum;
 * values are rounded to 323 digits behind the point, so that the smallest denormals lose digits or become 0.
 *
 * @snippet 05-scientific-input/main.cpp number
 * @snippet 05-scientific-input/main.cpp steps
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT QScientificSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    /** The significant digits. The base class' property would set the number of digits that values are rounded to. */
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /**
     * The value; read here, it is the number that Return would take, while typed text waits for Return. Delegates and
     * QDataWidgetMapper store this property. Reading it changes nothing and emits nothing. Text that is not acceptable
     * reads as what Return would make of it, which is value() unless the correction mode says otherwise.
     * Connect to valueChanged() to be told; the property itself names no signal.
     */
    Q_PROPERTY(double value READ enteredValue WRITE setValue USER true)
    /** Whether the spin box validates by itself alone; off initially. */
    Q_PROPERTY(bool ownValidation READ hasOwnValidation WRITE setOwnValidation)
    // Forms keep doubles with 15 digits behind the point, which makes 1E-18 a 0. Qt Designer edits the texts instead.
    /** As QDoubleSpinBox has it, but not for Qt Designer. */
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum DESIGNABLE false)
    /** As QDoubleSpinBox has it, but not for Qt Designer. */
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum DESIGNABLE false)
    /** As QDoubleSpinBox has it, but not for Qt Designer. */
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep DESIGNABLE false)
    /** The minimum as text, for Qt Designer. */
    Q_PROPERTY(QByteArray minimumText READ minimumText WRITE setMinimumText)
    /** The maximum as text, for Qt Designer. */
    Q_PROPERTY(QByteArray maximumText READ maximumText WRITE setMaximumText)
    /** The single step as text, for Qt Designer. */
    Q_PROPERTY(QByteArray singleStepText READ singleStepText WRITE setSingleStepText)
    /** The value as text, for Qt Designer; set after the range. */
    Q_PROPERTY(QByteArray valueText READ valueText WRITE setValueText)

public:
    /** @param parent owner of the spin box; null for none */
    explicit QScientificSpinBox(QWidget* parent = nullptr);

    /** Disconnects every slot of signalDecrement, then of signalIncrement. */
    ~QScientificSpinBox() override;

    /** The number of significant digits shown: 8 initially. Hides QDoubleSpinBox::decimals(), which stays at 323. */
    int decimals() const;

    /**
     * Sets the number of significant digits shown to `digits`, or to 12 if that is less, and shows the value anew; the
     * value itself keeps all its digits. 0 shows one digit, a negative number six.
     */
    void setDecimals(int digits);

    ///@{
    /**
     * The same numbers for forms made with Qt Designer: the shortest text that means exactly the number, such as
     * `8.8541878E-12`. A text that is not a finite number with `.` as decimal point changes nothing.
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

    /** Whether the spin box neither asks nor gives the answer that the others share. */
    bool hasOwnValidation() const;

    /**
     * Has the spin box validate each text itself, or (`false`, as initially) use the answer that it shares with the
     * others and leave its own there.
     *
     * With its own validation, text with group separators where the parser does not like them, such as `12,5`, gives
     * the old value back on Return; it is never read as 125.
     */
    void setOwnValidation(bool own);

    /**
     * `value` with decimals() significant digits, as printf's "%.*G" writes it in the C locale: trailing zeros are
     * dropped, the exponent has two digits at least, and there is one only below 1E-04 and from ten to the power of
     * decimals() on. No prefix or suffix.
     */
    QString textFromValue(double value) const override;

    /**
     * The number in `text`, which may have prefix and suffix. For a text that validate() does not call Acceptable it is
     * the minimum if the maximum is above 0, else the maximum.
     *
     * For the text of any value in the range it gives that value rounded to the digits shown, unless rounding leads out
     * of the range: 1.7976931348623157E+308 shown with three digits is no double any more.
     */
    double valueFromText(const QString& text) const override;

    /**
     * Whether `input` is a number in the range (Acceptable), may become one by further typing (Intermediate), or
     * neither. Never changes `input`; takes from `pos` the number of characters that it skipped: white space at both
     * ends, and group separators where the parser did not like them. White space may bring `pos` below 0.
     *
     * Oddities to know: a number outside the range may pass as Intermediate without chance to become valid, when the
     * range is too wide to be searched, or when its integer part is 0 and left out. Numbers and limits beyond 64 bits
     * count as 0 in that search. Without ownValidation the answer may be the one that the spin boxes share; `pos` is
     * left alone then. A text that is empty is always read anew.
     */
    QValidator::State validate(QString& input, int& pos) const override;

    /** As QDoubleSpinBox has it; with ownValidation it leaves `input` alone. */
    void fixup(QString& input) const override;

    /**
     * Steps up for `steps` above 0, else down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise sets the value to `value() + singleStep() *
     * steps`, which setValue() then brings into the range. Text that was typed but not committed yet is given up.
     * In the end selectAll().
     *
     * A slot may change the value or the range and may connect and disconnect slots, itself included. What it throws
     * reaches the caller of stepBy() and leaves the spin box as it is; Qt's event loop takes no exceptions. To get rid
     * of the spin box, a slot uses deleteLater().
     */
    void stepBy(int steps) override;

    boost::signals2::signal<void()> signalIncrement; ///< a step up that is left to the host
    boost::signals2::signal<void()> signalDecrement; ///< a step down, or by nothing, that is left to the host

protected:
    /** Forgets the part of a notch that is left over when the focus or the pointer leaves. */
    bool event(QEvent* event) override;
    /** Steps by whole notches; parts of them add up. */
    void wheelEvent(QWheelEvent* event) override;

private:
    double enteredValue() const;

    /** For code that wraps signalIncrement, to tell that a slot was connected; does nothing here. */
    virtual void signalIncrementConnected() const;
    /** For code that wraps signalDecrement, to tell that a slot was connected; does nothing here. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<QScientificSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
