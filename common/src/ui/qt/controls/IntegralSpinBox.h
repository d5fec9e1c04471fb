// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QSpinBox>

#include <boost/signals2/signal.hpp>

#include <memory>

namespace morvane::ui {

class IntegralSpinBoxPrivate;

/**
 * A QSpinBox whose steps the host can handle itself.
 *
 * A step is a press of an arrow or page key, a turn of the wheel, a click on a button, or a call of stepBy(). If a slot
 * is connected to the signal of that direction, signalIncrement or signalDecrement, the step fires this signal once,
 * independent of the number of steps, and does not change the value. If no slot is connected, the value changes by the
 * single step. After the step, and after the slots, the whole number is selected. Qt makes no step in a direction that
 * stepEnabled() excludes, for instance upwards at the maximum. Then no signal fires either.
 *
 * The wheel steps by whole notches. Touchpads and high-resolution wheels report parts of a notch, which are added up to
 * whole notches. The remaining part is dropped when the direction changes, when the pointer leaves, and when the focus
 * is lost. Horizontal scrolling makes no step. As in QSpinBox, the direction is the one that the system reports.
 *
 * Keyboard tracking is off: a typed number becomes the value on Return or when the focus is lost. If a Qt delegate
 * creates the spin box as the editor of a table cell, the typed number is stored on Return, on Tab and on a click
 * elsewhere. This works because the property `value` returns the typed number before value() does. All other behaviour
 * is that of QSpinBox.
 *
 * @snippet 08-integer-steps/main.cpp steps
 *
 * GUI thread only.
 */
class MORVANE_UI_EXPORT IntegralSpinBox : public QSpinBox
{
    Q_OBJECT
    /**
     * The value. While typed text is not committed yet, reading this property returns the number that Return would set.
     * Delegates and QDataWidgetMapper store this property. Reading it changes nothing and emits nothing. If the text is
     * not acceptable, the result is the number that Return would correct it to; this is value(), unless the correction
     * mode gives another number. The property has no notify signal; connect to valueChanged() instead.
     */
    Q_PROPERTY(int value READ enteredValue WRITE setValue USER true)
    /** Whether a text that is not acceptable is shown as such; false initially. */
    Q_PROPERTY(bool refusalShown READ isRefusalShown WRITE setRefusalShown)
    /** Whether `refusalShown` is on and the text is not acceptable. For style sheets. */
    Q_PROPERTY(bool textRefused READ isTextRefused STORED false DESIGNABLE false)

public:
    /** @param parent owner of the spin box; null for none */
    explicit IntegralSpinBox(QWidget* parent);

    /** Disconnects every slot of signalDecrement, then of signalIncrement. */
    ~IntegralSpinBox() override;

    /** Returns whether a text that is not acceptable is shown as such. */
    bool isRefusalShown() const;
    /** As QScientificSpinBox::setRefusalShown(): red text, `textRefused` for style sheets, a sentence for screen
     * readers. */
    void setRefusalShown(bool shown);
    /** Returns whether isRefusalShown() is true and validate() returns anything but Acceptable for the text. */
    bool isTextRefused() const;

    /**
     * Steps up if `steps` is above 0, otherwise down; 0 is a step down, too.
     *
     * Fires the signal of that direction if it has a slot. Otherwise calls setValue() with `value() + singleStep() *
     * steps`, computed in 32 bits with wrap-around; setValue() limits it to the range and replaces typed text that is
     * not committed yet. Finally calls selectAll().
     *
     * A slot may change the value or the range, and may connect and disconnect slots, including itself. An exception of
     * a slot passes to the caller of stepBy(), and the spin box stays as it is; no exception may reach Qt's event loop.
     * To delete the spin box, a slot calls deleteLater().
     */
    void stepBy(int steps) override;

    boost::signals2::signal<void()> signalIncrement; ///< a step up that the host handles
    boost::signals2::signal<void()> signalDecrement; ///< a step down, or by 0, that the host handles

protected:
    /** Drops the remaining part of a notch when the focus is lost or the pointer leaves. */
    bool event(QEvent* event) override;
    /** Steps by whole notches; adds up parts of notches. */
    void wheelEvent(QWheelEvent* event) override;

private:
    int enteredValue() const;

    /** Does nothing here. Code that wraps signalIncrement may call it when a slot was connected. */
    virtual void signalIncrementConnected() const;
    /** Does nothing here. Code that wraps signalDecrement may call it when a slot was connected. */
    virtual void signalDecrementConnected() const;

    std::unique_ptr<IntegralSpinBoxPrivate> m_private;
};

} // namespace morvane::ui
