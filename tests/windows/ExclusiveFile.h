// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include <windows.h>

#include <string>

namespace morvane::test {

/** Holds an existing file open so that nobody else can open it: even administrators have no access then. */
class ExclusiveFile
{
public:
    explicit ExclusiveFile(const std::wstring& name)
        : m_handle(CreateFileW(name.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~ExclusiveFile()
    {
        if (isOpen()) {
            CloseHandle(m_handle);
        }
    }
    ExclusiveFile(const ExclusiveFile&) = delete;
    ExclusiveFile& operator=(const ExclusiveFile&) = delete;

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

private:
    HANDLE m_handle;
};

} // namespace morvane::test
