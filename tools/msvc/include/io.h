// Wine's header makes a macro of open(), and so of every member function with that name.
#pragma once
#include_next <io.h>
#undef open
