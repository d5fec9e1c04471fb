// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// refused: cannot be narrowed
struct Size
{
    int width;
};

Size sizeOf(double width)
{
#ifdef FAULT
    return Size{width};
#else
    return Size{static_cast<int>(width)};
#endif
}
