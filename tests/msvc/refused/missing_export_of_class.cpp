// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: undefined symbol: public: int __cdecl ExportedClass::value(void)
#include "MissingExport.h"

int main()
{
    const ExportedClass object;
    return object.value();
}
