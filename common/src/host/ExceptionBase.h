// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/MorvaneHostExport.h"

#include <exception>
#include <memory>
#include <string>

namespace morvane {

/**
 * Base class of the exceptions that Morvane throws. Each of them is also a `std::exception`.
 *
 * @snippet 25-reject-with-a-reason/main.cpp exception
 * @snippet 25-reject-with-a-reason/main.cpp catch
 */
class MORVANE_HOST_EXPORT ExceptionBase : public std::exception
{
public:
    /** @param message UTF-8 text that what() returns; may be empty. */
    explicit ExceptionBase(std::string message);
    ///@{
    /** A copy is equal and independent. */
    ExceptionBase(const ExceptionBase& other);
    ExceptionBase& operator=(const ExceptionBase& other);
    ///@}
    ~ExceptionBase() override;

    /**
     * Returns the message in UTF-8. The pointer is valid as long as this object. A NUL inside the message ends the text
     * there.
     */
    const char* what() const noexcept override;

private:
    struct Impl;
    std::shared_ptr<const Impl> m_impl; // shared by the copies, which so never run out of memory
};

} // namespace morvane
