// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <memory>
#include <string>

namespace morvane {

/**
 * The result of a validator for one value: valid, or invalid with a reason.
 *
 * @snippet 25-reject-with-a-reason/main.cpp validator
 */
class MORVANE_HOST_EXPORT ValidationResult
{
public:
    /** The valid result; errorString() is empty. */
    ValidationResult();
    /**
     * An invalid result.
     * @param errorString reason, UTF-8, that can be shown to the user. It may be empty; the result is still invalid.
     */
    explicit ValidationResult(std::string errorString);
    ///@{
    /** A copy is equal and independent. */
    ValidationResult(const ValidationResult& other);
    ValidationResult& operator=(const ValidationResult& other);
    ///@}
    virtual ~ValidationResult();

    /** Whether the value may be stored. */
    bool isValid() const;
    /** The reason that was given to the constructor, UTF-8; empty for the valid result. */
    std::string errorString() const;

private:
    struct Impl;
    std::shared_ptr<const Impl> m_impl; // null: valid
};

} // namespace morvane
