#include "ui/qt/controls/IntegralSpinBox.h"

#include "ui/qt/controls/StepSignals.h"
#include "ui/qt/util/GuiThread.h"

namespace morvane::ui {

class IntegralSpinBoxPrivate
{
public:
    QSpinBox* m_spinBox;
    boost::signals2::signal<void()>* m_increment;
    boost::signals2::signal<void()>* m_decrement;

    void stepBy(int steps);
};

void IntegralSpinBoxPrivate::stepBy(int steps)
{
    if (handStepToHost(steps, *m_increment, *m_decrement)) {
        return;
    }
    const qint64 value = m_spinBox->value() + static_cast<qint64>(m_spinBox->singleStep()) * steps;
    m_spinBox->setValue(static_cast<int>(static_cast<quint32>(value)));
}

IntegralSpinBox::IntegralSpinBox(QWidget* parent)
    : QSpinBox(parent), m_private(new IntegralSpinBoxPrivate{this, &signalIncrement, &signalDecrement})
{
    expectGuiThread("IntegralSpinBox");
    setKeyboardTracking(false);
}

IntegralSpinBox::~IntegralSpinBox() = default;

void IntegralSpinBox::stepBy(int steps)
{
    m_private->stepBy(steps);
}

void IntegralSpinBox::signalIncrementConnected() const {}

void IntegralSpinBox::signalDecrementConnected() const {}

} // namespace morvane::ui
