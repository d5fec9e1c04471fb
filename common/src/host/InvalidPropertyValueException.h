#pragma once

#include "host/ExceptionBase.h"

namespace morvane {

/**
 * Thrown by a property whose validator rejects a value; what() is the validator's text.
 *
 * Can be caught as itself, as ExceptionBase and as `std::exception`. The property still holds its old value, and no
 * observer was told.
 *
 * @snippet 03-observable-value/main.cpp property
 */
class MORVANE_HOST_EXPORT InvalidPropertyValueException : public ExceptionBase
{
public:
    /** @param message UTF-8 reason for the rejection; may be empty. */
    explicit InvalidPropertyValueException(std::string message);
    ///@{
    /** A copy is equal and independent. */
    InvalidPropertyValueException(const InvalidPropertyValueException& other);
    InvalidPropertyValueException& operator=(const InvalidPropertyValueException& other);
    ///@}
    ~InvalidPropertyValueException() override;
};

} // namespace morvane
