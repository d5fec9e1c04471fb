// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#error "Microsoft's library has no <unistd.h>; Wine's headers have one"
