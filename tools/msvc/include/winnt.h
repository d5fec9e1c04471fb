// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Wine's header defines a function that clang has built in. Under another name it is harmless.
#pragma once
#define _InterlockedCompareExchange128 morvaneUnusedCompareExchange128
#include_next <winnt.h>
#undef _InterlockedCompareExchange128
