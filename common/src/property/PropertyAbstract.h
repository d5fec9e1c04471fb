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
 * One value of type T that several parties share: checked before it is stored, announced after it changed.
 *
 * Hold it as `boost::shared_ptr<PropertyAbstract<T>>`; whoever lets go of the last pointer destroys it. Property is the
 * concrete class. To observe it, connect to signalValueChanged, or to signalPropertyChanged when the type does not
 * matter. Each fires exactly once for each change, after the value is stored. signalPropertyChanged fires from within
 * signalValueChanged, as its slot that was connected first. So its slots come before those of signalValueChanged that
 * are connected as usual, at the back and without a group, and after those that are connected with
 * boost::signals2::at_front or in a group. If one of these throws, signalPropertyChanged does not fire for that change.
 *
 * An observer may set the property again: the inner change is stored and announced before the outer announcement goes
 * on, and the observers that are still to be called for the outer one receive the outer value. Observers that need the
 * present value read value(). An observer must not destroy the property: whoever calls setValue() holds a pointer to it
 * until the call returns.
 *
 * GUI thread by convention; setValue() takes no lock.
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
    /** Stores a value that was validated and differs from the present one. Announces nothing. */
    virtual void storeValue(const T& v) = 0;
    /** Whether setting @p v would change nothing: `value() == v` unless overridden. */
    virtual bool isEqual(const T& v) const { return value() == v; }
    /** Returns when @p v may be stored, else throws InvalidPropertyValueException with the validator's text. */
    virtual void validate(const T& v) const
    {
        // A copy keeps the validator alive if it is replaced while it is asked.
        auto validator = m_validator;
        const ValidationResult result = validator->validate(v);
        validator.reset();
        if (!result.isValid()) {
            throw InvalidPropertyValueException(result.errorString());
        }
    }

public:
    /** A copy of the present value. */
    virtual T value() const = 0;

protected:
    /** Tells the observers that the value is now @p v. */
    virtual void emitValueChanged(const T& v) { signalValueChanged(v); }

public:
    /** Same as value(), for callers that want a non-virtual entry. */
    T getValue() const { return value(); }

    /**
     * Validates, compares, stores, announces; the only way to change the value.
     *
     * Setting the value that is held already does nothing, once it has been validated. Observers receive the value as
     * value() reports it after storing, which a subclass may have adjusted.
     *
     * @throws InvalidPropertyValueException when the validator rejects @p v; then nothing is stored and no one is told.
     * @throws whatever an observer throws; then the new value is stored already.
     * @throws std::bad_alloc when memory runs out: the old value stands and nobody was told, or the new one stands and
     * not all observers may have been told.
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
     * Replaces the validator; the present value is not checked against it.
     * @return false when @p validator is empty, which leaves the validator as it was.
     */
    bool setValidator(boost::shared_ptr<ValidatorInterface<T>> validator)
    {
        if (!validator) {
            return false;
        }
        m_validator.swap(validator);
        return true;
    }

    /** Fires after each change with the new value. */
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
