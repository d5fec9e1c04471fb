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
 * that signal. With no slot connected the value changes by the single step. Qt asks for no step where stepEnabled()
 * says there is none, as upwards at the maximum, so neither do the signals fire then.
 *
 * Keyboard tracking is off: a typed value counts from Return or loss of focus on. Everything else is QSpinBox's own.
 *
 * @snippet 08-integer-steps/main.cpp steps
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT IntegralSpinBox : public QSpinBox
{
    Q_OBJECT

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
     * but not committed yet is given up.
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

    std::unique_ptr<IntegralSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
