// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: use of undeclared identifier 'M_PI'
#ifndef FAULT
#define _USE_MATH_DEFINES
#endif
#include <cmath>

double half(double angle)
{
    return angle * M_PI / 2;
}
