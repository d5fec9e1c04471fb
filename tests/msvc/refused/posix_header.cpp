// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: Microsoft's library has no <unistd.h>
#ifdef FAULT
#include <unistd.h>
#endif
int one = 1;
