// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: -Wgnu-case-range
bool isDigit(char character)
{
    switch (character) {
#ifdef FAULT
    case '0' ... '9':
#else
    case '0':
#endif
        return true;
    default:
        return false;
    }
}
