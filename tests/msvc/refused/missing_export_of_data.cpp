// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: undefined symbol: public: static int ExportedClass::count
#include "MissingExport.h"

int main()
{
    return ExportedClass::count;
}
