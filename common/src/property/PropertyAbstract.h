// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/InvalidPropertyValueException.h"
#include "host/PropertyItemInterface.h"
#include "property/AllowAnyValueValidator.h"
#include "property/ValidatorInterface.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>
#include <boost/signals2/signal.hpp>

namespace morvane {

/**
 * One value of type T that several parties share. The value is validated before it is stored, and announced after it
 * changed.
 *
 * Hold it as `boost::shared_ptr<PropertyAbstract<T>>`; the last pointer destroys it. Property is the concrete class.
 *
 * To observe the value, connect to signalValueChanged, or to signalPropertyChanged if the type does not matter. Each
 * signal fires exactly once for each change, after the value is stored. signalPropertyChanged fires from a slot of
 * signalValueChanged that the constructor connects. So the slots of signalPropertyChanged are called before the slots
 * that are connected to signalValueChanged as usual, at the back and without a group. They are called after the slots
 * that are connected to signalValueChanged with boost::signals2::at_front or in a group. If one of these throws,
 * signalPropertyChanged does not fire for that change.
 *
 * An observer may set the property again. The inner change is stored and announced first; then the outer announcement
 * continues, and the remaining observers receive the outer value. Observers that need the current value call value().
 * An observer must not destroy the property: the caller of setValue() must hold a pointer to it until the call returns.
 *
 * Use it on the GUI thread, by convention; setValue() takes no lock.
 *
 * @tparam T copyable, comparable with `==`
 *
 * @snippet 24-property-over-a-source/main.cpp mirror
 */
template <typename T>
class PropertyAbstract : public PropertyItemInterface
{
public:
    /** Disconnects every observer. */
    ~PropertyAbstract() override = default;

    void refresh() override {}

protected:
    /** Stores a value that was validated and differs from the current one. Fires no signal. */
    virtual void storeValue(const T& v) = 0;
    /** Returns whether setting @p v would change nothing. The default is `value() == v`. */
    virtual bool isEqual(const T& v) const { return value() == v; }
    /**
     * Returns normally if @p v may be stored. Otherwise throws InvalidPropertyValueException with the validator's text.
     */
    virtual void validate(const T& v) const
    {
        // The copy keeps the validator alive if validate() replaces it.
        auto validator = m_validator;
        const ValidationResult result = validator->validate(v);
        validator.reset();
        if (!result.isValid()) {
            throw InvalidPropertyValueException(result.errorString());
        }
    }

public:
    /** Returns a copy of the current value. */
    virtual T value() const = 0;

protected:
    /** Calls the observers of signalValueChanged with @p v, the new value. */
    virtual void emitValueChanged(const T& v) { signalValueChanged(v); }

public:
    /** Same as value(), but not virtual. */
    T getValue() const { return value(); }

    /**
     * Validates, compares, stores and announces a value. This is the only way to change the value.
     *
     * The current value is validated, too, but setting it again does nothing more. Observers receive the result of
     * value() after storing; a subclass may have adjusted the value.
     *
     * @throws InvalidPropertyValueException if the validator rejects @p v; then nothing is stored and no observer is
     * called.
     * @throws any exception that an observer throws; then the new value is already stored.
     * @throws std::bad_alloc when memory runs out. Either the old value is kept and no observer was called, or the new
     * value is stored and some observers may not have been called.
     */
    void setValue(const T& v)
    {
        validate(v);
        if (isEqual(v)) {
            return;
        }
        storeValue(v);
        const T stored = value();
        emitValueChanged(stored);
    }

    /**
     * Replaces the validator. The current value is not validated again.
     * @return false if @p validator is null; the old validator then stays
     */
    bool setValidator(boost::shared_ptr<ValidatorInterface<T>> validator)
    {
        if (!validator) {
            return false;
        }
        m_validator.swap(validator);
        return true;
    }

    /** Fires once after each change, with the new value. */
    boost::signals2::signal<void(const T&)> signalValueChanged;

protected:
    PropertyAbstract()
        : m_validator(boost::make_shared<AllowAnyValueValidator<T>>()),
          m_forwardConnection(signalValueChanged.connect([this](const T&) { this->signalPropertyChanged(); }))
    {
    }

private:
    boost::shared_ptr<ValidatorInterface<T>> m_validator;
    boost::signals2::scoped_connection m_forwardConnection;
};

} // namespace morvane
