#include "host/ValidationResult.h"

#include <utility>

namespace morvane {

ValidationResult::ValidationResult() = default;

ValidationResult::ValidationResult(std::string errorString) : m_valid(false), m_errorString(std::move(errorString)) {}

ValidationResult::ValidationResult(const ValidationResult& other) = default;

ValidationResult& ValidationResult::operator=(const ValidationResult& other) = default;

ValidationResult::~ValidationResult() = default;

bool ValidationResult::isValid() const
{
    return m_valid;
}

std::string ValidationResult::errorString() const
{
    return m_errorString;
}

} // namespace morvane
