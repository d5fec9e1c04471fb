// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// What libc++ and Qt expect of Microsoft's library, and libc++ and Wine's headers do not declare. Every source includes
// this first.
#pragma once

// Before the first header: libc++'s <math.h> uses these names.
extern "C" {
using MorvaneLongOne = long double(long double);
using MorvaneLongTwo = long double(long double, long double);

__declspec(dllimport) double erfc(double), nan(const char*), nexttoward(double, long double);
__declspec(dllimport) double fma(double, double, double);
__declspec(dllimport) float erfcf(float), nanf(const char*), nexttowardf(float, long double);
__declspec(dllimport) float fmaf(float, float, float);
__declspec(dllimport) MorvaneLongOne acoshl, acosl, asinhl, asinl, atanhl, atanl, cbrtl, ceill, coshl, cosl, erfcl,
    erfl;
__declspec(dllimport) MorvaneLongOne exp2l, expl, expm1l, fabsl, floorl, lgammal, log10l, log1pl, log2l, logbl, logl;
__declspec(dllimport) MorvaneLongOne nearbyintl, rintl, roundl, sinhl, sinl, sqrtl, tanhl, tanl, tgammal, truncl;
__declspec(dllimport) MorvaneLongTwo atan2l, copysignl, fdiml, fmaxl, fminl, fmodl, hypotl, nextafterl, nexttowardl;
__declspec(dllimport) MorvaneLongTwo powl, remainderl;
__declspec(dllimport) int ilogbl(long double);
__declspec(dllimport) long lrintl(long double), lroundl(long double);
__declspec(dllimport) long long llrintl(long double), llroundl(long double);
__declspec(dllimport) long double fmal(long double, long double, long double);
__declspec(dllimport) long double frexpl(long double, int*), ldexpl(long double, int), modfl(long double, long double*);
__declspec(dllimport) long double nanl(const char*), remquol(long double, long double, int*);
__declspec(dllimport) long double scalblnl(long double, long), scalbnl(long double, int);
}

#include <corecrt.h>

#define MB_CUR_MAX ___mb_cur_max_func()

typedef double max_align_t;

extern "C" {
struct timespec
{
    time_t tv_sec;
    long tv_nsec;
};
__declspec(dllimport) int _islower_l(int, _locale_t);
__declspec(dllimport) int _isupper_l(int, _locale_t);
__declspec(dllimport) double _strtod_l(const char*, char**, _locale_t);
__declspec(dllimport) float _strtof_l(const char*, char**, _locale_t);
}

namespace stdext {
template <typename T>
T* make_checked_array_iterator(T* begin, size_t)
{
    return begin;
}
template <typename T>
T* make_unchecked_array_iterator(T* begin)
{
    return begin;
}
} // namespace stdext
