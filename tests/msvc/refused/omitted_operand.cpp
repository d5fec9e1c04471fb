// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wgnu-conditional-omitted-operand
int valueOrOne(int value)
{
#ifdef FAULT
    return value ?: 1;
#else
    return value ? value : 1;
#endif
}
