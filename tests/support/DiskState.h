// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

namespace morvane::test {

/** Everything below a directory at one moment: names, kinds, sizes, bytes, permissions, modification times, link
 * targets. */
class DiskState
{
public:
    explicit DiskState(const QString& directory);

    /** One line for each entry, for comparisons and failure messages. */
    const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

} // namespace morvane::test
