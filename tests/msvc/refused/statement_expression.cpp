// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wgnu-statement-expression
int twice(int value)
{
#ifdef FAULT
    return ({
        int copy = value;
        copy * 2;
    });
#else
    return value * 2;
#endif
}
