// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/PropertyAbstract.h"

#include <utility>

namespace morvane {

/**
 * A property that holds its own value.
 *
 * @snippet 03-observable-value/main.cpp property
 */
template <typename T>
class Property : public PropertyAbstract<T>
{
public:
    /** The initial value is a value-initialised T: 0, false, the empty string. */
    Property() : m_value() {}
    /** The initial value is @p initialValue, which is neither validated nor announced. */
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
