#include "MissingExport.h"

int exportedFunction()
{
    return 1;
}

ExportedClass::ExportedClass() = default;

ExportedClass::~ExportedClass() = default;

int ExportedClass::value() const
{
    return 1;
}

int ExportedClass::count = 1;
