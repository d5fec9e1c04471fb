// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "property/ValidatorInterface.h"

namespace morvane {

/**
 * Accepts every value. Each property has this validator at first.
 *
 * @snippet 24-property-over-a-source/main.cpp usage
 */
template <typename T>
class AllowAnyValueValidator : public virtual ValidatorInterface<T>
{
public:
    ValidationResult validate(const T&) const override { return ValidationResult(); }
};

} // namespace morvane
