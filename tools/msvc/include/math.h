// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// As with Microsoft's library, the constants exist only if the source asks for them; Wine's header always defines them.
#include_next <math.h>
#ifndef _USE_MATH_DEFINES
#undef M_1_PI
#undef M_2_PI
#undef M_2_SQRTPI
#undef M_E
#undef M_LN10
#undef M_LN2
#undef M_LOG10E
#undef M_LOG2E
#undef M_PI
#undef M_PI_2
#undef M_PI_4
#undef M_SQRT1_2
#undef M_SQRT2
#endif
