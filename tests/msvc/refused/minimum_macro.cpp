// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: expected unqualified-id
// <windows.h> has macros of these names.
#include <windows.h>

#include <algorithm>

int smaller(int left, int right)
{
#ifdef FAULT
    return std::min(left, right);
#else
    return (std::min)(left, right);
#endif
}
