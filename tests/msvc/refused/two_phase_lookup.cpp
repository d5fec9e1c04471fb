// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: neither visible in the template definition nor found by argument-dependent lookup
// Without /permissive- Microsoft's compiler looks the name up when the template is used.
#ifndef FAULT
int declaredLater(int value);
#endif

template <typename T>
int convert(T)
{
    return declaredLater(1);
}

int declaredLater(int value)
{
    return value + convert(0L);
}
