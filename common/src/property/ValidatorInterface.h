// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/ValidationResult.h"

namespace morvane {

/**
 * Decides which values a property accepts. Set it with PropertyAbstract::setValidator().
 *
 * Several properties may share one validator through `boost::shared_ptr`.
 *
 * @snippet 03-observable-value/main.cpp validator
 */
template <typename T>
class ValidatorInterface
{
public:
    /**
     * Validates @p v. An invalid result rejects the value; the exception that setValue() throws has the text of the
     * result.
     */
    virtual ValidationResult validate(const T& v) const = 0;
    virtual ~ValidatorInterface() = default;
};

} // namespace morvane
