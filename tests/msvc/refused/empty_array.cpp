// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wzero-length-array
struct Buffer
{
    int length;
#ifdef FAULT
    char bytes[0];
#else
    char bytes[1];
#endif
};
Buffer buffer{};
