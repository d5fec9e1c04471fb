// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace morvane::fuzz {

/** Reads values from an input of the fuzzer, from front to back. At its end it gives zeros and empty texts. */
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool isEmpty() const { return m_rest.empty(); }

    std::uint8_t byte() { return number<std::uint8_t>(); }
    bool flag() { return (byte() & 1) != 0; }
    /** 0 to `end` - 1; `end` is 256 at most. */
    int below(int end) { return byte() % end; }

    /** The next bytes as they lie in memory. */
    template <typename Number>
    Number number()
    {
        static_assert(std::is_arithmetic_v<Number>);
        Number result{};
        const std::size_t count = std::min(sizeof result, m_rest.size());
        if (count > 0) {
            std::memcpy(&result, m_rest.data(), count);
        }
        m_rest.remove_prefix(count);
        return result;
    }

    /** Up to the next line feed, which is taken too; a dictionary of lines is easy to read and to write by hand. */
    std::string line()
    {
        const std::size_t end = m_rest.find('\n');
        const std::string result(m_rest.substr(0, end));
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        return result;
    }

    std::string rest()
    {
        const std::string result(m_rest);
        m_rest = {};
        return result;
    }

private:
    std::string_view m_rest;
};

inline QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace morvane::fuzz
