// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: undefined symbol: int __cdecl exportedFunction(void)
#include "MissingExport.h"

int main()
{
    return exportedFunction();
}
