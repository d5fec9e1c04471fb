#pragma once

#include "host/ValidationResult.h"

namespace morvane {

/**
 * Decides which values a property accepts. Install one with PropertyAbstract::setValidator().
 *
 * One validator may serve several properties; it is shared by pointer.
 *
 * @snippet 03-observable-value/main.cpp validator
 */
template <typename T>
class ValidatorInterface
{
public:
    /** What the validator says of @p v. An invalid result rejects the value; its text reaches whoever set it. */
    virtual ValidationResult validate(const T& v) const = 0;
    virtual ~ValidatorInterface() = default;
};

} // namespace morvane
