// What libc++ and Qt expect of Microsoft's library, and libc++ and Wine's headers do not declare. Every source includes
// this first.
#pragma once

// Before the first header: libc++'s <math.h> uses these names.
extern "C" {
__declspec(dllimport) double erfc(double);
__declspec(dllimport) float erfcf(float);
__declspec(dllimport) double nexttoward(double, long double);
__declspec(dllimport) float nexttowardf(float, long double);
__declspec(dllimport) int ilogbl(long double);
__declspec(dllimport) long double frexpl(long double, int*);
__declspec(dllimport) long double ldexpl(long double, int);
__declspec(dllimport) long double modfl(long double, long double*);
__declspec(dllimport) long double remquol(long double, long double, int*);
__declspec(dllimport) long double scalblnl(long double, long);
__declspec(dllimport) long double scalbnl(long double, int);

#define MORVANE_ONE(name) __declspec(dllimport) long double name(long double);
#define MORVANE_TWO(name) __declspec(dllimport) long double name(long double, long double);
MORVANE_ONE(acoshl) MORVANE_ONE(acosl) MORVANE_ONE(asinhl) MORVANE_ONE(asinl) MORVANE_ONE(atanhl) MORVANE_ONE(atanl)
MORVANE_ONE(cbrtl) MORVANE_ONE(ceill) MORVANE_ONE(coshl) MORVANE_ONE(cosl) MORVANE_ONE(erfcl) MORVANE_ONE(erfl)
MORVANE_ONE(exp2l) MORVANE_ONE(expl) MORVANE_ONE(expm1l) MORVANE_ONE(fabsl) MORVANE_ONE(floorl) MORVANE_ONE(lgammal)
MORVANE_ONE(log10l) MORVANE_ONE(log1pl) MORVANE_ONE(log2l) MORVANE_ONE(logbl) MORVANE_ONE(logl) MORVANE_ONE(nearbyintl)
MORVANE_ONE(sinhl) MORVANE_ONE(sinl) MORVANE_ONE(sqrtl) MORVANE_ONE(tanhl) MORVANE_ONE(tanl) MORVANE_ONE(tgammal)
MORVANE_TWO(atan2l) MORVANE_TWO(fdiml) MORVANE_TWO(fmaxl) MORVANE_TWO(fminl) MORVANE_TWO(fmodl) MORVANE_TWO(hypotl)
MORVANE_TWO(nextafterl) MORVANE_TWO(nexttowardl) MORVANE_TWO(powl) MORVANE_TWO(remainderl)
#undef MORVANE_ONE
#undef MORVANE_TWO
}

#include <corecrt.h>

#define MB_CUR_MAX ___mb_cur_max_func()

extern "C" {
struct timespec {
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
