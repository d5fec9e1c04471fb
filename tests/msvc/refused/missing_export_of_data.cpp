// refused: undefined symbol: public: static int ExportedClass::count
#include "MissingExport.h"

int main()
{
    return ExportedClass::count;
}
