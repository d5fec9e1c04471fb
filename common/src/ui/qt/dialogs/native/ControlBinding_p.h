// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/InvalidPropertyValueException.h"
#include "property/PropertyAbstract.h"

#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>

#include <functional>
#include <utility>

namespace morvane::ui {

/**
 * Keeps a control of the dialog and a property of the host equal, in both directions.
 *
 * The binding must exist until the property has announced a change to it.
 */
template <typename T>
class ControlBinding
{
public:
    /** Sets the control and returns what it shows then, which may differ from the value. */
    using Show = std::function<T(const T& value)>;

    /**
     * @param property may be null; then no value is shared
     * @param shown    what the control shows
     */
    ControlBinding(boost::shared_ptr<PropertyAbstract<T>> property, T shown, Show show)
        : m_property(std::move(property)), m_shown(std::move(shown)), m_show(std::move(show))
    {
        if (m_property) {
            m_connection = m_property->signalValueChanged.connect([this](const T&) { follow(); });
        }
    }
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;

    const T& shown() const { return m_shown; }

    /**
     * Sets the property, because the user has changed the control. If the property rejects the value or an observer
     * throws, the control gets the value of the property, and the exception passes.
     */
    void userSet(const T& value)
    {
        m_shown = value;
        m_isRejected = false;
        try {
            store(value);
        } catch (...) {
            follow();
            throw;
        }
        follow();
    }

    /** The same while the user is still typing: a value that is rejected stays in the control. */
    void userTypes(const T& value)
    {
        if (value == m_shown) {
            return;
        }
        m_shown = value;
        try {
            store(value);
            m_isRejected = false;
        } catch (const InvalidPropertyValueException&) {
            m_isRejected = true;
            return;
        }
        follow();
    }

    /** The user has finished typing: calls userSet(), unless the property already has the value. */
    void userFinishes(const T& value)
    {
        if (m_isRejected || !(value == m_shown)) {
            userSet(value);
        }
    }

private:
    void store(const T& value)
    {
        // An observer may replace what this object refers to.
        if (const auto property = m_property) {
            property->setValue(value);
        }
    }

    void follow()
    {
        if (!m_property) {
            return;
        }
        const T value = m_property->value();
        if (!(value == m_shown)) {
            m_isRejected = false;
            m_shown = value; // the Shell may call back before m_show returns
            m_shown = m_show(value);
        }
    }

    const boost::shared_ptr<PropertyAbstract<T>> m_property;
    T m_shown;
    bool m_isRejected = false;
    const Show m_show;
    boost::signals2::scoped_connection m_connection;
};

} // namespace morvane::ui
