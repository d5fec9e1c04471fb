// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ExceptionBase.h"

namespace morvane {

/**
 * A property throws this exception when its validator rejects a value. what() returns the validator's text.
 *
 * It can be caught as this class, as ExceptionBase or as `std::exception`. The property keeps its old value, and no
 * observer is called.
 *
 * @snippet 03-observable-value/main.cpp property
 */
class MORVANE_HOST_EXPORT InvalidPropertyValueException : public ExceptionBase
{
public:
    /** @param message reason for the rejection, UTF-8; may be empty */
    explicit InvalidPropertyValueException(std::string message);
    ///@{
    /** A copy is equal and independent. */
    InvalidPropertyValueException(const InvalidPropertyValueException& other);
    InvalidPropertyValueException& operator=(const InvalidPropertyValueException& other);
    ///@}
    ~InvalidPropertyValueException() override;
};

} // namespace morvane
