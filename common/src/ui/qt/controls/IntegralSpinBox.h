#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QSpinBox>

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane::ui {

class IntegralSpinBoxPrivate;

/**
 * A QSpinBox whose steps the host can take over.
 *
 * A step of any kind (arrow and page keys, wheel, the buttons, a call of stepBy()) fires signalIncrement or
 * signalDecrement once, whatever the number of steps, and leaves the value alone, as long as a slot is connected to
 * that signal. With no slot connected the value changes by the single step. After the step, and after the slots, the
 * whole number is selected. Qt asks for no step where stepEnabled() says there is none, as upwards at the maximum, so
 * neither do the signals fire then.
 *
 * Only whole notches of a wheel step. Parts of a notch, as touchpads and finely resolving wheels report them, add up
 * until they make a whole one; they are forgotten when the turn changes its direction, when the pointer leaves and when
 * the focus is lost. A turn sideways is no step. As in QSpinBox, up is what the system reports as up.
 *
 * Keyboard tracking is off: a typed value counts from Return or loss of focus on. As the editor of a table cell, made
 * by a delegate of Qt's, it stores what was typed on Return, on Tab and on a click elsewhere: the property `value`
 * gives the typed number before value() does. Everything else is QSpinBox's own.
 *
 * @snippet 08-integer-steps/main.cpp steps
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT IntegralSpinBox : public QSpinBox
{
    Q_OBJECT
    /**
     * The value; read here, it is the number that Return would take, while typed text waits for Return. Delegates and
     * QDataWidgetMapper store this property. Reading it changes nothing and emits nothing. Text that is not acceptable
     * reads as what Return would make of it, which is value() unless the correction mode says otherwise.
     * Connect to valueChanged() to be told; the property itself names no signal.
     */
    Q_PROPERTY(int value READ enteredValue WRITE setValue USER true)

public:
    /** @param parent owner of the spin box; null for none */
    explicit IntegralSpinBox(QWidget* parent);

    /** Disconnects every slot of signalDecrement, then of signalIncrement. */
    ~IntegralSpinBox() override;

    /**
     * Steps up for `steps` above 0, else down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise sets the value to `value() + singleStep() *
     * steps`, computed in 32 bits that wrap around, which setValue() then brings into the range. Text that was typed
     * but not committed yet is given up. In the end selectAll().
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
    int enteredValue() const;

    /** For code that wraps signalIncrement, to tell that a slot was connected; does nothing here. */
    virtual void signalIncrementConnected() const;
    /** For code that wraps signalDecrement, to tell that a slot was connected; does nothing here. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<IntegralSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
