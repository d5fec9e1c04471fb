// refused: undefined symbol: int __cdecl exportedFunction(void)
#include "MissingExport.h"

int main()
{
    return exportedFunction();
}
