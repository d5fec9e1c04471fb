#pragma once

#include "property/PropertyAbstract.h"

#include <utility>

namespace morvane {

/**
 * A property that holds its own value.
 *
 * @code
 * auto count = boost::make_shared<morvane::Property<int>>(3);
 * count->signalValueChanged.connect([](const int& n) { std::cout << n << '\n'; });
 * count->setValue(4);
 * @endcode
 */
template <typename T>
class Property : public PropertyAbstract<T>
{
public:
    /** Holds a value-initialised T: 0, false, the empty string. */
    Property() : m_value() {}
    /** Holds @p initialValue, which is neither validated nor announced. */
    explicit Property(T initialValue) : m_value(std::move(initialValue)) {}

    T value() const override { return m_value; }

protected:
    void storeValue(const T& v) override
    {
        if (&v != &m_value) {
            m_value = v;
        }
    }

private:
    T m_value;
};

} // namespace morvane
