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
 * A typed number counts with all its digits, though no more than decimals() of them are shown from then on. Return in a
 * spin box in which nothing was typed takes the number as it is shown.
 *
 * A step of any kind (arrow and page keys, wheel, the buttons, a call of stepBy()) fires signalIncrement or
 * signalDecrement once, whatever the number of steps, and leaves the value alone, as long as a slot is connected to
 * that signal. With no slot connected the value changes by the single step, however large or small it is itself. Qt
 * asks for no step where stepEnabled() says there is none, as upwards at the maximum, so neither do the signals fire
 * then. A turn of a finely resolving wheel by less than a notch arrives as a step by 0, a step down.
 *
 * What the base class makes of values set by program: an infinity becomes the limit on its side and NaN the maximum;
 * values are rounded to 323 digits behind the point, so that the smallest denormals lose digits or become 0.
 *
 * @snippet 05-scientific-input/main.cpp number
 * @snippet 05-scientific-input/main.cpp steps
 *
 * GUI thread only; all spin boxes of the process share one cache of the text validated last.
 */
class MORVANE_UI_EXPORT QScientificSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    /** The significant digits. The base class' property would set the number of digits that values are rounded to. */
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
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
     * count as 0 in that search. The answer for the text validated last holds for every spin box of the process,
     * whatever its range, until another text that is not empty is validated.
     */
    QValidator::State validate(QString& input, int& pos) const override;

    /**
     * Steps up for `steps` above 0, else down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise sets the value to `value() + singleStep() *
     * steps`, which setValue() then brings into the range. Text that was typed but not committed yet is given up.
     *
     * A slot may change the value or the range and may connect and disconnect slots, itself included. What it throws
     * reaches the caller of stepBy() and leaves the spin box as it is; Qt's event loop takes no exceptions. To get rid
     * of the spin box, a slot uses deleteLater().
     */
    void stepBy(int steps) override;

    boost::signals2::signal<void()> signalIncrement; ///< a step up that is left to the host
    boost::signals2::signal<void()> signalDecrement; ///< a step down, or by nothing, that is left to the host

private:
    /** For code that wraps signalIncrement, to tell that a slot was connected; does nothing here. */
    virtual void signalIncrementConnected() const;
    /** For code that wraps signalDecrement, to tell that a slot was connected; does nothing here. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<QScientificSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
