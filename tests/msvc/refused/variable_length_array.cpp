// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wvla-extension
int sum(int count)
{
#ifdef FAULT
    int values[count];
#else
    int values[4];
#endif
    values[0] = count;
    return values[0];
}
