// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "host/ValidationResult.h"

#include <utility>

namespace morvane {

struct ValidationResult::Impl
{
    std::string errorString;
};

ValidationResult::ValidationResult() = default;

ValidationResult::ValidationResult(std::string errorString)
    : m_impl(std::make_shared<Impl>(Impl{std::move(errorString)}))
{
}

ValidationResult::ValidationResult(const ValidationResult& other) = default;

ValidationResult& ValidationResult::operator=(const ValidationResult& other) = default;

ValidationResult::~ValidationResult() = default;

bool ValidationResult::isValid() const
{
    return !m_impl;
}

std::string ValidationResult::errorString() const
{
    return m_impl ? m_impl->errorString : std::string();
}

} // namespace morvane
