// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Wine's header makes a macro of open(), and so of every member function with that name.
#pragma once
#include_next <io.h>
#undef open
