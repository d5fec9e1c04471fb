// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

namespace morvane::ui {

/** The one object of a service in the process: the host's replacement, or else a default object. */
template <typename Service>
class ReplaceableInstance
{
public:
    /** Makes another object the replacement, null for none. Returns the previous one. */
    Service* replace(Service* replacement) { return std::exchange(m_replacement, replacement); }

    /** The replacement, or else an object of the class Default, which is made on first use. */
    template <typename Default = Service>
    Service& get()
    {
        if (m_replacement) {
            return *m_replacement;
        }
        static Default defaultInstance;
        return defaultInstance;
    }

private:
    Service* m_replacement = nullptr;
};

} // namespace morvane::ui
